// Drawing shapes and bitmaps on an image under a blend mode and an opacity.
#pragma once

#include "gradient.h"
#include "image.h"
#include "shape.h"

namespace zorvic::vek {

// Where and how everything of one call is drawn.
struct Drawing {
    Image& image;
    Rect clip;  // inside the image
    Blend blend = Blend::sourceOver;
    int opacity = 255;
    bool smooth = true;
    Image& scratch;  // memory that is kept between calls
};

// What a shape is filled with: a colour, or a gradient moved by an offset.
struct Ink {
    std::uint32_t color = 0;
    Gradient* gradient = nullptr;
    Point offset = {};
};

void DrawShape(const Drawing& drawing, const Shape& shape, const Ink& ink);

// The rectangle between two corners, in the coordinates of the image.
void DrawBox(const Drawing& drawing, Point a, Point b, const Ink& ink);

// The bitmap with its first pixel at a position.
void DrawBitmap(const Drawing& drawing, Image& bitmap, Point position);

}  // namespace zorvic::vek

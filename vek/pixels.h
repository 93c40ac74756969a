// Arithmetic on premultiplied pixels, and the fills and mixes that need no path.
#pragma once

#include <cstdint>

#include "image.h"
#include "style.h"

namespace zorvic::vek {

// x / 255 to the nearest, for x in 0..255 * 255.
inline std::uint32_t DivideBy255(std::uint32_t x) {
    x += 128;
    return (x + (x >> 8)) >> 8;
}

// A straight colour at an opacity 0..255 as a premultiplied pixel.
std::uint32_t Premultiply(std::uint32_t color, int opacity);

// The shortcut for whole pixels: fills a rectangle inside the image if this blend mode needs nothing but the colour and
// the pixel. \return false: nothing was done
bool FillPixels(Image& image, const Rect& rect, Blend blend, std::uint32_t premultiplied, int opacity);

// Copies a rectangle that lies inside both images.
void CopyPixels(Image& to, const Image& from, const Rect& rect);

// Pixels of composed become original + (composed - original) * opacity / 255.
void MixPixels(Image& composed, const Image& original, const Rect& rect, int opacity);

}  // namespace zorvic::vek

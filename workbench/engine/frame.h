// The visible part of the stage as pixels, made block by block so that making one can be given up at any moment.
#pragma once

#include <functional>

#include "engine/stage.h"

// What the view shows. A zoom of 2 and more magnifies, -2 and less reduces that many times; 1 is the natural size.
struct ViewPart {
    POINT origin{};  // stage pixel in the view's top left corner
    int zoom = 1;
    SIZE size{};  // of the view, in screen pixels

    bool operator==(const ViewPart& other) const {
        return origin.x == other.origin.x && origin.y == other.origin.y && zoom == other.zoom &&
               size.cx == other.size.cx && size.cy == other.size.cy;
    }
};

enum class Channels { color, opaque, alpha };

struct Frame {
    ViewPart part;
    // Stage pixels when the view magnifies, else means of as many as the zoom says; one per stored pixel.
    zorvic::Bitmap pixels;
    // How the channels are shown; empty when that is the pixels themselves.
    zorvic::Bitmap shown;
    DrawCost cost;
};

// Told how much is done, 0..1; false gives the work up.
using FrameProgress = std::function<bool(double done)>;

// A frame without pixels when it was given up or memory is short.
Frame MakeFrame(const ViewPart& part, Channels channels, zorvic::TextureRef picture, const Settings& settings,
                const FrameProgress& progress);

// The least time of a few draws of the part that shows; a single draw is at the mercy of the scheduler.
DrawCost Measure(const ViewPart& part, zorvic::TextureRef picture, const Settings& settings,
                 const FrameProgress& progress);

// What is measured, as data: one row for each kind of work, with the times it is meant to reach.
#pragma once

#include <span>

#include "zorvic/zorvic.h"

namespace bench {

enum class Work {
    fill,
    draw,
    crossFade,
    gray,
    premultiply,
    invert,
    shuffle,
    translate,
    colorize,
    box3,          // the 3 x 3 blur
    boxTwice,      // the box filter of any size, two passes
    mirror,        // into another image
    move,          // quarter turns and the like, pixels only
    newTransform,  // the same into a new bitmap
    nineGrid
};

// The source's alpha: 255; any; or as in user interfaces, runs of 0 and 255 with smooth edges.
enum class Content { random, opaque, userInterface };

// What the machine needs for the loads and stores alone: one image written; read and written; read, another written;
// two read, one of them written.
enum class Limit { none, store, modify, copy, combine };

// What times are divided by.
enum class Per { pixel, sourcePixel, pixelAndPass, call };

// A time that is meant to be reached: a multiple of another one of the same run, or nanoseconds.
struct Target {
    enum class Of { nothing, pixman, limit, nanoseconds, row };
    Of of = Of::nothing;
    double most = 0;
    const char* row = nullptr;  // the other row's name
};

struct Row {
    const char* name;
    Work work;
    Content content = Content::random;
    double scale = 1;                  // of the destination to the source
    DWORD operation = ZORVIC_OP_COPY;  // the operation word
    DWORD filter = ZORVIC_FILTER_NEAREST;
    BYTE alpha = 255;
    DWORD color = 0;   // of fills, premultiplied
    int argument = 0;  // axis, transform, mode or box
    Limit limit = Limit::none;
    Per per = Per::pixel;
    bool wears = false;  // what a run leaves behind costs the next one another time: every run starts afresh
    LONG drawnSize = 0;  // width and height of a draw on a larger canvas; 0: all of canvases of several sizes
    Target targets[2]{};
    double narrowOfPixman = 1;  // the first target of a run that is limited to SSE2
};

std::span<const Row> AllRows();

}  // namespace bench

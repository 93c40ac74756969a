// Calls that draw, with arguments by chance, for laws that hold for all of them.
#pragma once

#include <functional>
#include <string>

#include "support/host.h"
#include "support/random.h"

namespace host {

// Most draws lie between -40 and 90 logical pixels.
struct RandomDraw {
    std::string name;
    std::function<int(HGCANVAS)> call;
    // For draws that the clip does not hold and that are refused when they leave the surface.
    RECT unclipped{};
};

// What draws read from.
class DrawSources {
public:
    DrawSources();
    // The operation words of the sources are the next draw's. onSurface: also what only canvases with a surface do, and
    // what asks for their alpha.
    RandomDraw Next(zorvic::Random& random, bool onSurface) const;

private:
    std::vector<OwnedBitmap> bitmaps;  // of every depth
    OwnedTexture skin;
    OwnedCanvas canvas;
};

}  // namespace host

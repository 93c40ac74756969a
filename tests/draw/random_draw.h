// Calls that draw, with arguments by chance, for laws that hold for all of them.
#pragma once

#include <functional>
#include <string>

#include "support/host.h"
#include "support/random.h"

namespace host {

// Draws land between -40 and 90 logical pixels, and show more where nothing clips them.
struct RandomDraw {
    enum class Needs { anyCanvas, surface };

    std::string name;
    std::function<int(HGCANVAS)> call;
    Needs needs = Needs::anyCanvas;
    // For draws that the clip does not hold and that are refused when they leave the surface.
    RECT unclipped{};
};

// What draws read from.
class DrawSources {
public:
    DrawSources();
    // needs: what the canvas can do. overAlpha: whether its alpha bytes may count.
    RandomDraw Next(zorvic::Random& random, RandomDraw::Needs canDo) const;

private:
    std::vector<OwnedBitmap> bitmaps;  // of every depth
    OwnedTexture skin;
    OwnedCanvas canvas;
};

}  // namespace host

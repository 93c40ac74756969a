// What scenarios draw on and draw: a canvas of each kind, bitmaps and textures, the same before every scenario.
#pragma once

#include <array>

#include "support/gdi.h"

namespace failures {

inline constexpr int stageWidth = 12, stageHeight = 10;
inline constexpr RECT all{0, 0, stageWidth, stageHeight};
inline constexpr RECT part{1, 1, 9, 8};

class Stage {
public:
    static constexpr std::size_t canvasCount = 4;
    static constexpr const char* canvasNames[canvasCount] = {"memory", "system", "DIB section", "24-bit DIB section"};

    Stage();

    // New canvases, each with its backend's, and the pixels of the start.
    void Reset();
    // Of the texture and all canvases; fewer when a canvas has lost its surface.
    std::vector<DWORD> Pixels() const;

    HGCANVAS Canvas(std::size_t kind) const { return canvases[kind].get(); }
    host::OwnedCanvas NewCanvas(std::size_t kind) const;

    host::OwnedBitmap colors16 = host::MakeBitmap(stageWidth, stageHeight, 8, 16);
    host::OwnedBitmap rgb = host::MakeBitmap(stageWidth, stageHeight, 24);
    host::OwnedTexture texture{CreateTexture(stageWidth, stageHeight)};
    host::OwnedTexture texture16{CreateTextureEx(stageWidth, stageHeight, 8, 16)};
    std::unique_ptr<HGPATH__, decltype(&PathDestroy)> path{PathCreate(), PathDestroy};
    // A zigzag whose edges Cairo would take too long for.
    std::unique_ptr<HGPATH__, decltype(&PathDestroy)> densePath{PathCreate(), PathDestroy};
    std::unique_ptr<HGGRADIENT__, decltype(&GradientDestroy)> gradient{GradientCreateLinear(0, 0, 9, 0),
                                                                       GradientDestroy};

private:
    std::array<host::OwnedCanvas, canvasCount> canvases;
    host::GdiBitmap dib = host::GdiBitmap::Dib(stageWidth, stageHeight);
    host::GdiBitmap dib24 = host::GdiBitmap::Dib(stageWidth, stageHeight, 24);
};

}  // namespace failures

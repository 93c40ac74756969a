// Canvases of every kind: on surfaces, and on a host's device context that has a bitmap of any depth and row order.
#pragma once

#include <span>

#include "support/gdi.h"

namespace host {

struct CanvasKind {
    const char* name;
    // One of the two: a canvas with a surface, or a bitmap to make one on.
    HGCANVAS(ZORVIC_CALL* create)(int width, int height, HGCANVAS reference);
    GdiBitmap (*makeBitmap)(int width, int height);
    DWORD kept = 0xFFFFFFFF;  // bits of a pixel that survive
};
std::span<const CanvasKind> CanvasKinds();

// A canvas of a kind. It is not empty.
class Target {
public:
    Target(const CanvasKind& kind, int width, int height);

    HGCANVAS Get() const { return canvas.get(); }
    HDC HostDc() const { return bitmap ? bitmap->Dc() : nullptr; }
    void FillPlain(DWORD pixel) const;
    Snapshot Shown() const { return bitmap ? Snapshot(bitmap->Shown().get()) : Snapshot(canvas.get()); }

    // Compares what the target shows with a picture, in the bits that it keeps.
    template <class Picture>
    testing::AssertionResult Keeps(Picture picture) const {
        const Snapshot shown = Shown();
        const OwnedBitmap kept = MakeBitmap(width, height, [&](int x, int y) { return shown(x, y) & keptBits; });
        return host::Shows(kept.get(), [&](int x, int y) { return picture(x, y) & keptBits; });
    }

private:
    std::unique_ptr<GdiBitmap> bitmap;
    OwnedCanvas canvas;
    int width, height;
    DWORD keptBits;
};

}  // namespace host

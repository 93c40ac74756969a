// Canvases of every kind: on surfaces, and on a host's device context that has a bitmap of any depth and row order.
#pragma once

#include "support/gdi.h"

namespace host {

struct CanvasKind {
    const char* name;
    // One of the two: a canvas with a surface, or a bitmap to make one on.
    HGCANVAS(ZORVIC_CALL* create)(int width, int height, HGCANVAS reference);
    GdiBitmap (*makeBitmap)(int width, int height);
    DWORD kept = 0xFFFFFFFF;  // bits of a pixel that survive
};

template <int bitsPixel, GdiBitmap::RowOrder order>
GdiBitmap MakeDib(int width, int height) {
    return GdiBitmap::Dib(width, height, bitsPixel, order);
}
using enum GdiBitmap::RowOrder;
inline const CanvasKind canvasKinds[] = {{"memory", CreateCanvas, nullptr},
                                         {"system", CreateSystemCanvas, nullptr},
                                         {"32 bits", nullptr, MakeDib<32, topDown>},
                                         {"32 bits, bottom-up", nullptr, MakeDib<32, bottomUp>, 0x00FFFFFF},
                                         {"24 bits", nullptr, MakeDib<24, topDown>, 0x00FFFFFF},
                                         {"24 bits, bottom-up", nullptr, MakeDib<24, bottomUp>, 0x00FFFFFF},
                                         {"16 bits", nullptr, MakeDib<16, topDown>, 0x00F8F8F8},
                                         {"compatible", nullptr, GdiBitmap::Compatible, 0x00FFFFFF}};

// A canvas of a kind. It is not empty.
class Target {
public:
    Target(const CanvasKind& kind, int targetWidth, int targetHeight)
        : width(targetWidth), height(targetHeight), keptBits(kind.kept) {
        if (kind.makeBitmap) bitmap.reset(new GdiBitmap(kind.makeBitmap(width, height)));
        canvas.reset(bitmap ? CreateCanvasFromDC(bitmap->Dc()) : kind.create(width, height, nullptr));
        Fill(PremultipliedPattern{3});
    }

    HGCANVAS Get() const { return canvas.get(); }
    HDC HostDc() const { return bitmap ? bitmap->Dc() : nullptr; }
    template <class Picture>
    void Fill(Picture picture) const {
        bitmap ? bitmap->Fill(picture) : host::Fill(canvas.get(), picture);
    }
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

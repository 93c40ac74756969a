// The images that a row works on: a canvas, a source texture, and the pixels of both.
#pragma once

#include <memory>
#include <vector>

#include "rows.h"

namespace bench {

struct DeleteHandle {
    void operator()(HGTEXTURE texture) const { DeleteTexture(texture); }
    void operator()(HGCANVAS canvas) const { DeleteCanvas(canvas); }
};
template <class Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle>;

class Surfaces {
public:
    // size: of what is drawn; of the source where that is what times are divided by.
    Surfaces(const Row& row, SIZE size);

    // Both images as they were at first: work in place changes them.
    void Restore();

    HGCANVAS Canvas() const { return canvas.get(); }
    HGTEXTURE Texture() const { return texture.get(); }
    HGBITMAP Bitmap() const { return reinterpret_cast<HGBITMAP>(texture.get()); }

    RECT area{};              // what is drawn to, on the canvas
    BitmapLockInfo target{};  // the pixels of that area
    BitmapLockInfo source{};
    BitmapLockInfo canvasPixels{};

private:
    Owned<HGCANVAS> canvas;
    Owned<HGTEXTURE> texture;
    std::vector<DWORD> firstTarget, firstSource;
};

inline SIZE SizeOf(const BitmapLockInfo& image) { return {image.bmWidth, image.bmHeight}; }
inline DWORD* PixelsOf(const BitmapLockInfo& image) { return static_cast<DWORD*>(image.bmBits); }
inline std::size_t PixelCount(const BitmapLockInfo& image) {
    return static_cast<std::size_t>(image.bmWidth) * static_cast<std::size_t>(image.bmHeight);
}

}  // namespace bench

// Drawing an image onto itself, unscaled: what is read must not have been drawn over before.
#pragma once

#include <cstring>

#include "raster/image.h"

namespace zorvic {

// Whether a kernel, which goes forwards and reads pixels before it writes them, would draw over source pixels before it
// reads them: the source begins before the destination and reaches into it. Both images have the same size.
inline bool OverwritesSource(const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    const auto* const target = static_cast<const std::byte*>(dst.bmBits);
    const auto* const source = static_cast<const std::byte*>(src.bmBits);
    const auto* const lastRow = source + static_cast<std::ptrdiff_t>(src.bmHeight - 1) * src.bmWidthBytes;
    return source < target && target < lastRow + std::ptrdiff_t{BytesPerPixel(DepthOf(src.bmBitsPixel))} * src.bmWidth;
}

// Calls draw(dst, src) for parts of two images, run by run from the last one on, each with a copy of its source. Both are
// parts of one canvas, so that 32-bit pixels fit the run. Not inlined, or the copy's room would be made for every draw.
template <class Draw>
[[gnu::noinline]] void DrawBackwards(const BitmapLockInfo& dst, const BitmapLockInfo& src, const Draw& draw) {
    constexpr int runLength = 256;
    std::uint32_t run[runLength];
    for (int y = dst.bmHeight; y-- > 0;)
        for (int end = dst.bmWidth; end > 0; end -= runLength) {
            const int n = end < runLength ? end : runLength;
            std::memcpy(run, PartOf(src, end - n, y, n, 1).bmBits, sizeof *run * static_cast<std::size_t>(n));
            draw(PartOf(dst, end - n, y, n, 1), BitmapLockInfo{0, n, 1, sizeof run, 1, 32, run, 0, 0, nullptr});
        }
}

// Calls draw(dst, src) for two images, or for parts of them in such an order that the result is that of a copy of src.
template <class Draw>
void DrawInOrder(const BitmapLockInfo& dst, const BitmapLockInfo& src, const Draw& draw) {
    if (OverwritesSource(dst, src)) {
        DrawBackwards(dst, src, draw);
    } else {
        draw(dst, src);
    }
}

}  // namespace zorvic

// Rows and 32-bit pixels go through the primitives. One loop moves other pixels: a source pixel's place is a start and
// one step for each axis.
#include "pixel/move_pixels.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "pixel/primitives.h"

namespace zorvic {

namespace {

// Pixels, either way. Where columns become rows, the cache lines that a block writes to stay cached until they are full;
// larger blocks lose them in destinations whose stride is a power of two.
constexpr int block = 16;

template <int bytesPerPixel>
void MoveInBlocks(const BitmapLockInfo& dst, const BitmapLockInfo& src, const Moves& moves) {
    const std::ptrdiff_t stride = dst.bmWidthBytes;
    const std::ptrdiff_t alongX = moves.mirrorsX ? -bytesPerPixel : bytesPerPixel;
    const std::ptrdiff_t alongY = moves.mirrorsY ? -stride : stride;
    std::byte* const start = static_cast<std::byte*>(dst.bmBits) +
                             (moves.mirrorsX ? (dst.bmWidth - 1) * std::ptrdiff_t{bytesPerPixel} : 0) +
                             (moves.mirrorsY ? (dst.bmHeight - 1) * stride : 0);
    // Destination bytes from one source column, or row, to the next.
    const std::ptrdiff_t columnStep = moves.transposes ? alongY : alongX;
    const std::ptrdiff_t rowStep = moves.transposes ? alongX : alongY;

    const auto* const source = static_cast<const std::byte*>(src.bmBits);
    for (int top = 0; top < src.bmHeight; top += block)
        for (int left = 0; left < src.bmWidth; left += block) {
            const int bottom = std::min<int>(src.bmHeight, top + block);
            const int columns = std::min<int>(src.bmWidth - left, block);
            for (int y = top; y < bottom; ++y) {
                const std::byte* const from =
                    source + std::ptrdiff_t{y} * src.bmWidthBytes + std::ptrdiff_t{left} * bytesPerPixel;
                std::byte* const to = start + y * rowStep + left * columnStep;
                for (int x = 0; x < columns; ++x)
                    std::memcpy(to + x * columnStep, from + std::ptrdiff_t{x} * bytesPerPixel, bytesPerPixel);
            }
        }
}

// An image as seen from its last row upwards, or not.
TargetPixels PixelsOf(const BitmapLockInfo& image, bool upwards) {
    const std::ptrdiff_t stride = image.bmWidthBytes;
    if (!upwards) return {image.bmBits, stride};
    return {static_cast<std::byte*>(image.bmBits) + (image.bmHeight - 1) * stride, -stride};
}

}  // namespace

void MovePixels(const BitmapLockInfo& dst, const BitmapLockInfo& src, Transform transform) {
    const Moves moves = MovesOf(transform);
    const SIZE size{src.bmWidth, src.bmHeight};
    const TargetPixels target = PixelsOf(dst, moves.mirrorsY);
    if (src.bmBitsPixel != 8 && src.bmBitsPixel != 24 && src.bmBitsPixel != 32) return;
    if (!moves.transposes && !moves.mirrorsX) {
        CopyPixels(PixelsOf(src, false), target, size, src.bmBitsPixel / 8);
    } else if (src.bmBitsPixel == 8) {
        MoveInBlocks<1>(dst, src, moves);
    } else if (src.bmBitsPixel == 24) {
        MoveInBlocks<3>(dst, src, moves);
    } else if (moves.transposes) {
        TransposePixels(PixelsOf(src, moves.mirrorsX), target, size);
    } else {
        ReversePixels(PixelsOf(src, false), target, size);
    }
}

}  // namespace zorvic

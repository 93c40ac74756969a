// The 3 x 3 box blur: sums of three neighbours along a row are made once and serve the rows above and below as well.
#include "effects/pixels/box_blur.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

#include "effects/pixels/effect_set.h"
#include "raster/image.h"

namespace zorvic {

namespace {

std::uint32_t* RowOf(const BitmapLockInfo& image, int y) {
    return reinterpret_cast<std::uint32_t*>(static_cast<std::byte*>(image.bmBits) +
                                            std::ptrdiff_t{y} * image.bmWidthBytes);
}

// Vectors that straddle cache lines would take half as long again.
constexpr std::align_val_t alignment{64};
constexpr int alignedWords = 16;

struct FreeAligned {
    void operator()(std::uint32_t* words) const { ::operator delete[](words, alignment); }
};

class NeighborSums {
public:
    explicit NeighborSums(const BitmapLockInfo& source)
        : plane((source.bmWidth + alignedWords - 1) / alignedWords * alignedWords),
          src(source),
          sums(new (alignment, std::nothrow)
                   std::uint32_t[static_cast<std::size_t>(6) * static_cast<unsigned>(plane)]) {}

    // False when memory is short.
    explicit operator bool() const { return sums != nullptr; }

    // Rows that were asked for, and those before them, may be overwritten.
    const std::uint32_t* OfRow(int y) {
        const int row = std::clamp<int>(y, 0, src.bmHeight - 1);
        std::uint32_t* const target = sums.get() + row % 3 * std::ptrdiff_t{2} * plane;
        if (held[row % 3] != row) Effects().sumNeighbors(RowOf(src, row), src.bmWidth, target, plane);
        held[row % 3] = row;
        return target;
    }

    const int plane;

private:
    const BitmapLockInfo& src;
    std::unique_ptr<std::uint32_t[], FreeAligned> sums;  // of three rows, row y in place y modulo 3
    int held[3] = {-1, -1, -1};                          // which
};

}  // namespace

bool BoxBlur(const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    if (dst.bmBitsPixel != 32 || src.bmBitsPixel != 32 || IsEmpty(dst) || IsEmpty(src)) return false;
    NeighborSums sums(src);
    if (!sums) return false;
    const int rows = std::min(dst.bmHeight, src.bmHeight), columns = std::min(dst.bmWidth, src.bmWidth);
    const int lastColumn = src.bmWidth - 1;
    const auto meanOfNine = Effects().meanOfNine;
    for (int i = 0; i < rows; ++i) {
        const int y = i == rows - 1 ? src.bmHeight - 1 : i;
        const std::uint32_t *const above = sums.OfRow(y - 1), *const here = sums.OfRow(y),
                                   *const below = sums.OfRow(y + 1);
        std::uint32_t* const row = RowOf(dst, i);
        meanOfNine(above, here, below, sums.plane, row, columns);
        meanOfNine(above + lastColumn, here + lastColumn, below + lastColumn, sums.plane, row + columns - 1, 1);
    }
    return true;
}

}  // namespace zorvic

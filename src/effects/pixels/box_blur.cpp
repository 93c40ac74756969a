// The 3 x 3 box blur: sums of three neighbours along a row are made once and serve the rows above and below as well.
#include "effects/pixels/box_blur.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "raster/image.h"

namespace zorvic {

namespace {

// A constant count, so that the compiler turns loops over a block into vectors; rows are padded to whole blocks.
constexpr std::ptrdiff_t blockBytes = 64;

template <class Item>
std::unique_ptr<Item[]> Allocate(std::ptrdiff_t items) {
    return std::unique_ptr<Item[]>(new (std::nothrow) Item[static_cast<std::size_t>(items)]{});
}

std::byte* RowOf(const BitmapLockInfo& image, int y) {
    return static_cast<std::byte*>(image.bmBits) + static_cast<std::ptrdiff_t>(y) * image.bmWidthBytes;
}

class RowBlur {
public:
    explicit RowBlur(const BitmapLockInfo& source)
        : src(source),
          rowBytes(static_cast<std::ptrdiff_t>(source.bmWidth) * 4),
          length((rowBytes + blockBytes - 1) / blockBytes * blockBytes),
          sums(Allocate<std::uint16_t>(3 * length)),
          padded(Allocate<std::uint8_t>(length + 8)),
          blurred(Allocate<std::uint8_t>(length)) {}

    // False when memory is short.
    explicit operator bool() const { return sums && padded && blurred; }

    // The blurred row y of the source. Rows that were asked for one after another from 0 on may be overwritten.
    const std::uint8_t* Row(int y) {
        const std::uint16_t *above = SumsOf(y - 1), *here = SumsOf(y), *below = SumsOf(y + 1);
        for (std::ptrdiff_t i = 0; i < length; i += blockBytes)
            for (std::ptrdiff_t k = i; k < i + blockBytes; ++k) {
                const auto sum = static_cast<std::uint16_t>(above[k] + here[k] + below[k]);
                // A ninth: exact up to 16383.
                blurred[static_cast<std::size_t>(k)] = static_cast<std::uint8_t>(sum * 7282U >> 16);
            }
        return blurred.get();
    }

private:
    const std::uint16_t* SumsOf(int y) {
        const int row = std::clamp<int>(y, 0, src.bmHeight - 1);
        std::uint16_t* const target = sums.get() + row % 3 * length;
        if (held[row % 3] == row) return target;
        held[row % 3] = row;

        // One pixel to the left and right: the neighbour's channel stands 4 bytes away.
        const std::byte* pixels = RowOf(src, row);
        std::uint8_t* const bytes = padded.get();
        std::memcpy(bytes, pixels, 4);
        std::memcpy(bytes + 4, pixels, static_cast<std::size_t>(rowBytes));
        std::memcpy(bytes + 4 + rowBytes, pixels + rowBytes - 4, 4);
        for (std::ptrdiff_t i = 0; i < length; i += blockBytes)
            for (std::ptrdiff_t k = i; k < i + blockBytes; ++k)
                target[k] = static_cast<std::uint16_t>(bytes[k] + bytes[k + 4] + bytes[k + 8]);
        return target;
    }

    const BitmapLockInfo& src;
    std::ptrdiff_t rowBytes, length;
    std::unique_ptr<std::uint16_t[]> sums;  // of three rows, row y in place y modulo 3
    std::unique_ptr<std::uint8_t[]> padded, blurred;
    int held[3] = {-1, -1, -1};  // which
};

}  // namespace

void BoxBlur(const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    if (dst.bmBitsPixel != 32 || src.bmBitsPixel != 32 || IsEmpty(dst) || IsEmpty(src)) return;
    RowBlur blur(src);
    if (!blur) return;
    const int rows = std::min(dst.bmHeight, src.bmHeight), columns = std::min(dst.bmWidth, src.bmWidth);
    for (int y = 0; y < rows; ++y) {
        const std::uint8_t* row = blur.Row(y == rows - 1 ? src.bmHeight - 1 : y);
        std::memcpy(RowOf(dst, y), row, static_cast<std::size_t>(columns) * 4);
        std::memcpy(RowOf(dst, y) + std::ptrdiff_t{4} * (columns - 1), row + std::ptrdiff_t{4} * (src.bmWidth - 1), 4);
    }
}

}  // namespace zorvic

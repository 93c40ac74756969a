// The one way in which effects walk an image: runs of pixels, or the palette, as 32-bit words.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "raster/lookup_tables.h"
#include "raster/rows/pixel.h"

namespace zorvic {

// The depths that an effect knows; images of others stay as they are.
enum class Depths { argb32, argb32AndPalette, all };

template <class Effect>
void MapRows32(const BitmapLockInfo& image, const Effect& effect) {
    const std::int64_t pixels = std::int64_t{image.bmWidth} * image.bmHeight;
    const auto row = [&](int y) {
        return reinterpret_cast<std::uint32_t*>(static_cast<std::byte*>(image.bmBits) +
                                                std::ptrdiff_t{y} * image.bmWidthBytes);
    };
    if (image.bmWidthBytes == std::int64_t{4} * image.bmWidth && image.bmHeight > 0 && pixels <= INT32_MAX)
        return effect(row(0), static_cast<int>(pixels));
    for (int y = 0; y < image.bmHeight; ++y) effect(row(y), image.bmWidth);
}

// 24-bit pixels are widened and narrowed again, block by block.
template <class Effect>
void MapRows24(const BitmapLockInfo& image, const Effect& effect) {
    std::uint32_t words[chunk];
    for (int y = 0; y < image.bmHeight; ++y) {
        auto* const row = static_cast<std::byte*>(image.bmBits) + std::ptrdiff_t{y} * image.bmWidthBytes;
        for (int x = 0; x < image.bmWidth; x += chunk) {
            const int n = std::min<int>(image.bmWidth - x, chunk);
            for (int i = 0; i < n; ++i) words[i] = ReadPixel<SourceDepth::rgb24>(image, row, x + i);
            effect(words, n);
            for (int i = 0; i < n; ++i) std::memcpy(row + std::ptrdiff_t{3} * (x + i), &words[i], 3);
        }
    }
}

// Rows of an image that a host describes may lie closer together than they are long, or be more than any memory holds.
inline bool RowsLieApart(const BitmapLockInfo& image) {
    const std::int64_t rowBytes = std::int64_t{image.bmWidth} * (image.bmBitsPixel / 8);
    const std::int64_t step = std::abs(std::int64_t{image.bmWidthBytes});
    if (step == 0 ? image.bmHeight > 1 : step < rowBytes) return false;
    return step * image.bmHeight + rowBytes <= PTRDIFF_MAX;
}

// effect(words, n): changes words 0xAARRGGBB in place. 24-bit pixels come with alpha 255, and what becomes of it is
// dropped. The indices of palette images stay, and so does the grey ramp: it is every such image's.
template <Depths depths, class Effect>
void MapColors(const BitmapLockInfo& image, const Effect& effect) {
    if (image.bmBitsPixel == 8) {
        if (depths != Depths::argb32 && image.palette && image.palette != GreyPalette.data())
            effect(reinterpret_cast<std::uint32_t*>(image.palette), image.colorCount);
    } else if (!image.bmBits || image.bmWidth < 1 || !RowsLieApart(image)) {
        return;
    } else if (image.bmBitsPixel == 32) {
        MapRows32(image, effect);
    } else if (image.bmBitsPixel == 24 && depths == Depths::all) {
        MapRows24(image, effect);
    }
}

}  // namespace zorvic

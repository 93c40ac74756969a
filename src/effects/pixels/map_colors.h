// The one way in which effects walk an image: every pixel, or every palette entry, through a function of a 32-bit word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "raster/lookup_tables.h"
#include "raster/rows/pixel.h"

namespace zorvic {

// The depths that an effect knows; images of others stay as they are.
enum class Depths { argb32, argb32AndPalette, all };

template <SourceDepth depth>
void WritePixel(std::byte* row, std::ptrdiff_t x, std::uint32_t word) {
    constexpr int bytes = BytesPerPixel(depth);
    std::memcpy(row + bytes * x, &word, bytes);  // the low bytes first
}

// A constant count, so that the compiler turns the loops over a block into vectors without a second loop for the rest.
inline constexpr int blockPixels = 16;

template <SourceDepth depth, class Op>
void MapBlock(const BitmapLockInfo& image, std::byte* pixels, const Op& op) {
    std::uint32_t words[blockPixels];
    for (int i = 0; i < blockPixels; ++i) words[i] = ReadPixel<depth>(image, pixels, i);
    for (std::uint32_t& word : words) word = op(word);
    for (int i = 0; i < blockPixels; ++i) WritePixel<depth>(pixels, i, words[i]);
}

// The last pixels go through the same block, padded.
template <SourceDepth depth, class Op>
void MapRow(const BitmapLockInfo& image, std::byte* pixels, int n, const Op& op) {
    constexpr std::size_t pixelBytes = BytesPerPixel(depth), blockBytes = blockPixels * pixelBytes;
    for (; n >= blockPixels; n -= blockPixels, pixels += blockBytes) MapBlock<depth>(image, pixels, op);
    if (n <= 0) return;
    std::byte padded[blockBytes] = {};
    const std::size_t bytes = static_cast<std::size_t>(n) * pixelBytes;
    std::memcpy(padded, pixels, bytes);
    MapBlock<depth>(image, padded, op);
    std::memcpy(pixels, padded, bytes);
}

template <SourceDepth depth, class Op>
void MapRows(const BitmapLockInfo& image, const Op& op) {
    if (!image.bmBits) return;
    for (int y = 0; y < image.bmHeight; ++y)
        MapRow<depth>(image, static_cast<std::byte*>(image.bmBits) + std::ptrdiff_t{y} * image.bmWidthBytes,
                      image.bmWidth, op);
}

// op: word 0xAARRGGBB to word. 24-bit pixels come with alpha 255, and what op does to it is dropped. The indices of
// palette images stay, and so does the grey ramp: it is every such image's.
template <Depths depths, class Op>
void MapColors(const BitmapLockInfo& image, const Op& op) {
    if (image.bmBitsPixel == 32) {
        MapRows<SourceDepth::argb32>(image, op);
    } else if (image.bmBitsPixel == 24 && depths == Depths::all) {
        MapRows<SourceDepth::rgb24>(image, op);
    } else if (image.bmBitsPixel == 8 && depths != Depths::argb32) {
        auto* const entries = reinterpret_cast<std::byte*>(image.palette);
        if (entries && image.palette != GreyPalette.data())
            MapRow<SourceDepth::argb32>(image, entries, image.colorCount, op);
    }
}

}  // namespace zorvic

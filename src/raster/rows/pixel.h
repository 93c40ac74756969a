// Reading one source pixel as a 32-bit ARGB word, for every source depth, and the address of a row.
#pragma once

#include <cstring>

#include "raster/image.h"

namespace zorvic {
namespace {

constexpr int chunk = 256;  // pixels of a filtered block: what is prepared for it stays in the first cache

inline const std::byte* SourceRow(const BitmapLockInfo& src, std::ptrdiff_t y) {
    return static_cast<const std::byte*>(src.bmBits) + y * src.bmWidthBytes;
}

// Palette entries are taken whole; 24-bit pixels are opaque.
template <SourceDepth depth>
std::uint32_t ReadPixel(const BitmapLockInfo& src, const std::byte* row, std::ptrdiff_t x) {
    if constexpr (depth == SourceDepth::palette8) {
        return static_cast<std::uint32_t>(src.palette[std::to_integer<std::size_t>(row[x])]);
    } else if constexpr (depth == SourceDepth::rgb24) {
        const std::byte* pixel = row + 3 * x;
        return 0xFF000000U | std::to_integer<std::uint32_t>(pixel[2]) << 16 |
               std::to_integer<std::uint32_t>(pixel[1]) << 8 | std::to_integer<std::uint32_t>(pixel[0]);
    } else {
        std::uint32_t pixel;
        std::memcpy(&pixel, row + 4 * x, sizeof pixel);  // rows may start at any byte
        return pixel;
    }
}

inline void StorePixel(std::uint32_t* out, std::uint32_t pixel) { std::memcpy(out, &pixel, sizeof pixel); }

}  // namespace
}  // namespace zorvic

// A pixel as the number that its bytes make, 8, 24 or 32 bits, read and written byte by byte.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

inline std::byte* PixelAt(const BitmapLockInfo& image, std::int64_t x, std::int64_t y) {
    return static_cast<std::byte*>(image.bmBits) +
           static_cast<std::ptrdiff_t>(y * image.bmWidthBytes + x * (image.bmBitsPixel / 8));
}

inline std::uint32_t ReadPixelBytes(const BitmapLockInfo& image, std::int64_t x, std::int64_t y) {
    std::uint32_t pixel = 0;
    for (int i = image.bmBitsPixel / 8; i-- > 0;)
        pixel = pixel << 8 | std::to_integer<std::uint32_t>(PixelAt(image, x, y)[i]);
    return pixel;
}

inline void WritePixelBytes(const BitmapLockInfo& image, std::int64_t x, std::int64_t y, std::uint32_t pixel) {
    for (int i = 0; i < image.bmBitsPixel / 8; ++i) PixelAt(image, x, y)[i] = static_cast<std::byte>(pixel >> 8 * i);
}

}  // namespace zorvic

// What every kernel needs to know about an image: source depths, rows, and where a job lies in a larger draw.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// The three pixel layouts a source can have; the order is that of a slot group's members.
enum class SourceDepth { palette8 = 0, rgb24 = 1, argb32 = 2 };

constexpr SourceDepth DepthOf(int bitsPixel) {
    if (bitsPixel == 8) return SourceDepth::palette8;
    return bitsPixel == 24 ? SourceDepth::rgb24 : SourceDepth::argb32;
}

constexpr int BytesPerPixel(SourceDepth depth) {
    if (depth == SourceDepth::palette8) return 1;
    return depth == SourceDepth::rgb24 ? 3 : 4;
}

// A destination image as part of a larger draw: its first pixel is (left, top) of an extent of width x height pixels.
// 64 bits, because the difference of two coordinates of a rectangle may need 33.
struct Placement {
    std::int64_t left;
    std::int64_t top;
    std::int64_t width;
    std::int64_t height;
};

constexpr Placement WholeOf(const BitmapLockInfo& dst) { return {0, 0, dst.bmWidth, dst.bmHeight}; }

constexpr bool IsEmpty(const BitmapLockInfo& image) { return image.bmWidth < 1 || image.bmHeight < 1; }

// The part of an image that starts at (left, top); the caller knows that it lies inside.
inline BitmapLockInfo PartOf(const BitmapLockInfo& image, int left, int top, int width, int height) {
    auto* const first = static_cast<std::byte*>(image.bmBits) + static_cast<std::ptrdiff_t>(top) * image.bmWidthBytes +
                        static_cast<std::ptrdiff_t>(left) * BytesPerPixel(DepthOf(image.bmBitsPixel));
    // Field by field: a copy in vectors would wait for the fields that were just written one by one.
    return {image.bmType,      width, height,           image.bmWidthBytes, image.bmPlanes,
            image.bmBitsPixel, first, image.colorCount, image.reserved,     image.palette};
}

}  // namespace zorvic

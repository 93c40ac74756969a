// Images whose memory is as large as they need it: the byte behind the last one, or before the first, lies on a page that
// may not be touched, and what else is around them is poisoned for AddressSanitizer. The fence holds where no compiler
// puts checks: in gathers, masked loads and the processor's own loops.
#pragma once

#include <cstddef>
#include <span>

#include "support/input.h"
#include "support/random.h"

namespace zorvic {

// Each holds one image, or block of memory, at a time.
enum class Fence { source, target, wanted, buffer };

inline constexpr std::size_t fencedBytes = 1 << 18;

// A block of at most that many bytes with the fence behind it, or before it.
std::span<std::byte> TakeFenced(Fence fence, std::size_t bytes, bool fenceBehind = true);

// The size of an image that fits, whatever its depth and gaps, and is quick to fill.
SIZE ReadSize(Input& input);
// Whether one of width x height pixels is such an image.
constexpr bool FitsFence(std::int64_t width, std::int64_t height) {
    constexpr std::int64_t gapBytes = 40, otherBytes = 1100;  // the largest gap; a palette and an offset
    constexpr std::int64_t bytes = fencedBytes - otherBytes, pixels = 2600;
    if (width < 1 || height < 1 || width > bytes / 4 || height > bytes / (4 * width + gapBytes)) return false;
    return height == 1 || width * height <= pixels;
}

// How an image lies in memory.
struct Lie {
    int gap = 0;       // bytes between rows
    int offset = 0;    // bytes before the first row
    int colors = 256;  // of an 8-bit image: a shorter palette is followed by the rows, as in a surface
    bool fenceBehind = true;

    static Lie From(Input& input);
};

class FencedImage {
public:
    // Filled by the seed. Other depths than 8, 24 and 32 have room for the 32-bit pixels as which they are read.
    FencedImage(Fence fence, int width, int height, int bitsPixel, const Lie& lie, Random& random);
    // The same image behind another fence.
    FencedImage(Fence fence, const FencedImage& other);

    const BitmapLockInfo& Info() const { return info; }
    std::span<std::byte> Bytes() const { return bytes; }

    // Fails unless all that is no pixel is as at first.
    void CheckGaps(const char* where) const;

private:
    std::size_t PixelBytes() const;

    BitmapLockInfo info;
    Lie lie;
    std::span<std::byte> bytes;
};

// Fails unless both have the same bytes.
void CheckSame(const FencedImage& got, const FencedImage& wanted, const char* where);

}  // namespace zorvic

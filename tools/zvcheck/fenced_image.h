// Images at the edge of accessible memory: whoever reads or writes a byte too many is caught in the act.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "support/fenced_memory.h"
#include "zorvic/types.h"

namespace zorvic {

// What lies at an inaccessible page. Rows that each have one are whole pages apart.
enum class Fence { everyRowStarts, everyRowEnds, imageStarts, imageEnds };

struct ImageShape {
    int width, height, bitsPixel;
    Fence fence;
    int distance;  // bytes between the fence and the image
    int gap;       // bytes between rows that have no fence of their own

    int RowBytes() const { return width * (bitsPixel / 8); }
};

// The bytes of an image and of up to `margin` around it, without what lies between fenced rows.
using ImageBytes = std::vector<std::byte>;

class FencedImage {
public:
    // Moves the image; its pixels are undefined until they are put in.
    void Take(const ImageShape& newShape, DWORD* palette);

    const ImageShape& Shape() const { return shape; }
    const BitmapLockInfo& Info() const { return info; }

    std::size_t ByteCount() const { return windowCount * windowSize; }
    std::size_t RowStart(int y) const;  // in its bytes

    void Put(const ImageBytes& bytes);
    void Get(ImageBytes& bytes) const;
    bool Holds(const ImageBytes& bytes) const;

    // The first place where `got` differs from what the image holds, or from `wanted`; nothing where they are the same.
    std::string DifferenceOf(const ImageBytes& got) const;
    std::string DifferenceBetween(const ImageBytes& got, const ImageBytes& wanted) const;

private:
    static constexpr std::size_t margin = 16, rowLimit = 64, pageSize = 4096, largestImage = 640 * 1024;

    FencedBlocks rowBlocks{rowLimit, pageSize}, imageBlock{1, largestImage};
    ImageShape shape{};
    BitmapLockInfo info{};
    // Accessible bytes that are looked after: one window for each fenced row, or one for all rows.
    std::byte* firstWindow = nullptr;
    std::size_t windowCount = 0, windowSize = 0, windowStep = 0;
    std::size_t before = 0;  // bytes of a window before its first row
};

}  // namespace zorvic

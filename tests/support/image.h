// Images in memory of their own, for code that works on locked images: rows at any distance and alignment, guard bytes
// around them, and an inaccessible page behind the last byte. A comparison tells position, got and wanted.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "support/fenced_memory.h"
#include "support/pixel_bytes.h"
#include "support/random.h"
#include "zorvic/types.h"

namespace zorvic {

// Bytes between two rows, and behind the last one before the inaccessible page. Odd numbers misalign the rows.
struct Margins {
    int betweenRows = 0;
    int behind = 0;
};

class Image {
public:
    Image(int width, int height, int bitsPixel = 32, Margins margins = {});
    // One pixel after another, row by row; sources of 8 bits get a palette of random pixels.
    Image(Random& random, int width, int height, int bitsPixel = 32, Margins margins = {});
    Image(const Image& other);

    const BitmapLockInfo& Info() const { return info; }
    std::uint32_t At(int x, int y) const { return ReadPixelBytes(info, x, y); }
    void Set(int x, int y, std::uint32_t pixel) { WritePixelBytes(info, x, y, pixel); }
    void Fill(const std::function<std::uint32_t(int x, int y)>& pixel);
    std::vector<std::uint32_t> Pixels() const;
    std::vector<DWORD>& Palette() { return palette; }

    // All bytes, guards included.
    friend testing::AssertionResult SameBytes(const Image& got, const Image& wanted);

private:
    BitmapLockInfo info;
    FencedMemory memory;
    std::vector<DWORD> palette;
};

// One row of 32-bit pixels.
Image RowOf(const std::vector<std::uint32_t>& pixels);

}  // namespace zorvic

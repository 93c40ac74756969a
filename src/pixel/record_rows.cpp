// Where the rows of records lie in their memory.
#include "pixel/record_rows.h"

#include <cstdlib>

namespace zorvic {

namespace {

// Sums of a few such numbers fit 64 bits.
constexpr std::int64_t mostBytes = std::min<std::int64_t>(PTRDIFF_MAX, INT64_MAX / 8);

// A record without a depth counts as one of 32 bits.
std::int64_t PixelRowBytes(const BITMAP& image) {
    return std::int64_t{image.bmWidth} * (image.bmBitsPixel == 0 ? 32 : image.bmBitsPixel) / 8;
}

Range MemoryAt(std::int64_t step, const BITMAP& image) {
    if (image.bmWidth < 1 || image.bmHeight < 1 || std::abs(step) > mostBytes / image.bmHeight) return {0, 0};
    const std::int64_t lastRow = (image.bmHeight - std::int64_t{1}) * step;
    const Range memory{std::min<std::int64_t>(lastRow, 0), std::max<std::int64_t>(lastRow, 0) + PixelRowBytes(image)};
    return memory.end - memory.begin > mostBytes ? Range{0, 0} : memory;
}

// Rows above an image may reach into it where they are long enough, each of them into all of its memory. How many are taken
// is limited for large images, and for those whose rows all start at one byte.
Range RowsOf(const BITMAP& image, Range memory) {
    constexpr std::int64_t mostBytesAbove = 1 << 20;
    if (image.bmWidthBytes == 0) return {0, image.bmHeight};
    const std::int64_t height = image.bmHeight, bytes = std::max<std::int64_t>(memory.end - memory.begin, 1);
    return {-height - mostBytesAbove / bytes, height};
}

}  // namespace

Range MemoryOf(const BITMAP& image) { return MemoryAt(image.bmWidthBytes, image); }

RecordRows::RecordRows(const BITMAP& image, Range ofMemory, std::int64_t firstByte)
    : bits(static_cast<std::byte*>(image.bmBits)),
      memory(ofMemory),
      first(firstByte),
      step(image.bmWidthBytes),
      rows(RowsOf(image, ofMemory)) {}

RecordRows RecordRows::Target(const BITMAP& image, std::int64_t firstByte) {
    const bool isTrusted = image.bmWidth == 0 && image.bmHeight == 0;
    RecordRows target(image, isTrusted ? Range{-mostBytes, mostBytes} : MemoryOf(image), firstByte);
    target.rows = {INT32_MIN, INT32_MAX};
    return target;
}

RecordRows RecordRows::Packed(const BITMAP& image) {
    const std::int64_t step = image.bmWidthBytes;
    RecordRows packed(image, MemoryAt(step < 0 ? step : std::max(step, PixelRowBytes(image)), image));
    packed.step = 0;
    return packed;
}

RecordRows RecordRows::Flipped(int height) const {
    RecordRows flipped = *this;
    flipped.first += (height - std::int64_t{1}) * step;
    flipped.step = -step;
    return flipped;
}

TargetPixels RecordRows::Row(std::int64_t y) const {
    const auto address = reinterpret_cast<std::uintptr_t>(bits) + static_cast<std::uintptr_t>(first + y * step);
    return {reinterpret_cast<void*>(address), static_cast<std::ptrdiff_t>(step)};
}

TargetPixels RecordRows::At(std::int64_t y, std::int64_t x, const Job& job) const {
    return {bits + static_cast<std::ptrdiff_t>(first + y * step + x * job.bytesPerPixel),
            static_cast<std::ptrdiff_t>(step)};
}

// Quotients that are truncated may be one too small or too large: such rows have no pixels inside.
Range RecordRows::RowsInside(const Job& job) const {
    if (memory.begin == memory.end) return {0, 0};
    if (step == 0) return rows;
    const std::int64_t one = (memory.begin - first - job.pixels * job.bytesPerPixel) / step;
    const std::int64_t other = (memory.end - first) / step;
    return Common(rows, {std::min(one, other) - 1, std::max(one, other) + 2});
}

Range RecordRows::PixelsInside(std::int64_t y, const Job& job) const {
    const std::int64_t start = first + y * step, before = std::max<std::int64_t>(memory.begin - start, 0);
    const Range inside{(before + job.bytesPerPixel - 1) / job.bytesPerPixel, (memory.end - start) / job.bytesPerPixel};
    return Common(inside, {0, job.pixels});
}

}  // namespace zorvic

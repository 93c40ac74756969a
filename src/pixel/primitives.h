// Pixel primitives on images given by address, row step and size: copy, fill, compositions, bitwise or and and, mirrors.
// Each runs in the widest form that the processor has; all forms give the same bytes. The box filter has its own header.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

enum class Status : int { success = 0, badSize = -6, nullPointer = -8 };

// The first pixel of the first row, and the bytes from one row to the next, which may be negative. Any alignment.
struct SourcePixels {
    const void* first;
    std::ptrdiff_t step;
};
struct TargetPixels {
    void* first;
    std::ptrdiff_t step;
    operator SourcePixels() const { return {first, step}; }
};

// Resolves the level now rather than on first use. Status::success once the primitives can be called.
Status InitPrimitives();

template <class... Pointer>
Status CheckRegion(SIZE size, Pointer... pointers) {
    if ((!pointers || ...)) return Status::nullPointer;
    return size.cx < 1 || size.cy < 1 ? Status::badSize : Status::success;
}

// Where nothing else is said, pixels have four bytes; a null pointer or a size below 1 changes nothing. Sources and
// targets may overlap: compositions and bitwise operations then go pixel by pixel in reading order, a copy between
// equal steps moves.
Status CopyPixels(SourcePixels src, TargetPixels dst, SIZE size, int bytesPerPixel);
// Whether it starts with the last row, because the first ones would overwrite rows before their turn.
bool CopiesLastRowFirst(SourcePixels src, TargetPixels dst, std::int64_t rowBytes);

Status SetPixels(TargetPixels dst, SIZE size, std::uint32_t color);
Status SetPixelColors(TargetPixels dst, SIZE size, std::uint32_t color);  // each pixel keeps its alpha

// Premultiplied source-over, d = s + d x (255 - alpha of s) / 255, rounded to nearest; 255 at most.
Status BlendPixels(SourcePixels src, TargetPixels dst, SIZE size);

// The same as kernels compose: d = s + (d x (256 - alpha of s) >> 8), of a source that an opacity scaled by
// (opacity + 1) >> 8, and of one color.
Status ComposePixels(SourcePixels src, TargetPixels dst, SIZE size);
Status ComposePixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint8_t opacity);
Status ComposeColor(std::uint32_t color, TargetPixels dst, SIZE size);

Status OrPixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);
Status AndPixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);

// Columns become rows: the source's pixel (x, y) goes to (y, x). The images do not overlap.
Status TransposePixels(SourcePixels src, TargetPixels dst, SIZE size);

// Every row from its last pixel to its first. The same image as source and target is reversed in place; other overlaps
// give undefined pixels.
Status ReversePixels(SourcePixels src, TargetPixels dst, SIZE size);

// Two images that do not overlap change places: row by row, or with the pixels of every row reversed as well.
Status ExchangePixels(TargetPixels a, TargetPixels b, SIZE size);
Status ExchangeReversedPixels(TargetPixels a, TargetPixels b, SIZE size);

}  // namespace zorvic

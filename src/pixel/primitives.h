// Pixel primitives on images given by address, row step and size: copy, fill, compositions, bitwise or and and, mirror.
// Each runs in the widest form that the processor has; all forms give the same bytes. The box filter has its own header.
#pragma once

#include <cstddef>
#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

enum class Status : int { success = 0, badSize = -6, nullPointer = -8, badAxis = -22 };

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

// Where nothing else is said, pixels have four bytes; a null pointer or a size below 1 changes nothing. Sources and
// targets may overlap: compositions and bitwise operations then go pixel by pixel in reading order, a copy between
// equal steps moves.
Status CopyPixels(SourcePixels src, TargetPixels dst, SIZE size, int bytesPerPixel);
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

// Axis 0 reverses the order of rows, 1 that of the pixels in every row, 2 both. The same image as source and target is
// mirrored in place; other overlaps give undefined pixels.
Status MirrorPixels(SourcePixels src, TargetPixels dst, SIZE size, int axis);

}  // namespace zorvic

// The box filter: every channel becomes the mean of the N x N box around its pixel.
#pragma once

#include "pixel/primitives.h"

namespace zorvic {

// What BoxFilter needs for its sums. Status::badSize for a size, box or number of channels below 1, and for images that
// no memory can hold.
Status BoxFilterBufferSize(SIZE size, int box, int channels, std::size_t* bytes);

// Filters an image of 8-bit channels, 1 byte each, into another one; the two do not overlap. Means are rounded to
// nearest. Boxes are centered; the extra pixel of an even one lies on the left and top. Edge pixels repeat outside the
// image. The time per pixel does not depend on the box.
// buffer: as many bytes as BoxFilterBufferSize says, aligned for any number.
Status BoxFilter(SourcePixels src, TargetPixels dst, SIZE size, int box, int channels, void* buffer);

}  // namespace zorvic

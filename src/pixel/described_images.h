// The primitives on images that a caller describes in a BITMAP record: its size, row step, depth and bits.
//
// A job is cut to the memory of its images, see pixel/record_rows.h: what lies outside is left out, and the rest is done.
// Null bits and sizes below 1 make it fail.
#pragma once

#include "zorvic/types.h"

namespace zorvic {

// Null area: the size of the source, from the first pixels on. Else the rows top..bottom of both images, and right - left
// pixels from (bits per pixel x left) / 4 bytes on, which is column 2 x left: hosts rely on it and pass left 0 where
// the place matters. Fails for an area that ends outside the source and for depths other than 24 and 32.
bool CopyImage(const BITMAP& src, const BITMAP& dst, const RECT* area);

// Pixels have four bytes in all that follow, whatever the depth.

// Axis 0 turns top to bottom, 1 left to right, 2 both; fails for others.
bool MirrorImage(const BITMAP& image, int axis);
bool MirrorImage(const BITMAP& src, const BITMAP& dst, int axis);  // fails for images of two sizes

// Premultiplied source-over, rounded to nearest, in the source's size. A target of 0 x 0 is as large as that.
bool BlendImage(const BITMAP& src, const BITMAP& dst);

bool SetImageColor(const BITMAP& image, DWORD color, bool keepsAlpha);

// Rows are packed: steps only tell where memory ends. False for images of two sizes only.
bool OrImage(const BITMAP& src, const BITMAP& dst, DWORD value);
bool AndImage(const BITMAP& src, const BITMAP& dst, DWORD value);

// The mean of the N x N box around each pixel, twice, in place: alpha as well at 32 bits; other depths than that and 24
// are left alone. False for a size or box below 1. Null bits, and memory too short for a second image, are no failure.
bool BlurImage(const BITMAP& image, int box);

}  // namespace zorvic

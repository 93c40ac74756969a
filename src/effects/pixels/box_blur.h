// The 3 x 3 box blur.
#pragma once

#include "zorvic/types.h"

namespace zorvic {

// Each channel of a pixel becomes the mean of the nine around it, truncated; edge pixels repeat. Both images have 32
// bits, else nothing happens; they may be the same one. What a smaller destination has no room for is drawn over its
// last column and row, so that these show the source's last ones; a larger one keeps the rest of its pixels. False when
// nothing was drawn: also when memory is short.
bool BoxBlur(const BitmapLockInfo& dst, const BitmapLockInfo& src);

}  // namespace zorvic

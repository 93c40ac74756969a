// GDI regions made from pixels.
#pragma once

#include "surface/bitmap.h"

namespace zorvic {

// The region of all pixels that are not transparent black, relative to the area; the whole area when the bitmap's
// operation word has no operation. What GDI refuses is left out. Null when the area is not inside the bitmap, its depth is
// unknown, or GDI refuses all.
HRGN MakeRegion(const Bitmap& bitmap, const RECT* area);

}  // namespace zorvic

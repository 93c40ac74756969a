// Drawing an image in a colour, at its own size. Not one of the table's slots.
#pragma once

#include "raster/image.h"

namespace zorvic {

// dst and src have the same size. An opaque colour tints by the image's brightness; another one multiplies the image.
void ModulateImage(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color);

}  // namespace zorvic

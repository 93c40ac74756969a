// Blurs between bitmaps, and the two soft effects made of them.
#pragma once

#include "surface/bitmap.h"

namespace zorvic {

// BoxBlur of all of src into dst; nothing, and false, when either cannot be locked.
bool BlurBitmap(const Bitmap& dst, const Bitmap& src);

// What the bitmap becomes: a white glow in the shape of what is not transparent, or a blurred copy for a shadow.
enum class SoftEffect { light, dark };

// Nothing happens when there is no memory for a copy.
void Soften(const Bitmap& bitmap, SoftEffect effect);

}  // namespace zorvic

// Locks and intermediate surfaces of the blurs.
#include "effects/blur.h"

#include "effects/apply.h"
#include "effects/pixels/box_blur.h"
#include "effects/pixels/tone.h"

namespace zorvic {

bool BlurBitmap(const Bitmap& dst, const Bitmap& src) {
    const SurfaceLock from(src), to(dst);
    return from && to && BoxBlur(*to, *from);
}

void Soften(const Bitmap& bitmap, SoftEffect effect) {
    const SIZE size = bitmap.Size();
    const auto copy = MakeSurface<Bitmap>(size.cx, size.cy, 32, 0, StoreKind::memory);
    if (!copy) return;
    if (!BlurBitmap(*copy, bitmap)) return;  // the copy's pixels are still undefined
    if (effect == SoftEffect::light) ApplyEffect(*copy, nullptr, WhitenImage);
    BlurBitmap(bitmap, *copy);
    BlurBitmap(*copy, bitmap);
    BlurBitmap(bitmap, *copy);
}

}  // namespace zorvic

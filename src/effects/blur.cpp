// Locks and intermediate surfaces of the blurs.
#include "effects/blur.h"

#include "effects/apply.h"
#include "effects/pixels/box_blur.h"
#include "effects/pixels/tone.h"

namespace zorvic {

void BlurBitmap(const Bitmap& dst, const Bitmap& src) {
    const SurfaceLock from(src), to(dst);
    if (from && to) BoxBlur(*to, *from);
}

void Soften(const Bitmap& bitmap, SoftEffect effect) {
    const SIZE size = bitmap.Size();
    const auto copy = MakeSurface<Bitmap>(size.cx, size.cy, 32, 0, StoreKind::memory);
    if (!copy) return;
    copy->isHosts = false;
    BlurBitmap(*copy, bitmap);
    if (effect == SoftEffect::light) ApplyEffect(*copy, nullptr, WhitenImage);
    BlurBitmap(bitmap, *copy);
    BlurBitmap(*copy, bitmap);
    BlurBitmap(bitmap, *copy);
}

}  // namespace zorvic

// Effects of the pixel engine on bitmaps: they change the pixels in place, whole or in an area.
#pragma once

#include "surface/bitmap.h"

namespace zorvic {

// effect(image, args...). Returns 1, or 0 when the bitmap cannot be locked.
template <class Effect, class... Args>
int ApplyEffect(const Bitmap& bitmap, const RECT* area, Effect effect, const Args&... args) {
    const SurfaceLock image(bitmap, area);
    if (!image) return 0;
    effect(*image, args...);
    return 1;
}

// ApplyEffect on all of it, then tells the resource manager.
template <class Effect, class... Args>
int ApplyEffectAndTell(Bitmap& bitmap, Effect effect, const Args&... args) {
    if (!ApplyEffect(bitmap, nullptr, effect, args...)) return 0;
    NotifyChange(bitmap, 0);
    return 1;
}

}  // namespace zorvic

// Locks both surfaces and moves the pixels.
#include "pixel/transforms.h"

#include "raster/selectors.h"

namespace zorvic {

void ResizeInto(Bitmap& dst, const Bitmap& src, DWORD filterMode) {
    dst.filter = src.filter;
    const SurfaceLock from(src);
    if (!from) return;
    const SurfaceLock to(dst);
    if (to) SelectResizeKernel(*to, *from, filterMode);
}

void TransformInto(Bitmap& dst, const Bitmap& src, Transform transform) {
    dst.filter = src.filter;
    const SurfaceLock from(src), to(dst);
    if (!from || !to || from->bmBitsPixel != to->bmBitsPixel || from->colorCount != to->colorCount) return;
    CopyPalette(*to, *from);
    MovePixels(*to, *from, transform);
}

}  // namespace zorvic

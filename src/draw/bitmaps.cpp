// Clipping and locking of bitmap draws; the pixels are the selectors' work.
#include "draw/bitmaps.h"

#include "raster/selectors.h"

namespace zorvic {

int DrawBitmapRect(Canvas& canvas, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                   BYTE alpha) {
    const RECT clip = canvas.VisibleRect();
    RECT visible;
    if (!IntersectRect(&visible, &clip, &dst)) return 1;

    const CanvasLock target(canvas, visible);
    if (!target) return 1;
    const SurfaceLock source(bitmap, &src);
    if (!source) return 1;

    if (EqualRect(&visible, &dst)) return SelectStretchKernel(*target, *source, bitmap.filter, filterMode, alpha);
    const std::int64_t left = dst.left, top = dst.top;
    const Placement placement{visible.left - left, visible.top - top, dst.right - left, dst.bottom - top};
    return SelectPlacedKernel(*target, placement, *source, bitmap.filter, filterMode, alpha);
}

int DrawWholeBitmap(Canvas& canvas, const RECT* dst, const Bitmap& bitmap, DWORD filterMode, BYTE alpha) {
    const SIZE size = bitmap.Size();
    const RECT all{0, 0, size.cx, size.cy};
    return DrawBitmapRect(canvas, dst ? *dst : all, bitmap, all, filterMode, alpha);
}

int DrawTextureSlice(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params) {
    const RECT* slice = texture.CurrentSlice();
    return slice ? DrawBitmapRect(canvas, dst, texture, *slice, params.filterMode, params.alpha) : 0;
}

}  // namespace zorvic

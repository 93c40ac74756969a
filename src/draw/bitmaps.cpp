// Clipping and locking of bitmap draws; the pixels are the selectors' work.
#include "draw/bitmaps.h"

#include "raster/selectors.h"

namespace zorvic {

void DrawBitmapRect(const CanvasLock& target, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                    BYTE alpha) {
    const RECT visible = Intersection(target.Area(), dst);
    if (!target || IsEmpty(visible)) return;
    const SurfaceLock source(bitmap, &src);
    if (!source) return;

    const BitmapLockInfo image = target.PartAt(visible);
    if (visible == dst) {
        SelectStretchKernel(image, *source, bitmap.filter, filterMode, alpha);
    } else {
        const Placement placement{visible.left - std::int64_t{dst.left}, visible.top - std::int64_t{dst.top},
                                  WidthOf(dst), HeightOf(dst)};
        SelectPlacedKernel(image, placement, *source, bitmap.filter, filterMode, alpha);
    }
}

int DrawBitmapRect(Canvas& canvas, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                   BYTE alpha) {
    const CanvasLock target(canvas, canvas.VisiblePart(dst));
    DrawBitmapRect(target, dst, bitmap, src, filterMode, alpha);
    return 1;
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

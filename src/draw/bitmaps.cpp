// Clipping and locking of bitmap draws; the pixels are the selectors' work.
#include "draw/bitmaps.h"

#include "draw/overlap.h"
#include "raster/selectors.h"

namespace zorvic {

namespace {

// The locked image stretched over dst, clipped to the target.
void DrawImage(const CanvasLock& target, const RECT& dst, const BitmapLockInfo& src, DWORD operationWord,
               DWORD filterMode, BYTE alpha) {
    const RECT visible = Intersection(target.Area(), dst);
    if (!target || IsEmpty(visible)) return;
    const BitmapLockInfo image = target.PartAt(visible);
    if (OverwritesSource(image, src) && WidthOf(dst) == src.bmWidth && HeightOf(dst) == src.bmHeight) {
        const BitmapLockInfo part =
            PartOf(src, visible.left - dst.left, visible.top - dst.top, image.bmWidth, image.bmHeight);
        DrawInOrder(image, part, [&](const BitmapLockInfo& to, const BitmapLockInfo& from) {
            SelectStretchKernel(to, from, operationWord, filterMode, alpha);
        });
    } else if (visible == dst) {
        SelectStretchKernel(image, src, operationWord, filterMode, alpha);
    } else {
        const Placement placement{visible.left - std::int64_t{dst.left}, visible.top - std::int64_t{dst.top},
                                  WidthOf(dst), HeightOf(dst)};
        SelectPlacedKernel(image, placement, src, operationWord, filterMode, alpha);
    }
}

}  // namespace

void DrawBitmapRect(const CanvasLock& target, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                    BYTE alpha) {
    if (const SurfaceLock source(bitmap, &src); source)
        DrawImage(target, dst, *source, bitmap.filter, filterMode, alpha);
}

int DrawBitmapRect(Canvas& canvas, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                   BYTE alpha) {
    const CanvasLock target(canvas, canvas.VisiblePart(dst));
    DrawBitmapRect(target, dst, bitmap, src, filterMode, alpha);
    return 1;
}

int DrawWholeBitmap(Canvas& canvas, const RECT* dst, const Bitmap& bitmap, DWORD filterMode, BYTE alpha) {
    const SurfaceLock source(bitmap);
    if (!source) return 1;
    const RECT where = dst ? *dst : RECT{0, 0, source->bmWidth, source->bmHeight};
    const CanvasLock target(canvas, canvas.VisiblePart(where));
    DrawImage(target, where, *source, bitmap.filter, filterMode, alpha);
    return 1;
}

int DrawTextureSlice(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params) {
    const RECT* slice = texture.CurrentSlice();
    return slice ? DrawBitmapRect(canvas, dst, texture, *slice, params.filterMode, params.alpha) : 0;
}

}  // namespace zorvic

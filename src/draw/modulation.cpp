// Clipping and locking of modulated draws; the pixels are the engine's work.
#include "draw/modulation.h"

#include "draw/coordinates.h"
#include "draw/overlap.h"
#include "raster/modulation.h"

namespace zorvic {

int DrawModulation(Canvas& canvas, POINT corner, const Bitmap& bitmap, const RECT* src, DWORD color) {
    const SIZE size = bitmap.Size();
    const RECT area = src ? *src : RECT{0, 0, size.cx, size.cy};
    const RECT dst = ToRect(corner.x, corner.y, corner.x + WidthOf(area), corner.y + HeightOf(area));
    const CanvasLock target(canvas, canvas.VisiblePart(dst));
    if (!target) return 1;
    // What is visible of the area, in bitmap pixels; it lies inside the area, so that nothing wraps.
    const RECT part = Offset(target.Area(), POINT{area.left, area.top} - corner);
    const SurfaceLock source(bitmap, &part);
    if (source)
        DrawInOrder(*target, *source,
                    [color](const BitmapLockInfo& to, const BitmapLockInfo& from) { ModulateImage(to, from, color); });
    return 1;
}

}  // namespace zorvic

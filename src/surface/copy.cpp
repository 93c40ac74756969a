// Copies between surfaces: rows and palette of one format, or any format widened to 32 bits.
#include <algorithm>

#include "pixel/primitives.h"
#include "raster/kernel_table.h"
#include "raster/lookup_tables.h"
#include "surface/bitmap.h"

namespace zorvic {

void CopyPalette(const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    if (dst.palette == src.palette) return;
    // The grey ramp is every such surface's: a surface that shows it goes on doing so.
    if (dst.palette == GreyPalette.data()) return;
    std::copy_n(src.palette, src.colorCount, dst.palette);
}

void CopyPixels(Bitmap& dst, const RECT* dstArea, const Bitmap& src, const RECT* srcArea) {
    const SurfaceLock from(src, srcArea);
    if (!from || !SurfaceLock(dst, dstArea))
        return;  // the whole area must lie inside, although it only places the copy

    const POINT corner = dstArea ? POINT{dstArea->left, dstArea->top} : POINT{};
    const SIZE surface = dst.Size();
    const RECT placed{corner.x, corner.y, std::min(corner.x + from->bmWidth, surface.cx),
                      std::min(corner.y + from->bmHeight, surface.cy)};
    const SurfaceLock to(dst, &placed);
    if (!to) return;
    BitmapLockInfo cut = *from;
    cut.bmWidth = to->bmWidth;
    cut.bmHeight = to->bmHeight;

    if (to->bmBitsPixel == cut.bmBitsPixel && to->colorCount == cut.colorCount) {
        CopyPixels({cut.bmBits, cut.bmWidthBytes}, {to->bmBits, to->bmWidthBytes}, {cut.bmWidth, cut.bmHeight},
                   cut.bmBitsPixel / 8);
        CopyPalette(*to, cut);
    } else if (to->bmBitsPixel == 32) {
        KernelTable.At(slots::copySameSize, DepthOf(cut.bmBitsPixel))(*to, cut);
    } else {
        return;
    }
    dst.filter = src.filter;
}

}  // namespace zorvic

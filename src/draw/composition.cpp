// Locking and choosing for the composition of canvases; pixels are the kernels' work, or GDI's.
#include "draw/composition.h"

#include <cstdlib>
#include <cstring>

#include "draw/overlap.h"
#include "raster/kernel_table.h"
#include "raster/request.h"

namespace zorvic {

namespace {

bool HasAlpha(const Canvas& canvas) { return OperationOf(canvas.Filter()) == Operation::sourceOver; }

// GDI counts pixels in 28 bits with the sign; beyond that its own arithmetic may overflow, so it is not asked.
bool GdiCounts(const RECT& rect) {
    const auto isNear = [](LONG edge) { return edge >= -(1 << 27) && edge < 1 << 27; };
    return isNear(rect.left) && isNear(rect.top) && isNear(rect.right) && isNear(rect.bottom);
}

int Stretch(HDC target, const RECT& dst, HDC source, const RECT& src) {
    if (!GdiCounts(dst) || !GdiCounts(src)) return 0;
    return StretchBlt(target, dst.left, dst.top, dst.right - dst.left, dst.bottom - dst.top, source, src.left, src.top,
                      src.right - src.left, src.bottom - src.top, SRCCOPY);
}

// format: AC_SRC_ALPHA to compose by the source's own alpha as well.
int Blend(HDC target, const RECT& dst, HDC source, const RECT& src, BYTE alpha, BYTE format) {
    if (!GdiCounts(dst) || !GdiCounts(src)) return 0;
    const BLENDFUNCTION function{AC_SRC_OVER, 0, alpha, format};
    return AlphaBlend(target, dst.left, dst.top, dst.right - dst.left, dst.bottom - dst.top, source, src.left, src.top,
                      src.right - src.left, src.bottom - src.top, function);
}

}  // namespace

int MixCanvas(Canvas& dst, const RECT& dstRect, Canvas& src, const RECT& srcRect, DWORD value) {
    const CanvasLock target(dst, dstRect);
    if (!target) return 1;
    const CanvasLock source(src, srcRect, CanvasLock::Use::read);
    if (!source) return 1;
    if (target->bmWidth != source->bmWidth || target->bmHeight != source->bmHeight)
        return KernelTable.At(slots::crossFadeNearest)(*target, *source, value);
    DrawInOrder(*target, *source, [value](const BitmapLockInfo& to, const BitmapLockInfo& from) {
        KernelTable.At(slots::crossFadeSameSize)(to, from, value);
    });
    return 1;
}

int MixCanvasWithColor(Canvas& canvas, const RECT& rect, DWORD color, DWORD value) {
    if (const CanvasLock target(canvas, rect); target) KernelTable.At(slots::fillMix)(*target, color, value);
    return 1;
}

int BlendCanvas(Canvas& dst, const RECT& dstRect, Canvas& src, const RECT& srcRect, BYTE alpha) {
    const RECT visible = dst.VisiblePart(dstRect);
    if (IsEmpty(visible)) return 1;

    const bool composed = HasAlpha(src);
    if (!dst.Surface() || !src.Surface()) {
        // GDI clips by itself. The opacity of a source without alpha is ignored on purpose.
        const HDC to = dst.MakeDc();
        const HDC from = src.MakeDc();
        const int result =
            composed ? Blend(to, dstRect, from, srcRect, alpha, AC_SRC_ALPHA) : Stretch(to, dstRect, from, srcRect);
        if (dst.Surface()) GdiFlush();  // the library touches the pixels next
        return result;
    }

    const CanvasLock target(dst, visible);
    if (!target) return 1;
    const CanvasLock source(src, srcRect, CanvasLock::Use::read);
    if (!source) return 1;

    constexpr auto depth = SourceDepth::argb32;
    const bool blended = HasAlpha(dst) || alpha != 255;
    const Placement placement{visible.left - std::int64_t{dstRect.left}, visible.top - std::int64_t{dstRect.top},
                              WidthOf(dstRect), HeightOf(dstRect)};
    if (placement.width == source->bmWidth && placement.height == source->bmHeight) {
        const BitmapLockInfo part = PartOf(*source, static_cast<int>(placement.left), static_cast<int>(placement.top),
                                           target->bmWidth, target->bmHeight);
        DrawInOrder(*target, part, [&](const BitmapLockInfo& to, const BitmapLockInfo& from) {
            if (composed) return KernelTable.At(slots::overSameSize, depth)(to, from);
            if (blended) return KernelTable.At(slots::opaqueAlphaSameSize)(to, from, alpha);
            return KernelTable.At(slots::copySameSize, depth)(to, from);
        });
        return 1;
    }
    if (visible == dstRect) {
        if (composed) return KernelTable.At(slots::overNearest, depth)(*target, *source);
        if (blended) return KernelTable.At(slots::opaqueAlphaNearest)(*target, *source, alpha);
        return KernelTable.At(slots::copyNearest, depth)(*target, *source);
    }
    // A clipped stretch ignores the opacity and the destination's alpha on purpose.
    return KernelTable.At(composed ? slots::placedOverNearest : slots::placedCopyNearest, depth)(*target, placement,
                                                                                                 *source);
}

int CanvasScroll(Canvas& canvas, int dx, int dy) {
    if (dx != 0 || !canvas.Surface()) return 0;
    const SIZE size = canvas.Surface()->Size();
    const CanvasLock pixels(canvas, {0, 0, size.cx, size.cy});  // logical on purpose: fails when an origin has moved
    if (!pixels) return 0;

    const std::int64_t distance = std::abs(std::int64_t{dy});
    const std::int64_t moved = size.cy - distance;
    if (distance == 0 || moved <= 0) return 1;
    auto* const first = static_cast<std::byte*>(pixels->bmBits);
    auto* const later = first + static_cast<std::ptrdiff_t>(distance) * pixels->bmWidthBytes;
    std::memmove(dy > 0 ? later : first, dy > 0 ? first : later,
                 static_cast<std::size_t>(moved) * static_cast<std::size_t>(pixels->bmWidthBytes));
    return 1;
}

int GdiTransCanvas(HDC target, const RECT& dst, Canvas& canvas, const RECT& src, BYTE alpha) {
    const HDC source = canvas.MakeDc();
    if (HasAlpha(canvas)) return Blend(target, dst, source, src, alpha, AC_SRC_ALPHA);
    if (alpha == 255) return Stretch(target, dst, source, src);
    return Blend(target, dst, source, src, alpha, 0);
}

}  // namespace zorvic

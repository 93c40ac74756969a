// Exports that compose canvases with canvases, colours, bitmaps and device contexts.
#include "draw/composition.h"

#include "draw/modulation.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;

int ZORVIC_CALL MixCanvas(HGCANVAS dst, const RECT* dstRect, HGCANVAS src, const RECT* srcRect, DWORD value) {
    if (!dst || !src) return 0;
    if (!dstRect || !srcRect) return 1;
    return zorvic::MixCanvas(*FromHandle(dst), *dstRect, *FromHandle(src), *srcRect, value);
}

int ZORVIC_CALL MixCanvasWithColor(HGCANVAS canvas, const RECT* rect, DWORD color, DWORD value) {
    if (!canvas) return 0;
    return rect ? zorvic::MixCanvasWithColor(*FromHandle(canvas), *rect, color, value) : 1;
}

int ZORVIC_CALL BlendCanvas(HGCANVAS dst, const RECT* dstRect, HGCANVAS src, const RECT* srcRect, BYTE alpha) {
    if (!dst || !src) return 0;
    if (!dstRect || !srcRect) return 1;
    return zorvic::BlendCanvas(*FromHandle(dst), *dstRect, *FromHandle(src), *srcRect, alpha);
}

int ZORVIC_CALL CanvasScroll(HGCANVAS canvas, int dx, int dy) {
    return canvas ? zorvic::CanvasScroll(*FromHandle(canvas), dx, dy) : 0;
}

int ZORVIC_CALL GdiTransCanvas(HDC target, const RECT* dst, HGCANVAS canvas, const RECT* src, BYTE alpha) {
    if (!canvas || !dst || !src) return 0;
    return zorvic::GdiTransCanvas(target, *dst, *FromHandle(canvas), *src, alpha);
}

int ZORVIC_CALL DrawModulation(HGCANVAS canvas, int x, int y, HGBITMAP bitmap, const RECT* src, DWORD color) {
    if (!canvas || !bitmap) return 0;
    return zorvic::DrawModulation(*FromHandle(canvas), {x, y}, *FromHandle(bitmap), src, color);
}

// Exports that fill rectangles.
#include "draw/fills.h"

#include "draw/vector_fills.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;

int FillSolidRect(HGCANVAS canvas, DWORD color, const RECT* rect) {
    return FillSolidRectEx(canvas, color, rect, ZORVIC_OP_SOURCE_OVER);
}

int FillSolidRectEx(HGCANVAS canvas, DWORD color, const RECT* rect, DWORD mode) {
    return FillPreMulColorRectEx(canvas, zorvic::Premultiply(color), rect, mode);
}

int FillPreMulColorRectEx(HGCANVAS canvas, DWORD color, const RECT* rect, DWORD mode) {
    return zorvic::FillColor(FromHandle(canvas), color, rect, mode);
}

int FillRectangleEx(HGCANVAS canvas, const RECT* rect, DWORD color) {
    return canvas && rect ? zorvic::FillRectangle(*FromHandle(canvas), *rect, color) : 0;
}

int FillRoundRectEx(HGCANVAS canvas, const RECT* rect, const POINT* corner, DWORD color) {
    return canvas && rect && corner ? zorvic::FillRoundRect(*FromHandle(canvas), *rect, *corner, color) : 0;
}

int FillGradualRect(HGCANVAS canvas, DWORD colorFrom, DWORD colorTo, const RECT* rect, DWORD direction) {
    return zorvic::FillGradient(FromHandle(canvas), colorFrom, colorTo, rect, zorvic::GradientDirection{direction});
}

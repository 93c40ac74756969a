// Exports that fill rectangles.
#include "draw/fills.h"
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

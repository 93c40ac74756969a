// Exports that draw outlines.
#include "draw/outlines.h"

#include "zorvic/zorvic.h"

using zorvic::FromHandle;

int GeoRectangle(HGCANVAS canvas, const RECT* rect, HPEN pen, HBRUSH brush) {
    if (!canvas) return 0;
    return rect ? zorvic::DrawRectangleOutline(*FromHandle(canvas), *rect, pen, brush) : 1;
}

int GeoRectangleEx(HGCANVAS canvas, const RECT* rect, DWORD color, int width) {
    if (!canvas || !rect) return 0;
    return zorvic::StrokeRectangle(*FromHandle(canvas), *rect, color, width);
}

int GeoRoundRect(HGCANVAS canvas, const RECT* rect, const POINT* corner, HPEN pen) {
    if (!canvas || !rect || !corner) return 0;
    return zorvic::DrawRoundRectWithPen(*FromHandle(canvas), *rect, *corner, pen);
}

int GeoRoundRectEx(HGCANVAS canvas, const RECT* rect, const POINT* corner, DWORD color, int width) {
    if (!canvas || !rect || !corner) return 0;
    return zorvic::StrokeRoundRect(*FromHandle(canvas), *rect, *corner, color, width);
}

int GeoRectFocusEx(HGCANVAS canvas, const RECT* rect, DWORD color) {
    if (!canvas) return 0;
    return rect ? zorvic::DrawFocusFrame(*FromHandle(canvas), *rect, color) : 1;
}

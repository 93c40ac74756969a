// Exports of canvases: life, device context, coordinates, clip and attributes.
#include "canvas/canvas.h"

#include <utility>

#include "zorvic/zorvic.h"

using zorvic::Canvas;
using zorvic::FromHandle;
using zorvic::StoreKind;
using zorvic::ToHandle;

HGCANVAS ZORVIC_CALL CreateCanvas(int width, int height, HGCANVAS reference) {
    return ToHandle(Canvas::Create(width, height, StoreKind::memory, FromHandle(reference)).release());
}

HGCANVAS ZORVIC_CALL CreateSystemCanvas(int width, int height, HGCANVAS reference) {
    return ToHandle(Canvas::Create(width, height, StoreKind::system, FromHandle(reference)).release());
}

HGCANVAS ZORVIC_CALL CreateCanvasFromDC(HDC dc) { return ToHandle(Canvas::FromDc(dc).release()); }

void ZORVIC_CALL DeleteCanvas(HGCANVAS canvas) { delete FromHandle(canvas); }

HDC ZORVIC_CALL GetCanvasHandle(HGCANVAS canvas) { return canvas ? FromHandle(canvas)->MakeDc() : nullptr; }

int ZORVIC_CALL GetCanvasSize(HGCANVAS canvas, SIZE* size) {
    if (!canvas || !size || !FromHandle(canvas)->Surface()) return 0;
    *size = FromHandle(canvas)->Surface()->Size();
    return 1;
}

int ZORVIC_CALL SetViewportOrg(HGCANVAS canvas, int x, int y, POINT* previous) {
    return canvas ? FromHandle(canvas)->SetViewportOrg({x, y}, previous) : 0;
}

int ZORVIC_CALL GetViewportOrg(HGCANVAS canvas, POINT* origin) {
    if (!canvas || !origin) return 0;
    *origin = FromHandle(canvas)->ViewportOrg();
    return 1;
}

int ZORVIC_CALL SetWindowOrg(HGCANVAS canvas, int x, int y, POINT* previous) {
    return canvas ? FromHandle(canvas)->SetWindowOrg({x, y}, previous) : 0;
}

int ZORVIC_CALL GetWindowOrg(HGCANVAS canvas, POINT* origin) {
    if (!canvas || !origin) return 0;
    *origin = FromHandle(canvas)->WindowOrg();
    return 1;
}

int ZORVIC_CALL WindowToDevice(HGCANVAS canvas, RECT* rect) {
    if (!canvas || !rect) return 0;
    *rect = FromHandle(canvas)->ToDevice(*rect);
    return 1;
}

int ZORVIC_CALL DeviceToWindow(HGCANVAS canvas, RECT* rect) {
    if (!canvas || !rect) return 0;
    *rect = FromHandle(canvas)->ToLogical(*rect);
    return 1;
}

HWND ZORVIC_CALL SetCanvasWindow(HGCANVAS canvas, HWND window) {
    return canvas ? std::exchange(FromHandle(canvas)->window, window) : nullptr;
}

HWND ZORVIC_CALL GetCanvasWindow(HGCANVAS canvas) { return canvas ? FromHandle(canvas)->window : nullptr; }

int ZORVIC_CALL GetCanvasFilter(HGCANVAS canvas, DWORD* filter) {
    if (!canvas || !filter) return 0;
    *filter = FromHandle(canvas)->Filter();
    return 1;
}

int ZORVIC_CALL SetCanvasFilter(HGCANVAS canvas, DWORD filter) {
    return canvas && FromHandle(canvas)->SetFilter(filter);
}

int ZORVIC_CALL SetCanvasBkColor(HGCANVAS canvas, DWORD color, DWORD* previous) {
    if (!canvas) return 0;
    const DWORD former = std::exchange(FromHandle(canvas)->bkColor, color);
    if (previous) *previous = former;
    return 1;
}

int ZORVIC_CALL GetCanvasBkColor(HGCANVAS canvas, DWORD* color) {
    if (!canvas || !color) return 0;
    *color = FromHandle(canvas)->bkColor;
    return 1;
}

int ZORVIC_CALL SetCanvasClipRect(HGCANVAS canvas, const RECT* rect) {
    if (!canvas || !rect) return 0;
    FromHandle(canvas)->SetClip(*rect);
    return 1;
}

int ZORVIC_CALL SetCanvasClipRoundRect(HGCANVAS canvas, const RECT* rect, const RECT*) {
    return SetCanvasClipRect(canvas, rect);
}

int ZORVIC_CALL IntersectCanvasClipRect(HGCANVAS canvas, const RECT* rect) {
    if (!canvas || !rect) return 0;
    FromHandle(canvas)->IntersectClip(*rect);
    return 1;
}

int ZORVIC_CALL GetCanvasClipRect(HGCANVAS canvas, RECT* rect) {
    if (!canvas || !rect) return 0;
    *rect = FromHandle(canvas)->ClipBox();
    return 1;
}

HGBITMAP ZORVIC_CALL GetBitmap(HGCANVAS canvas) { return canvas ? ToHandle(FromHandle(canvas)->Surface()) : nullptr; }

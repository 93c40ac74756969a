// Exports of vector drawing: shapes inside a frame, and style calls handed on as they are.
#include <type_traits>

#include "draw/vector_shapes.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;

namespace {

// Draws a shape inside the canvas's frame. Returns its result; 0 without a surface to draw on.
template <class... Args>
int Draw(HGCANVAS canvas, int (*shape)(VekCanvas, Args...), std::type_identity_t<Args>... args) {
    if (!canvas) return 0;
    const zorvic::VectorFrame frame(*FromHandle(canvas));
    return frame ? shape(frame.Get(), args...) : 0;
}

VekCanvas VectorCanvasOf(HGCANVAS canvas) { return canvas ? FromHandle(canvas)->VectorCanvas() : nullptr; }

template <class... Args>
void Style(HGCANVAS canvas, int (*call)(VekCanvas, Args...), std::type_identity_t<Args>... args) {
    if (const VekCanvas vectorCanvas = VectorCanvasOf(canvas)) call(vectorCanvas, args...);
}

template <class Value>
Value StyleOf(HGCANVAS canvas, Value (*get)(VekCanvas), std::type_identity_t<Value> otherwise) {
    const VekCanvas vectorCanvas = VectorCanvasOf(canvas);
    return vectorCanvas ? get(vectorCanvas) : otherwise;
}

}  // namespace

int DrawPoint(HGCANVAS canvas, float x, float y) { return Draw(canvas, vekCanvasDrawPoint, x, y); }

int DrawLine(HGCANVAS canvas, float x1, float y1, float x2, float y2) {
    return Draw(canvas, vekCanvasDrawLine, x1, y1, x2, y2);
}

int DrawRectangle(HGCANVAS canvas, float x, float y, float width, float height) {
    return Draw(canvas, vekCanvasDrawRectangle, x, y, width, height);
}

int DrawRoundRect(HGCANVAS canvas, const RECT* rect, float rx, float ry) {
    return rect ? Draw(canvas, zorvic::DrawRoundRect, *rect, rx, ry) : 0;
}

int DrawCircle(HGCANVAS canvas, float cx, float cy, float radius) {
    return Draw(canvas, vekCanvasDrawCircle, cx, cy, radius);
}

int DrawEllipse(HGCANVAS canvas, float x, float y, float width, float height) {
    return Draw(canvas, vekCanvasDrawEllipse, x, y, width, height);
}

int DrawPolygon(HGCANVAS canvas, unsigned int count, const POINT* points) {
    return points ? Draw(canvas, zorvic::DrawPolygon, count, points) : 0;
}

int DrawBezier(HGCANVAS canvas, const POINT* p0, const POINT* p1, const POINT* p2, const POINT* p3) {
    return p0 && p1 && p2 && p3 ? Draw(canvas, zorvic::DrawBezier, *p0, *p1, *p2, *p3) : 0;
}

int DrawColor(HGCANVAS canvas, DWORD color, const RECT* rect) {
    return rect ? Draw(canvas, zorvic::DrawColor, color, *rect) : 0;
}

int DrawPath(HGCANVAS canvas, HGPATH path) { return Draw(canvas, vekCanvasDrawPath, reinterpret_cast<VekPath>(path)); }

void Save(HGCANVAS canvas) { Style(canvas, vekCanvasSave); }
void Restore(HGCANVAS canvas) { Style(canvas, vekCanvasRestore); }
void SetDrawStyle(HGCANVAS canvas, int style) { Style(canvas, vekCanvasSetDrawStyle, style); }
void SetColor(HGCANVAS canvas, DWORD color) { Style(canvas, vekCanvasSetColor, color); }
void SetSmooth(HGCANVAS canvas, int smooth) { Style(canvas, vekCanvasSetSmooth, smooth); }
void SetBlendMode(HGCANVAS canvas, int mode) { Style(canvas, vekCanvasSetBlendMode, mode); }
void SetBlendValue(HGCANVAS canvas, int value) { Style(canvas, vekCanvasSetBlendValue, value); }
void SetStrokeCap(HGCANVAS canvas, int cap) { Style(canvas, vekCanvasSetStrokeCap, cap); }
void SetStrokeJoin(HGCANVAS canvas, int join) { Style(canvas, vekCanvasSetStrokeJoin, join); }
void SetStrokeWidth(HGCANVAS canvas, float width) { Style(canvas, vekCanvasSetStrokeWidth, width); }
void SetDashStyle(HGCANVAS canvas, BYTE style) { Style(canvas, vekCanvasSetDashStyle, style); }

void SetDashPattern(HGCANVAS canvas, const float* pattern, BYTE count) {
    Style(canvas, vekCanvasSetDashPattern, pattern, count);
}

void SetGradient(HGCANVAS canvas, HGGRADIENT gradient) {
    Style(canvas, vekCanvasSetGradient, reinterpret_cast<VekGradient>(gradient));
}

int GetBlendMode(HGCANVAS canvas) { return StyleOf(canvas, vekCanvasGetBlendMode, -1); }
int GetBlendValue(HGCANVAS canvas) { return StyleOf(canvas, vekCanvasGetBlendValue, 255); }
float GetStrokeWidth(HGCANVAS canvas) { return StyleOf(canvas, vekCanvasGetStrokeWidth, 1); }

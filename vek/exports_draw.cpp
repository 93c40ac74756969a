// Exported draw calls.
#include "exports.h"

using namespace zorvic::vek;

namespace {

// Calls call(canvas) if there is a bitmap to draw on and the numbers are finite.
template <class Call, class... Number>
int DrawOn(VekCanvas canvas, Call call, Number... numbers) {
    return With(canvas, [&](Canvas& c) {
        if (!c.HasBitmap() || !AllFinite(numbers...)) return false;
        call(c);
        return true;
    });
}

}  // namespace

int vekCanvasDrawPoint(VekCanvas canvas, float x, float y) {
    return DrawOn(
        canvas, [&](Canvas& c) { c.DrawPoint(PointOf(x, y)); }, x, y);
}

int vekCanvasDrawLine(VekCanvas canvas, float x1, float y1, float x2, float y2) {
    return DrawOn(
        canvas, [&](Canvas& c) { c.DrawLine(PointOf(x1, y1), PointOf(x2, y2)); }, x1, y1, x2, y2);
}

int vekCanvasDrawRectangle(VekCanvas canvas, float x, float y, float width, float height) {
    return DrawOn(
        canvas,
        [&](Canvas& c) {
            const auto [a, b] = CornersOf(x, y, width, height);
            c.DrawRectangle(a, b);
        },
        x, y, width, height);
}

int vekCanvasDrawRoundRect(VekCanvas canvas, const RECT* rect, float rx, float ry) {
    if (!rect) return 0;
    const Box box = BoxOf(*rect);
    const Point radii = PointOf(rx, ry);
    return DrawOn(
        canvas,
        [&](Canvas& c) {
            c.DrawRoundRect({box.left, box.top}, {box.right, box.bottom}, radii.x, radii.y);
        },
        rx, ry);
}

int vekCanvasDrawCircle(VekCanvas canvas, float cx, float cy, float radius) {
    return DrawOn(
        canvas,
        [&](Canvas& c) {
            const auto [a, b] = AroundCircle(cx, cy, radius);
            c.DrawEllipse(a, b);
        },
        cx, cy, radius);
}

int vekCanvasDrawEllipse(VekCanvas canvas, float x, float y, float width, float height) {
    return DrawOn(
        canvas,
        [&](Canvas& c) {
            const auto [a, b] = CornersOf(x, y, width, height);
            c.DrawEllipse(a, b);
        },
        x, y, width, height);
}

int vekCanvasDrawPath(VekCanvas canvas, VekPath path) {
    if (!path) return 0;
    return DrawOn(canvas, [&](Canvas& c) { c.DrawPath(*ObjectOf(path)); });
}

int vekCanvasDrawColor(VekCanvas canvas, DWORD color, const RECT* rect) {
    if (!rect) return 0;
    const Box box = BoxOf(*rect);
    return DrawOn(canvas, [&](Canvas& c) { c.DrawColor(color, {box.left, box.top}, {box.right, box.bottom}); });
}

int vekCanvasDrawBitmap(VekCanvas canvas, VekBitmap bitmap, float x, float y) {
    if (!bitmap) return 0;
    return DrawOn(
        canvas, [&](Canvas& c) { c.DrawBitmap(*ObjectOf(bitmap), PointOf(x, y)); }, x, y);
}

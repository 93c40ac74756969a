// Copies of rectangles, and building and drawing of the temporary paths.
#include "draw/vector_shapes.h"

namespace zorvic {

namespace {

struct PathDeleter {
    void operator()(VekPath path) const { vekPathDestroy(path); }
};
using OwnedPath = std::unique_ptr<VekPath__, PathDeleter>;

float X(POINT point) { return static_cast<float>(point.x); }
float Y(POINT point) { return static_cast<float>(point.y); }

}  // namespace

int DrawRoundRect(VekCanvas canvas, const RECT& rect, float rx, float ry) {
    alignas(16) const RECT copy = rect;
    return vekCanvasDrawRoundRect(canvas, &copy, rx, ry);
}

int DrawColor(VekCanvas canvas, DWORD color, const RECT& rect) {
    alignas(16) const RECT copy = rect;
    return vekCanvasDrawColor(canvas, color, &copy);
}

int DrawPolygon(VekCanvas canvas, unsigned count, const POINT* points) {
    const OwnedPath path(vekPathCreate());
    bool built = vekPathBegin(path.get()) && vekPathMoveTo(path.get(), X(points[0]), Y(points[0]));
    // The first segment has length zero on purpose.
    for (unsigned i = 0; built && i < count; ++i) built = vekPathLineTo(path.get(), X(points[i]), Y(points[i]));
    return built && vekPathClose(path.get()) ? vekCanvasDrawPath(canvas, path.get()) : 0;
}

int DrawBezier(VekCanvas canvas, POINT p0, POINT p1, POINT p2, POINT p3) {
    const OwnedPath path(vekPathCreate());
    const bool built = vekPathBegin(path.get()) && vekPathMoveTo(path.get(), X(p0), Y(p0)) &&
                       vekPathBezierCurveTo(path.get(), X(p1), Y(p1), X(p2), Y(p2), X(p3), Y(p3));
    return built ? vekCanvasDrawPath(canvas, path.get()) : 0;
}

}  // namespace zorvic

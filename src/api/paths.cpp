// Exports of paths and gradients: the backend's objects, handed through.
#include "vek/vekgraphic.h"
#include "zorvic/zorvic.h"

namespace {

VekPath ToVek(HGPATH path) { return reinterpret_cast<VekPath>(path); }
VekGradient ToVek(HGGRADIENT gradient) { return reinterpret_cast<VekGradient>(gradient); }

}  // namespace

HGPATH PathCreate(void) { return reinterpret_cast<HGPATH>(vekPathCreate()); }
void PathDestroy(HGPATH path) { vekPathDestroy(ToVek(path)); }
int PathBegin(HGPATH path) { return vekPathBegin(ToVek(path)); }
int PathClose(HGPATH path) { return vekPathClose(ToVek(path)); }
int PathMoveTo(HGPATH path, float x, float y) { return vekPathMoveTo(ToVek(path), x, y); }
int PathLineTo(HGPATH path, float x, float y) { return vekPathLineTo(ToVek(path), x, y); }

int PathArcTo(HGPATH path, float x1, float y1, float x2, float y2, float radius) {
    return vekPathArcTo(ToVek(path), x1, y1, x2, y2, radius);
}

int PathBezierCurveTo(HGPATH path, float c1x, float c1y, float c2x, float c2y, float x, float y) {
    return vekPathBezierCurveTo(ToVek(path), c1x, c1y, c2x, c2y, x, y);
}

int PathQuadraticCurveTo(HGPATH path, float cx, float cy, float x, float y) {
    return vekPathQuadraticCurveTo(ToVek(path), cx, cy, x, y);
}

int PathAddArc(HGPATH path, float cx, float cy, float radius, float startAngle, float endAngle, int anticlockwise) {
    return vekPathAddArc(ToVek(path), cx, cy, radius, startAngle, endAngle, anticlockwise != 0);
}

int PathAddRectangle(HGPATH path, float x, float y, float width, float height) {
    return vekPathAddRectangle(ToVek(path), x, y, width, height);
}

int PathAddCircle(HGPATH path, float cx, float cy, float radius) {
    return vekPathAddCircle(ToVek(path), cx, cy, radius);
}

int PathAddEllipse(HGPATH path, float x, float y, float width, float height) {
    return vekPathAddEllipse(ToVek(path), x, y, width, height);
}

int PathGetBounds(HGPATH path, PathBounds* bounds) {
    if (!bounds) return 0;
    VekBounds extent{};
    const int result = vekPathGetBounds(ToVek(path), &extent);
    *bounds = {extent.left, extent.top, extent.right, extent.bottom};
    return result;
}

HGGRADIENT GradientCreateLinear(float x1, float y1, float x2, float y2) {
    return reinterpret_cast<HGGRADIENT>(vekGradientCreateLinear(x1, y1, x2, y2));
}

HGGRADIENT GradientCreateRadial(float x0, float y0, float r0, float x1, float y1, float r1) {
    return reinterpret_cast<HGGRADIENT>(vekGradientCreateRadial(x0, y0, r0, x1, y1, r1));
}

int GradientAddColorStop(HGGRADIENT gradient, float offset, DWORD color) {
    return vekGradientAddColorStop(ToVek(gradient), offset, color);
}

void GradientDestroy(HGGRADIENT gradient) { vekGradientDestroy(ToVek(gradient)); }

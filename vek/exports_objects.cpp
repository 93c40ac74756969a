// Exported functions of paths and gradients.
#include <cfloat>
#include <functional>

#include "exports.h"

using namespace zorvic::vek;

namespace {

// Calls call(path) if the numbers are finite.
template <class Call, class... Number>
int Build(VekPath path, Call call, Number... numbers) {
    return With(path, [&](Path& p) {
        if (!AllFinite(numbers...)) return false;
        std::invoke(call, p);
        return true;
    });
}

// The nearest float; sums of two floats may lie beyond the largest.
float ToFloat(double value) {
    return static_cast<float>(std::clamp(value, -static_cast<double>(FLT_MAX), static_cast<double>(FLT_MAX)));
}

Circle CircleOf(float x, float y, float radius) { return {PointOf(x, y), std::max(static_cast<double>(radius), 0.0)}; }

VekGradient NewGradient(bool radial, float x0, float y0, float r0, float x1, float y1, float r1) {
    if (!AllFinite(x0, y0, r0, x1, y1, r1)) return nullptr;
    return NewHandle<VekGradient>([&] {
        return std::make_unique<std::shared_ptr<Gradient>>(
            std::make_shared<Gradient>(radial, CircleOf(x0, y0, r0), CircleOf(x1, y1, r1)));
    });
}

}  // namespace

VekPath vekPathCreate() {
    return NewHandle<VekPath>([] { return std::make_unique<Path>(); });
}

void vekPathDestroy(VekPath path) { delete ObjectOf(path); }

int vekPathBegin(VekPath path) { return Build(path, &Path::Begin); }

int vekPathClose(VekPath path) { return Build(path, &Path::Close); }

int vekPathMoveTo(VekPath path, float x, float y) {
    return Build(
        path, [&](Path& p) { p.MoveTo(PointOf(x, y)); }, x, y);
}

int vekPathLineTo(VekPath path, float x, float y) {
    return Build(
        path, [&](Path& p) { p.LineTo(PointOf(x, y)); }, x, y);
}

int vekPathArcTo(VekPath path, float x1, float y1, float x2, float y2, float radius) {
    const double r = static_cast<double>(radius);
    return Build(
        path, [&](Path& p) { p.ArcTo(PointOf(x1, y1), PointOf(x2, y2), r); }, x1, y1, x2, y2, radius);
}

int vekPathBezierCurveTo(VekPath path, float c1x, float c1y, float c2x, float c2y, float x, float y) {
    return Build(
        path, [&](Path& p) { p.CurveTo(PointOf(c1x, c1y), PointOf(c2x, c2y), PointOf(x, y)); }, c1x, c1y, c2x, c2y, x,
        y);
}

int vekPathQuadraticCurveTo(VekPath path, float cx, float cy, float x, float y) {
    return Build(
        path, [&](Path& p) { p.QuadraticTo(PointOf(cx, cy), PointOf(x, y)); }, cx, cy, x, y);
}

int vekPathAddArc(VekPath path, float cx, float cy, float radius, float startAngle, float endAngle, int anticlockwise) {
    const double r = static_cast<double>(radius);
    const double from = static_cast<double>(startAngle), to = static_cast<double>(endAngle);
    return Build(
        path, [&](Path& p) { p.AddArc(PointOf(cx, cy), r, from, to, anticlockwise != 0); }, cx, cy, radius, startAngle,
        endAngle);
}

int vekPathAddRectangle(VekPath path, float x, float y, float width, float height) {
    return Build(
        path,
        [&](Path& p) {
            const auto [a, b] = CornersOf(x, y, width, height);
            p.AddRectangle(a, b);
        },
        x, y, width, height);
}

int vekPathAddCircle(VekPath path, float cx, float cy, float radius) {
    return Build(
        path,
        [&](Path& p) {
            const auto [a, b] = AroundCircle(cx, cy, radius);
            p.AddEllipse(a, b);
        },
        cx, cy, radius);
}

int vekPathAddEllipse(VekPath path, float x, float y, float width, float height) {
    return Build(
        path,
        [&](Path& p) {
            const auto [a, b] = CornersOf(x, y, width, height);
            p.AddEllipse(a, b);
        },
        x, y, width, height);
}

int vekPathGetBounds(VekPath path, VekBounds* bounds) {
    return With(path, [&](Path& p) {
        if (!bounds) return false;
        const Box box = p.Empty() ? Box{0, 0, 0, 0} : p.Bounds();
        *bounds = {ToFloat(box.left), ToFloat(box.top), ToFloat(box.right), ToFloat(box.bottom)};
        return true;
    });
}

VekGradient vekGradientCreateLinear(float x1, float y1, float x2, float y2) {
    return NewGradient(false, x1, y1, 0, x2, y2, 0);
}

VekGradient vekGradientCreateRadial(float x0, float y0, float r0, float x1, float y1, float r1) {
    return NewGradient(true, x0, y0, r0, x1, y1, r1);
}

int vekGradientAddColorStop(VekGradient gradient, float offset, DWORD color) {
    return With(gradient, [&](std::shared_ptr<Gradient>& g) {
        if (!AllFinite(offset)) return false;
        g->AddStop(static_cast<double>(offset), static_cast<std::uint32_t>(color));
        return true;
    });
}

void vekGradientDestroy(VekGradient gradient) { delete ObjectOf(gradient); }

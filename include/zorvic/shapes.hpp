// Zorvic for C++20: paths and gradients. zorvic.h says what each function does.
#pragma once

#include "zorvic/handles.hpp"

namespace zorvic {

// A path that somebody else owns.
class PathRef : public HandleRef<HGPATH> {
public:
    using HandleRef::HandleRef;

    bool Begin() const { return ::PathBegin(handle) != 0; }
    bool Close() const { return ::PathClose(handle) != 0; }
    bool MoveTo(float x, float y) const { return ::PathMoveTo(handle, x, y) != 0; }
    bool LineTo(float x, float y) const { return ::PathLineTo(handle, x, y) != 0; }
    bool ArcTo(float x1, float y1, float x2, float y2, float radius) const {
        return ::PathArcTo(handle, x1, y1, x2, y2, radius) != 0;
    }
    bool BezierCurveTo(float c1x, float c1y, float c2x, float c2y, float x, float y) const {
        return ::PathBezierCurveTo(handle, c1x, c1y, c2x, c2y, x, y) != 0;
    }
    bool QuadraticCurveTo(float cx, float cy, float x, float y) const {
        return ::PathQuadraticCurveTo(handle, cx, cy, x, y) != 0;
    }
    bool AddArc(float cx, float cy, float radius, float startAngle, float endAngle, bool anticlockwise = false) const {
        return ::PathAddArc(handle, cx, cy, radius, startAngle, endAngle, anticlockwise) != 0;
    }
    bool AddRectangle(float x, float y, float width, float height) const {
        return ::PathAddRectangle(handle, x, y, width, height) != 0;
    }
    bool AddCircle(float cx, float cy, float radius) const { return ::PathAddCircle(handle, cx, cy, radius) != 0; }
    bool AddEllipse(float x, float y, float width, float height) const {
        return ::PathAddEllipse(handle, x, y, width, height) != 0;
    }
    PathBounds Bounds() const {
        PathBounds bounds{};
        ::PathGetBounds(handle, &bounds);
        return bounds;
    }

protected:
    static void Delete(HGPATH path) { ::PathDestroy(path); }
};

// A path of one's own.
class Path : public Owned<PathRef> {
public:
    using Owned::Owned;
    static Path Create() { return Path(::PathCreate()); }
};

// A gradient that somebody else owns.
class GradientRef : public HandleRef<HGGRADIENT> {
public:
    using HandleRef::HandleRef;

    bool AddColorStop(float offset, DWORD color) const { return ::GradientAddColorStop(handle, offset, color) != 0; }

protected:
    static void Delete(HGGRADIENT gradient) { ::GradientDestroy(gradient); }
};

// A gradient of one's own.
class Gradient : public Owned<GradientRef> {
public:
    using Owned::Owned;
    static Gradient CreateLinear(float x1, float y1, float x2, float y2) {
        return Gradient(::GradientCreateLinear(x1, y1, x2, y2));
    }
    static Gradient CreateRadial(float x0, float y0, float r0, float x1, float y1, float r1) {
        return Gradient(::GradientCreateRadial(x0, y0, r0, x1, y1, r1));
    }
};

}  // namespace zorvic

// Building outlines of lines and curves, and their exact extent. Arcs are in path_arcs.cpp.
#include "path.h"

namespace zorvic::vek {

void Path::Clear() {
    verbs.clear();
    points.clear();
    controlBox = {};
    hasCurrent = hasCurves = drawn = false;
}

void Path::Add(Verb verb, std::initializer_list<Point> added) {
    // All of the points or none: without memory for the verb they must not stay behind.
    points.insert(points.end(), added);
    try {
        verbs.push_back(verb);
    } catch (...) {
        points.resize(points.size() - added.size());
        throw;
    }
    for (const Point p : added) controlBox.Add(p);
}

void Path::MoveTo(Point p) {
    start = current = p;
    hasCurrent = true;
    drawn = false;
}

void Path::StartFigure() {
    if (drawn) return;
    Add(Verb::move, {current});
    drawn = true;
}

void Path::LineTo(Point p) {
    if (!hasCurrent) return MoveTo(p);
    StartFigure();
    Add(Verb::line, {p});
    current = p;
}

void Path::CurveTo(Point c1, Point c2, Point p) {
    if (!hasCurrent) MoveTo(c1);
    StartFigure();
    Add(Verb::curve, {c1, c2, p});
    hasCurves = true;
    current = p;
}

void Path::QuadraticTo(Point c, Point p) {
    if (!hasCurrent) MoveTo(c);
    CurveTo(Mix(current, c, 2.0 / 3), Mix(p, c, 2.0 / 3), p);
}

void Path::Close() {
    if (!hasCurrent || !drawn) return;
    Add(Verb::close, {});
    current = start;
    drawn = false;
}

void Path::AddRectangle(Point a, Point b) {
    const Point low{std::min(a.x, b.x), std::min(a.y, b.y)};
    const Point high{std::max(a.x, b.x), std::max(a.y, b.y)};
    MoveTo(low);
    LineTo({high.x, low.y});
    LineTo(high);
    LineTo({low.x, high.y});
    Close();
    Begin();
}

namespace {

struct Extent {
    Box box;
    Point current;

    void MoveTo(Point p) { Reach(p); }
    void LineTo(Point p) { Reach(p); }
    void Close() {}
    void CurveTo(Point c1, Point c2, Point p) {
        const Point from = current;
        Reach(p);
        if (box.Contains(c1) && box.Contains(c2)) return;
        const auto reachAt = [&](double t) {
            const Point a = Mix(from, c1, t), b = Mix(c1, c2, t), c = Mix(c2, p, t);
            const Point onCurve = Mix(Mix(a, b, t), Mix(b, c, t), t);
            box.Add(onCurve);
        };
        TurningPoints(from.x, c1.x, c2.x, p.x, reachAt);
        TurningPoints(from.y, c1.y, c2.y, p.y, reachAt);
    }

private:
    void Reach(Point p) {
        box.Add(p);
        current = p;
    }

    // Where the derivative of one coordinate, a t^2 + 2 b t + c up to a factor, is 0.
    template <class Call>
    static void TurningPoints(double p0, double p1, double p2, double p3, Call call) {
        const double a = p3 - 3 * p2 + 3 * p1 - p0;
        const double b = p2 - 2 * p1 + p0;
        const double c = p1 - p0;
        const double square = b * b - a * c;
        if (square < 0) return;
        // The two roots q / a and c / q lose no digits where a is small or the roots are far apart.
        const double q = -(b + std::copysign(std::sqrt(square), b));
        for (const double t : {q / a, c / q})
            if (t > 0 && t < 1) call(t);
    }
};

}  // namespace

Box Path::Bounds() const {
    Extent extent;
    Visit(extent);
    return extent.box;
}

}  // namespace zorvic::vek

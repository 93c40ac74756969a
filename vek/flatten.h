// Curves as lines. Only what comes near a box is flattened finely, so that the work is bounded by what is seen.
#pragma once

#include <vector>

#include "path.h"

namespace zorvic::vek {

struct Flatness {
    Point offset;      // added to all points
    Box box;           // curves outside it become one line
    double width = 0;  // of the stroke along the lines: the turns between them are not to be seen at its edge
    Box shown = BoxOf(unbounded);  // where the stroke's edge is seen
};

// Calls figure(points, closed) for every figure; the points may be changed.
template <class Figure>
class Flattener {
public:
    Flattener(const Flatness& how, Figure& call) : flatness(how), figure(call) {
        // A turn by an angle a moves a corner of the edge by about width / 2 * a^2 / 8.
        steepest = std::tan(std::min(std::sqrt(16 * distance / std::max(flatness.width, 1e-3)), 1.0));
    }
    void MoveTo(Point p) {
        Finish(false);
        points.push_back(p + flatness.offset);
    }
    void LineTo(Point p) { points.push_back(p + flatness.offset); }
    void CurveTo(Point c1, Point c2, Point p) {
        const Point from = points.back();
        Flatten(from, c1 + flatness.offset, c2 + flatness.offset, p + flatness.offset, {deepest, true, true});
    }
    void Close() { Finish(true); }
    void Finish(bool closed) {
        if (points.size() > 1) figure(points, closed);
        points.clear();
    }

private:
    static constexpr double distance = 0.02;  // pixels between a line and its curve
    // Halving a curve divides its distance from the chord by four: enough for coordinates of any float.
    static constexpr int deepest = 80;

    // A part of a curve that may still be halved some times, and whether it has the curve's ends.
    struct Part {
        int depth;
        bool first;
        bool last;
    };

    void Flatten(Point a, Point b, Point c, Point d, Part part) {
        Box hull;
        for (const Point p : {a, b, c, d}) hull.Add(p);
        const Box& box = flatness.box;
        const bool outside = !hull.Meets(box);
        // The curve is no farther from its chord than the control points from the chord's thirds.
        const double bend = std::max(Distance(b, Mix(a, d, 1.0 / 3)), Distance(c, Mix(a, d, 2.0 / 3)));
        const bool tiny = hull.right - hull.left < distance && hull.bottom - hull.top < distance;
        const double turn = flatness.width > 0 ? Turn(a, b, c, d) : 0;
        const bool flat = (bend <= distance && turn <= steepest) || IsHidden(hull, a, d, bend, turn, part);
        if (outside || tiny || flat || part.depth == 0) return points.push_back(d);
        const Point ab = Middle(a, b), bc = Middle(b, c), cd = Middle(c, d);
        const Point abc = Middle(ab, bc), bcd = Middle(bc, cd);
        const Point middle = Middle(abc, bcd);
        Flatten(a, ab, abc, middle, {part.depth - 1, part.first, false});
        Flatten(middle, bcd, cd, d, {part.depth - 1, false, part.last});
    }

    // Tangent of the angle that the curve's direction is from its chord's at most; infinite from a right angle on.
    static double Turn(Point a, Point b, Point c, Point d) {
        const Point chord = d - a;
        double most = 0;
        for (const Point step : {b - a, c - b, d - c}) {
            const double along = chord.x * step.x + chord.y * step.y;
            const double across = std::abs(chord.x * step.y - chord.y * step.x);
            if (across > 0 || along < 0)
                most = std::max(most, along > 0 ? across / along : std::numeric_limits<double>::infinity());
        }
        return most;
    }

    // Whether both edges of a stroke that is wider than the box shown pass it at a distance, so that one line covers the
    // same in it. The directions at the ends of a curve are kept: the stroke is cut or joined there.
    bool IsHidden(const Box& hull, Point a, Point d, double bend, double turn, const Part& part) const {
        const double half = flatness.width / 2;
        const Box& shown = flatness.shown;
        const bool wide = half > std::min(shown.right - shown.left, shown.bottom - shown.top);
        if (!wide || part.first || part.last || turn > 0.5 || bend > half / 4 || a == d) return false;
        const Point chord = d - a;
        const Point side = Point{-chord.y, chord.x} * (half / Distance(a, d));
        // Twice as far as points of the edges are from where the chord's ends have them.
        const Box around = hull.Grown(2 * half * turn + bend + 2);
        return !around.Moved(side).Meets(shown) && !around.Moved(side * -1).Meets(shown);
    }

    Flatness flatness;
    double steepest;
    Figure& figure;
    std::vector<Point> points;
};

template <class Figure>
void Flatten(const Path& path, const Flatness& flatness, Figure figure) {
    Flattener<Figure> flattener(flatness, figure);
    path.Visit(flattener);
    flattener.Finish(false);
}

}  // namespace zorvic::vek

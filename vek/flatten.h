// Curves as lines. Only what comes near a box is flattened finely, so that the work is bounded by what is seen.
#pragma once

#include <vector>

#include "path.h"

namespace zorvic::vek {

struct Flatness {
    Point offset;      // added to all points
    Box box;           // curves outside it become one line
    double width = 0;  // of the stroke along the lines: the turns between them are not to be seen at its edge
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
        Flatten(points.back(), c1 + flatness.offset, c2 + flatness.offset, p + flatness.offset, deepest);
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

    void Flatten(Point a, Point b, Point c, Point d, int depth) {
        Box hull;
        for (const Point p : {a, b, c, d}) hull.Add(p);
        const Box& box = flatness.box;
        const bool outside =
            hull.right < box.left || hull.left > box.right || hull.bottom < box.top || hull.top > box.bottom;
        // The curve is no farther from its chord than the control points from the chord's thirds.
        const double bend = std::max(Distance(b, Mix(a, d, 1.0 / 3)), Distance(c, Mix(a, d, 2.0 / 3)));
        const bool tiny = hull.right - hull.left < distance && hull.bottom - hull.top < distance;
        const bool flat = bend <= distance && (flatness.width == 0 || !Turns(a, b, c, d));
        if (outside || tiny || flat || depth == 0) return points.push_back(d);
        const Point ab = Middle(a, b), bc = Middle(b, c), cd = Middle(c, d);
        const Point abc = Middle(ab, bc), bcd = Middle(bc, cd);
        const Point middle = Middle(abc, bcd);
        Flatten(a, ab, abc, middle, depth - 1);
        Flatten(middle, bcd, cd, d, depth - 1);
    }

    // Whether the curve's direction changes too much for one line.
    bool Turns(Point a, Point b, Point c, Point d) const {
        const Point chord = d - a;
        for (const Point step : {b - a, c - b, d - c}) {
            const double along = chord.x * step.x + chord.y * step.y;
            const double across = chord.x * step.y - chord.y * step.x;
            if (std::abs(across) > steepest * along) return true;
        }
        return false;
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

// Counting rows of edges.
#include "edge_rows.h"

namespace zorvic::vek {

namespace {

// Part of a row: an edge costs something although it is level.
constexpr double startOfEdge = 0.25;

// Edges across the ends of a line and at a corner; those of round ones are many short ones.
double EndEdges(const StrokeForm& stroke) { return stroke.cap == Cap::round ? 4 : 2; }
double JoinEdges(const StrokeForm& stroke) { return stroke.join == Join::round ? 2 : 1; }

struct EdgeCounter {
    const StrokeForm& stroke;
    double top, bottom;
    Point start, current;
    double half = stroke.width / 2;
    double rows = 0;

    void MoveTo(Point p) {
        start = current = p;
        if (half > 0) Add(EndEdges(stroke), p, p, stroke.width);
    }
    void LineTo(Point p) {
        Add(half > 0 ? 2 : 1, current, p, std::abs(p.y - current.y));
        if (half > 0) Add(JoinEdges(stroke), p, p, half);
        current = p;
    }
    void CurveTo(Point c1, Point c2, Point p) {
        LineTo(c1);
        LineTo(c2);
        LineTo(p);
    }
    void Close() { LineTo(start); }

private:
    // Edges of one height, which lie within half the stroke's width of a line.
    void Add(double edges, Point a, Point b, double height) {
        const double low = std::max(std::min(a.y, b.y) - half, top), high = std::min(std::max(a.y, b.y) + half, bottom);
        if (low < high) rows += edges * (std::min(height, high - low) + startOfEdge);
    }
};

}  // namespace

double EdgeRows(const Path& path, Point offset, const Rect& area, const StrokeForm& stroke) {
    EdgeCounter counter{stroke, area.top - offset.y, area.bottom - offset.y, {}, {}};
    path.Visit(counter);
    return counter.rows;
}

double DashRows(double count, double length, const Rect& area, const StrokeForm& stroke) {
    const auto rows = [&](double height) { return std::min(height, static_cast<double>(area.Height())) + startOfEdge; };
    return count * (2 * rows(length) + EndEdges(stroke) * rows(stroke.width));
}

}  // namespace zorvic::vek

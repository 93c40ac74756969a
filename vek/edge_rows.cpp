// Counting rows of edges.
#include "edge_rows.h"

namespace zorvic::vek {

namespace {

// Part of a row: an edge costs something although it is level.
constexpr double startOfEdge = 0.25;

// Edges across the ends of a line and at a corner; those of round ones are many short ones.
double EndEdges(const StrokeForm& stroke) { return stroke.cap == Cap::round ? 4 : 2; }
double JoinEdges(const StrokeForm& stroke) { return stroke.join == Join::round ? 2 : 1; }

}  // namespace

double EdgeRows(const Path& path, Point offset, const Rect& area, const StrokeForm& stroke) {
    const double top = area.top - offset.y, bottom = area.bottom - offset.y, half = stroke.width / 2;
    double rows = 0;
    // Edges of one height, which lie within half the stroke's width of a line.
    const auto add = [&](double edges, Point a, Point b, double height) {
        const double low = std::max(std::min(a.y, b.y) - half, top), high = std::min(std::max(a.y, b.y) + half, bottom);
        if (low < high) rows += edges * (std::min(height, high - low) + startOfEdge);
    };
    path.VisitControlLines(
        [&](Point p) {
            if (half > 0) add(EndEdges(stroke), p, p, stroke.width);
        },
        [&](Point a, Point b) {
            add(half > 0 ? 2 : 1, a, b, std::abs(b.y - a.y));
            if (half > 0) add(JoinEdges(stroke), b, b, half);
        });
    return rows;
}

double DashRows(double count, double length, const Rect& area, const StrokeForm& stroke) {
    const auto rows = [&](double height) { return std::min(height, static_cast<double>(area.Height())) + startOfEdge; };
    return count * (2 * rows(length) + EndEdges(stroke) * rows(stroke.width));
}

}  // namespace zorvic::vek

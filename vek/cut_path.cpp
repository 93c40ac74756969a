// Cutting flattened figures edge by edge.
#include "cut_path.h"

#include <array>

#include "flatten.h"

namespace zorvic::vek {

namespace {

constexpr int mostDashes = 1 << 17;

Point Clamp(Point p, const Box& box) {
    return {std::clamp(p.x, box.left, box.right), std::clamp(p.y, box.top, box.bottom)};
}

// Moving every point to the nearest point of the box leaves all winding numbers inside it as they are. On an edge the
// move is linear between its crossings with the four lines of the box.
void AddClamped(Path& out, Point a, Point b, const Box& box) {
    std::array<double, 4> crossings{(box.left - a.x) / (b.x - a.x), (box.right - a.x) / (b.x - a.x),
                                    (box.top - a.y) / (b.y - a.y), (box.bottom - a.y) / (b.y - a.y)};
    for (double& t : crossings)
        if (!(t > 0 && t < 1)) t = 1;
    std::sort(crossings.begin(), crossings.end());
    for (const double t : crossings)
        if (t < 1) out.LineTo(Clamp(Mix(a, b, t), box));
    out.LineTo(Clamp(b, box));
}

// The part of an edge inside a box, as two positions 0..1 on it; first > last when there is none.
struct Span {
    double first = 0;
    double last = 1;
};
Span Inside(Point a, Point b, const Box& box) {
    Span span;
    const auto cut = [&span](double from, double to, double low, double high) {
        if (from == to) {
            if (from < low || from > high) span = {1, 0};
            return;
        }
        const double t1 = (low - from) / (to - from), t2 = (high - from) / (to - from);
        span.first = std::max(span.first, std::min(t1, t2));
        span.last = std::min(span.last, std::max(t1, t2));
    };
    cut(a.x, b.x, box.left, box.right);
    cut(a.y, b.y, box.top, box.bottom);
    return span;
}

// Calls edge(a, b, length before a) for every edge. A closed figure starts at a point outside the box where it has one,
// so that the cut falls where nothing is seen.
template <class Edge>
void ForEachEdge(std::vector<Point>& points, bool closed, const Box& box, Edge edge) {
    if (closed) points.push_back(points.front());
    const std::size_t count = points.size() - 1;
    std::size_t first = 0;
    if (closed)
        while (first < count && box.Contains(points[first])) ++first;
    if (first == count) first = 0;

    double before = 0;
    for (std::size_t i = 0; i < first; ++i) before += Distance(points[i], points[i + 1]);
    for (std::size_t n = 0; n < count; ++n) {
        const std::size_t i = (first + n) % count;
        if (i == 0) before = 0;
        edge(points[i], points[i + 1], before);
        before += Distance(points[i], points[i + 1]);
    }
}

// Draws the on parts of a dashed line, each longer by reach at both of its ends.
class Dasher {
public:
    Dasher(Path& path, const Dashes& lengths, double added) : out(path), dashes(lengths), reach(added) {
        for (const double length : dashes) ends.push_back(period += length);
    }

    // The part of the edge from a to b; the pen stays down when it was on at the end of the edge.
    bool Draw(Point a, Point b, double before, Span span) {
        const double length = Distance(a, b);
        const double end = span.last * length;
        double at = span.first * length;
        const double phase = std::fmod(before + at, period);
        // A dash that ends here is over, but the first one of a figure may have no length.
        const auto current = before + at == 0 ? ends.begin() : std::upper_bound(ends.begin(), ends.end() - 1, phase);
        auto dash = static_cast<std::size_t>(current - ends.begin());

        if (span.first > 0) LiftPen();
        if (length > 0) way = (b - a) * (1 / length);
        const auto place = [&](double distance) { return length > 0 ? Mix(a, b, distance / length) : a; };
        for (double left = *current - phase;; left = dashes[dash]) {
            const bool on = dash % 2 == 0;
            const double stop = std::min(at + left, end);
            if (on) {
                if (penDown) {
                    out.LineTo(tip);
                } else {
                    out.MoveTo(place(at) - way * reach);
                }
                tip = place(stop);
                penDown = true;
            }
            if (at + left > end) {
                if (span.last < 1) LiftPen();
                return true;
            }
            LiftPen();
            if (++drawn > mostDashes) return false;
            at = stop;
            dash = (dash + 1) % dashes.size();
        }
    }

    void LiftPen() {
        if (penDown) out.LineTo(tip + way * reach);
        penDown = false;
    }

private:
    Path& out;
    const Dashes& dashes;
    std::vector<double> ends;  // of the dashes in the period
    double period = 0;
    double reach;
    int drawn = 0;
    bool penDown = false;
    Point tip;  // where the pen is, not drawn yet
    Point way;  // unit vector along the edge
};

}  // namespace

Path FlattenForStroke(const Path& path, Point offset, const Box& shown, double width) {
    Path out;
    Flatten(path, {offset, BoxOf(unbounded), width, shown}, [&](const std::vector<Point>& points, bool closed) {
        out.MoveTo(points.front());
        for (std::size_t i = 1; i < points.size(); ++i) out.LineTo(points[i]);
        if (closed) out.Close();
    });
    return out;
}

Path CutForFill(const Path& path, Point offset, const Box& box) {
    Path out;
    Flatten(path, {.offset = offset, .box = box}, [&](const std::vector<Point>& points, bool) {
        out.MoveTo(Clamp(points.front(), box));
        for (std::size_t i = 1; i < points.size(); ++i) AddClamped(out, points[i - 1], points[i], box);
        AddClamped(out, points.back(), points.front(), box);
        out.Close();
    });
    return out;
}

Path CutForStroke(const Path& path, Point offset, const Box& box, const Box& shown, double width) {
    Path out;
    Flatten(path, {offset, box, width, shown}, [&](std::vector<Point>& points, bool closed) {
        bool penDown = false;
        bool whole = true;
        ForEachEdge(points, closed, box, [&](Point a, Point b, double) {
            const Span span = Inside(a, b, box);
            whole = whole && span.first == 0 && span.last == 1;
            if (span.first <= span.last) {
                if (!penDown || span.first > 0) out.MoveTo(Mix(a, b, span.first));
                out.LineTo(Mix(a, b, span.last));
            }
            penDown = span.first <= span.last && span.last == 1;
        });
        if (whole && closed) out.Close();
        out.Begin();
    });
    return out;
}

std::optional<Path> CutIntoDashes(const Path& path, Point offset, const Box& box, double width, const Dashes& dashes,
                                  double reach) {
    Path out;
    Dasher dasher(out, dashes, reach);
    bool done = true;
    Flatten(path, {offset, box, width}, [&](std::vector<Point>& points, bool closed) {
        ForEachEdge(points, closed, box, [&](Point a, Point b, double before) {
            const Span span = Inside(a, b, box);
            if (done && span.first <= span.last) done = dasher.Draw(a, b, before, span);
        });
        dasher.LiftPen();
    });
    if (!done) return std::nullopt;
    return out;
}

}  // namespace zorvic::vek

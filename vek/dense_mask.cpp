// Winding numbers by counting: an edge adds its direction to the first sample right of it in every row of samples; the
// sums along the rows are the winding numbers. A stroke is a heap of convex pieces with one direction.
#include "dense_mask.h"

#include <array>
#include <numbers>
#include <optional>
#include <span>

#include "flatten.h"

namespace zorvic::vek {

namespace {

constexpr int samples = 4;  // per pixel and axis
// Of a band: 2 MiB, so that a column of counters stays in the second cache and within reach of the page tables.
constexpr int mostCounters = 1 << 19;

// Some rows of the picture, as counters per sample.
class Band {
public:
    explicit Band(const Rect& rows)
        : area(rows), width(rows.Width() * samples + 1), counters(Index(0, rows.Height() * samples)) {}

    void CoverAll() { covered = true; }
    const Rect& Area() const { return area; }

    void AddEdge(Point a, Point b) {
        if (covered) return;
        const int direction = a.y < b.y ? 1 : -1;
        if (direction < 0) std::swap(a, b);
        const int first = Sample(a.y - area.top, area.Height());
        const int last = Sample(b.y - area.top, area.Height());
        if (first == last) return;
        const double slope = (b.x - a.x) / (b.y - a.y);
        for (int row = first; row < last; ++row) {
            const double x = a.x + slope * ((row + 0.5) / samples + area.top - a.y);
            counters[Index(Sample(x - area.left, area.Width()), row)] += direction;
        }
    }

    void WriteTo(Mask& mask) const {
        for (int y = 0; y < area.Height() * samples; ++y) {
            std::uint8_t* out = &mask.bytes[static_cast<std::size_t>(area.top - mask.area.top + y / samples) *
                                            static_cast<std::size_t>(mask.stride)];
            const int* counter = &counters[Index(0, y)];
            int winding = 0;
            for (int x = 0; x < area.Width(); ++x) {
                int hits = 0;
                for (int i = 0; i < samples; ++i) hits += (winding += *counter++) != 0 ? 1 : 0;
                out[x] = static_cast<std::uint8_t>(out[x] + (covered ? samples : hits));
            }
        }
    }

private:
    // The first sample at or after a position, which is between 0 and a number of pixels.
    static int Sample(double position, int pixels) {
        const double sample = std::clamp(position, 0.0, static_cast<double>(pixels)) * samples - 0.5;
        const int whole = static_cast<int>(sample);  // std::ceil() is a call
        return whole + (whole < sample ? 1 : 0);
    }
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }

    Rect area;
    int width;
    std::vector<int> counters;
    bool covered = false;
};

// The pieces of the stroke along one figure.
class StrokePieces {
public:
    StrokePieces(Band& target, const StrokeForm& stroke) : band(target), form(stroke), half(stroke.width / 2) {
        AddArc(circle, {}, 0, 2 * std::numbers::pi);
    }

    void AddFigure(const std::vector<Point>& points, bool closed) {
        const auto [highest, lowest] = std::ranges::minmax(points, {}, &Point::y);
        if (!IsNear(highest, lowest, half * std::max(form.miterLimit, 2.0))) return;
        std::optional<Point> first;  // unit vectors along the segments that have a length
        Point last;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Point next = i + 1 < points.size() ? points[i + 1] : points.front();
            const double length = Distance(points[i], next);
            if (length == 0 || (i + 1 == points.size() && !closed)) continue;
            const Point way = (next - points[i]) * (1 / length);
            AddSegment(points[i], next, way);
            if (first) {
                AddJoin(points[i], last, way);
            } else {
                first = way;
            }
            last = way;
        }
        if (!first) {
            if (form.cap == Cap::round) AddDisk(points.front());
            return;
        }
        if (closed) return AddJoin(points.front(), last, *first);
        AddCap(points.front(), *first * -1);
        AddCap(points.back(), last);
    }

private:
    // Whether the rows of the band come within a distance of those between two points.
    bool IsNear(Point a, Point b, double distance) const {
        return std::max(a.y, b.y) + distance >= band.Area().top && std::min(a.y, b.y) - distance <= band.Area().bottom;
    }

    void AddConvex(std::span<const Point> corners) {
        double twiceArea = 0;
        for (std::size_t i = 2; i < corners.size(); ++i) {
            const Point a = corners[i - 1] - corners[0], b = corners[i] - corners[0];
            twiceArea += a.x * b.y - a.y * b.x;
        }
        if (half > band.Area().Width() && Contains(corners, twiceArea)) return band.CoverAll();
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Point a = corners[i], b = corners[(i + 1) % corners.size()];
            if (twiceArea > 0) {
                band.AddEdge(a, b);
            } else {
                band.AddEdge(b, a);
            }
        }
    }

    // Whether all of the area is inside a piece: to the same side of all its edges.
    bool Contains(std::span<const Point> corners, double side) const {
        const Box box = BoxOf(band.Area());
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Point a = corners[i], edge = corners[(i + 1) % corners.size()] - a;
            for (const Point p : {Point{box.left, box.top}, Point{box.right, box.top}, Point{box.left, box.bottom},
                                  Point{box.right, box.bottom}})
                if ((edge.x * (p.y - a.y) - edge.y * (p.x - a.x)) * side <= 0) return false;
        }
        return true;
    }

    Point Side(Point way) const { return Point{-way.y, way.x} * half; }

    void AddSegment(Point a, Point b, Point way) {
        if (!IsNear(a, b, half)) return;
        const Point side = Side(way);
        AddConvex(std::array{a + side, b + side, b - side, a - side});
    }

    // Corners of a whole circle, for a fiftieth of a pixel.
    double CircleCorners() const { return std::clamp(16 * std::sqrt(half), 16.0, 200.0); }

    void AddArc(std::vector<Point>& out, Point center, double from, double sweep) const {
        const int lines = static_cast<int>(std::ceil(CircleCorners() * std::abs(sweep) / (2 * std::numbers::pi)));
        for (int i = 0; i <= lines; ++i) {
            const double angle = from + sweep * i / lines;
            out.push_back(center + Point{std::cos(angle), std::sin(angle)} * half);
        }
    }

    void AddDisk(Point center) {
        if (!IsNear(center, center, half)) return;
        polygon.clear();
        for (const Point p : circle) polygon.push_back(p + center);
        AddConvex(polygon);
    }

    void AddJoin(Point at, Point in, Point out) {
        if (!IsNear(at, at, half * std::max(form.miterLimit, 1.0))) return;
        const double cross = in.x * out.y - in.y * out.x, dot = in.x * out.x + in.y * out.y;
        const double outer = cross > 0 ? -1 : 1;
        const Point a = Side(in) * outer, b = Side(out) * outer;
        // A turn that the corners of a circle pass over has a straight edge.
        const double corners = CircleCorners() / (2 * std::numbers::pi);
        if (form.join == Join::round && 2 * (1 - dot) * corners * corners > 1) {
            polygon.assign(1, at);
            AddArc(polygon, at, std::atan2(a.y, a.x), -outer * std::atan2(std::abs(cross), dot));
            return AddConvex(polygon);
        }
        if (form.join == Join::miter && 2 <= form.miterLimit * form.miterLimit * (1 + dot)) {
            AddConvex(std::array{at, at + a, at + (a + b) * (1 / (1 + dot)), at + b});
        } else {
            AddConvex(std::array{at, at + a, at + b});
        }
    }

    void AddCap(Point at, Point way) {
        if (form.cap == Cap::round) AddDisk(at);
        if (form.cap == Cap::square) AddSegment(at, at + way * half, way);
    }

    Band& band;
    const StrokeForm& form;
    double half;
    std::vector<Point> circle;   // of the stroke's width, around 0, 0
    std::vector<Point> polygon;  // the piece at hand; its memory serves the next one
};

void AddEdges(Band& band, const Path& path, const Flatness& flatness, const StrokeForm& stroke) {
    StrokePieces pieces(band, stroke);
    Flatten(path, flatness, [&](const std::vector<Point>& points, bool closed) {
        if (stroke.width > 0) return pieces.AddFigure(points, closed);
        for (std::size_t i = 0; i < points.size(); ++i) band.AddEdge(points[i], points[(i + 1) % points.size()]);
    });
}

}  // namespace

Mask MakeDenseMask(const Path& path, Point offset, const Rect& area, const StrokeForm& stroke, bool smooth) {
    Mask mask{area, (area.Width() + 3) / 4 * 4, {}};
    mask.bytes.resize(static_cast<std::size_t>(mask.stride) * static_cast<std::size_t>(area.Height()));
    const int rows = std::max(mostCounters / ((area.Width() * samples + 1) * samples), 1);
    const Flatness flatness{offset, BoxOf(area).Grown(stroke.width), stroke.width};
    for (int top = area.top; top < area.bottom; top += rows) {
        Band band({area.left, top, area.right, std::min(top + rows, area.bottom)});
        AddEdges(band, path, flatness, stroke);
        band.WriteTo(mask);
    }
    constexpr int full = samples * samples;
    for (std::uint8_t& byte : mask.bytes) {
        const int covered = smooth ? byte : byte >= full / 2 ? full : 0;
        byte = static_cast<std::uint8_t>(covered * 255 / full);
    }
    return mask;
}

}  // namespace zorvic::vek

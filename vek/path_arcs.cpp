// Arcs, ellipses and round rectangles as cubic curves of at most an eighth of a turn, which stay within 5e-6 of the
// radius. Curves end at the multiples of an eighth, so that the outermost points of a circle are exact.
#include <array>
#include <numbers>

#include "path.h"

namespace zorvic::vek {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double eighth = pi / 4;

// The point of the unit circle at a number of eighths.
Point AtEighth(int n) {
    constexpr double half = std::numbers::sqrt2 / 2;
    constexpr std::array<Point, 8> points{
        {{1, 0}, {half, half}, {0, 1}, {-half, half}, {-1, 0}, {-half, -half}, {0, -1}, {half, -half}}};
    return points[static_cast<unsigned>(n) % 8];
}

Point AtAngle(double angle) { return {std::cos(angle), std::sin(angle)}; }

}  // namespace

// From the current point, which is where the arc starts. Angles within a few turns of 0.
void Path::AddArcCurves(Point center, double rx, double ry, double from, double to) {
    const int step = to > from ? 1 : -1;
    int next = static_cast<int>(std::floor(from / eighth)) + (step > 0 ? 1 : 0);
    if (step < 0 && next * eighth == from) --next;
    Point unit = AtAngle(from);
    for (double angle = from; angle != to;) {
        const bool last = step * (next * eighth - to) >= 0;
        const double nextAngle = last ? to : next * eighth;
        const Point nextUnit = nextAngle == next * eighth ? AtEighth(next) : AtAngle(nextAngle);
        const double k = 4.0 / 3 * std::tan((nextAngle - angle) / 4);
        const auto place = [&](Point p) { return Point{center.x + p.x * rx, center.y + p.y * ry}; };
        CurveTo(place({unit.x - k * unit.y, unit.y + k * unit.x}),
                place({nextUnit.x + k * nextUnit.y, nextUnit.y - k * nextUnit.x}), place(nextUnit));
        unit = nextUnit;
        angle = nextAngle;
        next += step;
    }
}

void Path::AddArc(Point center, double radius, double startAngle, double endAngle, bool anticlockwise) {
    const double turn = 2 * pi;
    double sweep = anticlockwise ? startAngle - endAngle : endAngle - startAngle;
    if (sweep < 0) sweep = std::fmod(sweep, turn) + turn;
    // All whole turns but one look the same.
    if (sweep >= 2 * turn) sweep = turn + std::fmod(sweep, turn);
    const double from = std::fmod(startAngle, turn);
    radius = std::max(radius, 0.0);
    LineTo(center + AtAngle(from) * radius);
    if (radius == 0) return;
    AddArcCurves(center, radius, radius, from, anticlockwise ? from - sweep : from + sweep);
}

void Path::ArcTo(Point corner, Point end, double radius) {
    if (!hasCurrent) MoveTo(corner);
    const double lengthIn = Distance(corner, current), lengthOut = Distance(corner, end);
    const Point in = (current - corner) * (1 / lengthIn), out = (end - corner) * (1 / lengthOut);
    const double cosine = in.x * out.x + in.y * out.y;
    const double sine = in.x * out.y - in.y * out.x;
    const bool bends = lengthIn > 0 && lengthOut > 0 && std::abs(sine) > 1e-9;
    if (!bends || !(radius > 0)) return LineTo(corner);

    // The circle touches both lines at this distance from the corner, radius / tan(half the angle between them).
    const double distance = radius * (1 + cosine) / std::abs(sine);
    const Point touchIn = corner + in * distance, touchOut = corner + out * distance;
    const double side = sine > 0 ? 1 : -1;
    const Point center = touchIn + Point{-in.y, in.x} * (side * radius);
    const double from = std::atan2(touchIn.y - center.y, touchIn.x - center.x);
    // The arc turns by what is missing to half a turn between the lines.
    const double sweep = pi - std::atan2(std::abs(sine), cosine);
    LineTo(touchIn);
    AddArcCurves(center, radius, radius, from, from - side * sweep);
    current = points.back() = touchOut;
    controlBox.Add(touchOut);
}

void Path::AddEllipse(Point a, Point b) {
    const Point center = Middle(a, b);
    const double rx = std::abs(b.x - a.x) / 2, ry = std::abs(b.y - a.y) / 2;
    MoveTo({center.x + rx, center.y});
    AddArcCurves(center, rx, ry, 0, 2 * pi);
    Close();
    Begin();
}

void Path::AddRoundRect(Point a, Point b, double rx, double ry) {
    rx = std::clamp(rx, 0.0, (b.x - a.x) / 2);
    ry = std::clamp(ry, 0.0, (b.y - a.y) / 2);
    if (rx == 0 || ry == 0) return AddRectangle(a, b);
    MoveTo({a.x, a.y + ry});
    AddArcCurves({a.x + rx, a.y + ry}, rx, ry, pi, 1.5 * pi);
    LineTo({b.x - rx, a.y});
    AddArcCurves({b.x - rx, a.y + ry}, rx, ry, -0.5 * pi, 0);
    LineTo({b.x, b.y - ry});
    AddArcCurves({b.x - rx, b.y - ry}, rx, ry, 0, 0.5 * pi);
    LineTo({a.x + rx, b.y});
    AddArcCurves({a.x + rx, b.y - ry}, rx, ry, 0.5 * pi, pi);
    Close();
    Begin();
}

}  // namespace zorvic::vek

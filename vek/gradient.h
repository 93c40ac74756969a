// A gradient: its geometry, its stops, and the Cairo pattern made from them for the place where it is drawn.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "cairo_handles.h"
#include "geometry.h"

namespace zorvic::vek {

class Gradient {
public:
    static Gradient Linear(Point from, Point to) { return Gradient({from, 0}, {to, 0}, false); }
    static Gradient Radial(Point from, double r0, Point to, double r1) {
        return Gradient({from, std::max(r0, 0.0)}, {to, std::max(r1, 0.0)}, true);
    }

    void AddStop(double offset, std::uint32_t color);

    // The pattern, moved by an offset, with all alphas scaled by opacity / 255. Valid until the next call.
    cairo_pattern_t* Pattern(Point offset, int opacity);

private:
    struct Circle {
        Point center;
        double radius;
        friend bool operator==(const Circle&, const Circle&) = default;
    };
    struct Stop {
        double offset;
        std::uint32_t color;
    };
    Gradient(Circle a, Circle b, bool round) : first(a), last(b), radial(round) {}

    Circle first;
    Circle last;
    bool radial;
    std::vector<Stop> stops;  // by offset

    CairoPattern pattern;  // made with these:
    Point madeOffset;
    int madeOpacity = 0;
};

}  // namespace zorvic::vek

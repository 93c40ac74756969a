// A gradient: its geometry, its stops, and the Cairo pattern made from them for the place where it is drawn.
#pragma once

#include <cstdint>
#include <mutex>

#include "cairo_handles.h"
#include "color_stops.h"
#include "geometry.h"

namespace zorvic::vek {

struct Circle {
    Point center;
    double radius = 0;
    friend bool operator==(const Circle&, const Circle&) = default;
};

// Canvases of several threads may share a gradient, whose handle is gone.
class Gradient {
public:
    // Over a family of circles, or along the line between their centres.
    Gradient(bool isRadial, Circle a, Circle b) : radial(isRadial), first(a), last(b) {}

    void AddStop(double offset, std::uint32_t color);

    // The pattern, moved by an offset, with all alphas scaled by opacity / 255.
    CairoPattern Pattern(Point offset, int opacity);

private:
    const bool radial;
    const Circle first;
    const Circle last;

    std::mutex mutex;  // of all below
    ColorStops stops;
    CairoPattern pattern;  // made with these:
    Point madeOffset;
    int madeOpacity = 0;
};

}  // namespace zorvic::vek

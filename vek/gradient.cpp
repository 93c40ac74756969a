// Gradients as Cairo patterns.
#include "gradient.h"

#include <span>

namespace zorvic::vek {

void Gradient::AddStop(double offset, std::uint32_t color) {
    const std::lock_guard lock(mutex);
    stops.Add(offset, color);
    pattern.reset();
}

CairoPattern Gradient::Pattern(Point offset, int opacity) {
    const std::lock_guard lock(mutex);
    if (pattern && madeOffset == offset && madeOpacity == opacity &&
        cairo_pattern_status(pattern.get()) == CAIRO_STATUS_SUCCESS) {
        return CairoPattern(cairo_pattern_reference(pattern.get()));
    }
    // A line without length shows its last colour, circles that are one show nothing.
    const bool point = first == last;
    std::span<const Stop> shown = stops.Shown();
    if (point) shown = shown.last(radial || shown.empty() ? 0 : 1);

    const Point a = first.center + offset, b = last.center + offset;
    pattern.reset(radial ? cairo_pattern_create_radial(a.x, a.y, first.radius, b.x, b.y, last.radius)
                         : cairo_pattern_create_linear(a.x, a.y, point ? b.x + 1 : b.x, b.y));
    for (const Stop& stop : shown) {
        const auto channel = [&](int shift) { return (stop.color >> shift & 0xFF) / 255.0; };
        cairo_pattern_add_color_stop_rgba(pattern.get(), stop.offset, channel(16), channel(8), channel(0),
                                          channel(24) * opacity / 255);
    }
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    Require(cairo_pattern_status(pattern.get()));
    madeOffset = offset;
    madeOpacity = opacity;
    return CairoPattern(cairo_pattern_reference(pattern.get()));
}

}  // namespace zorvic::vek

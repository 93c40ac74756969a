// Paths, strokes and masks in Cairo's terms.
#include "trace.h"

#include "cairo_handles.h"

namespace zorvic::vek {

namespace {

// How far a flattened curve may be from the true one, in pixels; Cairo's own 0.1 takes a percent off small circles.
constexpr double fine = 0.025;

// With anti-aliasing off, a pixel centre on an edge belongs to what is on its left or above. Cairo decides the other
// way round, so the outline is moved by its smallest step.
constexpr double tie = 1.0 / 256;

// Hands a path to a Cairo context.
struct Tracer {
    cairo_t* context;
    Point offset;
    void MoveTo(Point p) { cairo_move_to(context, p.x + offset.x, p.y + offset.y); }
    void LineTo(Point p) { cairo_line_to(context, p.x + offset.x, p.y + offset.y); }
    void CurveTo(Point c1, Point c2, Point p) {
        cairo_curve_to(context, c1.x + offset.x, c1.y + offset.y, c2.x + offset.x, c2.y + offset.y, p.x + offset.x,
                       p.y + offset.y);
    }
    void Close() { cairo_close_path(context); }
};

void SetStroke(cairo_t* context, const StrokeForm& stroke, const Dashes& dashes) {
    constexpr cairo_line_cap_t caps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND, CAIRO_LINE_CAP_SQUARE};
    constexpr cairo_line_join_t joins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND, CAIRO_LINE_JOIN_BEVEL};
    cairo_set_line_width(context, stroke.width);
    cairo_set_miter_limit(context, stroke.miterLimit);
    cairo_set_line_cap(context, caps[static_cast<int>(stroke.cap)]);
    cairo_set_line_join(context, joins[static_cast<int>(stroke.join)]);
    cairo_set_dash(context, dashes.data(), static_cast<int>(dashes.size()), 0);
}

}  // namespace

void Trace(const Shape& shape, cairo_t* context, Point origin) {
    if (const Mask* mask = shape.CoverageMask()) {
        // Cairo only reads from a mask.
        const CairoSurface surface(cairo_image_surface_create_for_data(const_cast<unsigned char*>(mask->bytes.data()),
                                                                       CAIRO_FORMAT_A8, mask->area.Width(),
                                                                       mask->area.Height(), mask->stride));
        cairo_mask_surface(context, surface.get(), mask->area.left - origin.x, mask->area.top - origin.y);
        return;
    }
    const StrokeForm& stroke = shape.Stroke();
    const double nudge = shape.Smooth() ? 0 : tie;
    Tracer tracer{context, shape.Offset() - origin + Point{nudge, nudge}};
    cairo_set_antialias(context, shape.Smooth() ? CAIRO_ANTIALIAS_GOOD : CAIRO_ANTIALIAS_NONE);
    cairo_set_tolerance(context, fine);
    if (stroke.width > 0) SetStroke(context, stroke, shape.DashLengths());
    shape.Outline().Visit(tracer);
    if (stroke.width > 0) {
        cairo_stroke(context);
    } else {
        cairo_fill(context);
    }
}

}  // namespace zorvic::vek

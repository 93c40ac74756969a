// Choosing between the path as it is and a cut one, and handing the result to Cairo.
#include "shape.h"

#include "cairo_handles.h"
#include "cut_path.h"

namespace zorvic::vek {

namespace {

// Coordinates beyond some 2^18 make Cairo's rasteriser lose edges, and far larger ones hang it. Farther paths are cut,
// wider strokes narrowed, longer miters bevelled; half the widest stroke still reaches over any picture.
constexpr double farthest = 1 << 16;
constexpr double widest = 1 << 16;
constexpr double farthestMiter = 1 << 16;

// Cairo leaves a hole where a curve turns more tightly than half the stroke is wide. Wider strokes follow lines.
constexpr double widestOnCurves = 1.5;

// How far a flattened curve may be from the true one, in pixels; Cairo's own 0.1 takes a percent off small circles.
constexpr double fine = 0.025;

constexpr double mostCairoDashes = 1 << 17;

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

// Length of the lines through all end and control points: at least that of the outline.
struct Ruler {
    double length = 0;
    Point start;
    Point current;
    void MoveTo(Point p) { start = current = p; }
    void LineTo(Point p) {
        length += Distance(current, p);
        current = p;
    }
    void CurveTo(Point c1, Point c2, Point p) {
        LineTo(c1);
        LineTo(c2);
        LineTo(p);
    }
    void Close() { LineTo(start); }
};

double ControlLength(const Path& path) {
    Ruler ruler;
    path.Visit(ruler);
    return ruler.length;
}

const Box cairoRange{-farthest, -farthest, farthest, farthest};

}  // namespace

void Shape::Replace(Path&& other) {
    own = std::move(other);
    path = nullptr;
    offset = {};
}

void Shape::MakeMaskIfDense() {
    if (IsDense(Outline(), offset, extent, stroke)) mask = MakeDenseMask(Outline(), offset, extent, stroke, smooth);
}

Shape Shape::Filled(const Path& path, Point offset, bool smooth, const Rect& clip) {
    Shape shape(path, offset, smooth);
    const Box box = path.ControlBox().Moved(offset);
    shape.extent = Intersect(PixelsOf(box), clip);
    if (shape.extent.Empty()) return shape;
    if (!cairoRange.Contains(box)) shape.Replace(CutForFill(path, offset, BoxOf(clip).Grown(2)));
    shape.MakeMaskIfDense();
    return shape;
}

Shape Shape::Stroked(const Path& path, Point offset, const Style& style, const Rect& clip) {
    Shape shape(path, offset, style.smooth);
    StrokeForm& stroke = shape.stroke;
    stroke.width = std::min(static_cast<double>(style.strokeWidth), widest);
    stroke.miterLimit = std::min(10.0, farthestMiter / (stroke.width / 2));
    stroke.cap = style.cap;
    stroke.join = style.join;

    // A miter's tip is up to the limit, a square cap's corner root 2 times half the width away from the outline.
    const double reach = stroke.width / 2 * (style.join == Join::miter ? stroke.miterLimit : 1.5) + 1;
    const Box box = path.ControlBox().Moved(offset);
    const Box seen = BoxOf(clip).Grown(reach + 1);
    shape.extent = Intersect(PixelsOf(box.Grown(reach)), clip);
    if (shape.extent.Empty()) return shape;

    const bool isFar = !cairoRange.Contains(box);
    Dashes dashes = DashesOf(style);
    bool cutIntoDashes = false;
    if (!dashes.empty()) {
        double period = 0, on = 0;
        for (std::size_t i = 0; i < dashes.size(); ++i) {
            period += dashes[i];
            if (i % 2 == 0) on += dashes[i];
        }
        const double count = ControlLength(path) / period * static_cast<double>(dashes.size());
        if (!isFar && count < mostCairoDashes && !IsDense(path, offset, shape.extent, stroke)) {
            shape.dashes = std::move(dashes);
        } else if (auto pieces = CutIntoDashes(path, offset, seen, stroke.width, dashes)) {
            shape.Replace(std::move(*pieces));
            cutIntoDashes = true;
        } else {
            shape.opacity = on / period;
        }
    }
    if (isFar && !cutIntoDashes) {
        shape.Replace(CutForStroke(path, offset, seen, stroke.width));
    } else if (shape.Outline().HasCurves() && stroke.width > widestOnCurves) {
        shape.Replace(FlattenForStroke(path, offset, stroke.width));
    }
    if (shape.dashes.empty()) shape.MakeMaskIfDense();
    return shape;
}

void Shape::SetStroke(cairo_t* context) const {
    constexpr cairo_line_cap_t caps[] = {CAIRO_LINE_CAP_BUTT, CAIRO_LINE_CAP_ROUND, CAIRO_LINE_CAP_SQUARE};
    constexpr cairo_line_join_t joins[] = {CAIRO_LINE_JOIN_MITER, CAIRO_LINE_JOIN_ROUND, CAIRO_LINE_JOIN_BEVEL};
    cairo_set_line_width(context, stroke.width);
    cairo_set_miter_limit(context, stroke.miterLimit);
    cairo_set_line_cap(context, caps[static_cast<int>(stroke.cap)]);
    cairo_set_line_join(context, joins[static_cast<int>(stroke.join)]);
    cairo_set_dash(context, dashes.data(), static_cast<int>(dashes.size()), 0);
}

void Shape::Draw(cairo_t* context, Point origin) const {
    if (mask) {
        // Cairo only reads from a mask.
        const CairoSurface surface(cairo_image_surface_create_for_data(const_cast<unsigned char*>(mask->bytes.data()),
                                                                       CAIRO_FORMAT_A8, mask->area.Width(),
                                                                       mask->area.Height(), mask->stride));
        cairo_mask_surface(context, surface.get(), mask->area.left - origin.x, mask->area.top - origin.y);
        return;
    }
    const double nudge = smooth ? 0 : tie;
    Tracer tracer{context, offset - origin + Point{nudge, nudge}};
    cairo_set_antialias(context, smooth ? CAIRO_ANTIALIAS_GOOD : CAIRO_ANTIALIAS_NONE);
    cairo_set_tolerance(context, fine);
    if (stroke.width > 0) SetStroke(context);
    Outline().Visit(tracer);
    if (stroke.width > 0) {
        cairo_stroke(context);
    } else {
        cairo_fill(context);
    }
}

}  // namespace zorvic::vek

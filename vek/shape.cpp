// Choosing between the path as it is, a cut one and a mask. Cairo itself is left to trace.cpp.
#include "shape.h"

#include <numbers>

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

// What Cairo draws in a quarter of a second, and a mask of a large picture in about the same time.
constexpr double mostCairoRows = 4e5;
constexpr double mostDashRows = 4e6;

// At least the length of the outline.
double ControlLength(const Path& path) {
    double length = 0;
    path.VisitControlLines([](Point) {}, [&](Point a, Point b) { length += Distance(a, b); });
    return length;
}

// The mean coverage of a dashed stroke: its caps reach into the gaps, round ones by the mean width of a half disk.
double MeanOpacity(const Dashes& dashes, double period, const StrokeForm& stroke) {
    const double caps = stroke.cap == Cap::butt    ? 0
                        : stroke.cap == Cap::round ? stroke.width * std::numbers::pi / 4
                                                   : stroke.width;
    double off = 0;
    for (std::size_t i = 1; i < dashes.size(); i += 2) off += std::max(dashes[i] - caps, 0.0);
    return 1 - off / period;
}

const Box cairoRange{-farthest, -farthest, farthest, farthest};

}  // namespace

void Shape::Replace(Path&& other) {
    own = std::move(other);
    path = nullptr;
    offset = {};
}

void Shape::MakeMaskIfDense() {
    if (EdgeRows(Outline(), offset, extent, stroke) > mostCairoRows)
        mask = MakeDenseMask(Outline(), offset, extent, stroke, smooth);
}

void Shape::SetDashes(Dashes&& lengths, const Path& original, const Box& seen) {
    double period = 0, on = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        period += lengths[i];
        if (i % 2 == 0) on += lengths[i];
    }
    const double perPeriod = static_cast<double>(lengths.size()) / 2;
    const double count = ControlLength(original) / period * perPeriod;
    const bool few = DashRows(count, on / perPeriod, extent, stroke) < mostCairoRows &&
                     EdgeRows(original, offset, extent, stroke) < mostCairoRows;
    if (!isFar && few) {
        dashes = std::move(lengths);
        return;
    }
    // As lines with butt caps, so that square caps have a direction at dashes without a length too.
    StrokeForm pieceForm = stroke;
    if (stroke.cap == Cap::square) pieceForm.cap = Cap::butt;
    const double reach = stroke.cap == Cap::square ? stroke.width / 2 : 0;
    auto pieces = CutIntoDashes(original, offset, seen, stroke.width, lengths, reach);
    if (pieces && EdgeRows(*pieces, {}, extent, pieceForm) < mostDashRows) {
        Replace(std::move(*pieces));
        stroke = pieceForm;
        isFar = false;
    } else {
        opacity = MeanOpacity(lengths, period, stroke);
    }
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

    shape.isFar = !cairoRange.Contains(box);
    Dashes dashes = DashesOf(style);
    if (!dashes.empty()) shape.SetDashes(std::move(dashes), path, seen);
    const Box shown = shape.dashes.empty() ? BoxOf(clip).Grown(2) : BoxOf(unbounded);
    if (shape.isFar) {
        shape.Replace(CutForStroke(path, offset, seen, shown, stroke.width));
    } else if (shape.Outline().HasCurves() && stroke.width > widestOnCurves) {
        shape.Replace(FlattenForStroke(path, offset, shown, stroke.width));
    }
    if (shape.dashes.empty()) shape.MakeMaskIfDense();
    return shape;
}

}  // namespace zorvic::vek

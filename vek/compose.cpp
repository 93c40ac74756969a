// The routes of a draw. Whole pixels are composed by Cairo's operator under a clip. Partial coverage is left to Cairo
// where its result is the mix of pixel and composed pixel that the interface promises, and quick. Otherwise the composed
// pixels are made on a copy of the image, with full coverage, and the shape is then drawn with that copy as its source.
#include "compose.h"

#include "pixels.h"
#include "trace.h"

namespace zorvic::vek {

namespace {

enum class Route {
    direct,   // coverage and opacity may scale the source
    replace,  // direct at full opacity
    erase,    // Cairo's own clear operator paints strokes with the source: a transparent source replaces instead, or
              // below full opacity an opaque one takes away
    copy,     // as direct, but slower in pixman than the copy, or wrong (the last four) under partial coverage
    copyAll   // changes pixels where the source is transparent: coverage and opacity mix afterwards
};

struct Operator {
    cairo_operator_t cairo;
    Route route;
};

// In the order of Blend.
constexpr Operator operators[] = {
    {CAIRO_OPERATOR_OVER, Route::direct},
    {CAIRO_OPERATOR_SOURCE, Route::replace},
    {CAIRO_OPERATOR_DEST_OVER, Route::copy},
    {CAIRO_OPERATOR_CLEAR, Route::erase},
    {CAIRO_OPERATOR_IN, Route::copyAll},
    {CAIRO_OPERATOR_DEST_IN, Route::copyAll},
    {CAIRO_OPERATOR_OUT, Route::copyAll},
    {CAIRO_OPERATOR_DEST_OUT, Route::copy},
    {CAIRO_OPERATOR_ATOP, Route::copy},
    {CAIRO_OPERATOR_DEST_ATOP, Route::copyAll},
    {CAIRO_OPERATOR_XOR, Route::copy},
    {CAIRO_OPERATOR_ADD, Route::direct},
    {CAIRO_OPERATOR_MULTIPLY, Route::copy},
    {CAIRO_OPERATOR_SCREEN, Route::copy},
    {CAIRO_OPERATOR_OVERLAY, Route::copy},
    {CAIRO_OPERATOR_DARKEN, Route::copy},
    {CAIRO_OPERATOR_LIGHTEN, Route::copy},
    {CAIRO_OPERATOR_COLOR_DODGE, Route::copy},
    {CAIRO_OPERATOR_COLOR_BURN, Route::copy},
    {CAIRO_OPERATOR_HARD_LIGHT, Route::copy},
    {CAIRO_OPERATOR_SOFT_LIGHT, Route::copy},
    {CAIRO_OPERATOR_DIFFERENCE, Route::copy},
    {CAIRO_OPERATOR_EXCLUSION, Route::copy},
    {CAIRO_OPERATOR_HSL_HUE, Route::copy},
    {CAIRO_OPERATOR_HSL_SATURATION, Route::copy},
    {CAIRO_OPERATOR_HSL_COLOR, Route::copy},
    {CAIRO_OPERATOR_HSL_LUMINOSITY, Route::copy},
};
static_assert(std::size(operators) == static_cast<std::size_t>(Blend::luminosity) + 1);

const Operator& OperatorOf(Blend blend) { return operators[static_cast<std::size_t>(blend)]; }

Point OriginOf(const Image& image) {
    return {static_cast<double>(image.Place().left), static_cast<double>(image.Place().top)};
}

void SetInk(Image& image, const Ink& ink, int opacity) {
    if (ink.gradient) {
        image.SetPattern(ink.gradient->Pattern(ink.offset - OriginOf(image), opacity).get());
    } else {
        image.SetSolid(Premultiply(ink.color, opacity));
    }
}

// A bitmap as a source: sampled to whole pixels where it lies on them, and repeated or transparent beyond its edges.
cairo_pattern_t* PatternOf(Image& bitmap, Point position, cairo_extend_t beyond) {
    const bool whole = position.x == std::floor(position.x) && position.y == std::floor(position.y);
    cairo_pattern_t* pattern = bitmap.Pattern(position);
    cairo_pattern_set_filter(pattern, whole ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_BILINEAR);
    cairo_pattern_set_extend(pattern, beyond);
    return pattern;
}

// Composes with full coverage on the scratch image; set(image) sets the source.
template <class SetSource>
void ComposeCopy(const Drawing& drawing, const Rect& area, int opacity, SetSource set) {
    Image& copy = drawing.scratch;
    copy.Allocate(area);
    CopyPixels(copy, drawing.image, area);
    cairo_t* context = copy.Begin(area);
    set(copy);
    cairo_set_operator(context, OperatorOf(drawing.blend).cairo);
    cairo_paint(context);
    copy.End();
    MixPixels(copy, drawing.image, area, opacity);
}

// Draws a shape with a source; scales says whether set(image, opacity) can make the source translucent.
template <class SetSource>
void DrawFrom(const Drawing& drawing, const Shape& shape, int opacity, bool scales, SetSource set) {
    const Operator& op = OperatorOf(drawing.blend);
    const bool solid = opacity == 255;
    const bool direct = op.route == Route::replace ? solid : op.route == Route::direct && (scales || solid);
    if (!direct) ComposeCopy(drawing, shape.Extent(), opacity, [&](Image& copy) { set(copy, 255); });

    cairo_t* context = drawing.image.Begin(direct ? drawing.clip : shape.Extent());
    if (direct) {
        set(drawing.image, opacity);
        cairo_set_operator(context, op.cairo);
    } else {
        const Point place = OriginOf(drawing.scratch) - OriginOf(drawing.image);
        drawing.image.SetPattern(PatternOf(drawing.scratch, place, CAIRO_EXTEND_NONE));
        cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    }
    Trace(shape, context, OriginOf(drawing.image));
    drawing.image.End();
}

}  // namespace

void DrawShape(const Drawing& drawing, const Shape& shape, const Ink& ink) {
    const int opacity = static_cast<int>(std::lround(drawing.opacity * shape.Opacity()));
    if (shape.Extent().Empty() || opacity == 0) return;
    if (OperatorOf(drawing.blend).route == Route::erase) {
        Drawing erasing = drawing;
        erasing.blend = opacity == 255 ? Blend::source : Blend::destinationOut;
        const Ink eraser{.color = opacity == 255 ? 0 : 0xFF000000};
        return DrawFrom(erasing, shape, opacity, true, [&](Image& image, int k) { SetInk(image, eraser, k); });
    }
    DrawFrom(drawing, shape, opacity, true, [&](Image& image, int k) { SetInk(image, ink, k); });
}

void DrawBox(const Drawing& drawing, Point a, Point b, const Ink& ink) {
    if (!drawing.smooth) {
        a = {PixelEdge(a.x), PixelEdge(a.y)};
        b = {PixelEdge(b.x), PixelEdge(b.y)};
    }
    Box box;
    box.Add(a);
    box.Add(b);
    const Rect pixels = PixelsOf(box);
    const bool whole = BoxOf(pixels).Contains(box) && box.Contains(BoxOf(pixels));
    const Rect visible = Intersect(pixels, drawing.clip);
    if (visible.Empty() || drawing.opacity == 0) return;
    if (whole && !ink.gradient &&
        FillPixels(drawing.image, visible, drawing.blend, Premultiply(ink.color, drawing.opacity), drawing.opacity)) {
        return;
    }
    const Operator& op = OperatorOf(drawing.blend);
    const bool scales = op.route == Route::direct || op.route == Route::copy;
    if (whole && op.route != Route::erase && (scales || drawing.opacity == 255)) {
        cairo_t* context = drawing.image.Begin(visible);
        SetInk(drawing.image, ink, drawing.opacity);
        cairo_set_operator(context, op.cairo);
        cairo_paint(context);
        return drawing.image.End();
    }
    Path path;
    path.AddRectangle(a, b);
    DrawShape(drawing, Shape::Filled(path, {}, drawing.smooth, drawing.clip), ink);
}

void DrawBitmap(const Drawing& drawing, Image& bitmap, Point position) {
    if (drawing.clip.Empty() || drawing.opacity == 0) return;
    if (!drawing.smooth) position = {PixelEdge(position.x), PixelEdge(position.y)};
    const Rect& size = bitmap.Place();
    const Point end = position + Point{static_cast<double>(size.Width()), static_cast<double>(size.Height())};
    Box box;
    box.Add(position);
    box.Add(end);
    const Rect pixels = PixelsOf(box);
    const bool whole = end.x - position.x == pixels.Width() && end.y - position.y == pixels.Height();
    const Rect visible = Intersect(pixels, drawing.clip);
    const Operator& op = OperatorOf(drawing.blend);
    if (op.route == Route::erase) return DrawBox(drawing, position, end, {});

    if (op.route == Route::copyAll) {
        ComposeCopy(drawing, drawing.clip, drawing.opacity, [&](Image& copy) {
            if (visible.Empty()) return copy.SetSolid(0);
            copy.SetPattern(PatternOf(bitmap, position - OriginOf(copy), CAIRO_EXTEND_NONE));
        });
        return CopyPixels(drawing.image, drawing.scratch, drawing.clip);
    }
    if (visible.Empty()) return;

    const auto setBitmap = [&](Image& image, int) {
        image.SetPattern(PatternOf(bitmap, position - OriginOf(image), CAIRO_EXTEND_PAD));
    };
    if (whole && (op.route == Route::direct || drawing.opacity == 255)) {
        cairo_t* context = drawing.image.Begin(visible);
        setBitmap(drawing.image, 255);
        cairo_set_operator(context, op.cairo);
        cairo_paint_with_alpha(context, drawing.opacity / 255.0);
        return drawing.image.End();
    }
    Path path;
    path.AddRectangle(position, end);
    DrawFrom(drawing, Shape::Filled(path, {}, drawing.smooth, drawing.clip), drawing.opacity, false, setBitmap);
}

}  // namespace zorvic::vek

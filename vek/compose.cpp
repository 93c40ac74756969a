// The routes of a draw. Where Cairo's operator under a partial coverage gives the mix of pixel and composed pixel that
// the interface promises, Cairo draws straight on the image. Otherwise the composed pixels are made on a copy of the
// image, with full coverage, and the shape is then drawn with that copy as its source.
#include "compose.h"

#include "pixels.h"

namespace zorvic::vek {

namespace {

enum class Route {
    direct,   // coverage and opacity may scale the source
    replace,  // direct at full opacity
    erase,    // destination-out with an opaque source: Cairo's own clear operator paints strokes with the source
    copy      // acts where the source is transparent, or is wrong in pixman under partial coverage
};

struct Operator {
    cairo_operator_t cairo;
    Route route;
};

// In the order of Blend.
constexpr Operator operators[] = {
    {CAIRO_OPERATOR_OVER, Route::direct},
    {CAIRO_OPERATOR_SOURCE, Route::replace},
    {CAIRO_OPERATOR_DEST_OVER, Route::direct},
    {CAIRO_OPERATOR_DEST_OUT, Route::erase},
    {CAIRO_OPERATOR_IN, Route::copy},
    {CAIRO_OPERATOR_DEST_IN, Route::copy},
    {CAIRO_OPERATOR_OUT, Route::copy},
    {CAIRO_OPERATOR_DEST_OUT, Route::direct},
    {CAIRO_OPERATOR_ATOP, Route::direct},
    {CAIRO_OPERATOR_DEST_ATOP, Route::copy},
    {CAIRO_OPERATOR_XOR, Route::direct},
    {CAIRO_OPERATOR_ADD, Route::direct},
    {CAIRO_OPERATOR_MULTIPLY, Route::direct},
    {CAIRO_OPERATOR_SCREEN, Route::direct},
    {CAIRO_OPERATOR_OVERLAY, Route::direct},
    {CAIRO_OPERATOR_DARKEN, Route::direct},
    {CAIRO_OPERATOR_LIGHTEN, Route::direct},
    {CAIRO_OPERATOR_COLOR_DODGE, Route::direct},
    {CAIRO_OPERATOR_COLOR_BURN, Route::direct},
    {CAIRO_OPERATOR_HARD_LIGHT, Route::direct},
    {CAIRO_OPERATOR_SOFT_LIGHT, Route::direct},
    {CAIRO_OPERATOR_DIFFERENCE, Route::direct},
    {CAIRO_OPERATOR_EXCLUSION, Route::direct},
    {CAIRO_OPERATOR_HSL_HUE, Route::copy},
    {CAIRO_OPERATOR_HSL_SATURATION, Route::copy},
    {CAIRO_OPERATOR_HSL_COLOR, Route::copy},
    {CAIRO_OPERATOR_HSL_LUMINOSITY, Route::copy},
};
static_assert(std::size(operators) == static_cast<std::size_t>(Blend::luminosity) + 1);

const Operator& OperatorOf(Blend blend) { return operators[static_cast<std::size_t>(blend)]; }

bool ChangesWholeClip(Blend blend) {
    return blend == Blend::sourceIn || blend == Blend::destinationIn || blend == Blend::sourceOut ||
           blend == Blend::destinationAtop;
}

Point OriginOf(const Image& image) {
    return {static_cast<double>(image.Place().left), static_cast<double>(image.Place().top)};
}

void SetInk(Image& image, const Ink& ink, int opacity) {
    if (ink.gradient) {
        image.SetPattern(ink.gradient->Pattern(ink.offset - OriginOf(image), opacity));
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
    const bool direct = op.route == Route::replace ? solid : op.route != Route::copy && (scales || solid);
    if (!direct) ComposeCopy(drawing, shape.Extent(), opacity, [&](Image& copy) { set(copy, 255); });

    cairo_t* context = drawing.image.Begin(drawing.clip);
    if (direct) {
        set(drawing.image, opacity);
        cairo_set_operator(context, op.cairo);
    } else {
        const Point place = OriginOf(drawing.scratch) - OriginOf(drawing.image);
        drawing.image.SetPattern(PatternOf(drawing.scratch, place, CAIRO_EXTEND_NONE));
        cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    }
    shape.Draw(context, OriginOf(drawing.image));
    drawing.image.End();
}

}  // namespace

void DrawShape(const Drawing& drawing, const Shape& shape, const Ink& ink) {
    const int opacity = static_cast<int>(std::lround(drawing.opacity * shape.Opacity()));
    if (shape.Extent().Empty() || opacity == 0) return;
    const bool erases = OperatorOf(drawing.blend).route == Route::erase;
    const Ink& used = erases ? Ink{.color = 0xFF000000} : ink;
    DrawFrom(drawing, shape, opacity, true, [&](Image& image, int k) { SetInk(image, used, k); });
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

    if (ChangesWholeClip(drawing.blend)) {
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
    if (whole && (op.route == Route::direct || (op.route == Route::replace && drawing.opacity == 255))) {
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

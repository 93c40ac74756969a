// The draw calls of a canvas: each turns its arguments into a path or a box and hands it on with the style.
#include "canvas.h"
#include "pixels.h"

namespace zorvic::vek {

Drawing Canvas::Begin() {
    Image& image = Top();
    return {.image = image,
            .clip = Intersect(state.clip, image.Place()),
            .blend = state.style.blend,
            .opacity = state.style.value,
            .smooth = state.style.smooth,
            .scratch = scratch};
}

Ink Canvas::ShapeInk() const {
    const Style& style = state.style;
    return {style.color, style.draw == DrawStyle::gradient ? style.gradient.get() : nullptr, state.offset};
}

void Canvas::Draw(const Path& path, bool stroked) {
    const Drawing drawing = Begin();
    if (drawing.clip.Empty() || path.Empty()) return;
    const Style& style = state.style;
    if (stroked) {
        DrawShape(drawing, Shape::Stroked(path, state.offset, style, drawing.clip), {style.color});
    } else {
        DrawShape(drawing, Shape::Filled(path, state.offset, style.smooth, drawing.clip), ShapeInk());
    }
}

void Canvas::DrawPoint(Point p) {
    p = p + state.offset;
    DrawBox(Begin(), p, p + Point{1, 1}, {state.style.color});
}

void Canvas::DrawLine(Point a, Point b) {
    shapePath.Clear();
    shapePath.MoveTo(a);
    shapePath.LineTo(b);
    Draw(shapePath, true);
}

void Canvas::DrawRectangle(Point a, Point b) {
    if (state.style.draw != DrawStyle::stroke) {
        return DrawBox(Begin(), a + state.offset, b + state.offset, ShapeInk());
    }
    shapePath.Clear();
    shapePath.AddRectangle(a, b);
    Draw(shapePath, true);
}

void Canvas::DrawRoundRect(Point a, Point b, double rx, double ry) {
    if (b.x < a.x || b.y < a.y) return;
    shapePath.Clear();
    shapePath.AddRoundRect(a, b, rx, ry);
    Draw(shapePath, state.style.draw == DrawStyle::stroke);
}

void Canvas::DrawEllipse(Point a, Point b) {
    shapePath.Clear();
    shapePath.AddEllipse(a, b);
    Draw(shapePath, state.style.draw == DrawStyle::stroke);
}

void Canvas::DrawPath(const Path& path) { Draw(path, state.style.draw == DrawStyle::stroke); }

void Canvas::DrawColor(std::uint32_t color, Point a, Point b) {
    if (b.x <= a.x || b.y <= a.y) return;
    DrawBox(Begin(), a + state.offset, b + state.offset, {color});
}

void Canvas::DrawBitmap(Image& bitmap, Point position) {
    const Drawing drawing = Begin();
    if (!bitmap.SharesPixels(drawing.image)) return vek::DrawBitmap(drawing, bitmap, position + state.offset);
    Image copy;
    copy.Allocate(bitmap.Place());
    CopyPixels(copy, bitmap, bitmap.Place());
    vek::DrawBitmap(drawing, copy, position + state.offset);
}

}  // namespace zorvic::vek

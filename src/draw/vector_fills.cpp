// Style, frame and shape of the anti-aliased fills.
#include "draw/vector_fills.h"

#include "draw/fills.h"
#include "draw/vector_shapes.h"
#include "zorvic/zorvic.h"

namespace zorvic {

namespace {

struct GradientDeleter {
    void operator()(VekGradient gradient) const { vekGradientDestroy(gradient); }
};
using OwnedGradient = std::unique_ptr<VekGradient__, GradientDeleter>;

// Saves the style and sets it for filling with a colour.
class FillStyle {
public:
    FillStyle(Canvas& canvas, DWORD color) : saved(canvas.VectorCanvas()) {
        if (!saved) return;
        vekCanvasSetColor(saved.Get(), color);
        vekCanvasSetDrawStyle(saved.Get(), VEK_DRAW_FILL);
    }
    explicit operator bool() const { return static_cast<bool>(saved); }

private:
    VectorSave saved;
};

}  // namespace

int DrawVectorRectangle(VekCanvas canvas, const RECT& rect, float grow) {
    return vekCanvasDrawRectangle(canvas, static_cast<float>(rect.left), static_cast<float>(rect.top),
                                  static_cast<float>(WidthOf(rect)) + grow, static_cast<float>(HeightOf(rect)) + grow);
}

int FillRectangle(Canvas& canvas, const RECT& rect, DWORD color) {
    const FillStyle style(canvas, color);
    if (!style) return 0;
    const VectorFrame frame(canvas);
    return DrawVectorRectangle(frame.Get(), rect);
}

int FillRoundRect(Canvas& canvas, const RECT& rect, POINT corner, DWORD color) {
    const FillStyle style(canvas, color);
    if (!style) return 0;
    const VectorFrame frame(canvas);
    return DrawRoundRect(frame.Get(), rect, static_cast<float>(corner.x), static_cast<float>(corner.y));
}

int FillGradient(Canvas* canvas, DWORD from, DWORD to, const RECT* rect, GradientDirection direction) {
    const bool down = direction == GradientDirection::topToBottom;
    const bool plain = Premultiply(from) == Premultiply(to);
    if (!canvas && !plain) return 0;
    if (plain || (!down && direction != GradientDirection::leftToRight))
        return FillColor(canvas, Premultiply(from), rect, ZORVIC_OP_SOURCE_OVER);
    if (!rect || IsEmpty(canvas->VisiblePart(*rect))) return 1;

    const VectorSave style(canvas->VectorCanvas());
    if (!style) return 1;
    const auto left = static_cast<float>(rect->left), top = static_cast<float>(rect->top);
    const OwnedGradient gradient(vekGradientCreateLinear(left, top, down ? left : static_cast<float>(rect->right),
                                                         down ? static_cast<float>(rect->bottom) : top));
    if (!vekGradientAddColorStop(gradient.get(), 0, from) || !vekGradientAddColorStop(gradient.get(), 1, to)) return 1;
    vekCanvasSetGradient(style.Get(), gradient.get());
    vekCanvasSetDrawStyle(style.Get(), VEK_DRAW_GRADIENT);
    const VectorFrame frame(*canvas);
    DrawVectorRectangle(frame.Get(), *rect);
    return 1;
}

}  // namespace zorvic

// The canvas's backend canvas: made on first use, bound to the surface's pixels wherever they are.
#include "canvas/vector_canvas.h"

namespace zorvic {

void VectorCanvasDeleter::operator()(VekCanvas canvas) const { vekCanvasDestroy(canvas); }

VekCanvas Canvas::VectorCanvas() {
    if (!surface) return nullptr;
    if (!vectorCanvas) vectorCanvas.reset(vekCanvasCreate());
    BindVectorCanvas();
    return vectorCanvas.get();
}

void Canvas::BindVectorCanvas() {
    if (!vectorCanvas) return;
    const SurfaceLock pixels(*surface);
    if (!pixels || pixels->bmBits == vectorPixels) return;
    const VekBitmap bitmap =
        vekBitmapCreateFromData(pixels->bmBits, pixels->bmWidth, pixels->bmHeight, pixels->bmWidthBytes);
    vekCanvasSetBitmap(vectorCanvas.get(), bitmap);
    vekBitmapDestroy(bitmap);
    vectorPixels = pixels->bmBits;
}

VectorFrame::VectorFrame(Canvas& canvas) : saved(canvas.VectorCanvas()) {
    if (!saved) return;
    const RECT clip = canvas.ToDevice(canvas.ClipBox());
    vekCanvasClipRect(saved.Get(), &clip);
    const POINT viewport = canvas.ViewportOrg(), window = canvas.WindowOrg();
    vekCanvasTranslate(saved.Get(), static_cast<float>(viewport.x), static_cast<float>(viewport.y));
    vekCanvasTranslate(saved.Get(), static_cast<float>(-std::int64_t{window.x}),
                       static_cast<float>(-std::int64_t{window.y}));
}

}  // namespace zorvic

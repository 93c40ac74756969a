// The canvas's backend canvas: made on first use, bound to the surface's pixels wherever they are.
#include "canvas/vector_canvas.h"

namespace zorvic {

void VectorCanvasDeleter::operator()(VekCanvas canvas) const { vekCanvasDestroy(canvas); }

VekCanvas Canvas::VectorCanvas() {
    if (!surface) return nullptr;
    if (!vectorCanvas) vectorCanvas.reset(vekCanvasCreate());
    return BindVectorCanvas() ? vectorCanvas.get() : nullptr;
}

bool Canvas::BindVectorCanvas() {
    if (!vectorCanvas) return true;
    const SurfaceLock pixels(*surface);
    const void* const present = pixels ? pixels->bmBits : nullptr;
    if (present == vectorPixels) return true;
    if (!present) return false;  // the conversion failed, or the host has deleted the DIB section
    const VekBitmap bitmap =
        vekBitmapCreateFromData(pixels->bmBits, pixels->bmWidth, pixels->bmHeight, pixels->bmWidthBytes);
    if (vekCanvasSetBitmap(vectorCanvas.get(), bitmap)) vectorPixels = present;
    vekBitmapDestroy(bitmap);
    return !vectorPixels || vectorPixels == present;
}

VectorFrame::VectorFrame(Canvas& canvas) : saved(canvas.VectorCanvas()) {
    if (!saved) return;
    alignas(16) const RECT clip = canvas.ToDevice(canvas.ClipBox());  // as the backend gets every rectangle
    vekCanvasClipRect(saved.Get(), &clip);
    const POINT viewport = canvas.ViewportOrg(), window = canvas.WindowOrg();
    vekCanvasTranslate(saved.Get(), static_cast<float>(viewport.x), static_cast<float>(viewport.y));
    vekCanvasTranslate(saved.Get(), static_cast<float>(-std::int64_t{window.x}),
                       static_cast<float>(-std::int64_t{window.y}));
}

}  // namespace zorvic

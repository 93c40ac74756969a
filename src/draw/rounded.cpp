// The mask is drawn white by the vector backend at the texture's own size, and the texture into the mask.
#include "draw/rounded.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "canvas/vector_canvas.h"
#include "draw/bitmaps.h"
#include "raster/kernel_table.h"
#include "zorvic/zorvic.h"

namespace zorvic {

namespace {

struct VekBitmapDeleter {
    void operator()(VekBitmap bitmap) const { vekBitmapDestroy(bitmap); }
};
using OwnedVekBitmap = std::unique_ptr<VekBitmap__, VekBitmapDeleter>;

bool DrawInto(VekCanvas mask, const BitmapLockInfo& pixels) {
    const OwnedVekBitmap bitmap(
        vekBitmapCreateFromData(pixels.bmBits, pixels.bmWidth, pixels.bmHeight, pixels.bmWidthBytes));
    vekCanvasSetBlendMode(mask, VEK_BLEND_SOURCE_IN);
    const bool drawn = vekCanvasDrawBitmap(mask, bitmap.get(), 0, 0);
    vekCanvasSetBlendMode(mask, VEK_BLEND_SOURCE_OVER);
    return drawn;
}

// The backend knows 32-bit pixels only.
bool DrawInto(VekCanvas mask, const Bitmap& texture) {
    const SurfaceLock pixels(texture);
    if (!pixels) return false;
    if (pixels->bmBitsPixel == 32) return DrawInto(mask, *pixels);
    // Not a bitmap, of whose end the resource manager would be told in the middle of the draw.
    MemoryPixelStore widened;
    BITMAP description{0, pixels->bmWidth, pixels->bmHeight, 0, 1, 32, nullptr};
    BitmapLockInfo target;
    if (!widened.Create(&description, 0) || !widened.LockEx(&target, nullptr)) return false;
    KernelTable.At(slots::copySameSize, DepthOf(pixels->bmBitsPixel))(target, *pixels);
    return DrawInto(mask, target);
}

}  // namespace

bool WantsRounding(const TextureDrawParams& params) {
    const auto isZero = [](float value) { return std::abs(value) <= std::numeric_limits<float>::epsilon(); };
    return params.rounded != 0 || !std::all_of(std::begin(params.cornerRadii), std::end(params.cornerRadii), isZero);
}

int DrawRoundedTexture(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params) {
    const SIZE size = texture.Size();
    const auto cut = IsEmpty(dst) ? nullptr : Canvas::Create(size.cx, size.cy, StoreKind::memory, nullptr);
    if (!cut) return 1;
    cut->SetFilter(ZORVIC_OP_SOURCE_OVER);

    const RECT whole{0, 0, size.cx, size.cy};
    {
        const VectorSave mask(cut->VectorCanvas());
        if (!mask) return 1;
        const auto width = static_cast<float>(size.cx), height = static_cast<float>(size.cy);
        vekCanvasSetColor(mask.Get(), 0xFFFFFFFF);
        if (params.ellipse) {
            vekCanvasDrawEllipse(mask.Get(), 0, 0, width, height);
        } else {
            const float scaleX = width / static_cast<float>(WidthOf(dst));
            const float scaleY = height / static_cast<float>(HeightOf(dst));
            vekCanvasDrawRoundRect(mask.Get(), &whole, params.cornerRadii[0] * scaleX, params.cornerRadii[1] * scaleY);
        }
        if (!DrawInto(mask.Get(), texture)) return 1;  // of the mask alone nothing is to be seen
    }
    return DrawBitmapRect(canvas, dst, *cut->Surface(), whole, params.filterMode, params.alpha);
}

}  // namespace zorvic

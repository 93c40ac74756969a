// The shape is drawn white by the vector backend, and the picture into it: in each direction at the smaller of the
// texture's size and the destination's. So a reduced texture costs what is shown of it, and its edges are smooth.
#include "draw/rounded.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "canvas/vector_canvas.h"
#include "draw/bitmaps.h"
#include "draw/coordinates.h"
#include "draw/vector_shapes.h"
#include "raster/selectors.h"
#include "zorvic/zorvic.h"

namespace zorvic {

namespace {

struct VekBitmapDeleter {
    void operator()(VekBitmap bitmap) const { vekBitmapDestroy(bitmap); }
};
using OwnedVekBitmap = std::unique_ptr<VekBitmap__, VekBitmapDeleter>;

// The extent at which the picture is cut, and the rows of it that are needed. All columns are: where an edge leaves the
// pixels at a side, the backend gives the whole row other coverages.
struct Frame {
    LONG width, height, top, bottom;
};

// The picture: the texture's own pixels where they are at hand in its size, else samples. (Not in a bitmap: the resource
// manager would be told of its end in the middle of the draw.) False when memory is short.
bool MakePicture(BitmapLockInfo& picture, MemoryPixelStore& samples, const BitmapLockInfo& texture, const Frame& frame,
                 DWORD filterMode) {
    const LONG rows = frame.bottom - frame.top;
    if (texture.bmBitsPixel == 32 && texture.bmWidth == frame.width && texture.bmHeight == frame.height) {
        picture = PartOf(texture, 0, frame.top, frame.width, rows);
        return true;
    }
    BITMAP description{0, frame.width, rows, 0, 1, 32, nullptr};
    if (!samples.Create(&description, 0) || !samples.LockEx(&picture, nullptr)) return false;
    const Placement placement{0, frame.top, frame.width, frame.height};
    SelectSamplingKernel(picture, placement, texture, ZORVIC_OP_SOURCE_OVER, filterMode, 255);
    return true;
}

// The shape in coordinates of the whole extent, so that a part has the whole one's pixels.
void DrawShape(VekCanvas canvas, const Frame& frame, const TextureDrawParams& params, const RECT& dst) {
    const RECT box{0, 0, frame.width, frame.height};
    const auto width = static_cast<float>(frame.width), height = static_cast<float>(frame.height);
    const auto top = static_cast<float>(frame.top);
    if (frame.top > 0) vekCanvasTranslate(canvas, 0, -top);
    if (params.ellipse) {
        vekCanvasDrawEllipse(canvas, 0, 0, width, height);
    } else {
        const float scaleX = width / static_cast<float>(WidthOf(dst));
        const float scaleY = height / static_cast<float>(HeightOf(dst));
        DrawRoundRect(canvas, box, params.cornerRadii[0] * scaleX, params.cornerRadii[1] * scaleY);
    }
    if (frame.top > 0) vekCanvasTranslate(canvas, 0, top);
}

bool DrawInto(VekCanvas shape, const BitmapLockInfo& picture) {
    const OwnedVekBitmap bitmap(
        vekBitmapCreateFromData(picture.bmBits, picture.bmWidth, picture.bmHeight, picture.bmWidthBytes));
    vekCanvasSetBlendMode(shape, VEK_BLEND_SOURCE_IN);
    const bool drawn = vekCanvasDrawBitmap(shape, bitmap.get(), 0, 0);
    vekCanvasSetBlendMode(shape, VEK_BLEND_SOURCE_OVER);
    return drawn;
}

}  // namespace

bool WantsRounding(const TextureDrawParams& params) {
    const auto isZero = [](float value) { return std::abs(value) <= std::numeric_limits<float>::epsilon(); };
    return params.rounded != 0 || !std::all_of(std::begin(params.cornerRadii), std::end(params.cornerRadii), isZero);
}

int DrawRoundedTexture(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params) {
    const RECT visible = canvas.VisiblePart(dst);
    if (IsEmpty(visible)) return 1;
    const SIZE size = texture.Size();
    Frame frame{ToCoordinate(std::min<std::int64_t>(size.cx, WidthOf(dst))),
                ToCoordinate(std::min<std::int64_t>(size.cy, HeightOf(dst))), 0, 0};
    frame.bottom = frame.height;
    RECT shown = dst;
    if (frame.width == WidthOf(dst) && frame.height == HeightOf(dst)) {
        shown.top = visible.top;
        shown.bottom = visible.bottom;
        frame.top = shown.top - dst.top;
        frame.bottom = shown.bottom - dst.top;
    }

    const SurfaceLock source(texture);
    MemoryPixelStore samples;
    BitmapLockInfo picture;
    if (!source || !MakePicture(picture, samples, *source, frame, params.filterMode)) return 1;
    const auto cut = Canvas::Create(frame.width, frame.bottom - frame.top, StoreKind::memory, nullptr);
    if (!cut) return 1;
    cut->SetFilter(ZORVIC_OP_SOURCE_OVER);
    {
        const VectorSave shape(cut->VectorCanvas());
        if (!shape) return 1;
        vekCanvasSetColor(shape.Get(), 0xFFFFFFFF);
        DrawShape(shape.Get(), frame, params, dst);
        if (!DrawInto(shape.Get(), picture)) return 1;  // of the shape alone nothing is to be seen
    }
    const RECT whole{0, 0, frame.width, frame.bottom - frame.top};
    return DrawBitmapRect(canvas, shown, *cut->Surface(), whole, params.filterMode, params.alpha);
}

}  // namespace zorvic

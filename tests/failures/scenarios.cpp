#include "failures/scenarios.h"

#include "support/host.h"
#include "vek/vekgraphic.h"

namespace failures {

using namespace host;

namespace {

constexpr RECT all{0, 0, 9, 7}, part{1, 1, 5, 4};

template <auto destroy>
struct Destroy {
    void operator()(auto handle) const { destroy(handle); }
};
template <class Handle, auto destroy>
using Ending = std::unique_ptr<std::remove_pointer_t<Handle>, Destroy<destroy>>;

const Scenario scenarios[] = {
    {"canvas that is turned into a DIB section between two draws",
     [] {
         const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
         SetCanvasClipRect(canvas.get(), &part);
         return canvas && DrawEllipse(canvas.get(), 0, 0, 9, 7) && GetCanvasHandle(canvas.get()) &&
                DrawEllipse(canvas.get(), 1, 1, 3, 3) && SetCanvasClipRect(canvas.get(), &all) &&
                IntersectCanvasClipRect(canvas.get(), &part);
     },
     33000},
    {"region of many parts",
     [] {
         const OwnedTexture texture(CreateTexture(90, 100));
         if (!texture) return false;
         SetTextureFilter(texture.get(), ZORVIC_OP_SOURCE_OVER);
         Fill(texture.get(), [](int x, int y) { return (x + y) % 2 ? 0xFFFFFFFF : 0; });
         const Ending<HRGN, DeleteObject> region(CreateTextureRgn(texture.get(), nullptr));
         // A header of 32 bytes, and 16 for each part.
         return region && GetRegionData(region.get(), 0, nullptr) == 32 + 16 * 90 * 100 / 2;
     },
     100},
    {"dense path, whose edges Cairo would take too long for",
     [] {
         const OwnedCanvas canvas(CreateCanvas(7, 1000, nullptr));
         const Ending<HGPATH, PathDestroy> path(PathCreate());
         for (int i = 0; i < 2200; ++i)
             if (!PathLineTo(path.get(), static_cast<float>(i % 7), static_cast<float>(i % 2 * 999))) return false;
         return DrawPath(canvas.get(), path.get()) == 1;
     },
     20},
    {"shapes that reach far",
     [] {
         const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
         if (!DrawEllipse(canvas.get(), 3, 3, 1e6F, 1e6F)) return false;
         SetDrawStyle(canvas.get(), VEK_DRAW_STROKE);
         SetDashStyle(canvas.get(), VEK_DASH_DASH);
         return DrawEllipse(canvas.get(), 3, 3, 1e6F, 1e6F) == 1;
     },
     70000},
    {"gradients, dashes and slices",
     [] {
         const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
         const OwnedTexture texture(CreateTexture(9, 7));
         const Ending<HGGRADIENT, GradientDestroy> gradient(GradientCreateLinear(0, 0, 9, 0));
         SetGradient(canvas.get(), gradient.get());
         SetDrawStyle(canvas.get(), VEK_DRAW_GRADIENT);
         SetBlendMode(canvas.get(), VEK_BLEND_SCREEN);
         SetBlendValue(canvas.get(), 150);
         if (!GradientAddColorStop(gradient.get(), 0, 0xFF00FF00) || !DrawEllipse(canvas.get(), 1, 1, 6, 5) ||
             !FillGradualRect(canvas.get(), 0xFF102030, 0x40FFFFFF, &all, ZORVIC_GRADUAL_LEFT_TO_RIGHT))
             return false;
         SetDrawStyle(canvas.get(), VEK_DRAW_STROKE);
         SetDashStyle(canvas.get(), VEK_DASH_DASH_DOT);
         const RECT slices[] = {all, part, part};
         return DrawEllipse(canvas.get(), 1, 1, 6, 5) && SetTextureSlice(texture.get(), 3, slices) == 3;
     },
     70000},
    {"layers of the backend",
     [] {
         DWORD pixels[100] = {};
         const Ending<VekBitmap, vekBitmapDestroy> bitmap(vekBitmapCreateFromData(pixels, 10, 10, 40));
         const Ending<VekCanvas, vekCanvasDestroy> owner(vekCanvasCreate());
         const VekCanvas canvas = owner.get();
         return vekCanvasSetBitmap(canvas, bitmap.get()) && vekCanvasSaveLayer(canvas, &part, 99) &&
                vekCanvasDrawBitmap(canvas, bitmap.get(), 0.5F, 0) && vekCanvasSaveLayer(canvas, nullptr, 200) &&
                vekCanvasDrawCircle(canvas, 5, 5, 3) && vekCanvasRestore(canvas) && vekCanvasRestore(canvas) &&
                vekCanvasDrawBitmap(canvas, bitmap.get(), 1, 1);
     },
     70000},
};

}  // namespace

std::span<const Scenario> Scenarios() { return scenarios; }

}  // namespace failures

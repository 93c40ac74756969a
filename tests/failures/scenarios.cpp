// The two tables. Scenarios end what they make and leave the stage's objects alone; drawings may change a canvas at will.
#include "failures/scenarios.h"

#include <cmath>

#include "vek/vekgraphic.h"

namespace failures {

using namespace host;

namespace {

constexpr RECT aside{-3, 2, 7, 20};
constexpr POINT corner{3, 2};

using OwnedPath = std::unique_ptr<HGPATH__, decltype(&PathDestroy)>;
using OwnedGradient = std::unique_ptr<HGGRADIENT__, decltype(&GradientDestroy)>;

template <auto destroy>
struct Destroy {
    void operator()(auto handle) const { destroy(handle); }
};
template <class Handle, auto destroy>
using Vek = std::unique_ptr<std::remove_pointer_t<Handle>, Destroy<destroy>>;
using VekPathOwner = Vek<VekPath, vekPathDestroy>;
using VekBitmapOwner = Vek<VekBitmap, vekBitmapDestroy>;
using VekCanvasOwner = Vek<VekCanvas, vekCanvasDestroy>;

DWORD RectanglesOf(HRGN region) {
    std::vector<char> data(GetRegionData(region, 0, nullptr));
    auto* const record = reinterpret_cast<RGNDATA*>(data.data());
    return GetRegionData(region, static_cast<DWORD>(data.size()), record) ? record->rdh.nCount : 0;
}
bool DeleteRegion(HRGN region) { return region && DeleteObject(region); }

TextureDrawParams Rounded() {
    TextureDrawParams params{};
    params.filterMode = ZORVIC_FILTER_BILINEAR;
    params.alpha = 255;
    params.cornerRadii[0] = params.cornerRadii[1] = 3;
    return params;
}

const Scenario scenarios[] = {
    {"memory bitmap",
     [](Stage& stage) {
         const OwnedBitmap bitmap(CreateMemBitmapEx(9, 7, 8, 256));
         return bitmap && CopyBitmap(bitmap.get(), nullptr, stage.colors16.get(), &part);
     }},
    {"converted bitmap",
     [](Stage&) {
         const OwnedBitmap bitmap(CreateMemBitmapEx(9, 7, 24, 0));
         return bitmap && GetBitmapHandle(bitmap.get());
     },
     33000},
    {"system bitmap",
     [](Stage&) {
         const OwnedBitmap bitmap(CreateSystemBitmap(9, 7));
         return bitmap && GetBitmapHandle(bitmap.get());
     },
     33000},
    {"texture with slices",
     [](Stage&) {
         const OwnedTexture texture(CreateTextureEx(9, 7, 8, 3));
         const RECT slices[] = {all, part, part};
         return texture && SetTextureSlice(texture.get(), 2, slices) == 2 &&
                SetTextureSlice(texture.get(), 3, slices) == 3;
     }},
    {"texture from a bitmap",
     [](Stage&) {
         const OwnedTexture texture(BitmapToTexture(CreateMemBitmap(9, 7)));
         return texture && GetTextureHandle(texture.get());
     },
     33000},
    {"texture of a canvas",
     [](Stage& stage) {
         const OwnedTexture texture(GetTexture(stage.Canvas(0)));
         return texture != nullptr;
     }},
    {"texture from a canvas",
     [](Stage&) {
         const HGCANVAS canvas = CreateCanvas(9, 7, nullptr);
         DrawEllipse(canvas, 1, 1, 7, 5);
         const OwnedTexture texture(CanvasToTexture(canvas));
         return texture != nullptr;
     }},
    {"resized and turned bitmaps",
     [](Stage& stage) {
         const OwnedBitmap resized(ResizeBitmap(stage.colors16.get(), 5, 21, ZORVIC_FILTER_AREA));
         const OwnedBitmap turned(TransformBitmap(stage.colors16.get(), ZORVIC_TRANSFORM_ROTATE_90));
         const OwnedTexture flipped(FlipTexture(stage.texture.get(), ZORVIC_TRANSFORM_FLIP_HORIZONTAL));
         return resized && turned && flipped;
     }},
    {"canvas that is turned into a DIB section between two draws",
     [](Stage&) {
         const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
         SetCanvasClipRect(canvas.get(), &part);
         return canvas && DrawEllipse(canvas.get(), 0, 0, 9, 7) && GetCanvasHandle(canvas.get()) &&
                DrawEllipse(canvas.get(), 1, 1, 3, 3) && SetCanvasClipRect(canvas.get(), &all) &&
                IntersectCanvasClipRect(canvas.get(), &part);
     },
     33000},
    {"system canvas brought to a device context",
     [](Stage& stage) {
         const OwnedCanvas canvas(CreateSystemCanvas(stageWidth, stageHeight, stage.Canvas(0)));
         const HDC target = GetCanvasHandle(stage.Canvas(2));
         return canvas && GdiTransCanvas(target, &all, canvas.get(), &part, 255) &&
                GdiTransCanvas(target, &all, canvas.get(), &part, 128);
     },
     33000},
    {"canvas on a device context",
     [](Stage& stage) {
         const OwnedCanvas canvas(CreateCanvasFromDC(GetCanvasHandle(stage.Canvas(2))));
         return canvas != nullptr;
     }},
    {"regions",
     [](Stage& stage) {
         return DeleteRegion(CreateTextureRgn(stage.texture.get(), nullptr)) &&
                DeleteRegion(CreateTextureRgn(stage.texture.get(), &part));
     }},
    {"region of many parts",
     [](Stage&) {
         const OwnedTexture texture(CreateTexture(90, 100));
         if (!texture) return false;
         SetTextureFilter(texture.get(), ZORVIC_OP_SOURCE_OVER);
         Fill(texture.get(), [](int x, int y) { return (x + y) % 2 ? 0xFFFFFFFF : 0; });
         const HRGN region = CreateTextureRgn(texture.get(), nullptr);
         if (!region) return false;
         const bool whole = RectanglesOf(region) == 90 * 100 / 2;
         return DeleteRegion(region) && whole;
     },
     100},
    {"focus", [](Stage& stage) { return GeoRectFocusEx(stage.Canvas(1), &part, 0xFF112233) == 1; }},
    {"soft texture", [](Stage& stage) { return LightTexture(stage.texture.get()) == 1; }},
    {"blurred pixels",
     [](Stage&) {
         DWORD pixels[100] = {};
         return BlurBitmapData(10, 10, 40, pixels, 32, 3) == 1;
     }},
    {"path",
     [](Stage&) {
         const OwnedPath path(PathCreate(), PathDestroy);
         PathBounds bounds;
         return PathMoveTo(path.get(), 1, 1) && PathLineTo(path.get(), 5, 1) && PathArcTo(path.get(), 9, 1, 9, 9, 2) &&
                PathQuadraticCurveTo(path.get(), 7, 7, 1, 9) && PathClose(path.get()) &&
                PathAddRectangle(path.get(), 2, 2, 3, 3) && PathAddCircle(path.get(), 5, 5, 2) &&
                PathAddArc(path.get(), 5, 5, 2, 0, 3, 1) && PathGetBounds(path.get(), &bounds);
     }},
    {"gradients",
     [](Stage&) {
         const OwnedGradient linear(GradientCreateLinear(0, 0, 5, 5), GradientDestroy);
         const OwnedGradient radial(GradientCreateRadial(4, 4, 1, 5, 5, 5), GradientDestroy);
         return GradientAddColorStop(linear.get(), 0, 0xFF123456) && GradientAddColorStop(radial.get(), 1, 0x80FFFFFF);
     }},
    {"saved styles",
     [](Stage& stage) {
         const HGCANVAS canvas = stage.Canvas(0);
         const float lengths[] = {2, 1, 1};
         Save(canvas);
         SetDrawStyle(canvas, VEK_DRAW_STROKE);
         SetDashPattern(canvas, lengths, 3);
         const int drawn = DrawPath(canvas, stage.path.get());
         Restore(canvas);
         return drawn == 1;
     }},
    {"layers of the backend",
     [](Stage&) {
         DWORD pixels[100] = {};
         const VekBitmapOwner bitmap(vekBitmapCreateFromData(pixels, 10, 10, 40));
         const VekCanvasOwner owner(vekCanvasCreate());
         const VekCanvas canvas = owner.get();
         return vekCanvasSetBitmap(canvas, bitmap.get()) && vekCanvasSaveLayer(canvas, &part, 99) &&
                vekCanvasDrawBitmap(canvas, bitmap.get(), 0.5F, 0) && vekCanvasSaveLayer(canvas, nullptr, 200) &&
                vekCanvasDrawCircle(canvas, 5, 5, 3) && vekCanvasRestore(canvas) && vekCanvasRestore(canvas) &&
                vekCanvasDrawBitmap(canvas, bitmap.get(), 1, 1);
     }},
    {"dense path",
     [](Stage& stage) {
         const OwnedCanvas canvas(CreateCanvas(7, 1000, nullptr));
         return canvas && DrawPath(canvas.get(), stage.densePath.get()) == 1;
     },
     20},
    {"refused creations",
     [](Stage&) {
         return !CreateMemBitmap(0, 1) && !CreateSystemBitmap(1, 40000) && !CreateCanvas(0, 0, nullptr) &&
                !CreateSystemCanvas(-1, 3, nullptr) && !CreateTextureEx(3, 3, 99, 0) && !CreateCanvasFromDC(nullptr);
     }},
};

int DrawInLayout(HGCANVAS canvas, Stage& stage, LONG layout) {
    const TextureMode mode{layout, 0, {2, 3, 2, 3}}, plain{};
    SetTextureMode(stage.texture.get(), &mode);
    const int result = DrawTexture(canvas, &aside, stage.texture.get(), ZORVIC_FILTER_BILINEAR);
    SetTextureMode(stage.texture.get(), &plain);
    return result;
}

// The stage's path, stroked or filled under a blend mode.
int DrawStyled(HGCANVAS canvas, Stage& stage, int style, int blendMode, float width = 1) {
    SetColor(canvas, 0xC0336699);
    SetDrawStyle(canvas, style);
    SetBlendMode(canvas, blendMode);
    SetBlendValue(canvas, 150);
    SetStrokeWidth(canvas, width);
    SetGradient(canvas, stage.gradient.get());
    return DrawPath(canvas, stage.path.get());
}

const Drawing drawings[] = {
    {"fill",
     [](HGCANVAS canvas, Stage&) { return FillSolidRectEx(canvas, 0x80123456, &aside, ZORVIC_OP_SOURCE_OVER); }},
    {"bitmap of 8 bits",
     [](HGCANVAS canvas, Stage& stage) {
         return DrawBitmap(canvas, &aside, stage.colors16.get(), ZORVIC_FILTER_BICUBIC);
     }},
    {"bitmap of 24 bits",
     [](HGCANVAS canvas, Stage& stage) {
         return DrawBitmapEx(canvas, &part, stage.rgb.get(), ZORVIC_FILTER_AREA, 99);
     }},
    {"texture",
     [](HGCANVAS canvas, Stage& stage) { return DrawTexture(canvas, &part, stage.texture.get(), ZORVIC_FILTER_AREA); }},
    {"nine-grid",
     [](HGCANVAS canvas, Stage& stage) { return DrawInLayout(canvas, stage, ZORVIC_LAYOUT_NINE_GRID_FILLED); }},
    {"tiles", [](HGCANVAS canvas, Stage& stage) { return DrawInLayout(canvas, stage, ZORVIC_LAYOUT_TILE); }},
    {"rounded texture",
     [](HGCANVAS canvas, Stage& stage) {
         const TextureDrawParams params = Rounded();
         return DrawTextureEx3(canvas, &part, stage.texture.get(), &params, nullptr);
     }},
    {"rounded texture of 8 bits",
     [](HGCANVAS canvas, Stage& stage) {
         const TextureDrawParams params = Rounded();
         return DrawTextureEx3(canvas, &part, stage.texture16.get(), &params, nullptr);
     }},
    {"modulation",
     [](HGCANVAS canvas, Stage& stage) {
         return DrawModulation(canvas, 1, 2, AsBitmap(stage.texture.get()), nullptr, 0x80FFFFFF);
     }},
    {"scroll", [](HGCANVAS canvas, Stage&) { return CanvasScroll(canvas, 0, 2); }},
    {"mix with a device context's pixels",
     [](HGCANVAS canvas, Stage& stage) { return MixCanvas(canvas, &part, stage.Canvas(3), &all, 99); }},
    {"mix with a colour", [](HGCANVAS canvas, Stage&) { return MixCanvasWithColor(canvas, &part, 0xFF112233, 99); }},
    {"blend of a memory canvas",
     [](HGCANVAS canvas, Stage& stage) { return BlendCanvas(canvas, &part, stage.Canvas(0), &part, 128); }},
    {"blend of a device context's pixels",
     [](HGCANVAS canvas, Stage& stage) { return BlendCanvas(canvas, &part, stage.Canvas(2), &part, 128); }},
    {"blurred texture", [](HGCANVAS, Stage& stage) { return BlurTexture(stage.texture.get(), stage.texture.get()); }},
    {"gradual fill",
     [](HGCANVAS canvas, Stage&) {
         return FillGradualRect(canvas, 0xFF102030, 0x40FFFFFF, &part, ZORVIC_GRADUAL_LEFT_TO_RIGHT);
     }},
    {"rectangle", [](HGCANVAS canvas, Stage&) { return FillRectangleEx(canvas, &part, 0x80FF0000); }},
    {"round rectangle", [](HGCANVAS canvas, Stage&) { return FillRoundRectEx(canvas, &part, &corner, 0x80FF0000); }},
    {"GDI's rectangle",
     [](HGCANVAS canvas, Stage&) {
         return GeoRectangle(canvas, &part, nullptr, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
     }},
    {"translucent focus", [](HGCANVAS canvas, Stage&) { return GeoRectFocusEx(canvas, &part, 0x80112233); }},
    {"outline", [](HGCANVAS canvas, Stage&) { return GeoRectangleEx(canvas, &part, 0xFF445566, 2); }},
    {"round outline", [](HGCANVAS canvas, Stage&) { return GeoRoundRectEx(canvas, &part, &corner, 0xFF445566, 2); }},
    {"outline of a pen",
     [](HGCANVAS canvas, Stage&) {
         return GeoRoundRect(canvas, &part, &corner, static_cast<HPEN>(GetStockObject(WHITE_PEN)));
     }},
    {"line", [](HGCANVAS canvas, Stage&) { return DrawLine(canvas, 1, 1, 8, 5); }},
    {"polygon",
     [](HGCANVAS canvas, Stage&) {
         // The fourth corner, which needs more memory, takes something away.
         const POINT points[] = {{1, 1}, {9, 1}, {5, 8}, {4, 2}, {1, 5}};
         return DrawPolygon(canvas, 5, points);
     }},
    {"curve",
     [](HGCANVAS canvas, Stage&) {
         const POINT points[] = {{1, 1}, {8, 2}, {9, 9}, {3, 7}};
         return DrawBezier(canvas, &points[0], &points[1], &points[2], &points[3]);
     }},
    {"filled path",
     [](HGCANVAS canvas, Stage& stage) { return DrawStyled(canvas, stage, VEK_DRAW_FILL, VEK_BLEND_SOURCE_OVER); }},
    {"path under a blend mode",
     [](HGCANVAS canvas, Stage& stage) { return DrawStyled(canvas, stage, VEK_DRAW_FILL, VEK_BLEND_MULTIPLY); }},
    {"path with a gradient",
     [](HGCANVAS canvas, Stage& stage) { return DrawStyled(canvas, stage, VEK_DRAW_GRADIENT, VEK_BLEND_SCREEN); }},
    {"wide stroke",
     [](HGCANVAS canvas, Stage& stage) { return DrawStyled(canvas, stage, VEK_DRAW_STROKE, VEK_BLEND_XOR, 3); }},
    {"dashed stroke",
     [](HGCANVAS canvas, Stage& stage) {
         SetDashStyle(canvas, VEK_DASH_DASH_DOT);
         return DrawStyled(canvas, stage, VEK_DRAW_STROKE, VEK_BLEND_SOURCE_OVER);
     }},
    {"stroke that reaches far",
     [](HGCANVAS canvas, Stage&) {
         SetDrawStyle(canvas, VEK_DRAW_STROKE);
         SetDashStyle(canvas, VEK_DASH_DASH);
         return DrawEllipse(canvas, 3, 3, 1e6F, 1e6F);
     }},
    {"fill that reaches far", [](HGCANVAS canvas, Stage&) { return DrawEllipse(canvas, 3, 3, 1e6F, 1e6F); }},
    {"colour under a blend mode",
     [](HGCANVAS canvas, Stage&) {
         SetBlendMode(canvas, VEK_BLEND_SOURCE_IN);
         SetBlendValue(canvas, 99);
         return DrawColor(canvas, 0x80FF8800, &part);
     }},
};

}  // namespace

std::span<const Scenario> Scenarios() { return scenarios; }
std::span<const Drawing> Drawings() { return drawings; }

}  // namespace failures

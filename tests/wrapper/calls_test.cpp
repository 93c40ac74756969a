// The functions of the C++ wrapper, family by family: which exports they call with which arguments, and that their
// answers are the exports'.
#include "wrapper/call_spy.h"

#include <gtest/gtest.h>

namespace {

using namespace zorvic;

// The whole test is watched, because the compiler may read the import table once for many calls.
class WrapperCalls : public testing::Test {
protected:
    WrapperCalls() {
        spy.Name("canvas other bitmap texture path gradient",
                 {canvas.Get(), other.Get(), bitmap.Get(), texture.Get(), path.Get(), gradient.Get()});
        spy.Name("a b m corner points lengths", {&a, &b, &m, &corner, points, lengths});
        spy.Name("image second params before color", {&image, &second, &params, &before, &color});
        LockBitmapBits(bitmap.Get(), &image, nullptr);
        LockBitmapBits(BitmapRef(texture).Get(), &second, nullptr);
        spy.Calls();
    }

    void ExpectCalls(const std::string& calls) { EXPECT_EQ(spy.Calls(), calls); }
    // The answer is what the last call wrote, else its result.
    template <class Answer>
    void Is(Answer answer, const std::string& calls) {
        EXPECT_EQ(spy.Calls(), calls + ';');
        const bool written = !spy.Output().empty() && !std::is_same_v<Answer, bool>;
        EXPECT_EQ(spy.ToText(answer), written ? spy.Output() : spy.Result()) << calls;
        { [[maybe_unused]] const Answer end(std::move(answer)); }
        spy.Calls();
    }

    CallSpy spy;
    // Two rectangles and margins.
    const RECT a{3, 4, 31, 24}, b{2, 1, 12, 9}, m{2, 3, 4, 5};
    const POINT corner{7, 3}, points[4] = {{2, 30}, {20, 26}, {33, 36}, {9, 38}};
    const float lengths[2] = {4, 2};
    const Canvas canvas = Canvas::Create(48, 40), other = Canvas::Create(24, 20);
    const Bitmap bitmap = Bitmap::Create(21, 18);
    const Texture texture = Texture::Create(21, 18);
    const Path path = Path::Create();
    const Gradient gradient = Gradient::CreateRadial(9, 30, 2, 12, 28, 19);
    BITMAP image{}, second{};
    TextureDrawParams params{};
    POINT before{};
    DWORD color = 1;
};

TEST_F(WrapperCalls, OfBitmaps) {
    Is(Bitmap::Create(3, 2), "CreateMemBitmap 3 2");
    Is(Bitmap::Create(3, 2, 8, 4), "CreateMemBitmapEx 3 2 8 4");
    Is(Bitmap::CreateSystem(3, 2), "CreateSystemBitmap 3 2");
    Is(bitmap.Size(), "GetBitmapSize bitmap {0 0}");
    Is(bitmap.BitsPixel(), "GetBitmapBitsPixel bitmap &");
    Is(bitmap.GdiHandle(), "GetBitmapHandle bitmap");
    Is(bitmap.SetOperation(Operation::colorKey, 0x123456), "SetBitmapFilter bitmap 2123456");
    Is(bitmap.OperationWord(), "GetBitmapFilter bitmap &");
    Is(bitmap.CopyFrom(texture, &a, &b), "CopyBitmap bitmap a texture b");
    Is(bitmap.Resized(9, 30, Filter::area), "ResizeBitmap bitmap 9 30 5");
    Is(bitmap.Transformed(Transform::rotate270), "TransformBitmap bitmap 3");
    Is(bitmap.CreateRgn(&b), "CreateTextureRgn bitmap b");
    Is(bitmap.Gray(), "GrayBitmap bitmap");
    Is(bitmap.Invert(), "InvertBitmap bitmap");
    Is(bitmap.Normalize(), "NormalizeBitmap bitmap");
    Is(bitmap.ShuffleChannels(Shuffle::colorToAlpha, &b), "ShuffleBitmapEx bitmap b 6");
    Is(bitmap.BlurFrom(texture), "BlurBitmap bitmap texture");
    Is(bitmap.Light(), "LightBitmap bitmap");
    Is(bitmap.Dark(), "DarkBitmap bitmap");
}

TEST_F(WrapperCalls, OfTextures) {
    const RECT slices[] = {a, b};
    Is(Texture::Create(3, 2, 8, 4), "CreateTextureEx 3 2 8 4");
    Is(texture.ImageSize(), "GetTextureSize texture {0 0}");
    Is(texture.SetLayout(Layout::topTile, m, 9), "SetTextureMode texture {5 9 2 3 4 5}");
    Is(texture.Mode(), "GetTextureMode texture {0 0 0 0 0 0}");
    Is(texture.SetSlices(slices), "SetTextureSlice texture 2 {3 4 31 24}");
    Is(texture.SelectSlice(0), "SetTextureCurSlice texture 0");
    Is(texture.CurrentSlice(), "GetTextureCurSlice texture {0 0 0 0}");
    Is(texture.SliceCount(), "GetTextureSliceCount texture");
    Is(texture.Resized(9, 30, Filter::nearest), "ResizeTexture texture 9 30 0");
    Is(texture.Transformed(Transform::antiTranspose), "TransformTexture texture 7");
    Is(texture.TranslateColor(1, 0x80402010), "TranslateTexture texture 1 80402010");
    Is(texture.Colorize(.25F, -.5F, .125F), "ColorizeTexture texture 0.25 -0.5 0.125");
    Is(texture.Gray(), "GrayTexture texture");
    Is(texture.Light(), "LightTexture texture");
}

TEST_F(WrapperCalls, OfCanvasesAndTheirCoordinates) {
    const HWND window = GetDesktopWindow();
    Is(Canvas::Create(3, 2, other), "CreateCanvas 3 2 other");
    Is(Canvas::CreateSystem(3, 2, other), "CreateSystemCanvas 3 2 other");
    Is(canvas.Surface(), "GetBitmap canvas");
    Is(canvas.View(), "GetTexture canvas");
    Is(canvas.Size(), "GetCanvasSize canvas {0 0}");
    Is(canvas.SetViewportOrigin(6, 5, &before), "SetViewportOrg canvas 6 5 before");
    Is(canvas.ViewportOrigin(), "GetViewportOrg canvas {0 0}");
    Is(canvas.SetWindowOrigin(4, 3, &before), "SetWindowOrg canvas 4 3 before");
    Is(canvas.WindowOrigin(), "GetWindowOrg canvas {0 0}");
    Is(canvas.ToSurface(a), "WindowToDevice canvas {3 4 31 24}");
    Is(canvas.ToLogical(a), "DeviceToWindow canvas {3 4 31 24}");
    Is(canvas.SetClip(a), "SetCanvasClipRect canvas a");
    Is(canvas.IntersectClip(b), "IntersectCanvasClipRect canvas b");
    Is(canvas.Clip(), "GetCanvasClipRect canvas {0 0 0 0}");
    Is(canvas.SetBkColor(0xFF123456, &color), "SetCanvasBkColor canvas ff123456 color");
    Is(canvas.BkColor(), "GetCanvasBkColor canvas &");
    Is(canvas.SetOperation(Operation::colorKey, 0x654321), "SetCanvasFilter canvas 2654321");
    Is(canvas.OperationWord(), "GetCanvasFilter canvas &");
    spy.Name("window", {window});
    Is(canvas.SetWindow(window), "SetCanvasWindow canvas window");
    Is(canvas.Window(), "GetCanvasWindow canvas");
    Is(canvas.Dc(), "GetCanvasHandle canvas");
    spy.Name("dc", {canvas.Dc()});
    spy.Calls();
    Is(Canvas::FromDc(canvas.Dc()), "GetCanvasHandle canvas;CreateCanvasFromDC dc");
}

TEST_F(WrapperCalls, OfPictures) {
    Is(canvas.DrawBitmap(bitmap, 77), "DrawBitmapEx canvas null bitmap 0 77");
    Is(canvas.DrawBitmap(a, bitmap, Filter::bicubic, 150), "DrawBitmapEx canvas a bitmap 4 150");
    Is(canvas.DrawBitmap(a, bitmap, b, Filter::area, 99), "DrawBitmapEx2 canvas a bitmap b 5 99");
    Is(canvas.DrawTexture(a, texture, Filter::bilinear, 120, 2, 1.5), "DrawTextureEx2 canvas a texture 1 120 2 1.5");
    Is(canvas.DrawTexture(a, texture, params), "DrawTextureEx3 canvas a texture params null");
    Is(canvas.DrawModulation(4, 9, bitmap, 0x80204060, &b), "DrawModulation canvas 4 9 bitmap b 80204060");
    Is(canvas.DrawCentered(a, texture, &b, Filter::nearest, 201), "DrawTextureCenter canvas a texture b 0 201");
    Is(canvas.DrawUniform(a, texture, m, false, Filter::area, 202), "DrawTextureUniform canvas a texture m 5 202 0");
    Is(canvas.DrawNineGrid(a, texture, m, {&b, Filter::area, 203, true, 2, .5}),
       "DrawTexture9Grid canvas a texture b m 5 1 203 0 2 0.5");
    canvas.DrawTiled(a, texture, &b, Tiles::scaled, 1.5F, Filter::nearest, 204);
    ExpectCalls("DrawTextureTile canvas a texture b 0 204 10 1.5;");
    canvas.DrawTopTiled(a, texture, m, &b, Filter::bicubic, 205);
    ExpectCalls("DrawTextureTopTile canvas a texture b m 4 205;");
}

TEST_F(WrapperCalls, OfCompositionAndFills) {
    const HDC dc = canvas.Dc();
    spy.Name("dc", {dc});
    spy.Calls();
    Is(canvas.Mix(a, other, b, 90), "MixCanvas canvas a other b 5a");
    Is(canvas.MixColor(a, 0x80102030, 60), "MixCanvasWithColor canvas a 80102030 3c");
    Is(canvas.Blend(a, other, b, 120), "BlendCanvas canvas a other b 120");
    Is(canvas.ScrollRows(-3), "CanvasScroll canvas 0 -3");
    Is(other.TransferTo(dc, a, b, 130), "GdiTransCanvas dc a other b 130");
    Is(canvas.FillSolidRect(0x40FF8000, a, Operation::destinationOver), "FillSolidRectEx canvas 40ff8000 a 6000000");
    Is(canvas.FillPremultipliedRect(0x40, a, Operation::multiply), "FillPreMulColorRectEx canvas 40 a 3000000");
    Is(canvas.FillGradualRect(0x12, 0x34, a, GradualDirection::leftToRight), "FillGradualRect canvas 12 34 a 2");
    Is(canvas.FillRectangle(a, 0x60302010), "FillRectangleEx canvas a 60302010");
    Is(canvas.FillRoundRect(a, corner, 0xA0FF00FF), "FillRoundRectEx canvas a corner a0ff00ff");
}

TEST_F(WrapperCalls, OfOutlinesAndShapes) {
    const auto pen = static_cast<HPEN>(GetStockObject(WHITE_PEN));
    const auto brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    spy.Name("pen", {pen});
    spy.Name("brush", {brush});
    Is(canvas.OutlineRectangle(a, pen, brush), "GeoRectangle canvas a pen brush");
    Is(canvas.OutlineRectangle(a, 0xFF20FF80, 3), "GeoRectangleEx canvas a ff20ff80 3");
    Is(canvas.OutlineRoundRect(a, corner, pen), "GeoRoundRect canvas a corner pen");
    Is(canvas.OutlineRoundRect(a, corner, 0xC0123456, 2), "GeoRoundRectEx canvas a corner c0123456 2");
    Is(canvas.OutlineFocus(a, 0xFFFFFFFF), "GeoRectFocusEx canvas a ffffffff");
    Is(canvas.DrawPoint(2, 3), "DrawPoint canvas 2 3");
    Is(canvas.DrawLine(1, 2, 30, 9), "DrawLine canvas 1 2 30 9");
    Is(canvas.DrawRectangle(2, 30, 9, 4), "DrawRectangle canvas 2 30 9 4");
    Is(canvas.DrawRoundRect(a, 6, 2), "DrawRoundRect canvas a 6 2");
    Is(canvas.DrawCircle(33, 9, 4), "DrawCircle canvas 33 9 4");
    Is(canvas.DrawEllipse(30, 20, 9, 14), "DrawEllipse canvas 30 20 9 14");
    Is(canvas.DrawPolygon(points), "DrawPolygon canvas 4 points");
    Is(canvas.DrawPolygon({}), "DrawPolygon canvas 0 null");
    Is(canvas.DrawBezier(points[3], corner, points[0], before), "DrawBezier canvas {9 38} corner points before");
    Is(canvas.DrawColor(0x30FF0000, a), "DrawColor canvas 30ff0000 a");
    Is(canvas.DrawPath(path), "DrawPath canvas path");
}

TEST_F(WrapperCalls, OfVectorStyle) {
    {
        const StyleScope saved = canvas.SaveStyle();
        canvas.SetColor(0xC0408020);
        canvas.SetGradient(gradient);
        canvas.SetBlendMode(BlendMode::screen);
        canvas.SetBlendValue(180);
        canvas.SetStrokeWidth(5);
        ExpectCalls(
            "Save canvas;SetColor canvas c0408020;SetGradient canvas gradient;SetBlendMode canvas 13;SetBlendValue "
            "canvas 180;SetStrokeWidth canvas 5;");
        Is(canvas.GetBlendMode(), "GetBlendMode canvas");
        Is(canvas.GetBlendValue(), "GetBlendValue canvas");
        Is(canvas.GetStrokeWidth(), "GetStrokeWidth canvas");
        canvas.SetDrawStyle(DrawStyle::stroke);
        canvas.SetStrokeCap(StrokeCap::square);
        canvas.SetStrokeJoin(StrokeJoin::round);
        canvas.SetDashStyle(DashStyle::dashDot);
        canvas.SetDashPattern(lengths);
        canvas.SetSmooth(false);
    }
    ExpectCalls(
        "SetDrawStyle canvas 1;SetStrokeCap canvas 2;SetStrokeJoin canvas 1;SetDashStyle canvas 3;SetDashPattern "
        "canvas lengths 2;SetSmooth canvas 0;Restore canvas;");
}

TEST_F(WrapperCalls, OfPathsAndGradients) {
    Is(path.MoveTo(3, 4), "PathMoveTo path 3 4");
    Is(path.LineTo(30, 11), "PathLineTo path 30 11");
    Is(path.ArcTo(40, 12, 33, 25, 5), "PathArcTo path 40 12 33 25 5");
    Is(path.BezierCurveTo(30, 31, 22, 35, 14, 27), "PathBezierCurveTo path 30 31 22 35 14 27");
    Is(path.QuadraticCurveTo(5, 30, 7, 14), "PathQuadraticCurveTo path 5 30 7 14");
    Is(path.Close(), "PathClose path");
    Is(path.AddArc(30, 20, 9, 1, 2.5F, true), "PathAddArc path 30 20 9 1 2.5 1");
    Is(path.Begin(), "PathBegin path");
    Is(path.AddRectangle(2, 30, 9, 4), "PathAddRectangle path 2 30 9 4");
    Is(path.AddCircle(40, 7, 3), "PathAddCircle path 40 7 3");
    Is(path.AddEllipse(30, 30, 9, 5), "PathAddEllipse path 30 30 9 5");
    Is(path.Bounds(), "PathGetBounds path {0 0 0 0}");
    Is(Gradient::CreateLinear(1, 2, 3, 4), "GradientCreateLinear 1 2 3 4");
    Is(Gradient::CreateRadial(9, 30, 2, 12, 28, 19), "GradientCreateRadial 9 30 2 12 28 19");
    Is(gradient.AddColorStop(.25F, 0xFFFF0000), "GradientAddColorStop gradient 0.25 ffff0000");
}

TEST_F(WrapperCalls, OfMemoryAndSettings) {
    BitmapLockInfo locked{};
    LockBitmapBitsEx(bitmap.Get(), &locked, nullptr);
    spy.Name("locked", {&locked});
    spy.Name("bits", {image.bmBits});
    spy.Calls();
    Is(CopyPixels(image, second, &b), "CopyBitmap_IPP image second b");
    Is(MirrorPixels(image, MirrorAxis::both), "Mirror image 2");
    Is(MirrorPixels(image, second, MirrorAxis::horizontal), "MirrorEx image second 1");
    Is(BlendPixels(image, second), "AlphaBlend_IPP image second");
    Is(FillPixels(image, 0x11223344, true), "SetColor_IPP image 11223344 1");
    Is(OrPixels(image, second, 0x00102030), "ARGBOrBitmap_IPP image second 102030");
    Is(AndPixels(image, second, 0xFFF0F7FF), "ARGBAndBitmap_IPP image second fff0f7ff");
    Is(BlurPixels(image, 3), "BlurBitmapData 21 18 84 bits 32 3");
    Is(NormalizePixels(locked), "NormalizeBitmap2 locked");
    Is(SetStretchKernel(StretchKernel::bSpline), "SetStretchKernelMode 1");
    Is(GetStretchKernel(), "GetStretchKernelMode");
    Is(RegisterResourceManager(nullptr), "RegisterD2DResoureMgr null");
}

}  // namespace

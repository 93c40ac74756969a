// The functions of the C++ wrapper against the exports that they stand for, family by family: they must make the same
// calls with the arguments in their places, so that answers and pixels are the same.
#include <functional>
#include <sstream>

#include "support/host.h"
#include "wrapper/import_trace.h"
#include "zorvic/zorvic.hpp"

namespace {

using namespace zorvic;

// Objects to work on, always made alike, and what calls answered.
struct World {
    World() {
        host::Fill(canvas.Surface().Get(), host::PremultipliedPattern{1});
        host::Fill(other.Surface().Get(), host::PremultipliedPattern{2});
        host::Fill(bitmap.Get(), host::PremultipliedPattern{3});
        host::Fill(texture.Get(), host::PremultipliedPattern{4});
        for (const BitmapRef& surface : {BitmapRef(bitmap), BitmapRef(texture), other.Surface()})
            surface.SetOperation(Operation::sourceOver);
        texture.SetSlices(slices);
        texture.SetLayout(Layout::nineGrid, margins);
        canvas.SetViewportOrigin(1, 2);
        host::Fill(system.Get(), host::Pattern{5});
        LockBitmapBits(system.Get(), &image, nullptr);
        LockBitmapBits(ofTexture, &ofTextureImage, nullptr);
    }

    void Note(double answer) { answers << answer << ' '; }
    void Note(const RECT& rect) { answers << host::ToText(rect); }
    void Note(const POINT& point) { Note(RECT{point.x, point.y, 0, 0}); }
    void Note(const SIZE& size) { Note(RECT{0, 0, size.cx, size.cy}); }
    void Note(HBITMAP handle) { Note(handle != nullptr); }
    void Note(const Bitmap& made) { Show(made); }
    void Note(const Texture& made) { Show(made); }
    void Show(BitmapRef surface) {
        const host::Snapshot pixels(surface.Get());
        for (const DWORD word : pixels.words) answers << std::hex << word << ' ';
    }
    std::string Outcome() {
        for (const BitmapRef& surface :
             {canvas.Surface(), other.Surface(), BitmapRef(bitmap), BitmapRef(texture), BitmapRef(system)})
            Show(surface);
        return answers.str();
    }

    const RECT dst{3, 4, 31, 24}, src{2, 1, 12, 9}, margins{2, 3, 4, 5}, part{1, 2, 19, 17};
    const RECT slices[2] = {{0, 0, 8, 8}, {1, 2, 20, 18}};
    const POINT corner{7, 3}, points[4] = {{2, 30}, {20, 26}, {33, 36}, {9, 38}};
    const float lengths[2] = {4, 2};
    Canvas canvas = Canvas::Create(48, 40), other = Canvas::Create(24, 20);
    Bitmap bitmap = Bitmap::Create(21, 18), system = Bitmap::CreateSystem(21, 18);
    Texture texture = Texture::Create(21, 18);
    BITMAP image{}, ofTextureImage{};
    // The same objects, for the exports.
    const HGCANVAS c = canvas.Get(), o = other.Get();
    const HGBITMAP b = bitmap.Get(), ofTexture = BitmapRef(texture).Get();
    const HGTEXTURE t = texture.Get();
    std::ostringstream answers;
};

// Notes answers. With braces the calls are made in the order in which they are written.
struct Noted {
    template <class... Answers>
    Noted(World& world, const Answers&... answers) {
        (world.Note(answers), ...);
    }
};

// What an export writes through its last argument.
template <class Result, class Handle>
Result Read(int(ZORVIC_CALL* get)(Handle, Result*), Handle handle) {
    Result result{};
    get(handle, &result);
    return result;
}

class WrapperCalls : public TracedTest {
protected:
    void ExpectSame(const std::function<void(World&)>& wrapped, const std::function<void(World&)>& direct);
};

void WrapperCalls::ExpectSame(const std::function<void(World&)>& wrapped, const std::function<void(World&)>& direct) {
    World ofWrapper, ofExports;
    trace.Calls();
    wrapped(ofWrapper);
    const std::string calls = trace.Calls();
    direct(ofExports);
    EXPECT_EQ(calls, trace.Calls());
    EXPECT_TRUE(ofWrapper.Outcome() == ofExports.Outcome()) << calls;
    EXPECT_FALSE(calls.empty());
}

TEST_F(WrapperCalls, OfBitmaps) {
    ExpectSame(
        [](World& w) {
            Noted{w,
                  w.bitmap.Size(),
                  w.bitmap.BitsPixel(),
                  w.bitmap.GdiHandle(),
                  w.bitmap.SetOperation(Operation::colorKey, 0x123456),
                  w.bitmap.OperationWord(),
                  w.bitmap.CopyFrom(w.texture, &w.part, &w.src)};
            w.Note(w.bitmap.Resized(9, 30, Filter::area));
            w.Note(w.bitmap.Transformed(Transform::rotate270));
            w.Note(Bitmap::Create(3, 2, 8, 4).BitsPixel());
            DeleteObject(w.bitmap.CreateRgn(&w.part));
        },
        [](World& w) {
            Noted{w,
                  Read(GetBitmapSize, w.b),
                  Read(GetBitmapBitsPixel, w.b),
                  GetBitmapHandle(w.b),
                  SetBitmapFilter(w.b, ZORVIC_OP_COLOR_KEY | 0x123456),
                  Read(GetBitmapFilter, w.b),
                  CopyBitmap(w.b, &w.part, w.ofTexture, &w.src)};
            w.Note(Bitmap(ResizeBitmap(w.b, 9, 30, ZORVIC_FILTER_AREA)));
            w.Note(Bitmap(TransformBitmap(w.b, ZORVIC_TRANSFORM_ROTATE_270)));
            w.Note(Read(GetBitmapBitsPixel, Bitmap(CreateMemBitmapEx(3, 2, 8, 4)).Get()));
            DeleteObject(CreateTextureRgn(reinterpret_cast<HGTEXTURE>(w.b), &w.part));
        });
    ExpectSame(
        [](World& w) {
            Noted{w,
                  w.bitmap.Gray(),
                  w.bitmap.ShuffleChannels(Shuffle::colorToAlpha, &w.part),
                  w.texture.Invert(),
                  w.texture.Normalize(),
                  w.bitmap.BlurFrom(w.texture),
                  w.texture.Dark(),
                  w.other.Surface().Light()};
        },
        [](World& w) {
            Noted{w,
                  GrayBitmap(w.b),
                  ShuffleBitmapEx(w.b, &w.part, ZORVIC_SHUFFLE_COLOR_TO_ALPHA),
                  InvertBitmap(w.ofTexture),
                  NormalizeBitmap(w.ofTexture),
                  BlurBitmap(w.b, w.ofTexture),
                  DarkBitmap(w.ofTexture),
                  LightBitmap(GetBitmap(w.o))};
        });
}

TEST_F(WrapperCalls, OfTextures) {
    ExpectSame(
        [](World& w) {
            Noted{w,
                  w.texture.ImageSize(),
                  w.texture.Size(),
                  w.texture.CurrentSlice(),
                  w.texture.SelectSlice(0),
                  w.texture.SliceCount(),
                  w.texture.Mode().margins,
                  w.texture.SetSlices({})};
            w.Note(w.texture.Resized(9, 30, Filter::nearest));
            w.Note(w.texture.Transformed(Transform::antiTranspose));
            Noted{w, w.texture.TranslateColor(0, 0x80402010), w.texture.Colorize(.25F, -.5F, .125F)};
            Noted{w, w.texture.Light(), w.texture.Gray(), w.canvas.View()};
        },
        [](World& w) {
            Noted{w,
                  Read(GetTextureSize, w.t),
                  Read(GetBitmapSize, w.ofTexture),
                  Read(GetTextureCurSlice, w.t),
                  SetTextureCurSlice(w.t, 0),
                  GetTextureSliceCount(w.t),
                  Read(GetTextureMode, w.t).margins,
                  SetTextureSlice(w.t, 0, nullptr)};
            w.Note(Texture(ResizeTexture(w.t, 9, 30, ZORVIC_FILTER_NEAREST)));
            w.Note(Texture(TransformTexture(w.t, ZORVIC_TRANSFORM_ANTI_TRANSPOSE)));
            Noted{w, TranslateTexture(w.t, 0, 0x80402010), ColorizeTexture(w.t, .25F, -.5F, .125F)};
            Noted{w, LightTexture(w.t), GrayTexture(w.t), Texture(GetTexture(w.c))};
        });
}

TEST_F(WrapperCalls, OfCanvasesAndTheirCoordinates) {
    const HWND window = GetDesktopWindow();
    ExpectSame(
        [=](World& w) {
            POINT before{};
            Noted{w, w.canvas.Size(), w.canvas.SetWindowOrigin(4, 3, &before), before, w.canvas.WindowOrigin()};
            Noted{w, w.canvas.SetViewportOrigin(6, 5, &before), before, w.canvas.ViewportOrigin()};
            Noted{w,
                  w.canvas.ToSurface(w.dst),
                  w.canvas.ToLogical(w.src),
                  w.canvas.SetClip(w.dst),
                  w.canvas.IntersectClip(w.part),
                  w.canvas.Clip()};
            DWORD color = 1;
            Noted{w, w.canvas.SetBkColor(0xFF123456, &color), color, w.canvas.BkColor()};
            Noted{w, w.canvas.SetOperation(Operation::colorKey, 0x654321), w.canvas.OperationWord()};
            Noted{w, w.canvas.SetWindow(window) == nullptr, w.canvas.Window() == window, w.canvas.Dc() != nullptr};
            Noted{w, Canvas::CreateSystem(3, 2, w.canvas).OperationWord(), Canvas::FromDc(w.canvas.Dc()).Size()};
        },
        [=](World& w) {
            POINT before{};
            Noted{w, Read(GetCanvasSize, w.c), SetWindowOrg(w.c, 4, 3, &before), before, Read(GetWindowOrg, w.c)};
            Noted{w, SetViewportOrg(w.c, 6, 5, &before), before, Read(GetViewportOrg, w.c)};
            RECT toDevice = w.dst, toWindow = w.src;
            WindowToDevice(w.c, &toDevice);
            DeviceToWindow(w.c, &toWindow);
            Noted{w,
                  toDevice,
                  toWindow,
                  SetCanvasClipRect(w.c, &w.dst),
                  IntersectCanvasClipRect(w.c, &w.part),
                  Read(GetCanvasClipRect, w.c)};
            DWORD color = 1;
            Noted{w, SetCanvasBkColor(w.c, 0xFF123456, &color), color, Read(GetCanvasBkColor, w.c)};
            Noted{w, SetCanvasFilter(w.c, ZORVIC_OP_COLOR_KEY | 0x654321), Read(GetCanvasFilter, w.c)};
            Noted{w, SetCanvasWindow(w.c, window) == nullptr, GetCanvasWindow(w.c) == window,
                  GetCanvasHandle(w.c) != nullptr};
            Noted{w, Read(GetCanvasFilter, Canvas(CreateSystemCanvas(3, 2, w.c)).Get()),
                  Read(GetCanvasSize, Canvas(CreateCanvasFromDC(GetCanvasHandle(w.c))).Get())};
        });
}

TEST_F(WrapperCalls, OfPictures) {
    ExpectSame(
        [](World& w) {
            TextureDrawParams params{};
            params = {ZORVIC_FILTER_NEAREST, 90, {}, 1, {}, 1, {4, 5, 0, 0}, 0, {}, 1, {}};
            Noted{w,
                  w.canvas.DrawBitmap(w.bitmap, 77),
                  w.canvas.DrawBitmap(w.dst, w.bitmap, Filter::bicubic, 150),
                  w.canvas.DrawBitmap(w.dst, w.bitmap, w.src, Filter::area, 99),
                  w.canvas.DrawTexture(w.dst, w.texture, Filter::bilinear, 120, 2, 1.5),
                  w.canvas.DrawTexture(w.part, w.texture, params),
                  w.canvas.DrawModulation(4, 9, w.bitmap, 0x80204060, &w.src)};
        },
        [](World& w) {
            TextureDrawParams params{};
            params = {ZORVIC_FILTER_NEAREST, 90, {}, 1, {}, 1, {4, 5, 0, 0}, 0, {}, 1, {}};
            Noted{w,
                  DrawBitmapEx(w.c, nullptr, w.b, ZORVIC_FILTER_NEAREST, 77),
                  DrawBitmapEx(w.c, &w.dst, w.b, ZORVIC_FILTER_BICUBIC, 150),
                  DrawBitmapEx2(w.c, &w.dst, w.b, &w.src, ZORVIC_FILTER_AREA, 99),
                  DrawTextureEx2(w.c, &w.dst, w.t, ZORVIC_FILTER_BILINEAR, 120, 2, 1.5),
                  DrawTextureEx3(w.c, &w.part, w.t, &params, nullptr),
                  DrawModulation(w.c, 4, 9, w.b, &w.src, 0x80204060)};
        });
    ExpectSame(
        [](World& w) {
            Noted{w, w.canvas.DrawCentered(w.dst, w.texture, &w.src, Filter::nearest, 201),
                  w.canvas.DrawUniform(w.dst, w.texture, w.margins, false, Filter::area, 202),
                  w.canvas.DrawNineGrid(w.dst, w.texture, w.margins, {&w.part, Filter::area, 203, true, 2, .5})};
            w.canvas.DrawTiled(w.dst, w.texture, &w.src, Tiles::scaled, 1.5F, Filter::nearest, 204);
            w.canvas.DrawTopTiled(w.part, w.texture, w.margins, &w.src, Filter::bicubic, 205);
        },
        [](World& w) {
            Noted{w, DrawTextureCenter(w.c, &w.dst, w.t, &w.src, ZORVIC_FILTER_NEAREST, 201),
                  DrawTextureUniform(w.c, &w.dst, w.t, &w.margins, ZORVIC_FILTER_AREA, 202, false),
                  DrawTexture9Grid(w.c, &w.dst, w.t, &w.part, &w.margins, ZORVIC_FILTER_AREA, 1, 203, 0, 2, .5)};
            DrawTextureTile(w.c, &w.dst, w.t, &w.src, ZORVIC_FILTER_NEAREST, 204, ZORVIC_TILE_SCALED, 1.5F);
            DrawTextureTopTile(w.c, &w.part, w.t, &w.src, &w.margins, ZORVIC_FILTER_BICUBIC, 205);
        });
}

TEST_F(WrapperCalls, OfCompositionAndFills) {
    ExpectSame(
        [](World& w) {
            Noted{w,
                  w.canvas.Mix(w.dst, w.other, w.src, 90),
                  w.canvas.MixColor(w.part, 0x80102030, 60),
                  w.canvas.Blend(w.part, w.other, w.src, 120),
                  w.other.ScrollRows(-3),
                  w.other.TransferTo(w.canvas.Dc(), w.dst, w.src, 130)};
            Noted{w,
                  w.canvas.FillSolidRect(0x40FF8000, w.part, Operation::destinationOver),
                  w.canvas.FillPremultipliedRect(0x40302010, w.src, Operation::multiply),
                  w.canvas.FillGradualRect(0xFF123456, 0x80FEDCBA, w.dst, GradualDirection::leftToRight),
                  w.canvas.FillRectangle(w.src, 0x60302010),
                  w.canvas.FillRoundRect(w.part, w.corner, 0xA0FF00FF)};
        },
        [](World& w) {
            Noted{w,
                  MixCanvas(w.c, &w.dst, w.o, &w.src, 90),
                  MixCanvasWithColor(w.c, &w.part, 0x80102030, 60),
                  BlendCanvas(w.c, &w.part, w.o, &w.src, 120),
                  CanvasScroll(w.o, 0, -3),
                  GdiTransCanvas(GetCanvasHandle(w.c), &w.dst, w.o, &w.src, 130)};
            Noted{w,
                  FillSolidRectEx(w.c, 0x40FF8000, &w.part, ZORVIC_OP_DESTINATION_OVER),
                  FillPreMulColorRectEx(w.c, 0x40302010, &w.src, ZORVIC_OP_MULTIPLY),
                  FillGradualRect(w.c, 0xFF123456, 0x80FEDCBA, &w.dst, ZORVIC_GRADUAL_LEFT_TO_RIGHT),
                  FillRectangleEx(w.c, &w.src, 0x60302010),
                  FillRoundRectEx(w.c, &w.part, &w.corner, 0xA0FF00FF)};
        });
}

TEST_F(WrapperCalls, OfOutlinesAndShapes) {
    const HPEN pen = CreatePen(PS_SOLID, 2, RGB(200, 100, 50));
    const auto brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    ExpectSame(
        [=](World& w) {
            Noted{w,
                  w.canvas.OutlineRectangle(w.dst, pen, brush),
                  w.canvas.OutlineRectangle(w.part, 0xFF20FF80, 3),
                  w.canvas.OutlineRoundRect(w.dst, w.corner, pen),
                  w.canvas.OutlineRoundRect(w.part, w.corner, 0xC0123456, 2),
                  w.canvas.OutlineFocus(w.src, 0xFFFFFFFF)};
            Noted{w,
                  w.canvas.DrawPoint(2, 3),
                  w.canvas.DrawLine(1, 2, 30, 9),
                  w.canvas.DrawRectangle(2, 30, 9, 4),
                  w.canvas.DrawRoundRect(w.part, 6, 2),
                  w.canvas.DrawCircle(33, 9, 4),
                  w.canvas.DrawEllipse(30, 20, 9, 14),
                  w.canvas.DrawPolygon(w.points),
                  w.canvas.DrawPolygon({}),
                  w.canvas.DrawBezier(w.points[3], w.points[1], w.points[0], w.points[2]),
                  w.canvas.DrawColor(0x30FF0000, w.src)};
        },
        [=](World& w) {
            Noted{w,
                  GeoRectangle(w.c, &w.dst, pen, brush),
                  GeoRectangleEx(w.c, &w.part, 0xFF20FF80, 3),
                  GeoRoundRect(w.c, &w.dst, &w.corner, pen),
                  GeoRoundRectEx(w.c, &w.part, &w.corner, 0xC0123456, 2),
                  GeoRectFocusEx(w.c, &w.src, 0xFFFFFFFF)};
            Noted{w,
                  DrawPoint(w.c, 2, 3),
                  DrawLine(w.c, 1, 2, 30, 9),
                  DrawRectangle(w.c, 2, 30, 9, 4),
                  DrawRoundRect(w.c, &w.part, 6, 2),
                  DrawCircle(w.c, 33, 9, 4),
                  DrawEllipse(w.c, 30, 20, 9, 14),
                  DrawPolygon(w.c, 4, w.points),
                  DrawPolygon(w.c, 0, nullptr),
                  DrawBezier(w.c, &w.points[3], &w.points[1], &w.points[0], &w.points[2]),
                  DrawColor(w.c, 0x30FF0000, &w.src)};
        });
    DeleteObject(pen);
}

TEST_F(WrapperCalls, OfVectorStyle) {
    // What the setters did shows in the shapes; the last one is drawn in the style that was saved.
    const auto draw = [](World& w) {
        DrawPolygon(w.c, 4, w.points);
        DrawLine(w.c, 4, 5, 30, 12);
    };
    ExpectSame(
        [=](World& w) {
            {
                const StyleScope saved = w.canvas.SaveStyle();
                w.canvas.SetColor(0xC0408020);
                w.canvas.SetBlendMode(BlendMode::screen);
                w.canvas.SetBlendValue(180);
                w.canvas.SetStrokeWidth(5);
                Noted{w, double(w.canvas.GetBlendMode()), w.canvas.GetBlendValue(), w.canvas.GetStrokeWidth()};
                w.canvas.SetDrawStyle(DrawStyle::stroke);
                w.canvas.SetStrokeCap(StrokeCap::square);
                w.canvas.SetStrokeJoin(StrokeJoin::round);
                draw(w);
                w.canvas.SetDashStyle(DashStyle::dashDot);
                draw(w);
                w.canvas.SetDashPattern(w.lengths);
                w.canvas.SetSmooth(false);
                draw(w);
                const Gradient gradient = Gradient::CreateRadial(9, 30, 2, 12, 28, 19);
                Noted{w, gradient.AddColorStop(.25F, 0xFFFF0000), gradient.AddColorStop(1, 0x400000FF)};
                w.canvas.SetGradient(gradient);
                w.canvas.SetDrawStyle(DrawStyle::gradient);
                draw(w);
            }
            draw(w);
        },
        [=](World& w) {
            Save(w.c);
            SetColor(w.c, 0xC0408020);
            SetBlendMode(w.c, ZORVIC_BLEND_SCREEN);
            SetBlendValue(w.c, 180);
            SetStrokeWidth(w.c, 5);
            Noted{w, GetBlendMode(w.c), GetBlendValue(w.c), GetStrokeWidth(w.c)};
            SetDrawStyle(w.c, ZORVIC_DRAW_STROKE);
            SetStrokeCap(w.c, ZORVIC_CAP_SQUARE);
            SetStrokeJoin(w.c, ZORVIC_JOIN_ROUND);
            draw(w);
            SetDashStyle(w.c, ZORVIC_DASH_DASH_DOT);
            draw(w);
            SetDashPattern(w.c, w.lengths, 2);
            SetSmooth(w.c, 0);
            draw(w);
            const HGGRADIENT gradient = GradientCreateRadial(9, 30, 2, 12, 28, 19);
            Noted{w, GradientAddColorStop(gradient, .25F, 0xFFFF0000), GradientAddColorStop(gradient, 1, 0x400000FF)};
            SetGradient(w.c, gradient);
            SetDrawStyle(w.c, ZORVIC_DRAW_GRADIENT);
            draw(w);
            GradientDestroy(gradient);
            Restore(w.c);
            draw(w);
        });
}

TEST_F(WrapperCalls, OfPaths) {
    ExpectSame(
        [](World& w) {
            const Path path = Path::Create();
            Noted{w,
                  path.MoveTo(3, 4),
                  path.LineTo(30, 11),
                  path.ArcTo(40, 12, 33, 25, 5),
                  path.BezierCurveTo(30, 31, 22, 35, 14, 27),
                  path.QuadraticCurveTo(5, 30, 7, 14),
                  path.Close(),
                  path.AddArc(30, 20, 9, 1, 2.5F, true),
                  path.Begin(),
                  path.AddRectangle(2, 30, 9, 4),
                  path.AddCircle(40, 7, 3),
                  path.AddEllipse(30, 30, 9, 5),
                  w.canvas.DrawPath(path)};
            const auto [left, top, right, bottom] = path.Bounds();
            Noted{w, left, top, right, bottom};
        },
        [](World& w) {
            const HGPATH path = PathCreate();
            Noted{w,
                  PathMoveTo(path, 3, 4),
                  PathLineTo(path, 30, 11),
                  PathArcTo(path, 40, 12, 33, 25, 5),
                  PathBezierCurveTo(path, 30, 31, 22, 35, 14, 27),
                  PathQuadraticCurveTo(path, 5, 30, 7, 14),
                  PathClose(path),
                  PathAddArc(path, 30, 20, 9, 1, 2.5F, 1),
                  PathBegin(path),
                  PathAddRectangle(path, 2, 30, 9, 4),
                  PathAddCircle(path, 40, 7, 3),
                  PathAddEllipse(path, 30, 30, 9, 5),
                  DrawPath(w.c, path)};
            const auto [left, top, right, bottom] = Read(PathGetBounds, path);
            Noted{w, left, top, right, bottom};
            PathDestroy(path);
        });
}

TEST_F(WrapperCalls, OfMemoryAndSettings) {
    ExpectSame(
        [](World& w) {
            BitmapLockInfo locked{};
            LockBitmapBitsEx(w.b, &locked, nullptr);
            Noted{w,
                  MirrorPixels(w.image, MirrorAxis::horizontal),
                  BlurPixels(w.image, 3),
                  BlendPixels(w.ofTextureImage, w.image),
                  OrPixels(w.image, w.image, 0x00102030),
                  AndPixels(w.image, w.image, 0xFFF0F7FF),
                  MirrorPixels(w.image, w.ofTextureImage, MirrorAxis::both),
                  NormalizePixels(locked)};
            Noted{w, CopyPixels(w.image, w.ofTextureImage, &w.part), FillPixels(w.image, 0x11223344, true)};
            Noted{w, SetStretchKernel(StretchKernel::cubicConvolution), double(GetStretchKernel()),
                  SetStretchKernel(StretchKernel::bSpline), RegisterResourceManager(nullptr) == nullptr};
        },
        [](World& w) {
            BitmapLockInfo locked{};
            LockBitmapBitsEx(w.b, &locked, nullptr);
            BITMAP& image = w.image;
            Noted{w,
                  Mirror(&image, ZORVIC_MIRROR_HORIZONTAL),
                  BlurBitmapData(21, 18, image.bmWidthBytes, image.bmBits, 32, 3),
                  AlphaBlend_IPP(&w.ofTextureImage, &image),
                  ARGBOrBitmap_IPP(&image, &image, 0x00102030),
                  ARGBAndBitmap_IPP(&image, &image, 0xFFF0F7FF),
                  MirrorEx(&image, &w.ofTextureImage, ZORVIC_MIRROR_BOTH),
                  NormalizeBitmap2(&locked)};
            Noted{w, CopyBitmap_IPP(&image, &w.ofTextureImage, &w.part), SetColor_IPP(&image, 0x11223344, 1)};
            Noted{w, SetStretchKernelMode(ZORVIC_KERNEL_CUBIC_CONVOLUTION), GetStretchKernelMode(),
                  SetStretchKernelMode(ZORVIC_KERNEL_B_SPLINE), RegisterD2DResoureMgr(nullptr) == nullptr};
        });
}

}  // namespace

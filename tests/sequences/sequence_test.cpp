// What zorvic32.dll says to its vector backend, as sequences of calls: a recording backend stands in for vekgraphic.dll.
#include <bit>
#include <cstring>
#include <functional>
#include <map>
#include <span>

#include "support/cpu_state.h"
#include "support/host.h"

using namespace host;

// Of the recording backend.
extern "C" __declspec(dllimport) const char* __cdecl vekRecordedCalls(void);
extern "C" __declspec(dllimport) int vekRefuseCanvases, vekMisalignedRects;

namespace {

constexpr RECT rect{5, 6, 25, 16}, here{-2, -3, 18, 7};  // the second is inside the clip
constexpr POINT corner{4, 3};

// A canvas of 40 x 30 with a clip and both origins, on which the backend is bound already.
OwnedCanvas MakeCanvas() {
    OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    const RECT clip{1, 2, 31, 22};
    SetCanvasClipRect(canvas.get(), &clip);
    SetViewportOrg(canvas.get(), 10, 20, nullptr);
    SetWindowOrg(canvas.get(), 3, 4, nullptr);
    SetColor(canvas.get(), 0);
    vekRecordedCalls();
    return canvas;
}

// A shape inside its frame.
std::string Framed(const std::string& shape) {
    return "Save\nClipRect (1 2 31 22)\nTranslate 10 20\nTranslate -3 -4\n" + shape + "\nRestore\n";
}
// In a style of its own.
std::string Styled(const std::string& style, const std::string& shape) {
    return "Save\n" + style + Framed(shape) + "Restore\n";
}

constexpr double nothing = 0;  // of functions without a result

// A call and what the backend hears of it.
struct Sequence {
    std::function<double(HGCANVAS)> call;
    std::string wanted;
    double result = 13;  // the backend's answer to everything
};

std::string Gradient(const std::string& line) {
    return "Save\nGradientCreateLinear " + line +
           "\nGradientAddColorStop 0 #40ff0000\nGradientAddColorStop 1 #ff00ff00\nSetGradient\nSetDrawStyle 2\n" +
           Framed("DrawRectangle -2 -3 20 10") + "GradientDestroy\nRestore\n";
}

int DrawWithPen(HGCANVAS canvas, int style) {
    const std::unique_ptr<HPEN__, decltype(&DeleteObject)> pen(CreatePen(style, 3, RGB(1, 2, 3)), DeleteObject);
    return GeoRoundRect(canvas, &rect, &corner, pen.get());
}

const POINT triangle[] = {{1, 2}, {7, 2}, {4, 9}};
const float pattern[] = {3, 1.5F};
const std::string roundRect = "DrawRoundRect (5 6 25 16) 4 3", solid = "SetColor #80ff0000\nSetDrawStyle 0\n",
                  pen = "SetColor #ff010203\nSetDrawStyle 1\nSetStrokeWidth 3\nSetDashStyle ";

const Sequence sequences[] = {
    {[](HGCANVAS c) { return DrawPoint(c, 1.5F, -2); }, Framed("DrawPoint 1.5 -2")},
    {[](HGCANVAS c) { return DrawLine(c, 1, 2, 3, 4); }, Framed("DrawLine 1 2 3 4")},
    {[](HGCANVAS c) { return DrawRectangle(c, 1, 2, 3, 4); }, Framed("DrawRectangle 1 2 3 4")},
    {[](HGCANVAS c) { return DrawRoundRect(c, &rect, 2, 3); }, Framed("DrawRoundRect (5 6 25 16) 2 3")},
    {[](HGCANVAS c) { return DrawCircle(c, 1, 2, 3); }, Framed("DrawCircle 1 2 3")},
    {[](HGCANVAS c) { return DrawEllipse(c, 1, 2, 3, 4); }, Framed("DrawEllipse 1 2 3 4")},
    {[](HGCANVAS c) { return DrawColor(c, 0x80FF0001, &rect); }, Framed("DrawColor #80ff0001 (5 6 25 16)")},
    {[](HGCANVAS c) { return DrawPath(c, nullptr); }, Framed("DrawPath null")},
    {[](HGCANVAS c) { return Save(c), nothing; }, "Save\n", nothing},
    {[](HGCANVAS c) { return Restore(c), nothing; }, "Restore\n", nothing},
    {[](HGCANVAS c) { return SetDrawStyle(c, 7), nothing; }, "SetDrawStyle 7\n", nothing},
    {[](HGCANVAS c) { return SetColor(c, 0x01020304), nothing; }, "SetColor #1020304\n", nothing},
    {[](HGCANVAS c) { return SetSmooth(c, 3), nothing; }, "SetSmooth 3\n", nothing},
    {[](HGCANVAS c) { return SetBlendMode(c, -4), nothing; }, "SetBlendMode -4\n", nothing},
    {[](HGCANVAS c) { return SetBlendValue(c, 300), nothing; }, "SetBlendValue 300\n", nothing},
    {[](HGCANVAS c) { return SetStrokeCap(c, 2), nothing; }, "SetStrokeCap 2\n", nothing},
    {[](HGCANVAS c) { return SetStrokeJoin(c, 1), nothing; }, "SetStrokeJoin 1\n", nothing},
    {[](HGCANVAS c) { return SetStrokeWidth(c, 2.5F), nothing; }, "SetStrokeWidth 2.5\n", nothing},
    {[](HGCANVAS c) { return SetDashStyle(c, 255), nothing; }, "SetDashStyle 255\n", nothing},
    {[](HGCANVAS c) { return SetDashPattern(c, pattern, 2), nothing; }, "SetDashPattern 3 2\n", nothing},
    {[](HGCANVAS c) { return SetGradient(c, nullptr), nothing; }, "SetGradient null\n", nothing},
    {[](HGCANVAS c) { return GetBlendMode(c); }, "GetBlendMode\n"},
    {[](HGCANVAS c) { return GetBlendValue(c); }, "GetBlendValue\n"},
    {[](HGCANVAS c) { return GetStrokeWidth(c); }, "GetStrokeWidth\n"},
    {[](HGCANVAS c) { return DrawPolygon(c, 3, triangle); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathLineTo 1 2\nPathLineTo 7 2\nPathLineTo 4 9\nPathClose\n"
            "DrawPath\nPathDestroy")},
    {[](HGCANVAS c) { return DrawPolygon(c, 0, triangle); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathClose\nDrawPath\nPathDestroy")},
    {[](HGCANVAS c) { return DrawBezier(c, triangle, triangle + 1, triangle + 2, &corner); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathBezierCurveTo 7 2 4 9 4 3\nDrawPath\nPathDestroy")},
    {[](HGCANVAS c) { return FillRectangleEx(c, &rect, 0x80FF0000); }, Styled(solid, "DrawRectangle 5 6 20 10")},
    {[](HGCANVAS c) { return FillRoundRectEx(c, &rect, &corner, 0x80FF0000); }, Styled(solid, roundRect)},
    {[](HGCANVAS c) { return GeoRectangleEx(c, &rect, 0xFF00FF00, 2); },
     Styled("SetColor #ff00ff00\nSetSmooth 0\nSetDrawStyle 1\nSetStrokeWidth 2\n", "DrawRectangle 5 6 19 9")},
    {[](HGCANVAS c) { return GeoRoundRectEx(c, &rect, &corner, 0xFF00FF00, 2); },
     Styled("SetColor #ff00ff00\nSetSmooth 1\nSetDrawStyle 1\nSetStrokeWidth 2\n", roundRect)},
    {[](HGCANVAS c) { return GeoRoundRect(c, &rect, &corner, nullptr); }, Styled("", roundRect)},
    {[](HGCANVAS c) { return DrawWithPen(c, PS_DASHDOTDOT); }, Styled(pen + "4\n", roundRect)},
    {[](HGCANVAS c) { return DrawWithPen(c, PS_INSIDEFRAME); }, Styled(pen + "0\n", roundRect)},
    {[](HGCANVAS c) { return FillGradualRect(c, 0x40FF0000, 0xFF00FF00, &here, 1); }, Gradient("-2 -3 -2 7"), 1},
    {[](HGCANVAS c) { return FillGradualRect(c, 0x40FF0000, 0xFF00FF00, &here, 2); }, Gradient("-2 -3 18 -3"), 1},
    // Clipped away; or a solid fill, because the colours are equal once premultiplied, or without a direction.
    {[](HGCANVAS c) { return FillGradualRect(c, 1, 0xFF000000, &rect, 1); }, "", 1},
    {[](HGCANVAS c) { return FillGradualRect(c, 0x01FF0000, 0x01800000, &here, 1); }, "", 1},
    {[](HGCANVAS c) { return FillGradualRect(c, 0xFFFF0000, 0xFF00FF00, &here, 3); }, "", 1},
};

void ExpectCalls(std::span<const Sequence> calls, HGCANVAS canvas) {
    for (const auto& [call, text, result] : calls) {
        EXPECT_EQ(call(canvas), result) << text;
        EXPECT_EQ(vekRecordedCalls(), text);
    }
}

}  // namespace

TEST(Sequences, EveryCallSaysWhatItShould) {
    const OwnedCanvas canvas = MakeCanvas();
    ExpectCalls(sequences, canvas.get());
    EXPECT_TRUE(Shows(canvas.get(), [](int x, int y) { return Inside({5, 13, 25, 22}, x, y) ? 0xFFFF0000U : 0U; }));
}

TEST(Sequences, RectanglesAreAlignedWhateverTheHostsAre) {
    const OwnedCanvas canvas = MakeCanvas();
    BYTE room[sizeof rect + 16];
    for (int residue = 0; residue < 16; residue += 4) {  // of the stack
        const auto call = [residue](auto function, auto... arguments) {
#if ZORVIC_WATCHES_CALLS
            const std::uint32_t words[] = {std::bit_cast<std::uint32_t>(arguments)...};
            zorvic::CallWatched(reinterpret_cast<const void*>(function), words, residue);
#else
            function(arguments...);
#endif
        };
        for (int shift = 0; shift < 16; ++shift) {
            const auto* const moved = reinterpret_cast<const RECT*>(std::memcpy(room + shift, &rect, sizeof rect));
            vekMisalignedRects = 0;
            vekRecordedCalls();
            call(DrawRoundRect, canvas.get(), moved, 2.0F, 3.0F);
            call(DrawColor, canvas.get(), 0UL, moved);
            call(FillRoundRectEx, canvas.get(), moved, &corner, 0UL);
            call(GeoRoundRect, canvas.get(), moved, &corner, HPEN{});
            call(GeoRoundRectEx, canvas.get(), moved, &corner, 0UL, 1);
            ASSERT_EQ(vekMisalignedRects, 0) << "stack " << residue << ", rectangle " << shift;
            const std::string calls = vekRecordedCalls();
            EXPECT_NE(calls.find("DrawRoundRect (5 6 25 16) 2 3"), calls.npos);
        }
    }
}

TEST(Sequences, TheBackendIsBoundOnFirstUseAndWhenThePixelsMove) {
    const std::string bind = "BitmapCreateFromData 7 5 28\nSetBitmap\nBitmapDestroy\n";
    vekRecordedCalls();
    for (const bool behindTheCanvas : {false, true}) {
        OwnedCanvas canvas(CreateCanvas(7, 5, nullptr));
        EXPECT_STREQ(vekRecordedCalls(), "") << "no backend before it is needed";
        EXPECT_EQ(GetBlendValue(canvas.get()), 13);
        EXPECT_EQ(vekRecordedCalls(), "Create\n" + bind + "GetBlendValue\n");
        GetBlendValue(canvas.get());
        EXPECT_STREQ(vekRecordedCalls(), "GetBlendValue\n") << "bound once";
        if (behindTheCanvas) GetBitmapHandle(GetBitmap(canvas.get()));
        if (!behindTheCanvas) GetCanvasHandle(canvas.get());
        GetBlendValue(canvas.get());
        EXPECT_EQ(vekRecordedCalls(), bind + "GetBlendValue\n") << behindTheCanvas;
        canvas.reset();
        EXPECT_STREQ(vekRecordedCalls(), "Destroy\n");
    }
}

TEST(Sequences, RoundedTexturesAreDrawnIntoAMask) {
    const OwnedTexture texture(CreateTexture(20, 10));
    const OwnedCanvas canvas(CreateCanvas(40, 40, nullptr));
    const RECT dst{0, 0, 40, 40};
    TextureDrawParams params{};
    params.alpha = 255;
    params.cornerRadii[0] = 8;
    params.cornerRadii[1] = 6;
    for (const LONG ellipse : {0, 1}) {
        params.ellipse = ellipse;
        vekRecordedCalls();
        EXPECT_EQ(DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr), 1);
        const std::string shape = ellipse ? "DrawEllipse 0 0 20 10\n" : "DrawRoundRect (0 0 20 10) 4 1.5\n";
        EXPECT_EQ(vekRecordedCalls(),
                  "Create\nBitmapCreateFromData 20 10 80\nSetBitmap\nBitmapDestroy\nSave\n"
                  "SetColor #ffffffff\n" +
                      shape +
                      "BitmapCreateFromData 20 10 80\nSetBlendMode 4\nDrawBitmap 0 0\n"
                      "SetBlendMode 0\nBitmapDestroy\nRestore\nDestroy\n");
    }
}

// Of the destination, the visible rows.
TEST(Sequences, ReducedTexturesAreCutOnTheDestination) {
    const OwnedTexture texture(CreateTexture(40, 50));
    const OwnedCanvas canvas(CreateCanvas(12, 12, nullptr));
    const RECT dst{5, -10, 25, 10};
    TextureDrawParams params{};
    params.alpha = 255;
    params.cornerRadii[0] = 8;
    params.cornerRadii[1] = 6;
    vekRecordedCalls();
    EXPECT_EQ(DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr), 1);
    EXPECT_STREQ(vekRecordedCalls(),
                 "Create\nBitmapCreateFromData 20 10 80\nSetBitmap\nBitmapDestroy\nSave\nSetColor #ffffffff\n"
                 "Translate 0 -10\nDrawRoundRect (0 0 20 20) 8 6\nTranslate 0 10\n"
                 "BitmapCreateFromData 20 10 80\nSetBlendMode 4\nDrawBitmap 0 0\nSetBlendMode 0\nBitmapDestroy\n"
                 "Restore\nDestroy\n");
}

TEST(Sequences, PathsAndGradientsAreHandedThrough) {
    const HGPATH path = PathCreate();
    const HGGRADIENT gradient = GradientCreateRadial(1, 2, 3, 4, 5, 6);
    EXPECT_STREQ(vekRecordedCalls(), "PathCreate\nGradientCreateRadial 1 2 3 4 5 6\n");
    PathBounds bounds{};
    const Sequence calls[] = {
        {[&](HGCANVAS) { return PathBegin(path); }, "PathBegin\n"},
        {[&](HGCANVAS) { return PathMoveTo(path, 1, 2); }, "PathMoveTo 1 2\n"},
        {[&](HGCANVAS) { return PathLineTo(path, 3, 4); }, "PathLineTo 3 4\n"},
        {[&](HGCANVAS) { return PathArcTo(path, 1, 2, 3, 4, 5); }, "PathArcTo 1 2 3 4 5\n"},
        {[&](HGCANVAS) { return PathBezierCurveTo(path, 1, 2, 3, 4, 5, 6); }, "PathBezierCurveTo 1 2 3 4 5 6\n"},
        {[&](HGCANVAS) { return PathQuadraticCurveTo(path, 1, 2, 3, 4); }, "PathQuadraticCurveTo 1 2 3 4\n"},
        {[&](HGCANVAS) { return PathAddArc(path, 1, 2, 3, 4, 5, 77); }, "PathAddArc 1 2 3 4 5 1\n"},
        {[&](HGCANVAS) { return PathAddRectangle(path, 1, 2, 3, 4); }, "PathAddRectangle 1 2 3 4\n"},
        {[&](HGCANVAS) { return PathAddCircle(path, 1, 2, 3); }, "PathAddCircle 1 2 3\n"},
        {[&](HGCANVAS) { return PathAddEllipse(path, 1, 2, 3, 4); }, "PathAddEllipse 1 2 3 4\n"},
        {[&](HGCANVAS) { return PathClose(path); }, "PathClose\n"},
        {[&](HGCANVAS) { return PathGetBounds(path, &bounds); }, "PathGetBounds\n"},
        {[&](HGCANVAS) { return GradientAddColorStop(gradient, 0.5F, 0x80FF0000); },
         "GradientAddColorStop 0.5 #80ff0000\n"},
        {[](HGCANVAS) { return GradientDestroy(GradientCreateLinear(1, 2, 3, 4)), nothing; },
         "GradientCreateLinear 1 2 3 4\nGradientDestroy\n", nothing},
        {[&](HGCANVAS) { return PathDestroy(path), nothing; }, "PathDestroy\n", nothing},
    };
    ExpectCalls(calls, nullptr);
    EXPECT_TRUE(bounds.left == 1 && bounds.top == 2 && bounds.right == 3 && bounds.bottom == 4);
    GradientDestroy(gradient);
}

TEST(Sequences, WithoutASurfaceOrABackendNothingIsSaid) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const OwnedCanvas onDc(CreateCanvasFromDC(dc)), refused(CreateCanvas(8, 8, nullptr));
    vekRecordedCalls();
    vekRefuseCanvases = 1;
    const std::map<std::string, double> getters{
        {"GetBlendMode\n", -1}, {"GetBlendValue\n", 255}, {"GetStrokeWidth\n", 1}};
    for (const HGCANVAS canvas : {onDc.get(), refused.get(), HGCANVAS{}})
        for (const auto& [call, text, result] : sequences) {
            const bool isGetter = getters.contains(text);
            EXPECT_EQ(call(canvas), isGetter ? getters.at(text) : result == 1 && canvas) << text;
            std::string calls = vekRecordedCalls();
            while (calls.starts_with("Create\n")) calls.erase(0, 7);
            EXPECT_EQ(calls, "") << text;
        }
    vekRefuseCanvases = 0;
    EXPECT_EQ(FillRectangleEx(refused.get(), &rect, 0xFF000000), 13) << "the canvas works again";
    DeleteDC(dc);
}

// What zorvic32.dll says to its vector backend, as sequences of calls: a recording backend stands in for vekgraphic.dll.
#include <functional>

#include "support/host.h"

using namespace host;

// Of the recording backend.
extern "C" __declspec(dllimport) const char* __cdecl vekRecordedCalls(void);
extern "C" __declspec(dllimport) int vekRefuseCanvases;

namespace {

constexpr RECT rect{5, 6, 25, 16};
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

// A call and what the backend hears of it.
struct Sequence {
    template <class Call>
    Sequence(Call make, std::string calls) : wanted(std::move(calls)) {
        call = [make](HGCANVAS canvas) {
            if constexpr (std::is_void_v<decltype(make(canvas))>)
                return make(canvas), nothing;
            else
                return static_cast<double>(make(canvas));
        };
        nothingReturned = std::is_void_v<decltype(make(HGCANVAS{}))>;
    }
    // The backend's answers are the lengths of its functions' names: shapes and questions hand them through.
    double Result() const {
        if (nothingReturned || wanted.empty()) return nothingReturned ? nothing : 1;
        const std::size_t answer = wanted.find("\nDraw") + 1;  // 0 without one
        return static_cast<double>(wanted.find_first_of(" \n", answer) - answer);
    }

    static constexpr double nothing = -9;
    std::function<double(HGCANVAS)> call;
    std::string wanted;
    bool nothingReturned;
};

const POINT triangle[] = {{1, 2}, {7, 2}, {4, 9}};
const float pattern[] = {3, 1.5F};
const std::string roundRect = "DrawRoundRect (5 6 25 16) 4 3", solid = "SetColor #80ff0000\nSetDrawStyle 0\n";

const Sequence sequences[] = {
    {[](HGCANVAS c) { return DrawPoint(c, 1.5F, -2); }, Framed("DrawPoint 1.5 -2")},
    {[](HGCANVAS c) { return DrawLine(c, 1, 2, 3, 4); }, Framed("DrawLine 1 2 3 4")},
    {[](HGCANVAS c) { return DrawRectangle(c, 1, 2, 3, 4); }, Framed("DrawRectangle 1 2 3 4")},
    {[](HGCANVAS c) { return DrawRoundRect(c, &rect, 2, 3); }, Framed("DrawRoundRect (5 6 25 16) 2 3")},
    {[](HGCANVAS c) { return DrawCircle(c, 1, 2, 3); }, Framed("DrawCircle 1 2 3")},
    {[](HGCANVAS c) { return DrawEllipse(c, 1, 2, 3, 4); }, Framed("DrawEllipse 1 2 3 4")},
    {[](HGCANVAS c) { return DrawColor(c, 0x80FF0001, &rect); }, Framed("DrawColor #80ff0001 (5 6 25 16)")},
    {[](HGCANVAS c) { return DrawPath(c, nullptr); }, Framed("DrawPath null")},
    {[](HGCANVAS c) { return DrawPolygon(c, 3, triangle); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathLineTo 1 2\nPathLineTo 7 2\nPathLineTo 4 9\nPathClose\n"
            "DrawPath\nPathDestroy")},
    {[](HGCANVAS c) { return DrawPolygon(c, 0, triangle); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathClose\nDrawPath\nPathDestroy")},
    {[](HGCANVAS c) { return DrawBezier(c, triangle, triangle + 1, triangle + 2, &corner); },
     Framed("PathCreate\nPathBegin\nPathMoveTo 1 2\nPathBezierCurveTo 7 2 4 9 4 3\nDrawPath\nPathDestroy")},

    {[](HGCANVAS c) { Save(c); }, "Save\n"},
    {[](HGCANVAS c) { Restore(c); }, "Restore\n"},
    {[](HGCANVAS c) { SetDrawStyle(c, 7); }, "SetDrawStyle 7\n"},
    {[](HGCANVAS c) { SetColor(c, 0x01020304); }, "SetColor #1020304\n"},
    {[](HGCANVAS c) { SetSmooth(c, 3); }, "SetSmooth 3\n"},
    {[](HGCANVAS c) { SetBlendMode(c, -4); }, "SetBlendMode -4\n"},
    {[](HGCANVAS c) { SetBlendValue(c, 300); }, "SetBlendValue 300\n"},
    {[](HGCANVAS c) { SetStrokeCap(c, 2); }, "SetStrokeCap 2\n"},
    {[](HGCANVAS c) { SetStrokeJoin(c, 1); }, "SetStrokeJoin 1\n"},
    {[](HGCANVAS c) { SetStrokeWidth(c, 2.5F); }, "SetStrokeWidth 2.5\n"},
    {[](HGCANVAS c) { SetDashStyle(c, 255); }, "SetDashStyle 255\n"},
    {[](HGCANVAS c) { SetDashPattern(c, pattern, 2); }, "SetDashPattern 3 2\n"},
    {[](HGCANVAS c) { SetGradient(c, nullptr); }, "SetGradient null\n"},
    {[](HGCANVAS c) { return GetBlendMode(c); }, "GetBlendMode\n"},
    {[](HGCANVAS c) { return GetBlendValue(c); }, "GetBlendValue\n"},
    {[](HGCANVAS c) { return GetStrokeWidth(c); }, "GetStrokeWidth\n"},

    {[](HGCANVAS c) { return FillRectangleEx(c, &rect, 0x80FF0000); }, Styled(solid, "DrawRectangle 5 6 20 10")},
    {[](HGCANVAS c) { return FillRoundRectEx(c, &rect, &corner, 0x80FF0000); }, Styled(solid, roundRect)},
    {[](HGCANVAS c) { return FillGradualRect(c, 1, 0xFF000000, &rect, 1); }, ""},  // clipped away
    {[](HGCANVAS c) { return GeoRectangleEx(c, &rect, 0xFF00FF00, 2); },
     Styled("SetColor #ff00ff00\nSetSmooth 0\nSetDrawStyle 1\nSetStrokeWidth 2\n", "DrawRectangle 5 6 19 9")},
    {[](HGCANVAS c) { return GeoRoundRectEx(c, &rect, &corner, 0xFF00FF00, 2); },
     Styled("SetColor #ff00ff00\nSetSmooth 1\nSetDrawStyle 1\nSetStrokeWidth 2\n", roundRect)},
    {[](HGCANVAS c) { return GeoRoundRect(c, &rect, &corner, nullptr); }, Styled("", roundRect)},
};

}  // namespace

TEST(Sequences, EveryCallSaysWhatItShould) {
    const OwnedCanvas canvas = MakeCanvas();
    for (const Sequence& sequence : sequences) {
        EXPECT_EQ(sequence.call(canvas.get()), sequence.Result()) << sequence.wanted;
        EXPECT_EQ(vekRecordedCalls(), sequence.wanted);
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
        if (behindTheCanvas) {
            GetBitmapHandle(GetBitmap(canvas.get()));
        } else {
            GetCanvasHandle(canvas.get());
        }
        GetBlendValue(canvas.get());
        EXPECT_EQ(vekRecordedCalls(), bind + "GetBlendValue\n") << behindTheCanvas;
        canvas.reset();
        EXPECT_STREQ(vekRecordedCalls(), "Destroy\n");
    }
}

TEST(Sequences, GradientsRunAlongTheirDirection) {
    const OwnedCanvas canvas = MakeCanvas();
    const RECT here{-2, -3, 18, 7};  // inside the clip
    for (const auto& [direction, line] : {std::pair(1UL, "-2 -3 -2 7"), {2UL, "-2 -3 18 -3"}}) {
        EXPECT_EQ(FillGradualRect(canvas.get(), 0x40FF0000, 0xFF00FF00, &here, direction), 1);
        EXPECT_EQ(vekRecordedCalls(), "Save\nGradientCreateLinear " + std::string(line) +
                                          "\nGradientAddColorStop 0 #40ff0000\nGradientAddColorStop 1 #ff00ff00\n"
                                          "SetGradient\nSetDrawStyle 2\n" +
                                          Framed("DrawRectangle -2 -3 20 10") + "GradientDestroy\nRestore\n");
    }
    // Equal once premultiplied, or no direction: a solid fill, which the backend never sees.
    EXPECT_EQ(FillGradualRect(canvas.get(), 0x00FF0000, 0x0000FF00, &here, 1), 1);
    EXPECT_EQ(FillGradualRect(canvas.get(), 0xFFFF0000, 0xFF00FF00, &here, 3), 1);
    EXPECT_STREQ(vekRecordedCalls(), "");
    EXPECT_TRUE(Shows(canvas.get(), [](int x, int y) { return Inside({5, 13, 25, 22}, x, y) ? 0xFFFF0000U : 0U; }));
}

TEST(Sequences, PensBecomeStyles) {
    const OwnedCanvas canvas = MakeCanvas();
    for (const int style : {PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_INSIDEFRAME}) {
        const HPEN pen = CreatePen(style, 3, RGB(1, 2, 3));
        EXPECT_EQ(GeoRoundRect(canvas.get(), &rect, &corner, pen), 13);
        DeleteObject(pen);
        const std::string dash = std::to_string(style <= PS_DASHDOTDOT ? style : 0);
        EXPECT_EQ(
            vekRecordedCalls(),
            Styled("SetColor #ff010203\nSetDrawStyle 1\nSetStrokeWidth 3\nSetDashStyle " + dash + '\n', roundRect));
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
        {[](HGCANVAS) { GradientDestroy(GradientCreateLinear(1, 2, 3, 4)); },
         "GradientCreateLinear 1 2 3 4\nGradientDestroy\n"},
        {[&](HGCANVAS) { PathDestroy(path); }, "PathDestroy\n"},
    };
    for (const Sequence& call : calls) {
        EXPECT_EQ(call.call(nullptr), call.Result()) << call.wanted;
        EXPECT_EQ(vekRecordedCalls(), call.wanted);
    }
    EXPECT_TRUE(bounds.left == 1 && bounds.top == 2 && bounds.right == 3 && bounds.bottom == 4);
    GradientDestroy(gradient);
}

TEST(Sequences, WithoutASurfaceOrABackendNothingIsSaid) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const OwnedCanvas onDc(CreateCanvasFromDC(dc)), refused(CreateCanvas(8, 8, nullptr));
    vekRecordedCalls();
    vekRefuseCanvases = 1;
    for (const HGCANVAS canvas : {onDc.get(), refused.get(), HGCANVAS{}})
        for (const Sequence& sequence : sequences) {
            const double wanted = sequence.nothingReturned                ? Sequence::nothing
                                  : sequence.wanted == "GetStrokeWidth\n" ? 1
                                  : sequence.wanted == "GetBlendMode\n"   ? -1
                                  : sequence.wanted == "GetBlendValue\n"  ? 255
                                  : sequence.wanted.empty() && canvas     ? 1
                                                                          : 0;
            EXPECT_EQ(sequence.call(canvas), wanted) << sequence.wanted;
            std::string calls = vekRecordedCalls();
            while (calls.starts_with("Create\n")) calls.erase(0, 7);
            EXPECT_EQ(calls, "") << sequence.wanted;
        }
    vekRefuseCanvases = 0;
    EXPECT_EQ(FillRectangleEx(refused.get(), &rect, 0xFF000000), 13) << "the canvas works again";
    DeleteDC(dc);
}

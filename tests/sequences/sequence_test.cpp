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
    return "save\nclip (1 2 31 22)\ntranslate 10 20\ntranslate -3 -4\n" + shape + "\nrestore\n";
}

struct Sequence {
    const char* name;
    std::function<double(HGCANVAS)> call;  // its result; -9 for none
    double result;
    std::string wanted;
};

// The result of a call that returns nothing.
template <class Call>
std::function<double(HGCANVAS)> Silent(Call call) {
    return [call](HGCANVAS canvas) { return call(canvas), -9.0; };
}

const POINT triangle[] = {{1, 2}, {7, 2}, {4, 9}};
const float pattern[] = {3, 1.5F};

const Sequence sequences[] = {
    {"point", [](HGCANVAS c) { return DrawPoint(c, 1.5F, -2); }, 11, Framed("point 1.5 -2")},
    {"line", [](HGCANVAS c) { return DrawLine(c, 1, 2, 3, 4); }, 12, Framed("line 1 2 3 4")},
    {"rectangle", [](HGCANVAS c) { return DrawRectangle(c, 1, 2, 3, 4); }, 13, Framed("rectangle 1 2 3 4")},
    {"round rect", [](HGCANVAS c) { return DrawRoundRect(c, &rect, 2, 3); }, 14, Framed("round rect (5 6 25 16) 2 3")},
    {"circle", [](HGCANVAS c) { return DrawCircle(c, 1, 2, 3); }, 15, Framed("circle 1 2 3")},
    {"ellipse", [](HGCANVAS c) { return DrawEllipse(c, 1, 2, 3, 4); }, 16, Framed("ellipse 1 2 3 4")},
    {"color", [](HGCANVAS c) { return DrawColor(c, 0x80FF0001, &rect); }, 18, Framed("fill #80FF0001 (5 6 25 16)")},
    {"path", [](HGCANVAS c) { return DrawPath(c, nullptr); }, 17, Framed("path")},
    {"polygon", [](HGCANVAS c) { return DrawPolygon(c, 3, triangle); }, 17,
     Framed("create path\nbegin\nmove 1 2\nto 1 2\nto 7 2\nto 4 9\nclose\npath\ndestroy path")},
    {"polygon of nothing", [](HGCANVAS c) { return DrawPolygon(c, 0, triangle); }, 17,
     Framed("create path\nbegin\nmove 1 2\nclose\npath\ndestroy path")},
    {"bezier", [](HGCANVAS c) { return DrawBezier(c, triangle, triangle + 1, triangle + 2, &corner); }, 17,
     Framed("create path\nbegin\nmove 1 2\ncurve 7 2 4 9 4 3\npath\ndestroy path")},

    {"save", Silent([](HGCANVAS c) { Save(c); }), -9, "save\n"},
    {"restore", Silent([](HGCANVAS c) { Restore(c); }), -9, "restore\n"},
    {"draw style", Silent([](HGCANVAS c) { SetDrawStyle(c, 7); }), -9, "style 7\n"},
    {"set color", Silent([](HGCANVAS c) { SetColor(c, 0x01020304); }), -9, "color #01020304\n"},
    {"smooth", Silent([](HGCANVAS c) { SetSmooth(c, 3); }), -9, "smooth 3\n"},
    {"blend mode", Silent([](HGCANVAS c) { SetBlendMode(c, -4); }), -9, "blend mode -4\n"},
    {"blend value", Silent([](HGCANVAS c) { SetBlendValue(c, 300); }), -9, "blend value 300\n"},
    {"cap", Silent([](HGCANVAS c) { SetStrokeCap(c, 2); }), -9, "cap 2\n"},
    {"join", Silent([](HGCANVAS c) { SetStrokeJoin(c, 1); }), -9, "join 1\n"},
    {"width", Silent([](HGCANVAS c) { SetStrokeWidth(c, 2.5F); }), -9, "width 2.5\n"},
    {"dash style", Silent([](HGCANVAS c) { SetDashStyle(c, 255); }), -9, "dash 255\n"},
    {"dash pattern", Silent([](HGCANVAS c) { SetDashPattern(c, pattern, 2); }), -9, "dashes 2 1.5\n"},
    {"gradient", Silent([](HGCANVAS c) { SetGradient(c, nullptr); }), -9, "gradient 0\n"},
    {"get blend mode", [](HGCANVAS c) { return GetBlendMode(c); }, 7, "get blend mode\n"},
    {"get blend value", [](HGCANVAS c) { return GetBlendValue(c); }, 100, "get blend value\n"},
    {"get width", [](HGCANVAS c) { return GetStrokeWidth(c); }, 2.5, "get width\n"},

    {"FillRectangleEx", [](HGCANVAS c) { return FillRectangleEx(c, &rect, 0x80FF0000); }, 13,
     "save\ncolor #80FF0000\nstyle 0\n" + Framed("rectangle 5 6 20 10") + "restore\n"},
    {"FillRoundRectEx", [](HGCANVAS c) { return FillRoundRectEx(c, &rect, &corner, 0x80FF0000); }, 14,
     "save\ncolor #80FF0000\nstyle 0\n" + Framed("round rect (5 6 25 16) 4 3") + "restore\n"},
    {"FillGradualRect, clipped away", [](HGCANVAS c) { return FillGradualRect(c, 1, 0xFF000000, &rect, 1); }, 1, ""},
    {"GeoRectangleEx", [](HGCANVAS c) { return GeoRectangleEx(c, &rect, 0xFF00FF00, 2); }, 13,
     "save\ncolor #FF00FF00\nsmooth 0\nstyle 1\nwidth 2\n" + Framed("rectangle 5 6 19 9") + "restore\n"},
    {"GeoRoundRectEx", [](HGCANVAS c) { return GeoRoundRectEx(c, &rect, &corner, 0xFF00FF00, 2); }, 14,
     "save\ncolor #FF00FF00\nsmooth 1\nstyle 1\nwidth 2\n" + Framed("round rect (5 6 25 16) 4 3") + "restore\n"},
    {"GeoRoundRect without a pen", [](HGCANVAS c) { return GeoRoundRect(c, &rect, &corner, nullptr); }, 14,
     "save\n" + Framed("round rect (5 6 25 16) 4 3") + "restore\n"},
};

}  // namespace

TEST(Sequences, EveryCallSaysWhatItShould) {
    const OwnedCanvas canvas = MakeCanvas();
    for (const Sequence& sequence : sequences) {
        EXPECT_EQ(sequence.call(canvas.get()), sequence.result) << sequence.name;
        EXPECT_EQ(vekRecordedCalls(), sequence.wanted) << sequence.name;
    }
}

TEST(Sequences, TheBackendIsBoundOnFirstUseAndWhenThePixelsMove) {
    vekRecordedCalls();
    OwnedCanvas canvas(CreateCanvas(7, 5, nullptr));
    EXPECT_STREQ(vekRecordedCalls(), "") << "no backend before it is needed";
    EXPECT_EQ(GetBlendValue(canvas.get()), 100);
    const std::string first = vekRecordedCalls();
    EXPECT_EQ(first.substr(0, first.find("bind")), "create canvas\nbits 7 5 28\n");
    EXPECT_NE(first.find("destroy bitmap"), std::string::npos);
    GetBlendValue(canvas.get());
    EXPECT_STREQ(vekRecordedCalls(), "get blend value\n") << "bound once";

    GetCanvasHandle(canvas.get());
    const std::string moved = vekRecordedCalls();
    EXPECT_EQ(moved.substr(0, moved.find("bind")), "bits 7 5 28\n");

    canvas.reset(CreateCanvas(7, 5, nullptr));
    GetBlendValue(canvas.get());
    vekRecordedCalls();
    GetBitmapHandle(GetBitmap(canvas.get()));  // the surface moves behind the canvas's back
    GetBlendValue(canvas.get());
    const std::string late = vekRecordedCalls();
    EXPECT_EQ(late.substr(0, late.find("bind")), "bits 7 5 28\n");
    canvas.reset();
    EXPECT_NE(std::string(vekRecordedCalls()).find("destroy canvas"), std::string::npos);
}

TEST(Sequences, GradientsRunAlongTheirDirection) {
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    SetColor(canvas.get(), 0);
    vekRecordedCalls();
    const std::string frame = "save\nclip (0 0 40 30)\ntranslate 0 0\ntranslate 0 0\nrectangle 5 6 20 10\nrestore\n";
    const struct {
        DWORD direction;
        std::string line;
    } cases[] = {{1, "linear 5 6 5 16\n"}, {2, "linear 5 6 25 6\n"}};
    for (const auto& c : cases) {
        EXPECT_EQ(FillGradualRect(canvas.get(), 0x40FF0000, 0xFF00FF00, &rect, c.direction), 1);
        std::string calls = vekRecordedCalls();
        const std::size_t handle = calls.find("\ngradient ") + 10;
        calls.erase(handle, calls.find('\n', handle) - handle);
        EXPECT_EQ(calls, "save\n" + c.line + "stop 0 #40FF0000\nstop 1 #FF00FF00\ngradient \nstyle 2\n" + frame +
                             "destroy gradient\nrestore\n");
    }
    // Equal once premultiplied, or no direction: a solid fill, which the backend never sees.
    EXPECT_EQ(FillGradualRect(canvas.get(), 0x00FF0000, 0x0000FF00, &rect, 1), 1);
    EXPECT_EQ(FillGradualRect(canvas.get(), 0xFFFF0000, 0xFF00FF00, &rect, 3), 1);
    EXPECT_STREQ(vekRecordedCalls(), "");
    EXPECT_TRUE(Shows(canvas.get(), [](int x, int y) { return Inside(rect, x, y) ? 0xFFFF0000U : 0U; }));
}

TEST(Sequences, PensBecomeStyles) {
    const OwnedCanvas canvas = MakeCanvas();
    for (const int style : {PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_INSIDEFRAME}) {
        const HPEN pen = CreatePen(style, 3, RGB(1, 2, 3));
        EXPECT_EQ(GeoRoundRect(canvas.get(), &rect, &corner, pen), 14);
        DeleteObject(pen);
        const int dash = style <= PS_DASHDOTDOT ? style : 0;
        EXPECT_EQ(vekRecordedCalls(), "save\ncolor #FF010203\nstyle 1\nwidth 3\ndash " + std::to_string(dash) + '\n' +
                                          Framed("round rect (5 6 25 16) 4 3") + "restore\n")
            << "pen style " << style;
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
        const std::string calls = vekRecordedCalls();
        const std::string shape = ellipse ? "ellipse 0 0 20 10\n" : "round rect (0 0 20 10) 4 1.5\n";
        EXPECT_NE(calls.find("save\ncolor #FFFFFFFF\n" + shape +
                             "bits 20 10 80\nblend mode 4\nbitmap 0 0\nblend mode 0\ndestroy bitmap"),
                  std::string::npos)
            << calls;
        EXPECT_NE(calls.find("restore\n"), std::string::npos);
    }
}

TEST(Sequences, PathsAndGradientsAreHandedThrough) {
    const HGPATH path = PathCreate();
    PathBounds bounds{};
    EXPECT_EQ(PathBegin(path) + PathMoveTo(path, 1, 2) + PathLineTo(path, 3, 4) + PathArcTo(path, 1, 2, 3, 4, 5) +
                  PathBezierCurveTo(path, 1, 2, 3, 4, 5, 6) + PathQuadraticCurveTo(path, 1, 2, 3, 4) +
                  PathAddArc(path, 1, 2, 3, 4, 5, 77) + PathAddRectangle(path, 1, 2, 3, 4) +
                  PathAddCircle(path, 1, 2, 3) + PathAddEllipse(path, 1, 2, 3, 4) + PathClose(path) +
                  PathGetBounds(path, &bounds),
              12);
    PathGetBounds(path, nullptr);
    PathDestroy(path);
    EXPECT_EQ(bounds.bottom, 4);
    EXPECT_STREQ(vekRecordedCalls(),
                 "create path\nbegin\nmove 1 2\nto 3 4\narc to 1 2 3 4 5\ncurve 1 2 3 4 5 6\nquad 1 2 3 4\n"
                 "arc 1 2 3 4 5 1\nadd rectangle 1 2 3 4\nadd circle 1 2 3\nadd ellipse 1 2 3 4\nclose\nbounds\n"
                 "destroy path\n");

    GradientDestroy(GradientCreateLinear(1, 2, 3, 4));
    const HGGRADIENT gradient = GradientCreateRadial(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(GradientAddColorStop(gradient, 0.5F, 0x80FF0000), 1);
    GradientDestroy(gradient);
    EXPECT_STREQ(vekRecordedCalls(),
                 "linear 1 2 3 4\ndestroy gradient\nradial 1 2 3 4 5 6\nstop 0.5 #80FF0000\ndestroy gradient\n");
}

TEST(Sequences, WithoutASurfaceTheBackendHearsNothing) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const OwnedCanvas canvas(CreateCanvasFromDC(dc));
    for (const HGCANVAS handle : {canvas.get(), HGCANVAS{}})
        for (const Sequence& sequence : sequences) {
            const double result = sequence.call(handle);
            const double wanted = sequence.result == -9                    ? -9
                                  : sequence.wanted == "get width\n"       ? 1
                                  : sequence.wanted == "get blend mode\n"  ? -1
                                  : sequence.wanted == "get blend value\n" ? 255
                                  : sequence.wanted.empty() && handle      ? 1
                                                                           : 0;
            EXPECT_EQ(result, wanted) << sequence.name;
        }
    EXPECT_STREQ(vekRecordedCalls(), "");
    DeleteDC(dc);
}

TEST(Sequences, NothingIsSavedWhenTheBackendCannotBeBound) {
    const OwnedCanvas canvas(CreateCanvas(8, 8, nullptr));
    vekRecordedCalls();
    vekRefuseCanvases = 1;
    for (const Sequence& sequence : sequences) {
        const double result = sequence.call(canvas.get());
        std::string calls = vekRecordedCalls();
        EXPECT_TRUE(result == sequence.result || result <= 1 || result == 255) << sequence.name;
        while (calls.starts_with("create canvas\n")) calls.erase(0, 14);
        EXPECT_EQ(calls, "") << sequence.name;
    }
    vekRefuseCanvases = 0;
    EXPECT_EQ(FillRectangleEx(canvas.get(), &rect, 0xFF000000), 13) << "the canvas works again";
}

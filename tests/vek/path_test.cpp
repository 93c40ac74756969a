// Figures and current points, exact extents, arcs, and gradients sampled at known places.
#include <cmath>
#include <functional>
#include <numbers>

#include "drawing.h"

using namespace vek_test;

namespace {

constexpr auto pi = std::numbers::pi_v<float>;

}  // namespace

TEST(Path, BoundsAreExact) {
    const float root = std::sqrt(0.5F);
    const struct {
        const char* name;
        std::function<void(VekPath)> build;
        VekBounds bounds;
    } cases[] = {
        {"empty", [](VekPath) {}, {0, 0, 0, 0}},
        {"only a move", [](VekPath p) { vekPathMoveTo(p, 5, 6); }, {0, 0, 0, 0}},
        {"the first line only starts", [](VekPath p) { vekPathLineTo(p, 5, 6); }, {0, 0, 0, 0}},
        {"lines",
         [](VekPath p) {
             vekPathMoveTo(p, 100, 100);  // never used
             vekPathMoveTo(p, 1, 8);
             vekPathLineTo(p, -3, 2);
             vekPathLineTo(p, 4, 5);
         },
         {-3, 2, 4, 8}},
        {"begin forgets the point",
         [](VekPath p) {
             vekPathMoveTo(p, 50, 50);
             vekPathBegin(p);
             vekPathLineTo(p, 1, 2);
             vekPathLineTo(p, 3, 4);
         },
         {1, 2, 3, 4}},
        {"rectangle, then a figure of its own",
         [](VekPath p) {
             vekPathAddRectangle(p, 10, 20, -4, 5);
             vekPathLineTo(p, 8, 22);
             vekPathLineTo(p, 9, 23);
         },
         {6, 20, 10, 25}},
        {"circle", [](VekPath p) { vekPathAddCircle(p, 3, 4, 5); }, {-2, -1, 8, 9}},
        {"ellipse", [](VekPath p) { vekPathAddEllipse(p, 1, 2, 30, 4); }, {1, 2, 31, 6}},
        {"cubic",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathBezierCurveTo(p, 0, 40, 10, 40, 10, 0);
         },
         {0, 0, 10, 30}},
        {"cubic with a loop sideways",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathBezierCurveTo(p, 18, 0, -9, 9, 9, 9);
         },
         {0, 0, 9, 9}},
        {"quadratic",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathQuadraticCurveTo(p, 10, 20, 20, 0);
         },
         {0, 0, 20, 10}},
        {"curve without a point starts at the first given",
         [](VekPath p) { vekPathQuadraticCurveTo(p, 10, 20, 20, 0); },
         {10, 0, 20, 20}},
        {"arc clockwise", [](VekPath p) { vekPathAddArc(p, 0, 0, 10, 0, pi, 0); }, {-10, 0, 10, 10}},
        {"arc anticlockwise", [](VekPath p) { vekPathAddArc(p, 0, 0, 10, 0, pi, 1); }, {-10, -10, 10, 0}},
        {"arc to a smaller angle", [](VekPath p) { vekPathAddArc(p, 0, 0, 10, 0, -pi / 4, 0); }, {-10, -10, 10, 10}},
        {"arc of an eighth",
         [&](VekPath p) { vekPathAddArc(p, 0, 0, 10, 0, pi / 4, 0); },
         {10 * root, 0, 10, 10 * root}},
        {"arc of many turns", [](VekPath p) { vekPathAddArc(p, 1, 1, 2, 1, 1e9F, 0); }, {-1, -1, 3, 3}},
        {"arc of a negative radius",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathAddArc(p, 5, 6, -3, 0, 1, 0);
         },
         {0, 0, 5, 6}},
        {"arc between lines",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathArcTo(p, 10, 0, 10, 10, 4);
         },
         {0, 0, 10, 4}},
        {"arc between lines, touching behind the point",
         [](VekPath p) {
             vekPathMoveTo(p, 8, 0);
             vekPathArcTo(p, 10, 0, 10, 10, 4);
         },
         {6, 0, 10, 4}},
        {"arc on one line",
         [](VekPath p) {
             vekPathMoveTo(p, 0, 0);
             vekPathArcTo(p, 10, 10, 20, 20, 4);
         },
         {0, 0, 10, 10}},
        {"as large as floats get",
         [](VekPath p) { vekPathAddRectangle(p, 3e38F, -3e38F, 3e38F, -3e38F); },
         {3e38F, -3.4028235e38F, 3.4028235e38F, -3e38F}},
    };
    for (const auto& c : cases) {
        const OwnedPath path = MakePath();
        c.build(path.get());
        VekBounds got{};
        EXPECT_EQ(vekPathGetBounds(path.get(), &got), 1);
        const auto close = [&](float a, float b) { return std::abs(a - b) <= std::abs(b) * 1e-6F + 2e-6F; };
        EXPECT_TRUE(close(got.left, c.bounds.left) && close(got.top, c.bounds.top) &&
                    close(got.right, c.bounds.right) && close(got.bottom, c.bounds.bottom))
            << c.name << ": " << got.left << ", " << got.top << ", " << got.right << ", " << got.bottom;
    }
}

TEST(Path, FillsAndStrokesItsFigures) {
    Drawing drawing;
    const OwnedPath path = MakePath();
    vekPathAddRectangle(path.get(), 10, 10, 40, 40);
    vekPathAddRectangle(path.get(), 30, 30, 40, 40);
    vekCanvasDrawPath(drawing, path.get());
    EXPECT_EQ(drawing.Area(), 1600 + 1600 - 400) << "figures in one direction add up";

    // The arc is joined to the current point, and leaves its end as the current point.
    Drawing stroked;
    const OwnedPath pie = MakePath();
    vekPathMoveTo(pie.get(), 100, 100);
    vekPathAddArc(pie.get(), 100, 100, 50, 0, pi / 2, 0);
    vekPathLineTo(pie.get(), 50, 150);
    vekCanvasSetDrawStyle(stroked, VEK_DRAW_STROKE);
    vekCanvasSetStrokeWidth(stroked, 4);
    vekCanvasDrawPath(stroked, pie.get());
    EXPECT_NEAR(stroked.Area(), 4 * (50 + 50 * static_cast<double>(pi) / 2 + 50), 10);
    for (const auto& [x, y] : {std::pair{125, 100}, {100 + 35, 100 + 35}, {75, 150}})
        EXPECT_EQ(stroked.At(x, y), 0xFF000000) << x << ", " << y;
}

TEST(Path, GoesOnFromTheStartOfAClosedFigure) {
    Drawing drawing;
    const OwnedPath path = MakePath();
    vekPathMoveTo(path.get(), 20, 20);
    vekPathLineTo(path.get(), 60, 20);
    vekPathClose(path.get());
    vekPathLineTo(path.get(), 20, 60);
    vekCanvasSetDrawStyle(drawing, VEK_DRAW_STROKE);
    vekCanvasSetStrokeWidth(drawing, 4);
    vekCanvasDrawPath(drawing, path.get());
    EXPECT_EQ(drawing.At(20, 40), 0xFF000000);
    EXPECT_EQ(drawing.At(40, 40), 0U);
}

TEST(Gradient, ColorsAtKnownPlaces) {
    struct Stop {
        float offset;
        DWORD color;
    };
    const std::vector<Stop> redToBlue{{0, 0xFFFF0000}, {1, 0xFF0000FF}};
    const auto linear = [] { return vekGradientCreateLinear(50, 0, 150, 0); };
    const auto circles = [] { return vekGradientCreateRadial(100, 100, 20, 100, 100, 70); };
    const struct {
        const char* name;
        VekGradient gradient;
        std::vector<Stop> stops;
        std::vector<std::pair<POINT, Pixel>> pixels;
    } cases[] = {
        {"linear", linear(), redToBlue, {{{10, 5}, 0xFFFF0000}, {{100, 5}, 0xFF7E0081}, {{170, 5}, 0xFF0000FF}}},
        {"stops in any order, clamped",
         linear(),
         {{7, 0xFF0000FF}, {0.5F, 0xFF00FF00}, {-1, 0xFFFF0000}},
         {{{75, 0}, 0xFF7E8100}, {{100, 0}, 0xFF00FC03}, {{125, 0}, 0xFF007E81}}},
        {"two stops at one place",
         linear(),
         {{0.5F, 0xFFFF0000}, {0.5F, 0xFF0000FF}},
         {{{99, 0}, 0xFFFF0000}, {{101, 0}, 0xFF0000FF}}},
        {"straight mixing, then premultiplied",
         linear(),
         {{0, 0x00FF0000}, {1, 0xFF0000FF}},
         {{{100, 0}, 0x81400041}, {{20, 0}, 0}}},
        {"one stop", linear(), {{0.3F, 0x80FF0000}}, {{{0, 0}, 0x80800000}, {{199, 9}, 0x80800000}}},
        {"no stop", linear(), {}, {{{100, 100}, 0}}},
        {"a point", vekGradientCreateLinear(9, 9, 9, 9), redToBlue, {{{0, 0}, 0xFF0000FF}, {{99, 99}, 0xFF0000FF}}},
        {"one circle in the other",
         circles(),
         redToBlue,
         {{{100, 100}, 0xFFFF0000}, {{145, 100}, 0xFF7C0083}, {{100, 199}, 0xFF0000FF}}},
        {"inner circle last",
         vekGradientCreateRadial(100, 100, 70, 100, 100, 20),
         redToBlue,
         {{{100, 100}, 0xFF0000FF}, {{100, 199}, 0xFFFF0000}}},
        {"circles apart, a cone",
         vekGradientCreateRadial(50, 100, 10, 150, 100, 30),
         redToBlue,
         {{{50, 50}, 0}, {{100, 100}, 0xFF3E00C1}, {{20, 100}, 0xFFFF0000}, {{180, 100}, 0xFF0000FF}, {{150, 150}, 0}}},
        {"one circle twice", vekGradientCreateRadial(100, 100, 9, 100, 100, 9), redToBlue, {{{100, 100}, 0}}},
        {"much larger than the picture",
         vekGradientCreateLinear(-1e8F, 0, 1e8F, 0),
         redToBlue,
         {{{100, 5}, 0xFF7F0080}}},
        {"as large as floats get", vekGradientCreateLinear(-3e38F, 0, 3e38F, 0), redToBlue, {{{100, 5}, 0xFF7F0080}}},
    };
    for (const auto& c : cases) {
        Drawing drawing;
        const OwnedGradient gradient(c.gradient);
        for (const Stop& stop : c.stops) EXPECT_EQ(vekGradientAddColorStop(gradient.get(), stop.offset, stop.color), 1);
        vekCanvasSetGradient(drawing, gradient.get());
        vekCanvasSetDrawStyle(drawing, VEK_DRAW_GRADIENT);
        vekCanvasDrawRectangle(drawing, 0, 0, 200, 200);
        for (const auto& [at, color] : c.pixels)
            EXPECT_TRUE(IsNear(drawing.At(at.x, at.y), color, 2)) << c.name << " at (" << at.x << ", " << at.y << ")";
    }
}

TEST(Gradient, MovesWithTheCanvasAndOutlivesItsHandle) {
    Drawing drawing;
    OwnedGradient gradient(vekGradientCreateLinear(0, 0, 100, 0));
    vekCanvasSetDrawStyle(drawing, VEK_DRAW_GRADIENT);
    vekCanvasSetColor(drawing, 0xFF112233);
    vekCanvasDrawPoint(drawing, 0, 199);
    vekCanvasDrawRectangle(drawing, 0, 190, 100, 5);
    EXPECT_EQ(drawing.At(50, 192), 0xFF112233) << "no gradient: the colour";
    vekCanvasSetGradient(drawing, gradient.get());
    vekGradientAddColorStop(gradient.get(), 0, 0xFFFF0000);
    vekCanvasDrawRectangle(drawing, 0, 0, 100, 10);
    EXPECT_TRUE(IsNear(drawing.At(99, 5), 0xFFFF0000, 2));
    vekGradientAddColorStop(gradient.get(), 1, 0xFF0000FF);
    gradient.reset();
    vekCanvasDrawRectangle(drawing, 0, 0, 100, 10);
    vekCanvasTranslate(drawing, 50, 20);
    vekCanvasDrawCircle(drawing, 50, 50, 30);
    vekCanvasSetBlendValue(drawing, 128);
    vekCanvasDrawRectangle(drawing, 0, 100, 100, 10);
    EXPECT_TRUE(IsNear(drawing.At(50, 5), 0xFF7E0081, 1));
    EXPECT_TRUE(IsNear(drawing.At(100, 70), 0xFF7E0081, 1));
    EXPECT_TRUE(IsNear(drawing.At(100, 125), 0x803F0041, 1));
    vekCanvasSetGradient(drawing, nullptr);
    vekCanvasSetBlendValue(drawing, 255);
    vekCanvasDrawRectangle(drawing, 0, 0, 10, 10);
    EXPECT_EQ(drawing.At(55, 25), 0xFF112233);
}

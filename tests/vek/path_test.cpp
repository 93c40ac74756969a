// Figures and current points, exact extents, arcs, and gradients sampled at known places.
#include <cmath>

#include "script.h"

using namespace vek_test;

TEST(Path, BoundsAreExact) {
    const struct {
        const char* name;
        const char* script;
        VekBounds bounds;
    } cases[] = {
        {"empty", "", {0, 0, 0, 0}},
        {"only a move", "M 5 6", {0, 0, 0, 0}},
        {"the first line only starts", "L 5 6", {0, 0, 0, 0}},
        {"lines after a move that is never used", "M 100 100  M 1 8  L -3 2  L 4 5", {-3, 2, 4, 8}},
        {"begin forgets the point", "M 50 50  B  L 1 2  L 3 4", {1, 2, 3, 4}},
        {"rectangle, then a figure of its own", "R 10 20 -4 5  L 8 22  L 9 23", {6, 20, 10, 25}},
        {"circle", "O 3 4 5", {-2, -1, 8, 9}},
        {"ellipse", "E 1 2 30 4", {1, 2, 31, 6}},
        {"cubic", "M 0 0  C 0 40 10 40 10 0", {0, 0, 10, 30}},
        {"cubic with a loop sideways", "M 0 0  C 18 0 -9 9 9 9", {0, 0, 9, 9}},
        {"quadratic", "M 0 0  Q 10 20 20 0", {0, 0, 20, 10}},
        {"curve without a point starts at the first given", "Q 10 20 20 0", {10, 0, 20, 20}},
        {"arc clockwise", "A 0 0 10 0 180", {-10, 0, 10, 10}},
        {"arc anticlockwise", "a 0 0 10 0 180", {-10, -10, 10, 0}},
        {"arc to a smaller angle", "A 0 0 10 0 -45", {-10, -10, 10, 10}},
        {"arc of an eighth", "A 0 0 10 0 45", {std::sqrt(50.0F), 0, 10, std::sqrt(50.0F)}},
        {"arc of many turns", "A 1 1 2 50 6e10", {-1, -1, 3, 3}},
        {"arc of a negative radius", "M 0 0  A 5 6 -3 0 50", {0, 0, 5, 6}},
        {"arc between lines", "M 0 0  T 10 0 10 10 4", {0, 0, 10, 4}},
        {"arc between lines, touching behind the point", "M 8 0  T 10 0 10 10 4", {6, 0, 10, 4}},
        {"arc on one line", "M 0 0  T 10 10 20 20 4", {0, 0, 10, 10}},
        {"as large as floats get", "R 3e38 -3e38 3e38 -3e38", {3e38F, -3.4028235e38F, 3.4028235e38F, -3e38F}},
    };
    for (const auto& c : cases) {
        Pen pen(nullptr);
        VekBounds got{};
        EXPECT_EQ(Draw(pen, c.script) & vekPathGetBounds(pen, &got), 1) << c.name;
        for (const auto side : {&VekBounds::left, &VekBounds::top, &VekBounds::right, &VekBounds::bottom})
            EXPECT_NEAR(got.*side, c.bounds.*side, std::abs(c.bounds.*side) * 1e-6F + 2e-6F) << c.name;
    }
}

TEST(Gradient, ColorsAtKnownPlaces) {
    const std::string linear = "linear 50 0 150 0  ", redToBlue = "#FFFF0000 stop 0  #FF0000FF stop 1  ";
    const struct {
        const char* name;
        std::string script;
        std::vector<std::pair<POINT, Pixel>> pixels;
    } cases[] = {
        {"linear", linear + redToBlue, {{{10, 5}, 0xFFFF0000}, {{100, 5}, 0xFF7E0081}, {{170, 5}, 0xFF0000FF}}},
        {"stops in any order, clamped",
         linear + "#FF0000FF stop 7  #FF00FF00 stop 0.5  #FFFF0000 stop -1",
         {{{75, 0}, 0xFF7E8100}, {{100, 0}, 0xFF00FC03}, {{125, 0}, 0xFF007E81}}},
        {"two stops at one place",
         linear + "#FFFF0000 stop 0.5  #FF0000FF stop 0.5",
         {{{99, 0}, 0xFFFF0000}, {{101, 0}, 0xFF0000FF}}},
        {"straight mixing, then premultiplied",
         linear + "#00FF0000 stop 0  #FF0000FF stop 1",
         {{{100, 0}, 0x81400041}, {{20, 0}, 0}}},
        {"one stop", linear + "#80FF0000 stop 0.3", {{{0, 0}, 0x80800000}, {{199, 9}, 0x80800000}}},
        {"no stop", linear, {{{100, 100}, 0}}},
        {"a point", "linear 9 9 9 9  " + redToBlue, {{{0, 0}, 0xFF0000FF}, {{99, 99}, 0xFF0000FF}}},
        {"one circle in the other",
         "radial 100 100 20 100 100 70  " + redToBlue,
         {{{100, 100}, 0xFFFF0000}, {{145, 100}, 0xFF7C0083}, {{100, 199}, 0xFF0000FF}}},
        {"inner circle last",
         "radial 100 100 70 100 100 20  " + redToBlue,
         {{{100, 100}, 0xFF0000FF}, {{100, 199}, 0xFFFF0000}}},
        {"circles apart, a cone",
         "radial 50 100 10 150 100 30  " + redToBlue,
         {{{50, 50}, 0}, {{100, 100}, 0xFF3E00C1}, {{20, 100}, 0xFFFF0000}, {{180, 100}, 0xFF0000FF}, {{150, 150}, 0}}},
        {"one circle twice", "radial 100 100 9 100 100 9  " + redToBlue, {{{100, 100}, 0}}},
        {"much larger than the picture", "linear -1e8 0 1e8 0  " + redToBlue, {{{100, 5}, 0xFF7F0080}}},
        {"as large as floats get", "linear -3e38 0 3e38 0  " + redToBlue, {{{100, 5}, 0xFF7F0080}}},
    };
    for (const auto& c : cases) {
        Drawing drawing;
        EXPECT_EQ(Draw(drawing, c.script + "  style 2  rectangle 0 0 200 200"), 1) << c.name;
        for (const auto& [at, color] : c.pixels)
            EXPECT_TRUE(IsNear(drawing.At(at.x, at.y), color, 2)) << c.name << " at (" << at.x << ", " << at.y << ")";
    }
}

TEST(Gradient, MovesWithTheCanvasAndOutlivesItsHandle) {
    Drawing drawing;
    {
        Pen pen(drawing);
        Draw(pen,
             "style 2  #FF112233  rectangle 0 190 100 5  linear 0 0 100 0  #FFFF0000 stop 0  rectangle 0 0 100 10");
        EXPECT_EQ(drawing.At(50, 192), 0xFF112233) << "no gradient: the colour";
        EXPECT_TRUE(IsNear(drawing.At(99, 5), 0xFFFF0000, 2)) << "one stop";
        Draw(pen, "#FF0000FF stop 1");
    }
    Draw(drawing, "rectangle 0 0 100 10  translate 50 20  circle 50 50 30  value 128  rectangle 0 100 100 10");
    EXPECT_TRUE(IsNear(drawing.At(50, 5), 0xFF7E0081, 1));
    EXPECT_TRUE(IsNear(drawing.At(100, 70), 0xFF7E0081, 1));
    EXPECT_TRUE(IsNear(drawing.At(100, 125), 0x803F0041, 1));
    vekCanvasSetGradient(drawing, nullptr);
    Draw(drawing, "#FF112233  value 255  rectangle 0 0 10 10");
    EXPECT_EQ(drawing.At(55, 25), 0xFF112233);
}

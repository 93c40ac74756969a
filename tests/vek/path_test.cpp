// Figures and current points, exact extents, arcs, and gradients sampled at known places.
#include <cmath>
#include <cstdio>

#include "drawing.h"

using namespace vek_test;

TEST(Path, BoundsAreExact) {
    const std::pair<const char*, VekBounds> cases[] = {
        {"", {0, 0, 0, 0}},
        {"L 5 6", {0, 0, 0, 0}},  // the first line only starts
        {"M 100 100  M 1 8  L -3 2  L 4 5", {-3, 2, 4, 8}},
        {"M 50 50  B  L 1 2  L 3 4", {1, 2, 3, 4}},
        {"R 10 20 -4 5  L 30 30", {6, 20, 10, 25}},
        {"O 3 4 5", {-2, -1, 8, 9}},
        {"E 1 2 30 4", {1, 2, 31, 6}},
        {"M 0 0  C 18 0 -9 9 9 9", {0, 0, 9, 9}},  // a loop sideways
        {"M 0 0  C 0 0 9 0 0 10", {0, 0, 4, 10}},  // one control point lies on the box of the ends
        {"M 0 0  C 9 0 0 10 0 10", {0, 0, 4, 10}},
        {"M 0 0  Q 10 20 20 0", {0, 0, 20, 10}},
        {"Q 10 20 20 0", {10, 0, 20, 20}},  // starts at the first point given
        {"C 0 40 10 40 10 0", {0, 0, 10, 40}},
        {"A 0 0 10 0 3.1415927 0", {-10, 0, 10, 10}},
        {"A 0 0 10 0 3.1415927 1", {-10, -10, 10, 0}},
        {"A 0 0 10 0 -0.78539816 0", {-10, -10, 10, 10}},
        {"A 0 0 10 0 0.78539816 0", {std::sqrt(50.0F), 0, 10, std::sqrt(50.0F)}},
        {"A 1 1 2 1 1e9 0", {-1, -1, 3, 3}},
        {"M 0 0  A 5 6 -3 0 1 0", {0, 0, 5, 6}},
        {"M 0 0  T 10 0 10 10 4", {0, 0, 10, 4}},
        {"M 8 0  T 10 0 10 10 4", {6, 0, 10, 4}},  // touches the line behind the point
        {"M 0 0  T 10 10 20 20 4", {0, 0, 10, 10}},
        // A corner that is all but flat is rounded, unless its circle is too far away to be computed.
        {"M 0 0  T 1000 0 2000 1 1000", {0, 0, 1000.5F, 5e-4F}},
        {"M 0 0  T 10 1e-9 20 0 1e30", {0, 0, 10, 1e-9F}},
        {"R 3e38 -3e38 3e38 -3e38", {3e38F, -3.4028235e38F, 3.4028235e38F, -3e38F}},
    };
    for (const auto& [script, bounds] : cases) {
        Pen pen(nullptr);
        VekBounds got{};
        EXPECT_TRUE(Draw(pen, script) && vekPathGetBounds(pen, &got)) << script;
        for (const auto side : {&VekBounds::left, &VekBounds::top, &VekBounds::right, &VekBounds::bottom})
            EXPECT_NEAR(got.*side, bounds.*side, std::abs(bounds.*side) * 1e-6F + 2e-6F) << script;
    }
}

TEST(Gradient, ColorsAtKnownPlaces) {
    // More stops than can be seen.
    std::string ramp;
    for (int i = 0; i <= 4080; ++i) {
        char stop[40];
        std::snprintf(stop, sizeof stop, "#FF%02X00%02X stop %.6f  ", 255 - i / 16, i / 16, i / 4080.0);
        ramp = stop + ramp;
    }
    const std::string linear = "linear 50 0 150 0  ", redToBlue = "#FFFF0000 stop 0  #FF0000FF stop 1  ";
    const std::pair<std::string, std::vector<std::tuple<int, int, Pixel>>> cases[] = {
        {linear + redToBlue, {{10, 5, 0xFFFF0000}, {100, 5, 0xFF7E0081}, {170, 5, 0xFF0000FF}}},
        {linear + "#FF0000FF stop 7  #FF00FF00 stop 0.5  #FFFF0000 stop -1",
         {{75, 0, 0xFF7E8100}, {100, 0, 0xFF00FC03}, {125, 0, 0xFF007E81}}},
        {linear + "#FFFF0000 stop 0.5  #FF0000FF stop 0.5", {{99, 0, 0xFFFF0000}, {101, 0, 0xFF0000FF}}},
        // Mixed straight, then premultiplied.
        {linear + "#00FF0000 stop 0  #FF0000FF stop 1", {{100, 0, 0x81400041}, {20, 0, 0}}},
        {linear + "#80FF0000 stop 0.3", {{0, 0, 0x80800000}, {199, 9, 0x80800000}}},
        {linear, {{100, 100, 0}}},
        {"linear 9 9 9 9  " + redToBlue, {{0, 0, 0xFF0000FF}, {99, 99, 0xFF0000FF}}},
        {"radial 100 100 20 100 100 70  " + redToBlue,
         {{100, 100, 0xFFFF0000}, {145, 100, 0xFF7C0083}, {100, 199, 0xFF0000FF}}},
        {"radial 100 100 70 100 100 20  " + redToBlue, {{100, 100, 0xFF0000FF}, {100, 199, 0xFFFF0000}}},
        {"radial 100 100 -20 100 100 70  " + redToBlue, {{100, 100, 0xFFFC0003}, {135, 100, 0xFF7E0081}}},
        // Circles apart make a cone.
        {"radial 50 100 10 150 100 30  " + redToBlue,
         {{50, 50, 0}, {100, 100, 0xFF3E00C1}, {20, 100, 0xFFFF0000}, {180, 100, 0xFF0000FF}, {150, 150, 0}}},
        {"radial 100 100 9 100 100 9  " + redToBlue, {{100, 100, 0}}},
        {"linear -3e38 0 3e38 0  " + redToBlue, {{100, 5, 0xFF7F0080}}},
        {linear + ramp, {{75, 5, 0xFFBE0041}, {100, 5, 0xFF7E0081}, {170, 5, 0xFF0000FF}}},
        {linear + redToBlue + "value 128  ", {{100, 5, 0x803F0041}}},
        // Stops that are added between two drawings.
        {linear + "style 2  #FFFF0000 stop 0  rectangle 0 0 9 9  #FF0000FF stop 1", {{100, 5, 0xFF7E0081}}},
    };
    for (const auto& [script, places] : cases) {
        Drawing drawing;
        // The gradient's handle is gone when the second of these begins.
        EXPECT_TRUE(Draw(drawing, script) && Draw(drawing, "style 2  rectangle 0 0 200 200")) << script;
        for (const auto& [x, y, color] : places)
            EXPECT_TRUE(IsNear(drawing.At(x, y), color, 2)) << script << " at (" << x << ", " << y << ")";
        EXPECT_TRUE(vekCanvasSetGradient(drawing, nullptr) && Draw(drawing, "value 255  #FF112233  circle 9 9 9"));
        EXPECT_EQ(drawing.At(9, 9), 0xFF112233) << script;
    }
}

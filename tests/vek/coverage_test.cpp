// The area that shapes and strokes cover, against geometry; whole pixels exactly.
#include <cmath>
#include <functional>
#include <numbers>

#include "script.h"

using namespace vek_test;
using std::numbers::pi;

namespace {

struct AreaCase {
    const char* name;
    double area;
    std::string script;
};

void ExpectAreas(const std::vector<AreaCase>& cases) {
    for (const AreaCase& c : cases) {
        Drawing drawing;
        EXPECT_EQ(Draw(drawing, c.script), 1) << c.name;
        EXPECT_NEAR(drawing.Area(), c.area, std::max(c.area / 100, 2.0)) << c.name;
    }
}

// Every pixel of the picture is what at(x, y) says.
void ExpectPixels(const Drawing& drawing, const std::string& name, const std::function<Pixel(int, int)>& at) {
    for (int y = 0; y < drawing.height; ++y)
        for (int x = 0; x < drawing.width; ++x)
            ASSERT_EQ(drawing.At(x, y), at(x, y)) << name << " at (" << x << ", " << y << ")";
}

}  // namespace

TEST(Coverage, FilledShapesHaveTheirArea) {
    // The points of a five-pointed star of radius 100 and the corners between them, as ten triangles.
    const double starInner = 100 * std::sin(pi / 10) / std::sin(pi * 0.3);
    ExpectAreas({
        {"circle", pi * 60.3 * 60.3, "circle 99.6 100.2 60.3"},
        {"ellipse", pi * 70.25 * 20, "ellipse 10.5 20.3 140.5 40"},
        {"ellipse, negative size", pi * 50 * 30, "ellipse 110 80 -100 -60"},
        {"rectangle", 50.5 * 30.25, "rectangle 10.25 11.6 50.5 30.25"},
        {"rectangle, negative size", 50.5 * 30, "rectangle 90 90 -50.5 -30"},
        {"round rectangle", 100 * 60 - (4 - pi) * 20 * 10, "round 20 10"},
        {"round rectangle, radii cut", pi * 50 * 30, "round 1000 1e30"},
        {"round rectangle, square corners", 6000, "round -3 10"},
        {"triangle", 0.5 * 150 * 120, "L 10 10  L 160 10  L 40 130  path"},
        {"star, its middle covered twice", 5 * 100 * starInner * std::sin(pi / 5),
         "L 100 0  L 158.78 180.9  L 4.89 69.1  L 195.11 69.1  L 41.22 180.9  path"},
        {"hole in the other direction", pi * (50 * 50 - 20 * 20), "O 100 100 50  a 100 100 20 0 -360  path"},
        {"figures in one direction add up", 1600 + 1600 - 400, "R 10 10 40 40  R 30 30 40 40  path"},
        {"point between pixels", 1, "point 20.5 30.75"},
        {"circle of which only a straight edge is seen", 100 * 200, "circle -1e7 100 1.00001e7"},
        {"triangle with far corners", 200 * 200 - 200 * 75, "L 4e6 1000050  L -4e6 4e6  L -4e6 -999950  path"},
    });
}

TEST(Coverage, StrokesHaveTheirArea) {
    const std::string line = "width 10  line 40 60.5 120 120.5",
                      corner = "style 1  width 10  L 10 50  L 60 50  L 60 100  path";
    ExpectAreas({
        {"butt caps", 100 * 10, "cap 0  " + line},
        {"round caps", 100 * 10 + pi * 5 * 5, "cap 1  " + line},
        {"square caps", 110 * 10, "cap 2  " + line},
        {"miter join", 1000, "join 0  " + corner},
        {"round join", 975 + pi * 5 * 5 / 4, "join 1  " + corner},
        {"bevel join", 975 + 0.5 * 5 * 5, "join 2  " + corner},
        {"circle", 2 * pi * 60 * 7, "style 1  width 7  circle 100 100 60"},
        {"circle of a stroke wider than itself", pi * 30 * 30, "style 1  width 40  circle 100 100 10"},
        {"the same with bevels", pi * 80 * 80, "style 1  join 2  width 154  circle 100 100 3"},
        {"stroke over everything", 200 * 200, "style 1  join 1  width 1e30  circle 100 100 20"},
        {"rectangle", 108 * 68 - 92 * 52, "style 1  width 8  rectangle 20 30 100 60"},
        {"far line", 200 * 10 * std::sqrt(1.25), "width 10  line -3999900 -1999900 4000100 2000100"},
        {"closed figure that goes far away and comes back to its corner", 160 * 20 + 90 * 20,
         "style 1  width 20  L 50 100  L 1e6 100  L 50 1e6  Z  path"},
        {"arc joined to the point before it, and a line from its end", 4 * (50 + 50 * pi / 2 + 50),
         "style 1  width 4  M 100 100  A 100 100 50 0 90  L 50 150  path"},
        {"line from the start of a closed figure", 4 * (40 + 40) - 4,
         "style 1  width 4  M 20 20  L 60 20  Z  L 20 60  path"},
    });
}

TEST(Coverage, MitersEndAtTheLimit) {
    // Between lines that meet at 12 degrees a miter is 9.6 stroke widths long, at 11 degrees it would be 10.4.
    for (const double degrees : {12.0, 11.0}) {
        Drawing drawing;
        const double y = 90 * std::tan(degrees / 2 * pi / 180);
        Draw(drawing, "style 1  width 6  L 10 " + std::to_string(100 - y) + "  L 100 100  L 10 " +
                          std::to_string(100 + y) + "  path");
        EXPECT_EQ(Channel(drawing.At(110, 100), 24) > 0, degrees > 11.5) << degrees;
    }
}

TEST(Coverage, DashesHaveTheirLengths) {
    // The pixels of a horizontal line are the pattern.
    const struct {
        int style;
        const char* row;
    } cases[] = {{VEK_DASH_SOLID, "########################"},        {VEK_DASH_DASH, "###.###.###.###.###.###."},
                 {VEK_DASH_DOT, "#.#.#.#.#.#.#.#.#.#.#.#."},          {VEK_DASH_DASH_DOT, "###.#.###.#.###.#.###.#."},
                 {VEK_DASH_DASH_DOT_DOT, "###.#.#.###.#.#.###.#.#."}, {-1, "########################"}};
    for (const auto& c : cases)
        for (const int width : {1, 4}) {
            Drawing drawing;
            // Widths are those of the moment of drawing.
            Draw(drawing, "dash " + std::to_string(c.style) +
                              (width == 1 ? "  width 1  line 20 10.5 44 10.5" : "  width 4  line 20 12 116 12"));
            std::string row;
            for (int i = 0; i < 24; ++i) row += drawing.At(20 + i * width, 10) != 0 ? '#' : '.';
            EXPECT_EQ(row, c.row) << "style " << c.style << ", width " << width;
        }
}

// On 10, off 10 from -1000007: the picture begins 7 pixels into a dash.
TEST(Coverage, DashesKeepTheirPhaseFromFarAway) {
    Drawing drawing;
    Draw(drawing, "dashes 10 10  style 1  L -1000007 50.5  L -500003 50.5  L 1000007 50.5  path");
    for (int x = 0; x < 200; ++x) EXPECT_EQ(drawing.At(x, 50) != 0, (x + 7) % 20 < 10) << x;
}

TEST(Coverage, DashPatternsHaveTheirArea) {
    std::vector<float> many(255, 0.5F);
    many[0] = 100;
    const struct {
        const char* name;
        double area;
        std::vector<float> pattern;
        const char* line;
    } cases[] = {
        {"even", 8 * 13 * 4, {10, 5, 3, 2}, "line 20 100 180 100"},
        {"odd changes roles", (7 + 2 + 5) * 4, {7, 5, 2}, "line 20 100 48 100"},
        {"odd, far line", 98 * 4, {7, 5, 2}, "line -1e6 100 1e6 100"},
        {"255 entries", (100 + 0.5 * 80) * 4, many, "line 10 100 190 100"},
        {"none", 160 * 4, {}, "line 20 100 180 100"},
        {"no dash in sight", 0, {0, 10}, "line 20 100 180 100"},
        {"far line", 100 * 4, {10, 10}, "line -1e6 100 1e6 100"},
        {"finer than can be seen, far line", 200 * 4 * 0.25, {1e-4F, 3e-4F}, "line -1e6 100 1e6 100"},
        {"far corner inside a dash", (62 + 48) * 4, {1e9F, 1}, "style 1  L -1e6 50  L 60 50  L 60 100  path"},
        {"circle", pi * 60 * 4, {static_cast<float>(pi * 6)}, "style 1  circle 100 100 60"},
        {"style after pattern", 160 * 4 * 0.5, {1, 100}, "dash 2  line 20 100 180 100"},
    };
    for (const auto& c : cases) {
        Drawing drawing;
        Draw(drawing, "dash 2  width 4");
        EXPECT_EQ(vekCanvasSetDashPattern(drawing, c.pattern.data(), static_cast<int>(c.pattern.size())), 1);
        Draw(drawing, c.line);
        EXPECT_NEAR(drawing.Area(), c.area, std::max(c.area / 100, 2.0)) << c.name;
    }
}

// A figure drawn many times over in one path covers what it covers once, although it takes another way to the pixels.
TEST(Coverage, ManyEdgesCoverTheSame) {
    const char* const strokes[] = {"", "style 1  width 14  cap 0  join 0", "style 1  width 14  cap 1  join 1",
                                   "style 1  width 14  cap 2  join 2"};
    // Some erase, some blend through a copy.
    for (int kind = 0; kind < 7; ++kind) {
        const std::string mode = kind % 3 == 0 ? "mode 0  " : kind % 3 == 1 ? "mode 3  " : "mode 26  ";
        const Pixel before = kind % 3 == 1 ? 0xFF000000 : 0;
        Drawing once(200, 200, before), often(200, 200, before);
        for (Drawing* drawing : {&once, &often}) {
            Pen pen(*drawing);
            Draw(pen, mode + strokes[(kind + 1) / 2]);
            for (int copies = drawing == &once ? 1 : kind == 0 ? 4000 : 2000; copies > 0; --copies) {
                vekPathMoveTo(pen, 20.3F, 150);
                for (const auto& [x, y] : {std::pair{50.0F, 30.6F}, {90.0F, 160.0F}, {120.0F, 40.0F}, {170.0F, 120.0F}})
                    vekPathLineTo(pen, x, y);
                vekPathBezierCurveTo(pen, 120, 190, 80, 190, 60, 100);
                if (kind % 2 != 0) vekPathClose(pen);
            }
            Draw(pen, "path");
        }
        EXPECT_NEAR(often.Area(), once.Area(), once.Area() / 100) << "kind " << kind;
        for (std::size_t i = 0; i < once.words.size(); ++i)
            ASSERT_NEAR(Channel(often.words[i], 24), Channel(once.words[i], 24), 255 * 3 / 16)
                << "kind " << kind << ", pixel " << i;
    }
}

TEST(Coverage, WholePixelsAreExact) {
    for (const char* script :
         {"rectangle 17 23 44 17", "fill 17 23 61 40", "translate 20.5 -1000  rectangle -3.5 1023 44 17",
          "clip 17 23 61 40  rectangle -1e9 -1e9 2e9 2e9", "width 17  line 17 31.5 61 31.5",
          "L 17 23  L 61 23  L 61 40  L 17 40  path", "smooth 0  rectangle 16.5 22.6 44.3 17.8"}) {
        Drawing drawing;
        Draw(drawing, "#80FF4020  " + std::string(script));
        ExpectPixels(drawing, script,
                     [](int x, int y) { return x >= 17 && x < 61 && y >= 23 && y < 40 ? 0x80802010U : 0U; });
    }
}

TEST(Coverage, WithoutSmoothingPixelsAreAllOrNothing) {
    Drawing drawing;
    Draw(drawing, "smooth 0  circle 60 60 40.3  style 1  width 3  line 10 190 190 20");
    for (const Pixel pixel : drawing.words) ASSERT_TRUE(pixel == 0 || pixel == 0xFF000000) << std::hex << pixel;
    EXPECT_NEAR(drawing.Area(), pi * 40.3 * 40.3 + 3 * std::hypot(180, 170), 60);
}

// A frame of odd width between pixels runs through the pixels to the right of and below its outline.
TEST(Coverage, WithoutSmoothingAFrameRunsThroughItsPixels) {
    for (const int width : {1, 3}) {
        Drawing drawing(100, 100);
        Draw(drawing, "smooth 0  style 1  width " + std::to_string(width) + "  rectangle 20 30 39 29");
        const int half = width / 2;
        const auto inside = [](int x, int y, int by) {
            return x >= 20 - by && x <= 59 + by && y >= 30 - by && y <= 59 + by;
        };
        ExpectPixels(drawing, "frame",
                     [&](int x, int y) { return inside(x, y, half) && !inside(x, y, -half - 1) ? 0xFF000000 : 0; });
    }
}

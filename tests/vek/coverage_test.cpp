// The area that shapes and strokes cover, against geometry; whole pixels exactly.
#include <cmath>
#include <numbers>

#include "drawing.h"

using namespace vek_test;
using std::numbers::pi;

TEST(Coverage, ShapesStrokesAndDashesHaveTheirArea) {
    // The points of a five-pointed star of radius 100 and the corners between them, as ten triangles.
    const double starInner = 100 * std::sin(pi / 10) / std::sin(pi * 0.3);
    const std::string slope = "width 10  line 40 60.5 120 120.5",
                      corner = "style 1  width 10  L 10 50  L 60 50  L 60 100  path",
                      shortLine = "  width 4  line 20 100 58 100", line = "  width 4  line 20 100 180 100",
                      farLine = "  width 4  line -1e6 100 1e6 100", farDiagonal = "  width 20  line 100 100 1e6 1e6";
    const std::pair<double, std::string> cases[] = {
        {pi * 60.3 * 60.3, "circle 99.6 100.2 60.3"},
        {pi * 70.25 * 20, "ellipse 10.5 20.3 140.5 40"},
        {50.5 * 30.25, "rectangle 10.25 11.6 50.5 30.25"},
        {50.5 * 30, "rectangle 90 90 -50.5 -30"},
        {100 * 60 - (4 - pi) * 20 * 10, "round 20 10"},
        {pi * 50 * 30, "round 1000 1e30"},
        {6000, "round -3 10"},
        {0.5 * 150 * 120, "L 10 10  L 160 10  L 40 130  path"},
        // Its middle is covered twice.
        {5 * 100 * starInner * std::sin(pi / 5),
         "L 100 0  L 158.78 180.9  L 4.89 69.1  L 195.11 69.1  L 41.22 180.9  path"},
        {pi * (50 * 50 - 20 * 20), "O 100 100 50  A 100 100 20 0 -6.2831853 1  path"},
        {1, "point 20.5 30.75"},
        // Of the circles only a straight edge is seen, of the triangle a corner cut off.
        {100 * 200, "circle -1e7 100 1.00001e7"},
        {100 * 200, "circle 1e7 100 9.9999e6"},
        {200 * 100, "circle 100 -1e7 1.00001e7"},
        {200 * 100, "circle 100 1e7 9.9999e6"},
        {200 * 200 - 200 * 75, "L 4e6 1000050  L -4e6 4e6  L -4e6 -999950  path"},
        {pi * 40.3 * 40.3, "smooth 0  circle 60 60 40.3"},

        {100 * 10, "cap 0  " + slope},
        {100 * 10 + pi * 5 * 5, "cap 1  " + slope},
        {110 * 10, "cap 2  " + slope},
        // Through a copy of the pixels that the line may touch: the corners of a cap reach farther than half the width.
        {(40 * std::sqrt(2) + 40) * 40, "mode 12  cap 2  join 2  width 40  line 80 80 120 120"},
        {1000, "join 0  " + corner},
        {975 + pi * 5 * 5 / 4, "join 1  " + corner},
        {975 + 0.5 * 5 * 5, "join 2  " + corner},
        {2 * pi * 60 * 7, "style 1  width 7  circle 100 100 60"},
        // Wider than the circle, wider with bevels, and over everything.
        {pi * 30 * 30, "style 1  width 40  circle 100 100 10"},
        {pi * 80 * 80, "style 1  join 2  width 154  circle 100 100 3"},
        {200 * 200, "style 1  join 1  width 1e30  circle 100 100 20"},
        {108 * 68 - 92 * 52, "style 1  width 8  rectangle 20 30 100 60"},
        {200 * 10 * std::sqrt(1.25), "width 10  line -3999900 -1999900 4000100 2000100"},
        // A closed figure that goes far away and comes back to its corner.
        {160 * 20 + 90 * 20, "style 1  width 20  L 50 100  L 1e6 100  L 50 1e6  Z  path"},
        {4 * (50 + 50 * pi / 2 + 50), "style 1  width 4  M 100 100  A 100 100 50 0 1.5707963 0  L 50 150  path"},
        {4 * (40 + 40) - 4, "style 1  width 4  M 20 20  L 60 20  Z  L 20 60  path"},
        // Between lines that meet at 12 degrees a miter is 9.6 stroke widths long, at 11 degrees it would be 10.4.
        {59, "clip 105 0 200 200  style 1  width 6  L 10 109.4594  L 100 100  L 10 90.5406  path"},
        {0, "clip 105 0 200 200  style 1  width 6  L 10 108.666  L 100 100  L 10 91.334  path"},

        // Dashes are 3, dots and gaps 1 stroke width long, measured when drawn; patterns are in pixels, from the start.
        {9.5 * 16, "dash 0" + shortLine},
        {7.5 * 16, "dash 1" + shortLine},  // ###.###.##
        {5 * 16, "dash 2" + shortLine},    // #.#.#.#.#.
        {7 * 16, "dash 3" + shortLine},    // ###.#.###.
        {6.5 * 16, "dash 4" + shortLine},  // ###.#.#.##
        {9.5 * 16, "dash -1" + shortLine},
        {9.5 * 16, "dash 2  solid" + shortLine},
        {5 * 16, "dashes 1 100  dash 2" + shortLine},
        {8 * 13 * 4, "dash 2  dashes 10 5 3 2" + line},
        {0, "dashes 0 10" + line},
        // Of an odd number, on and off change places.
        {(7 + 2 + 5 + 7) * 4, "dashes 7 5 2" + shortLine},
        {98 * 4, "dashes 7 5 2" + farLine},
        {100 * 4, "dashes 10 10" + farLine},
        {pi * 60 * 4, "style 1  width 4  dashes 18.85 18.85  circle 100 100 60"},
        // Around a far triangle. Its outline is no multiple of the dashes and comes back in a gap.
        {110 * 4, "style 1  width 4  dashes 110 300  L 50 100  L 300050 100  L 50 400100  Z  path"},
        // Finer than can be seen; a corner inside a dash; 7 pixels into a dash on the left.
        {200 * 4 * 0.25, "dashes 1e-4 3e-4" + farLine},
        {(70 + 40) * 20, "style 1  width 20  dashes 1e9 1  L -1e6 50  L 60 50  L 60 100  path"},
        // Dashes without a length are squares and dots that look along the line; of a near figure in a far path the last
        // corner is joined.
        {400, "dashes 0 1e5  cap 2" + farDiagonal},
        {4.6, "clip 0 0 88 200  dashes 0 1e5  cap 2" + farDiagonal},
        {pi * 10 * 10, "dashes 0 1e5  cap 1" + farDiagonal},
        {100 * 100 - 60 * 60, "style 1  width 20  R 50 50 80 80  M 1e6 1e6  L 1e6 2e6  path"},
        {3 * 4, "clip 0 0 13 200  style 1  width 4  dashes 10 10  L -1000007 50  L -500003 50  L 1000007 50  path"},
    };
    for (const auto& [area, script] : cases) {
        Drawing drawing;
        EXPECT_EQ(Draw(drawing, script), 1) << script;
        EXPECT_NEAR(drawing.Area(), area, std::max(area / 100, 2.0)) << script;
    }
}

// A figure many times over in one path covers what it covers once, although it takes another way to the pixels.
TEST(Coverage, ManyEdgesCoverTheSame) {
    // A drawing erases, or blends through a copy.
    const std::string modes[] = {"mode 0  ", "#FF000000 fill 0 0 200 200  mode 3  ", "mode 26  "},
                      looks[] = {"style 0  path",
                                 "style 1  cap 0  join 0  path",
                                 "style 1  cap 1  join 1  path",
                                 "style 1  cap 2  join 2  path",
                                 "style 1  cap 0  join 1  path",
                                 "style 1  cap 1  dashes 0 60  path",
                                 "style 1  cap 2  dashes 0 60  path"};
    const std::string figure = "M 20.3 150  L 50 30.6  L 90 160  L 120 40  L 170 120  C 120 190 80 190 60 100  ";
    for (int kind = 0; kind < 13; ++kind) {
        Drawing once, often;
        for (const auto& [drawing, copies] : {std::pair(&once, 1), {&often, kind < 9 ? 1000 : 2000}}) {
            Pen pen(*drawing);
            for (int i = 0; i < copies; ++i) Draw(pen, kind % 2 != 0 ? figure + "Z" : figure);
            Draw(pen, modes[kind % 3] + "width 14  " + looks[(kind + 1) / 2]);
        }
        EXPECT_NEAR(often.Area(), once.Area(), once.Area() / 100) << "kind " << kind;
        for (std::size_t i = 0; i < once.words.size(); ++i)
            ASSERT_TRUE(IsNear(often.words[i], once.words[i], 255 * 3 / 16)) << "kind " << kind << ", pixel " << i;
    }
    // Without smoothing a pixel belongs to what covers half of it.
    Drawing drawing;
    Pen pen(drawing);
    for (int i = 0; i < 1200; ++i) Draw(pen, "R 10.5 10 9.8 180");
    Draw(pen, "smooth 0  path");
    EXPECT_EQ(drawing.Area(), 10 * 180);
}

TEST(Coverage, WholePixelsAreExact) {
    const std::string color = "#80FF4020  ", rectangle = color + "fill 17 23 61 40";
    Drawing drawing;
    Draw(drawing, rectangle);
    // Rounded to the nearest: over other pixels, and as the mix that an opacity makes.
    Drawing noise;
    FillWithNoise(noise, 5);
    for (const auto& [script, k] : {std::pair(color + "fill 0 0 200 200", 255 - 0x80),
                                    {color + "mode 1  value 100  fill 0 0 200 200", 255 - 100}}) {
        const Pixels before = noise;
        Draw(noise, script);
        for (std::size_t i = 0; i < noise.words.size(); ++i)
            for (const int shift : {0, 8, 16, 24}) {
                const int own = Channel(0x80802010, shift) * (k == 127 ? 255 : 100);
                const int wanted = static_cast<int>(std::lround((own + Channel(before.words[i], shift) * k) / 255.0));
                ASSERT_EQ(Channel(noise.words[i], shift), wanted) << script;
            }
    }
    for (const auto& [x, y, pixel] : {std::tuple(17, 23, 0x80802010U), {60, 39, 0x80802010}, {61, 39, 0}, {60, 40, 0}})
        EXPECT_EQ(drawing.At(x, y), pixel) << x << ' ' << y;
    for (const char* script : {"rectangle 17 23 44 17", "translate 20.5 -1000  rectangle -3.5 1023 44 17",
                               "clip 17 23 61 40  rectangle -1e9 -1e9 2e9 2e9", "width 17  line 17 31.5 61 31.5",
                               "L 17 23  L 61 23  L 61 40  L 17 40  path", "smooth 0  rectangle 16.5 22.6 44.3 17.8"})
        EXPECT_TRUE(AreTheSame(color + script, rectangle));
    // A flat round rectangle is stroked as a line is; an inverted one is not drawn.
    for (const LONG bottom : {31, 30}) {
        Drawing flat;
        Draw(flat, "style 1  width 4");
        const RECT rect{17, 31, 61, bottom};
        EXPECT_EQ(vekCanvasDrawRoundRect(flat, &rect, 5, 5), 1);
        EXPECT_EQ(flat.Area(), bottom == 31 ? 44 * 4 : 0);
    }
}

TEST(Coverage, WithoutSmoothingPixelsAreAllOrNothing) {
    const std::string shapes = "smooth 0  style 0  circle 60 60 40.3  style 1  width 3  line 10 190 190 20  ",
                      frame = "smooth 0  style 1  rectangle 20 30 39 29";
    EXPECT_TRUE(AreTheSame(shapes + shapes, shapes)) << "twice is once";
    // A frame of odd width between pixels runs through the pixels to the right of and below its outline.
    EXPECT_TRUE(AreTheSame("width 1  " + frame, "fill 20 30 60 60  mode 3  fill 21 31 59 59"));
    EXPECT_TRUE(AreTheSame("width 3  " + frame, "fill 19 29 61 61  mode 3  fill 22 32 58 58"));
}

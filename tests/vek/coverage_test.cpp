// The area that shapes and strokes cover, against geometry; whole pixels exactly.
#include <cmath>
#include <functional>
#include <numbers>
#include <string>

#include "drawing.h"

using namespace vek_test;
using std::numbers::pi;

namespace {

struct AreaCase {
    const char* name;
    double area;
    std::function<void(VekCanvas)> draw;
};

void ExpectAreas(const std::vector<AreaCase>& cases) {
    for (const AreaCase& c : cases) {
        Drawing drawing;
        c.draw(drawing);
        EXPECT_NEAR(drawing.Area(), c.area, std::max(c.area / 100, 2.0)) << c.name;
    }
}

void SetStroke(VekCanvas canvas, float width, int cap = VEK_CAP_BUTT, int join = VEK_JOIN_MITER) {
    vekCanvasSetDrawStyle(canvas, VEK_DRAW_STROKE);
    vekCanvasSetStrokeWidth(canvas, width);
    vekCanvasSetStrokeCap(canvas, cap);
    vekCanvasSetStrokeJoin(canvas, join);
}

void DrawLines(VekCanvas canvas, std::initializer_list<std::pair<float, float>> points) {
    const OwnedPath path = MakePath();
    for (const auto& [x, y] : points) vekPathLineTo(path.get(), x, y);
    EXPECT_EQ(vekCanvasDrawPath(canvas, path.get()), 1);
}

void DrawRoundRect(VekCanvas canvas, float rx, float ry) {
    const RECT rect{10, 10, 110, 70};
    EXPECT_EQ(vekCanvasDrawRoundRect(canvas, &rect, rx, ry), 1);
}

}  // namespace

TEST(Coverage, FilledShapesHaveTheirArea) {
    // The points of a five-pointed star of radius 100 and the corners between them, as ten triangles.
    const double starInner = 100 * std::sin(pi / 10) / std::sin(pi * 0.3);
    ExpectAreas({
        {"circle", pi * 60.3 * 60.3, [](VekCanvas c) { vekCanvasDrawCircle(c, 99.6F, 100.2F, 60.3F); }},
        {"small circle", pi * 3 * 3, [](VekCanvas c) { vekCanvasDrawCircle(c, 50.5F, 50.25F, 3); }},
        {"ellipse", pi * 70.25 * 20, [](VekCanvas c) { vekCanvasDrawEllipse(c, 10.5F, 20.3F, 140.5F, 40); }},
        {"ellipse, negative size", pi * 50 * 30, [](VekCanvas c) { vekCanvasDrawEllipse(c, 110, 80, -100, -60); }},
        {"rectangle", 50.5 * 30.25, [](VekCanvas c) { vekCanvasDrawRectangle(c, 10.25F, 11.6F, 50.5F, 30.25F); }},
        {"rectangle, negative size", 50.5 * 30, [](VekCanvas c) { vekCanvasDrawRectangle(c, 90, 90, -50.5F, -30); }},
        {"round rectangle", 100 * 60 - (4 - pi) * 20 * 10, [](VekCanvas c) { DrawRoundRect(c, 20, 10); }},
        {"round rectangle, radii cut", pi * 50 * 30, [](VekCanvas c) { DrawRoundRect(c, 1000, 1e30F); }},
        {"round rectangle, square corners", 6000, [](VekCanvas c) { DrawRoundRect(c, -3, 10); }},
        {"triangle", 0.5 * 150 * 120,
         [](VekCanvas c) {
             DrawLines(c, {{10, 10}, {160, 10}, {40, 130}});
         }},
        {"star, its middle covered twice", 5 * 100 * starInner * std::sin(pi / 5),
         [](VekCanvas c) {
             const OwnedPath path = MakePath();
             for (int i = 0; i < 5; ++i)
                 vekPathLineTo(path.get(), static_cast<float>(100 + 100 * std::sin(i * 0.8 * pi)),
                               static_cast<float>(100 - 100 * std::cos(i * 0.8 * pi)));
             vekCanvasDrawPath(c, path.get());
         }},
        {"hole in the other direction", pi * (50 * 50 - 20 * 20),
         [](VekCanvas c) {
             const OwnedPath path = MakePath();
             vekPathAddCircle(path.get(), 100, 100, 50);
             vekPathAddArc(path.get(), 100, 100, 20, 0, -6.2831853F, 1);
             vekCanvasDrawPath(c, path.get());
         }},
        {"point between pixels", 1, [](VekCanvas c) { vekCanvasDrawPoint(c, 20.5F, 30.75F); }},
        {"circle of which only a straight edge is seen", 100 * 200,
         [](VekCanvas c) { vekCanvasDrawCircle(c, -1e7F, 100, 1.00001e7F); }},
        {"triangle with far corners", 200 * 200 - 200 * 75,
         [](VekCanvas c) {
             DrawLines(c, {{4e6F, 1000050}, {-4e6F, 4e6F}, {-4e6F, -999950}});
         }},
    });
}

TEST(Coverage, StrokesHaveTheirArea) {
    const auto line = [](int cap) {
        return [cap](VekCanvas c) {
            SetStroke(c, 10, cap);
            vekCanvasDrawLine(c, 40, 60.5F, 120, 120.5F);
        };
    };
    const auto corner = [](int join) {
        return [join](VekCanvas c) {
            SetStroke(c, 10, VEK_CAP_BUTT, join);
            DrawLines(c, {{10, 50}, {60, 50}, {60, 100}});
        };
    };
    const auto circle = [](float radius, float width, int join = VEK_JOIN_MITER) {
        return [=](VekCanvas c) {
            SetStroke(c, width, VEK_CAP_BUTT, join);
            vekCanvasDrawCircle(c, 100, 100, radius);
        };
    };
    ExpectAreas({
        {"butt caps", 100 * 10, line(VEK_CAP_BUTT)},
        {"round caps", 100 * 10 + pi * 5 * 5, line(VEK_CAP_ROUND)},
        {"square caps", 110 * 10, line(VEK_CAP_SQUARE)},
        {"miter join", 1000, corner(VEK_JOIN_MITER)},
        {"round join", 975 + pi * 5 * 5 / 4, corner(VEK_JOIN_ROUND)},
        {"bevel join", 975 + 0.5 * 5 * 5, corner(VEK_JOIN_BEVEL)},
        {"circle", 2 * pi * 60 * 7, circle(60, 7)},
        {"thin circle", 2 * pi * 60 * 1, circle(60, 1)},
        {"circle of a stroke wider than itself", pi * 30 * 30, circle(10, 40)},
        {"the same with bevels", pi * 80 * 80, circle(3, 154, VEK_JOIN_BEVEL)},
        {"stroke over everything", 200 * 200, circle(20, 1e30F, VEK_JOIN_ROUND)},
        {"rectangle", 108 * 68 - 92 * 52,
         [](VekCanvas c) {
             SetStroke(c, 8);
             vekCanvasDrawRectangle(c, 20, 30, 100, 60);
         }},
        {"far line", 200 * 10 * std::sqrt(1.25),
         [](VekCanvas c) {
             SetStroke(c, 10);
             vekCanvasDrawLine(c, 100 - 4e6F, 100 - 2e6F, 100 + 4e6F, 100 + 2e6F);
         }},
        {"closed figure that goes far away and comes back to its corner", 160 * 20 + 90 * 20,
         [](VekCanvas c) {
             SetStroke(c, 20);
             const OwnedPath path = MakePath();
             for (const auto& [x, y] : {std::pair{50.0F, 100.0F}, {1e6F, 100.0F}, {50.0F, 1e6F}})
                 vekPathLineTo(path.get(), x, y);
             vekPathClose(path.get());
             vekCanvasDrawPath(c, path.get());
         }},
    });
}

TEST(Coverage, MitersEndAtTheLimit) {
    // Between lines that meet at 12 degrees a miter is 9.6 stroke widths long, at 11 degrees it would be 10.4.
    for (const double degrees : {12.0, 11.0}) {
        Drawing drawing;
        SetStroke(drawing, 6);
        const auto y = static_cast<float>(90 * std::tan(degrees / 2 * pi / 180));
        DrawLines(drawing, {{10, 100 - y}, {100, 100}, {10, 100 + y}});
        EXPECT_EQ(Channel(drawing.At(110, 100), 24) > 0, degrees > 11.5) << degrees;
    }
}

TEST(Coverage, DashesHaveTheirLengths) {
    // Rows of 1-pixel strokes: the pixels of a horizontal line are the pattern.
    const struct {
        int style;
        const char* row;
    } cases[] = {{VEK_DASH_SOLID, "########################"},
                 {VEK_DASH_DASH, "###.###.###.###.###.###."},
                 {VEK_DASH_DOT, "#.#.#.#.#.#.#.#.#.#.#.#."},
                 {VEK_DASH_DASH_DOT, "###.#.###.#.###.#.###.#."},
                 {VEK_DASH_DASH_DOT_DOT, "###.#.#.###.#.#.###.#.#."},
                 {5, "########################"},
                 {-1, "########################"}};
    for (const auto& c : cases)
        for (const int width : {1, 4}) {
            Drawing drawing;
            // Widths are those of the moment of drawing.
            vekCanvasSetDashStyle(drawing, c.style);
            vekCanvasSetStrokeWidth(drawing, static_cast<float>(width));
            const auto y = 10 + static_cast<float>(width) / 2;
            vekCanvasDrawLine(drawing, 20, y, static_cast<float>(20 + 24 * width), y);
            std::string row;
            for (int i = 0; i < 24; ++i) row += drawing.At(20 + i * width, 10) != 0 ? '#' : '.';
            EXPECT_EQ(row, c.row) << "style " << c.style << ", width " << width;
        }
}

// On 10, off 10 from -1000007: the picture begins 7 pixels into a dash.
TEST(Coverage, DashesKeepTheirPhaseFromFarAway) {
    Drawing drawing;
    const float pattern[] = {10, 10};
    vekCanvasSetDashPattern(drawing, pattern, 2);
    SetStroke(drawing, 1);
    DrawLines(drawing, {{-1000007, 50.5F}, {-500003, 50.5F}, {1000007, 50.5F}});
    for (int x = 0; x < 200; ++x) EXPECT_EQ(drawing.At(x, 50) != 0, (x + 7) % 20 < 10) << x;
}

TEST(Coverage, DashPatternsHaveTheirArea) {
    const auto line = [](std::vector<float> pattern, float from, float to) {
        return [=](VekCanvas c) {
            vekCanvasSetDashStyle(c, VEK_DASH_DOT);
            EXPECT_EQ(vekCanvasSetDashPattern(c, pattern.data(), static_cast<int>(pattern.size())), 1);
            SetStroke(c, 4);
            vekCanvasDrawLine(c, from, 100, to, 100);
        };
    };
    std::vector<float> many(255, 0.5F);
    many[0] = 100;
    const auto turn = static_cast<float>(pi * 60 / 10);
    ExpectAreas({
        {"even", 8 * 13 * 4, line({10, 5, 3, 2}, 20, 180)},
        {"odd changes roles", (7 + 2 + 5) * 4, line({7, 5, 2}, 20, 48)},
        {"single", 70 * 4, line({7}, 20, 160)},
        {"255 entries", (100 + 0.5 * 80) * 4, line(many, 10, 190)},
        {"no dash in sight", 0, line({0, 10}, 20, 180)},
        {"far line", 100 * 4, line({10, 10}, -1e6F, 1e6F)},
        {"far corner inside a dash", 65 * 10 + 45 * 10,
         [](VekCanvas c) {
             const float pattern[] = {1e9F, 1};
             vekCanvasSetDashPattern(c, pattern, 2);
             SetStroke(c, 10);
             DrawLines(c, {{-1e6F, 50}, {60, 50}, {60, 100}});
         }},
        {"finer than can be seen, far line", 200 * 4 * 0.25, line({1e-4F, 3e-4F}, -1e6F, 1e6F)},
        {"circle", pi * 60 * 6,
         [turn](VekCanvas c) {
             vekCanvasSetDashPattern(c, &turn, 1);
             SetStroke(c, 6);
             vekCanvasDrawCircle(c, 100, 100, 60);
         }},
        {"none", 160 * 4,
         [](VekCanvas c) {
             vekCanvasSetDashStyle(c, VEK_DASH_DOT);
             vekCanvasSetDashPattern(c, nullptr, 7);
             SetStroke(c, 4);
             vekCanvasDrawLine(c, 20, 100, 180, 100);
         }},
        {"style after pattern", 160 * 4 * 0.5,
         [&](VekCanvas c) {
             line({1, 100}, 300, 400)(c);
             vekCanvasSetDashStyle(c, VEK_DASH_DOT);
             vekCanvasDrawLine(c, 20, 100, 180, 100);
         }},
    });
}

// A figure drawn many times over in one path covers what it covers once, although it takes another way to the pixels.
TEST(Coverage, ManyEdgesCoverTheSame) {
    const auto zigzags = [](int copies, bool close) {
        OwnedPath path = MakePath();
        for (int i = 0; i < copies; ++i) {
            vekPathMoveTo(path.get(), 20.3F, 150);
            for (const auto& [x, y] : {std::pair{50.0F, 30.6F}, {90.0F, 160.0F}, {120.0F, 40.0F}, {170.0F, 120.0F}})
                vekPathLineTo(path.get(), x, y);
            vekPathBezierCurveTo(path.get(), 120, 190, 80, 190, 60, 100);
            if (close) vekPathClose(path.get());
        }
        return path;
    };
    for (int kind = 0; kind < 7; ++kind) {
        const bool close = kind % 2 != 0;
        // Every third erases, every third blends through a copy.
        constexpr int modes[] = {VEK_BLEND_SOURCE_OVER, VEK_BLEND_CLEAR, VEK_BLEND_LUMINOSITY};
        const int mode = modes[kind % 3];
        const Pixel before = mode == VEK_BLEND_CLEAR ? 0xFF000000 : 0;
        Drawing once(200, 200, before), often(200, 200, before);
        for (Drawing* drawing : {&once, &often}) {
            if (kind > 0) SetStroke(*drawing, 14, (kind - 1) / 2, (kind - 1) / 2);
            vekCanvasSetBlendMode(*drawing, mode);
            vekCanvasDrawPath(*drawing, zigzags(drawing == &once ? 1 : kind == 0 ? 4000 : 2000, close).get());
        }
        EXPECT_NEAR(often.Area(), once.Area(), once.Area() / 100) << "kind " << kind;
        for (int y = 0; y < once.height; ++y)
            for (int x = 0; x < once.width; ++x)
                ASSERT_NEAR(Channel(often.At(x, y), 24), Channel(once.At(x, y), 24), 255 * 3 / 16)
                    << "kind " << kind << " at (" << x << ", " << y << ")";
    }
}

TEST(Coverage, WholePixelsAreExact) {
    const RECT box{17, 23, 61, 40};
    const struct {
        const char* name;
        std::function<void(VekCanvas)> draw;
    } cases[] = {
        {"rectangle", [](VekCanvas c) { vekCanvasDrawRectangle(c, 17, 23, 44, 17); }},
        {"colour", [&](VekCanvas c) { vekCanvasDrawColor(c, 0x80FF4020, &box); }},
        {"points",
         [&](VekCanvas c) {
             for (int y = box.top; y < box.bottom; ++y)
                 for (int x = box.left; x < box.right; ++x)
                     vekCanvasDrawPoint(c, static_cast<float>(x), static_cast<float>(y));
         }},
        {"translated",
         [](VekCanvas c) {
             vekCanvasTranslate(c, 20.5F, -1000);
             vekCanvasDrawRectangle(c, -3.5F, 1023, 44, 17);
         }},
        {"clipped",
         [&](VekCanvas c) {
             vekCanvasClipRect(c, &box);
             vekCanvasDrawRectangle(c, -1e9F, -1e9F, 2e9F, 2e9F);
         }},
        {"line",
         [](VekCanvas c) {
             SetStroke(c, 17);
             vekCanvasDrawLine(c, 17, 31.5F, 61, 31.5F);
         }},
        {"path",
         [](VekCanvas c) {
             DrawLines(c, {{17, 23}, {61, 23}, {61, 40}, {17, 40}});
         }},
        {"smoothing off",
         [](VekCanvas c) {
             vekCanvasSetSmooth(c, 0);
             vekCanvasDrawRectangle(c, 16.5F, 22.6F, 44.3F, 17.8F);
         }},
    };
    for (const auto& c : cases) {
        Drawing drawing;
        vekCanvasSetColor(drawing, 0x80FF4020);
        c.draw(drawing);
        for (int y = 0; y < drawing.height; ++y)
            for (int x = 0; x < drawing.width; ++x) {
                const bool inside = x >= box.left && x < box.right && y >= box.top && y < box.bottom;
                ASSERT_EQ(drawing.At(x, y), inside ? 0x80802010U : 0U) << c.name << " at (" << x << ", " << y << ")";
            }
    }
}

TEST(Coverage, WithoutSmoothingPixelsAreAllOrNothing) {
    Drawing drawing;
    vekCanvasSetSmooth(drawing, 0);
    vekCanvasDrawCircle(drawing, 60, 60, 40.3F);
    SetStroke(drawing, 3);
    vekCanvasDrawLine(drawing, 10, 190, 190, 20);
    for (const Pixel pixel : drawing.words) ASSERT_TRUE(pixel == 0 || pixel == 0xFF000000) << std::hex << pixel;
    EXPECT_NEAR(drawing.Area(), pi * 40.3 * 40.3 + 3 * std::hypot(180, 170), 60);
}

// A frame of odd width between pixels runs through the pixels to the right of and below its outline.
TEST(Coverage, WithoutSmoothingAFrameRunsThroughItsPixels) {
    for (const int width : {1, 3}) {
        Drawing drawing;
        vekCanvasSetSmooth(drawing, 0);
        SetStroke(drawing, static_cast<float>(width));
        vekCanvasDrawRectangle(drawing, 20, 30, 39, 29);
        const auto onBand = [&](int at, int line) { return std::abs(at - line) <= width / 2; };
        for (int y = 0; y < 100; ++y)
            for (int x = 0; x < 100; ++x) {
                const bool acrossX = x >= 20 - width / 2 && x <= 59 + width / 2;
                const bool acrossY = y >= 30 - width / 2 && y <= 59 + width / 2;
                const bool frame =
                    (acrossX && (onBand(y, 30) || onBand(y, 59))) || (acrossY && (onBand(x, 20) || onBand(x, 59)));
                ASSERT_EQ(drawing.At(x, y) != 0, frame) << width << " at (" << x << ", " << y << ")";
            }
    }
}

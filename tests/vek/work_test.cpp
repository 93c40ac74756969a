// What a draw costs, counted before anything is drawn: rows that edges cross, dashes and stops.
#include <gtest/gtest.h>

#include <random>

#include "vek/color_stops.h"
#include "vek/shape.h"

using namespace zorvic::vek;

namespace {

// Of all lines of an outline, those of the stroke along it or of the dashes that Cairo is to make.
double CountRows(const Shape& shape, double height) {
    struct Counter {
        double reach, height, rows = 0, length = 0;
        Point start, current;
        void MoveTo(Point p) { start = current = p; }
        void LineTo(Point p) {
            rows += std::min(std::abs(p.y - current.y) + reach, height);
            length += Distance(p, current);
            current = p;
        }
        void CurveTo(Point, Point, Point p) { LineTo(p); }
        void Close() { LineTo(start); }
    } counter{shape.Stroke().width, height, 0, 0, {}, {}};
    shape.Outline().Visit(counter);
    if (shape.DashLengths().empty()) return counter.rows;
    double period = 0;
    for (const double length : shape.DashLengths()) period += length;
    const double count = counter.length / period * static_cast<double>(shape.DashLengths().size()) / 2;
    return counter.rows + count * std::min(shape.Stroke().width, height);
}

Path Line() {
    Path path;
    path.MoveTo({0, 0});
    path.LineTo({1920, 1080});
    return path;
}

Path Circles() {
    Path path;
    for (int i = 0; i < 50; ++i) {
        const double x = 300 + i * 25, r = 200 + i * 5;
        path.AddEllipse({x - r, 540 - r}, {x + r, 540 + r});
    }
    return path;
}

Path RandomLines(int count) {
    std::mt19937 random(4);
    Path path;
    path.MoveTo({0, 0});
    for (int i = 0; i < count; ++i) {
        const double x = random() % 1920, y = random() % 1080;
        path.LineTo({x, y});
    }
    return path;
}

Path Round(Point end, double radius) {
    Path path;
    path.AddRoundRect({0, 0}, end, radius, radius);
    return path;
}

}  // namespace

TEST(Work, RowsOfEdgesAreBounded) {
    const Rect screen{0, 0, 1920, 1080}, thin{0, 0, 1, 14995}, tall{0, 0, 25, 29915};
    struct Case {
        const char* name;
        Path path;
        Rect clip;
        float width;  // 0: filled
        Dashes dashes;
        double opacity;
        double most;  // rows; above 500,000 only for a mask
    };
    const Case cases[] = {
        {"the finest dashes", Line(), screen, 1000, {0.05, 0.05}, 0.5, 1e4},
        {"fewer on than off", Line(), screen, 2000, {0.01, 0.03}, 0.25, 1e4},
        {"dashes that are seen", Line(), screen, 1000, {2, 2}, 1, 1e6},
        {"dashes of a chart", Line(), screen, 1, {3, 1}, 1, 5e3},
        {"dashed circles", Circles(), screen, 20, {1, 1}, 1, 4e6},
        {"lines", RandomLines(5000), screen, 0, {}, 1, 3e6},
        {"stroked lines", RandomLines(5000), screen, 1, {}, 1, 3e6},
        {"dashed lines", RandomLines(1000), screen, 20, {1, 1}, 0.5, 1e6},
        {"the edge of a thin canvas", Round({1, 14995}, 9), thin, 27724, {}, 1, 4e6},
        {"the edge of a tall canvas", Round({25, 29915}, 9), tall, 27724, {}, 1, 8e6},
        {"a far edge", Round({30000, 30000}, 14000), tall, 27724, {}, 1, 8e6},
        {"wide over all", Circles(), screen, 60000, {}, 1, 1e7},
    };
    for (const Case& c : cases) {
        Style style;
        style.strokeWidth = c.width;
        if (!c.dashes.empty()) style.dashPattern = std::make_shared<const Dashes>(c.dashes);
        const Shape shape =
            c.width > 0 ? Shape::Stroked(c.path, {}, style, c.clip) : Shape::Filled(c.path, {}, true, c.clip);
        const double rows = CountRows(shape, c.clip.Height());
        EXPECT_NEAR(shape.Opacity(), c.opacity, 1e-6) << c.name;
        EXPECT_LT(rows, c.most) << c.name;
        EXPECT_TRUE(rows < 5e5 || shape.CoverageMask()) << c.name << ": " << rows;
    }
    // Where caps fill the gaps a stroke is solid.
    for (const Cap cap : {Cap::round, Cap::square}) {
        Style style;
        style.strokeWidth = 20;
        style.cap = cap;
        style.dashPattern = std::make_shared<const Dashes>(Dashes{0.1, 0.1});
        EXPECT_EQ(Shape::Stroked(Circles(), {}, style, screen).Opacity(), 1);
    }
}

TEST(Work, StopsAreBounded) {
    ColorStops stops;
    std::mt19937 random(5);
    for (std::uint32_t i = 0; i < 40000; ++i) stops.Add(static_cast<double>(random() % 1000) / 999, i);
    const std::vector<Stop> shown = stops.Shown();
    EXPECT_LE(shown.size(), 2U * (ColorStops::parts + 1));
    EXPECT_TRUE(shown.front().offset == 0 && shown.back().offset == 1);
    for (std::size_t i = 1; i < shown.size(); ++i) {
        const bool same = shown[i - 1].offset == shown[i].offset;
        EXPECT_TRUE(same ? shown[i - 1].color < shown[i].color : shown[i - 1].offset < shown[i].offset) << i;
    }
    // Few stops are all shown, and one more is seen at once.
    ColorStops few;
    for (const std::uint32_t i : {0U, 1U, 2U}) few.Add(i == 0 ? 0.5 : 0.25, i);
    EXPECT_EQ(few.Shown().size(), 3U);
    few.Add(-1, 3);
    EXPECT_EQ(few.Shown().front().color, 3U);
}

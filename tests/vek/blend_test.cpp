// The 27 blend modes against their formulas, for shapes and bitmaps, with partial coverage and opacity.
#include <array>
#include <cmath>
#include <functional>

#include "script.h"

using namespace vek_test;

namespace {

constexpr int modeCount = 27;

// Premultiplied, 0..1.
struct Color {
    std::array<double, 3> c{};
    double a = 0;

    static Color Of(Pixel pixel) {
        return {{Channel(pixel, 16) / 255.0, Channel(pixel, 8) / 255.0, Channel(pixel, 0) / 255.0},
                Channel(pixel, 24) / 255.0};
    }
    static Color OfStraight(DWORD color) {
        Color result = Of(color);
        for (double& v : result.c) v *= result.a;
        return result;
    }
    Pixel ToPixel() const {
        const auto byte = [](double v) { return static_cast<Pixel>(std::lround(v * 255)); };
        return byte(a) << 24 | byte(c[0]) << 16 | byte(c[1]) << 8 | byte(c[2]);
    }
    std::array<double, 3> Straight() const {
        if (a == 0) return {};
        return {c[0] / a, c[1] / a, c[2] / a};
    }
};

Color Mix(const Color& from, const Color& to, double k) {
    Color result;
    for (std::size_t i = 0; i < 3; ++i) result.c[i] = from.c[i] + (to.c[i] - from.c[i]) * k;
    result.a = from.a + (to.a - from.a) * k;
    return result;
}

// The functions B(backdrop, source) of one channel, from VEK_BLEND_MULTIPLY on.
double HardLight(double b, double s) { return s <= 0.5 ? 2 * b * s : 1 - 2 * (1 - b) * (1 - s); }
double SoftLight(double b, double s) {
    const double d = b <= 0.25 ? ((16 * b - 12) * b + 4) * b : std::sqrt(b);
    return s <= 0.5 ? b - (1 - 2 * s) * b * (1 - b) : b + (2 * s - 1) * (d - b);
}
constexpr double (*separable[])(double, double) = {
    [](double b, double s) { return b * s; },
    [](double b, double s) { return b + s - b * s; },
    [](double b, double s) { return HardLight(s, b); },
    [](double b, double s) { return std::min(b, s); },
    [](double b, double s) { return std::max(b, s); },
    [](double b, double s) { return b <= 0       ? 0
                                    : b >= 1 - s ? 1
                                                 : b / (1 - s); },
    [](double b, double s) { return b >= 1       ? 1
                                    : 1 - b >= s ? 0
                                                 : 1 - (1 - b) / s; },
    HardLight,
    SoftLight,
    [](double b, double s) { return std::abs(b - s); },
    [](double b, double s) { return b + s - 2 * b * s; },
};

using Rgb = std::array<double, 3>;
double Luminosity(const Rgb& c) { return 0.3 * c[0] + 0.59 * c[1] + 0.11 * c[2]; }
double Saturation(const Rgb& c) { return std::max({c[0], c[1], c[2]}) - std::min({c[0], c[1], c[2]}); }

Rgb WithLuminosity(Rgb c, double wanted) {
    const double shift = wanted - Luminosity(c);
    for (double& v : c) v += shift;
    const double low = std::min({c[0], c[1], c[2]}), high = std::max({c[0], c[1], c[2]});
    for (double& v : c) {
        if (low < 0) v = wanted + (v - wanted) * wanted / (wanted - low);
        if (high > 1) v = wanted + (v - wanted) * (1 - wanted) / (high - wanted);
    }
    return c;
}

Rgb WithSaturation(Rgb c, double wanted) {
    const double low = std::min({c[0], c[1], c[2]}), range = Saturation(c);
    for (double& v : c) v = range > 0 ? (v - low) * wanted / range : 0;
    return c;
}

Rgb NonSeparable(int mode, const Rgb& b, const Rgb& s) {
    if (mode == VEK_BLEND_HUE) return WithLuminosity(WithSaturation(s, Saturation(b)), Luminosity(b));
    if (mode == VEK_BLEND_SATURATION) return WithLuminosity(WithSaturation(b, Saturation(s)), Luminosity(b));
    return mode == VEK_BLEND_COLOR ? WithLuminosity(s, Luminosity(b)) : WithLuminosity(b, Luminosity(s));
}

Color Compose(int mode, const Color& s, const Color& d) {
    const struct {
        double source;
        double destination;
    } factors[] = {{1, 1 - s.a}, {1, 0},       {1 - d.a, 1},   {0, 0},         {d.a, 0},           {0, s.a},
                   {1 - d.a, 0}, {0, 1 - s.a}, {d.a, 1 - s.a}, {1 - d.a, s.a}, {1 - d.a, 1 - s.a}, {1, 1}};
    Color result;
    if (mode < VEK_BLEND_MULTIPLY) {
        const auto [fs, fd] = factors[mode];
        for (std::size_t i = 0; i < 3; ++i) result.c[i] = std::min(s.c[i] * fs + d.c[i] * fd, 1.0);
        result.a = std::min(s.a * fs + d.a * fd, 1.0);
        return result;
    }
    const Rgb back = d.Straight(), front = s.Straight();
    Rgb blended = NonSeparable(mode, back, front);
    for (std::size_t i = 0; i < 3 && mode < VEK_BLEND_HUE; ++i)
        blended[i] = separable[mode - VEK_BLEND_MULTIPLY](back[i], front[i]);
    for (std::size_t i = 0; i < 3; ++i) result.c[i] = s.c[i] * (1 - d.a) + d.c[i] * (1 - s.a) + s.a * d.a * blended[i];
    result.a = s.a + d.a - s.a * d.a;
    return result;
}

// What a pixel becomes when a shape covers part of it.
Color Paint(int mode, Color s, const Color& d, double coverage) {
    if (mode != VEK_BLEND_PLUS) return Mix(d, Compose(mode, s, d), coverage);
    return Compose(mode, Mix({}, s, coverage), d);
}

// Every pixel is what the mode makes of it; at(x, y) is the source there and how much it covers.
void ExpectPainted(int mode, const Pixels& got, const Pixels& before, const std::string& name,
                   const std::function<std::pair<Color, double>(int, int)>& at) {
    for (int y = 0; y < got.height; ++y)
        for (int x = 0; x < got.width; ++x) {
            const auto [source, coverage] = at(x, y);
            const Pixel wanted = Paint(mode, source, Color::Of(before.At(x, y)), coverage).ToPixel();
            ASSERT_TRUE(IsNear(got.At(x, y), wanted, coverage > 0 ? 3 : 0))
                << "mode " << mode << " on " << std::hex << before.At(x, y) << std::dec << ", " << name << ", coverage "
                << coverage << " at (" << x << ", " << y << ")";
        }
}

}  // namespace

TEST(Blend, ColorsFollowTheFormulas) {
    const struct {
        float edge;  // left edge of a rectangle: coverage of its first column
        int value;
    } cases[] = {{4, 255}, {4.5F, 255}, {4, 100}, {4.25F, 37}, {4.5F, 0}};
    for (int mode = 0; mode < modeCount; ++mode)
        for (const DWORD color :
             {0xFFE08020U, 0xFF000000U, 0xFFFFFFFFU, 0x80208040U, 0x40FF00FFU, 0x01FFFFFFU, 0x0000FF00U})
            for (const auto& [edge, value] : cases) {
                Drawing drawing(16, 16);
                FillWithNoise(drawing, 7);
                const Pixels before = drawing;
                vekCanvasSetBlendMode(drawing, mode);
                vekCanvasSetBlendValue(drawing, value);
                vekCanvasSetColor(drawing, color);
                vekCanvasDrawRectangle(drawing, edge, 2, 10 - edge, 12);
                const double first = 5 - static_cast<double>(edge), opacity = value / 255.0;
                ExpectPainted(mode, drawing, before, "color " + std::to_string(color), [&](int x, int y) {
                    const bool inside = x >= 4 && x < 10 && y >= 2 && y < 14;
                    return std::pair(Color::OfStraight(color), inside ? (x == 4 ? first : 1) * opacity : 0);
                });
            }
}

TEST(Blend, BitmapsFollowTheFormulas) {
    Pixels picture(9, 8);
    FillWithNoise(picture, 11);
    for (int mode = 0; mode < modeCount; ++mode)
        for (const int value : {255, 90, 0}) {
            Drawing drawing(20, 16);
            FillWithNoise(drawing, 13);
            const Pixels before = drawing;
            Draw(drawing, "clip 2 1 12 14  mode " + std::to_string(mode) + "  value " + std::to_string(value));
            EXPECT_EQ(vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 5, 3), 1);
            const bool everywhere = mode == VEK_BLEND_SOURCE_IN || mode == VEK_BLEND_SOURCE_OUT ||
                                    mode == VEK_BLEND_DESTINATION_IN || mode == VEK_BLEND_DESTINATION_ATOP;
            ExpectPainted(mode, drawing, before, "bitmap", [&](int x, int y) {
                const bool visible = x >= 2 && x < 12 && y >= 1 && y < 14;
                const bool inside = x >= 5 && x < 14 && y >= 3 && y < 11;
                const Color source = inside ? Color::Of(picture.At(x - 5, y - 3)) : Color{};
                return std::pair(source, visible && (inside || everywhere) ? value / 255.0 : 0);
            });
        }
}

TEST(Blend, ClearTakesAwayWhatAStrokeCovers) {
    for (const char* look :
         {"smooth 0  value 255  ", "smooth 1  value 255  ", "smooth 0  value 100  ", "smooth 1  value 100  "}) {
        Drawing drawn(60, 60), cleared(60, 60, 0xFF000000);
        Draw(cleared, "mode 3  #30FF0000");
        for (Drawing* drawing : {&drawn, &cleared})
            Draw(*drawing, std::string(look) + "width 4.5  line 5 8 55 13  line 10 20 50 20  style 1  circle 30 40 12");
        for (std::size_t i = 0; i < drawn.words.size(); ++i) {
            ASSERT_NEAR(Channel(cleared.words[i], 24), 255 - Channel(drawn.words[i], 24), 2) << i << ", " << look;
            ASSERT_EQ(cleared.words[i] & 0xFFFFFF, 0U);
        }
    }
}

// Rows of thousands of partly covered pixels.
TEST(Blend, WideShapesReplaceToo) {
    Drawing drawing(9000, 6, 0xFFFFFFFF);
    Draw(drawing,
         "style 2  mode 1  linear 0 0 9000 0  #80FF0000 stop 0  #80FE0000 stop 1  "
         "L 0 1.5  L 9000 1.5  L 9000 4.5  L 4500 4.4  L 0 4.5  path");
    for (int x = 0; x < 9000; ++x) {
        ASSERT_TRUE(IsNear(drawing.At(x, 1), 0xC0C08080, 10)) << x;
        ASSERT_TRUE(IsNear(drawing.At(x, 2), 0x80800000, 1)) << x;
    }
}

// A bitmap between pixels is the mean of its neighbours; drawn on itself it is what it was before the call.
TEST(Blend, BitmapsAreSampledAndMayShareThePixels) {
    Pixels picture(4, 4);
    FillWithNoise(picture, 23);
    for (Pixel& pixel : picture.words) pixel |= 0xFF000000;
    Drawing drawing(12, 12, 0xFF000000);
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.5F, 2);
    const auto between = [](Pixel a, Pixel b) { return Mix(Color::Of(a), Color::Of(b), 0.5).ToPixel(); };
    EXPECT_TRUE(IsNear(drawing.At(5, 3), between(picture.At(1, 1), picture.At(2, 1)), 2));
    EXPECT_TRUE(IsNear(drawing.At(3, 3), between(0xFF000000, picture.At(0, 1)), 2));

    vekCanvasSetSmooth(drawing, 0);
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.4F, 6.6F);
    EXPECT_EQ(drawing.At(3, 7), picture.At(0, 0));

    FillWithNoise(drawing, 29);
    const Pixels before = drawing;
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE);
    EXPECT_EQ(vekCanvasDrawBitmap(drawing, drawing.Wrap().get(), 2, 3), 1);
    for (int y = 3; y < 12; ++y)
        for (int x = 2; x < 12; ++x) ASSERT_EQ(drawing.At(x, y), before.At(x - 2, y - 3));
}

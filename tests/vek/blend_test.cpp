// The 27 blend modes against their formulas, for shapes and bitmaps, with partial coverage and opacity.
#include <array>
#include <cmath>

#include "drawing.h"

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

// The functions B(backdrop, source) of one channel.
double Separable(int mode, double b, double s) {
    switch (mode) {
        case VEK_BLEND_MULTIPLY:
            return b * s;
        case VEK_BLEND_SCREEN:
            return b + s - b * s;
        case VEK_BLEND_OVERLAY:
            return Separable(VEK_BLEND_HARD_LIGHT, s, b);
        case VEK_BLEND_DARKEN:
            return std::min(b, s);
        case VEK_BLEND_LIGHTEN:
            return std::max(b, s);
        case VEK_BLEND_COLOR_DODGE:
            return b <= 0 ? 0 : b >= 1 - s ? 1 : b / (1 - s);
        case VEK_BLEND_COLOR_BURN:
            return b >= 1 ? 1 : 1 - b >= s ? 0 : 1 - (1 - b) / s;
        case VEK_BLEND_HARD_LIGHT:
            return s <= 0.5 ? 2 * b * s : 1 - 2 * (1 - b) * (1 - s);
        case VEK_BLEND_SOFT_LIGHT: {
            const double d = b <= 0.25 ? ((16 * b - 12) * b + 4) * b : std::sqrt(b);
            return s <= 0.5 ? b - (1 - 2 * s) * b * (1 - b) : b + (2 * s - 1) * (d - b);
        }
        case VEK_BLEND_DIFFERENCE:
            return std::abs(b - s);
        case VEK_BLEND_EXCLUSION:
            return b + s - 2 * b * s;
        default:
            return 0;
    }
}

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
    switch (mode) {
        case VEK_BLEND_HUE:
            return WithLuminosity(WithSaturation(s, Saturation(b)), Luminosity(b));
        case VEK_BLEND_SATURATION:
            return WithLuminosity(WithSaturation(b, Saturation(s)), Luminosity(b));
        case VEK_BLEND_COLOR:
            return WithLuminosity(s, Luminosity(b));
        default:
            return WithLuminosity(b, Luminosity(s));
    }
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
    Rgb blended;
    if (mode >= VEK_BLEND_HUE) {
        blended = NonSeparable(mode, back, front);
    } else {
        for (std::size_t i = 0; i < 3; ++i) blended[i] = Separable(mode, back[i], front[i]);
    }
    for (std::size_t i = 0; i < 3; ++i) result.c[i] = s.c[i] * (1 - d.a) + d.c[i] * (1 - s.a) + s.a * d.a * blended[i];
    result.a = s.a + d.a - s.a * d.a;
    return result;
}

// What a pixel becomes when a shape covers part of it.
Color Paint(int mode, Color s, const Color& d, double coverage) {
    if (mode != VEK_BLEND_PLUS) return Mix(d, Compose(mode, s, d), coverage);
    return Compose(mode, Mix({}, s, coverage), d);
}

constexpr DWORD colors[] = {0xFFE08020, 0xFF000000, 0xFFFFFFFF, 0x80208040, 0x40FF00FF, 0x01FFFFFF, 0x0000FF00};

}  // namespace

TEST(Blend, ColorsFollowTheFormulas) {
    const struct {
        float edge;  // left edge of a rectangle: coverage of its first column
        int value;
    } cases[] = {{4, 255}, {4.5F, 255}, {4, 100}, {4.25F, 37}};
    for (int mode = 0; mode < modeCount; ++mode)
        for (const DWORD color : colors)
            for (const auto& c : cases) {
                Drawing drawing(16, 16);
                FillWithNoise(drawing, 7);
                const Pixels before = drawing;
                vekCanvasSetBlendMode(drawing, mode);
                vekCanvasSetBlendValue(drawing, c.value);
                vekCanvasSetColor(drawing, color);
                vekCanvasDrawRectangle(drawing, c.edge, 2, 10 - c.edge, 12);
                const double covered = 5 - static_cast<double>(c.edge);
                for (int y = 0; y < 16; ++y)
                    for (int x = 0; x < 16; ++x) {
                        const bool inside = x >= 4 && x < 10 && y >= 2 && y < 14;
                        const double coverage = (inside ? x == 4 ? covered : 1 : 0) * c.value / 255;
                        const Pixel old = before.At(x, y);
                        const Pixel wanted = Paint(mode, Color::OfStraight(color), Color::Of(old), coverage).ToPixel();
                        ASSERT_TRUE(IsNear(drawing.At(x, y), wanted, inside ? 3 : 0))
                            << "mode " << mode << std::hex << ", color " << color << " on " << old << std::dec
                            << ", coverage " << coverage << " at (" << x << ", " << y << ")";
                    }
            }
}

TEST(Blend, BitmapsFollowTheFormulas) {
    Pixels picture(9, 8);
    FillWithNoise(picture, 11);
    const OwnedBitmap bitmap = picture.Wrap();
    for (int mode = 0; mode < modeCount; ++mode)
        for (const int value : {255, 90}) {
            Drawing drawing(20, 16);
            FillWithNoise(drawing, 13);
            const Pixels before = drawing;
            const RECT clip{2, 1, 12, 14};
            vekCanvasClipRect(drawing, &clip);
            vekCanvasSetBlendMode(drawing, mode);
            vekCanvasSetBlendValue(drawing, value);
            EXPECT_EQ(vekCanvasDrawBitmap(drawing, bitmap.get(), 5, 3), 1);
            const bool everywhere = mode == VEK_BLEND_SOURCE_IN || mode == VEK_BLEND_SOURCE_OUT ||
                                    mode == VEK_BLEND_DESTINATION_IN || mode == VEK_BLEND_DESTINATION_ATOP;
            for (int y = 0; y < 16; ++y)
                for (int x = 0; x < 20; ++x) {
                    const bool clipped = x < 2 || x >= 12 || y < 1 || y >= 14;
                    const bool inside = x >= 5 && x < 14 && y >= 3 && y < 11;
                    const Color source = inside ? Color::Of(picture.At(x - 5, y - 3)) : Color{};
                    const double coverage = !clipped && (inside || everywhere) ? value / 255.0 : 0;
                    const Pixel wanted = Paint(mode, source, Color::Of(before.At(x, y)), coverage).ToPixel();
                    ASSERT_TRUE(IsNear(drawing.At(x, y), wanted, 3))
                        << "mode " << mode << ", value " << value << " at (" << x << ", " << y << ")";
                }
        }
}

// Every mode, kind of shape and kind of source leaves premultiplied pixels, and those outside the clip alone.
TEST(Blend, PixelsStayPremultiplied) {
    Pixels picture(30, 30);
    FillWithNoise(picture, 17);
    const OwnedBitmap bitmap = picture.Wrap();
    const OwnedGradient linear(vekGradientCreateLinear(5, 5, 40, 30));
    const OwnedGradient radial(vekGradientCreateRadial(15, 15, 2, 25, 25, 22));
    for (VekGradient gradient : {linear.get(), radial.get()}) {
        vekGradientAddColorStop(gradient, 0, 0xFFFF0000);
        vekGradientAddColorStop(gradient, 0.4F, 0x3000FFFF);
        vekGradientAddColorStop(gradient, 1, 0xC0FFFFFF);
    }
    const RECT box{6, 7, 41, 36};
    const std::function<void(VekCanvas)> shapes[] = {
        [](VekCanvas c) { vekCanvasDrawPoint(c, 20.3F, 20.6F); },
        [](VekCanvas c) { vekCanvasDrawLine(c, 3, 5, 44, 39.5F); },
        [](VekCanvas c) { vekCanvasDrawRectangle(c, 5.2F, 6.7F, 33.3F, 30); },
        [](VekCanvas c) { vekCanvasDrawRectangle(c, 5, 6, 33, 30); },
        [&](VekCanvas c) { vekCanvasDrawRoundRect(c, &box, 9, 7); },
        [](VekCanvas c) { vekCanvasDrawCircle(c, 22, 21, 18); },
        [&](VekCanvas c) { vekCanvasDrawColor(c, 0x90FF60A0, &box); },
        [&](VekCanvas c) { vekCanvasDrawBitmap(c, bitmap.get(), 8, 9); },
        [&](VekCanvas c) { vekCanvasDrawBitmap(c, bitmap.get(), 8.3F, 9.7F); },
    };
    for (int mode = 0; mode < modeCount; ++mode)
        for (int style = 0; style < 4; ++style)
            for (std::size_t shape = 0; shape < std::size(shapes); ++shape)
                for (const int value : {255, 120}) {
                    Drawing drawing(48, 44);
                    FillWithNoise(drawing, 19);
                    const Pixels before = drawing;
                    const RECT clip{4, 3, 45, 38};
                    vekCanvasClipRect(drawing, &clip);
                    vekCanvasSetDrawStyle(drawing, std::min(style, 2));
                    vekCanvasSetGradient(drawing, style == 3 ? radial.get() : linear.get());
                    vekCanvasSetColor(drawing, 0xD0FF8040);
                    vekCanvasSetStrokeWidth(drawing, 5);
                    vekCanvasSetBlendMode(drawing, mode);
                    vekCanvasSetBlendValue(drawing, value);
                    shapes[shape](drawing);
                    ASSERT_TRUE(IsPremultiplied(drawing))
                        << "mode " << mode << ", style " << style << ", shape " << shape << ", value " << value;
                    for (int y = 0; y < 44; ++y)
                        for (int x = 0; x < 48; ++x)
                            if (x < 4 || x >= 45 || y < 3 || y >= 38) {
                                ASSERT_EQ(drawing.At(x, y), before.At(x, y)) << "mode " << mode << ", shape " << shape;
                            }
                }
}

TEST(Blend, ClearTakesAwayWhatAStrokeCovers) {
    for (const int smooth : {0, 1})
        for (const int value : {255, 100}) {
            Drawing drawn(60, 60), cleared(60, 60, 0xFF000000);
            vekCanvasSetBlendMode(cleared, VEK_BLEND_CLEAR);
            for (Drawing* drawing : {&drawn, &cleared}) {
                vekCanvasSetColor(*drawing, drawing == &drawn ? 0xFF000000 : 0x30FF0000);
                vekCanvasSetBlendValue(*drawing, value);
                vekCanvasSetSmooth(*drawing, smooth);
                vekCanvasSetStrokeWidth(*drawing, 4.5F);
                vekCanvasDrawLine(*drawing, 5, 8, 55, 13);
                vekCanvasDrawLine(*drawing, 10, 20, 50, 20);
                vekCanvasSetDrawStyle(*drawing, VEK_DRAW_STROKE);
                vekCanvasDrawCircle(*drawing, 30, 40, 12);
            }
            for (std::size_t i = 0; i < drawn.words.size(); ++i) {
                ASSERT_NEAR(Channel(cleared.words[i], 24), 255 - Channel(drawn.words[i], 24), 2) << i << ", " << value;
                ASSERT_EQ(cleared.words[i] & 0xFFFFFF, 0U);
            }
        }
}

// Rows of thousands of partly covered pixels.
TEST(Blend, WideShapesReplaceToo) {
    Drawing drawing(9000, 6, 0xFFFFFFFF);
    const OwnedGradient gradient(vekGradientCreateLinear(0, 0, 9000, 0));
    vekGradientAddColorStop(gradient.get(), 0, 0x80FF0000);
    vekGradientAddColorStop(gradient.get(), 1, 0x80FE0000);
    vekCanvasSetGradient(drawing, gradient.get());
    vekCanvasSetDrawStyle(drawing, VEK_DRAW_GRADIENT);
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE);
    const OwnedPath path = MakePath();
    for (const auto& [x, y] : {std::pair{0.0F, 1.5F}, {9000.0F, 1.5F}, {9000.0F, 4.5F}, {4500.0F, 4.4F}, {0.0F, 4.5F}})
        vekPathLineTo(path.get(), x, y);
    vekCanvasDrawPath(drawing, path.get());
    for (int x = 0; x < 9000; ++x) {
        ASSERT_TRUE(IsNear(drawing.At(x, 1), 0xC0C08080, 10)) << x;
        ASSERT_TRUE(IsNear(drawing.At(x, 2), 0x80800000, 1)) << x;
    }
}

TEST(Blend, ValueZeroChangesNothing) {
    for (int mode = 0; mode < modeCount; ++mode) {
        Drawing drawing(20, 20);
        FillWithNoise(drawing, 3);
        const Pixels before = drawing;
        Pixels picture(10, 10, 0xFFFFFFFF);
        vekCanvasSetBlendMode(drawing, mode);
        vekCanvasSetBlendValue(drawing, -5);
        vekCanvasDrawCircle(drawing, 10, 10, 6);
        vekCanvasDrawPoint(drawing, 3, 3);
        vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 5, 5);
        EXPECT_EQ(drawing.words, before.words) << mode;
    }
}

// A bitmap between pixels is the mean of its neighbours; drawn on itself it is what it was before the call.
TEST(Blend, BitmapsAreSampledAndMayShareThePixels) {
    Pixels picture(4, 4);
    FillWithNoise(picture, 23);
    for (Pixel& pixel : picture.words) pixel |= 0xFF000000;
    Drawing drawing(12, 12, 0xFF000000);
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.5F, 2);
    const Color between = Mix(Color::Of(picture.At(1, 1)), Color::Of(picture.At(2, 1)), 0.5);
    EXPECT_TRUE(IsNear(drawing.At(5, 3), between.ToPixel(), 2));
    EXPECT_TRUE(IsNear(drawing.At(3, 3), Mix(Color::Of(0xFF000000), Color::Of(picture.At(0, 1)), 0.5).ToPixel(), 2));

    vekCanvasSetSmooth(drawing, 0);
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.4F, 6.6F);
    EXPECT_EQ(drawing.At(3, 7), picture.At(0, 0));

    FillWithNoise(drawing, 29);
    const Pixels before = drawing;
    const OwnedBitmap itself = drawing.Wrap();
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE);
    EXPECT_EQ(vekCanvasDrawBitmap(drawing, itself.get(), 2, 3), 1);
    for (int y = 3; y < 12; ++y)
        for (int x = 2; x < 12; ++x) ASSERT_EQ(drawing.At(x, y), before.At(x - 2, y - 3));
}

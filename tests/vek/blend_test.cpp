// The 27 blend modes against their formulas, for shapes and bitmaps, with partial coverage and opacity.
#include <cmath>
#include <set>
#include <valarray>

#include "drawing.h"

using namespace vek_test;

namespace {

using Color = std::valarray<double>;  // red, green, blue and, where it has one, alpha; 0..1

Color FromPixel(Pixel pixel) {
    const auto channel = [&](int shift) { return Channel(pixel, shift) / 255.0; };
    return {channel(16), channel(8), channel(0), channel(24)};
}

Pixel ToPixel(const Color& color) {
    const auto byte = [&](std::size_t i) { return static_cast<Pixel>(std::lround(color[i] * 255)); };
    return byte(3) << 24 | byte(0) << 16 | byte(1) << 8 | byte(2);
}

// The functions B(backdrop, source) of one channel, from VEK_BLEND_MULTIPLY on.
double ColorDodge(double b, double s) { return b <= 0 ? 0 : std::min(b / (1 - s), 1.0); }
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
    ColorDodge,
    [](double b, double s) { return 1 - ColorDodge(1 - b, 1 - s); },
    HardLight,
    SoftLight,
    [](double b, double s) { return std::abs(b - s); },
    [](double b, double s) { return b + s - 2 * b * s; },
};

double Luminosity(const Color& c) { return 0.3 * c[0] + 0.59 * c[1] + 0.11 * c[2]; }
double Saturation(const Color& c) { return c.max() - c.min(); }

Color WithLuminosity(Color c, double wanted) {
    c += wanted - Luminosity(c);
    const double low = c.min(), high = c.max();
    if (low < 0) c = wanted + (c - wanted) * (wanted / (wanted - low));
    if (high > 1) c = wanted + (c - wanted) * ((1 - wanted) / (high - wanted));
    return c;
}

Color WithSaturation(const Color& c, double wanted) {
    return (c - c.min()) * (Saturation(c) > 0 ? wanted / Saturation(c) : 0);
}

Color Blended(int mode, const Color& b, const Color& s) {
    if (mode == VEK_BLEND_HUE) return WithLuminosity(WithSaturation(s, Saturation(b)), Luminosity(b));
    if (mode == VEK_BLEND_SATURATION) return WithLuminosity(WithSaturation(b, Saturation(s)), Luminosity(b));
    if (mode == VEK_BLEND_COLOR) return WithLuminosity(s, Luminosity(b));
    if (mode == VEK_BLEND_LUMINOSITY) return WithLuminosity(b, Luminosity(s));
    const auto blend = separable[mode - VEK_BLEND_MULTIPLY];
    return {blend(b[0], s[0]), blend(b[1], s[1]), blend(b[2], s[2])};
}

Color Straight(const Color& c) { return Color{c[0], c[1], c[2]} / (c[3] > 0 ? c[3] : 1); }
Color Premultiplied(const Color& c, double a) { return {c[0] * a, c[1] * a, c[2] * a, a}; }

Color Compose(int mode, const Color& s, const Color& d) {
    const double sa = s[3], da = d[3];
    const double factors[][2] = {{1, 1 - sa}, {1, 0},      {1 - da, 1},  {0, 0},       {da, 0},          {0, sa},
                                 {1 - da, 0}, {0, 1 - sa}, {da, 1 - sa}, {1 - da, sa}, {1 - da, 1 - sa}, {1, 1}};
    if (mode < VEK_BLEND_MULTIPLY)
        return Color(s * factors[mode][0] + d * factors[mode][1]).apply([](double v) { return std::min(v, 1.0); });
    return s * (1 - da) + d * (1 - sa) + Premultiplied(Blended(mode, Straight(d), Straight(s)), sa * da);
}

// What a pixel becomes when a shape covers part of it.
Color Paint(int mode, const Color& s, const Color& d, double coverage) {
    if (mode == VEK_BLEND_PLUS) return Compose(mode, s * coverage, d);
    return d + (Compose(mode, s, d) - d) * coverage;
}

const std::set<int> actsOutsideBitmaps{VEK_BLEND_SOURCE_IN, VEK_BLEND_DESTINATION_IN, VEK_BLEND_SOURCE_OUT,
                                       VEK_BLEND_DESTINATION_ATOP};

}  // namespace

// What a shape covers is seen by drawing it in black on nothing; a bitmap drawn there is the source everywhere.
TEST(Blend, PixelsFollowTheFormulas) {
    const std::string shapes[] = {"rectangle 4 2 6 12",
                                  "rectangle 4.25 2 5.75 12",
                                  "circle 8.2 7.5 6.6",
                                  "width 4.5  line 3 4 17 11",
                                  "smooth 0  width 4.5  line 3 8 13 8",
                                  "style 2  linear 0 0 9 9  stop 0  circle 9 8 7",
                                  "bitmap 4 3",
                                  "bitmap 20 3"};
    for (int mode = 0; mode < 27; ++mode)
        for (const std::string color :
             {"#FFE08020", "#FF000000", "#FFFFFFFF", "#80208040", "#40FF00FF", "#01FFFFFF", "#0000FF00"})
            for (const std::string& shape : shapes)
                for (const int value : {255, 100, 0}) {
                    const std::string script = color + "  clip 2 1 12 14  mode " + std::to_string(mode) + "  value " +
                                               std::to_string(value) + "  " + shape;
                    Drawing drawing(16, 16), drawn(16, 16);
                    FillWithNoise(drawing, 7);
                    const Pixels before = drawing;
                    Draw(drawing, script);
                    Draw(drawn, "clip 2 1 12 14  " + shape);
                    const bool isBitmap = shape.starts_with("bitmap");
                    const Color straight = FromPixel(std::stoul(color.substr(1), nullptr, 16));
                    for (int y = 0; y < 16; ++y)
                        for (int x = 0; x < 16; ++x) {
                            const Color there = FromPixel(drawn.At(x, y)), old = FromPixel(before.At(x, y));
                            const bool clipped = x < 2 || x >= 12 || y < 1 || y >= 14;
                            const bool inPicture = shape == "bitmap 4 3" && x >= 4 && x < 13 && y >= 3 && y < 11;
                            double coverage = !isBitmap                                        ? there[3]
                                              : inPicture || actsOutsideBitmaps.contains(mode) ? 1
                                                                                               : 0;
                            coverage *= clipped ? 0 : value / 255.0;
                            const Color source = isBitmap ? there : Premultiplied(straight, straight[3]);
                            const Pixel wanted = ToPixel(Paint(mode, source, old, coverage));
                            ASSERT_TRUE(IsNear(drawing.At(x, y), wanted, coverage > 0 ? 3 : 0))
                                << script << " at (" << x << ", " << y << ")";
                        }
                }
}

// Rows of thousands of partly covered pixels.
TEST(Blend, WideShapesReplaceToo) {
    Drawing drawing(9000, 6, 0xFFFFFFFF);
    Draw(drawing,
         "style 2  mode 1  linear 0 0 9000 0  #80FF0000 stop 0  #80FE0000 stop 1  "
         "L 0 1.5  L 9000 1.5  L 9000 4.5  L 4500 4.4  L 0 4.5  path");
    for (int x = 0; x < 9000; ++x)
        ASSERT_TRUE(IsNear(drawing.At(x, 1), 0xC0C08080, 10) && IsNear(drawing.At(x, 2), 0x80800000, 1)) << x;
}

// A bitmap between pixels is the mean of its neighbours; drawn on itself it is what it was before the call.
TEST(Blend, BitmapsAreSampledAndMayShareThePixels) {
    Drawing drawing(12, 12, 0xFF000000);
    Pixels picture(2, 1);
    picture.words = {0xFF204060, 0xFF60C0A0};
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.5F, 2);
    EXPECT_TRUE(IsNear(drawing.At(3, 2), 0xFF102030, 2));
    EXPECT_TRUE(IsNear(drawing.At(4, 2), 0xFF408080, 2));
    vekCanvasSetSmooth(drawing, 0);
    vekCanvasDrawBitmap(drawing, picture.Wrap().get(), 3.6F, 6.6F);
    EXPECT_EQ(drawing.At(4, 7), 0xFF204060);

    FillWithNoise(drawing, 29);
    const Pixels before = drawing;
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE);
    const Owned<VekBitmap> part(vekBitmapCreateFromData(&drawing.At(1, 0), 11, 12, 48));
    vekCanvasTranslate(drawing, 5, -4);
    EXPECT_EQ(vekCanvasDrawBitmap(drawing, part.get(), -3, 7), 1);
    for (int y = 3; y < 12; ++y)
        for (int x = 2; x < 12; ++x) ASSERT_EQ(drawing.At(x, y), before.At(x - 1, y - 3));
}

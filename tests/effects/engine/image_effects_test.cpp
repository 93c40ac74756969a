// Effects on locked images: every effect at every depth against byte-wise formulas, and the 3 x 3 blur.
#include <algorithm>

#include "effects/pixels/box_blur.h"
#include "effects/pixels/colorize.h"
#include "effects/pixels/tone.h"
#include "raster/lookup_tables.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

struct Bgra {
    std::uint32_t b, g, r, a;

    explicit Bgra(std::uint32_t word) : b(word & 255), g(word >> 8 & 255), r(word >> 16 & 255), a(word >> 24) {}
    Bgra(std::uint32_t blue, std::uint32_t green, std::uint32_t red, std::uint32_t alpha)
        : b(blue), g(green), r(red), a(alpha) {}
    std::uint32_t Word() const { return a % 256 << 24 | r % 256 << 16 | g % 256 << 8 | b % 256; }
};

constexpr HslAmounts amounts{-0.7F, 0.4F, -0.25F};

class ImageEffects : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, ImageEffects, testing::ValuesIn(Levels()), LevelName);

struct EffectCase {
    const char* name;
    void (*run)(const BitmapLockInfo& image);
    std::uint32_t (*model)(std::uint32_t pixel);  // 24-bit pixels come with alpha 255
    bool knowsPalettes, knows24;
    std::uint32_t from, to;  // a worked figure
};

// clang-format off
const EffectCase effects[] = {
    {"gray", GrayImage,
     [](std::uint32_t p) { const Bgra c(p); const auto g = (c.b + 2 * c.g + c.r) / 4; return Bgra(g, g, g, c.a).Word(); }, true, true, 0x80FF0000, 0x803F3F3F},
    {"invert", InvertImage,
     [](std::uint32_t p) { const Bgra c(p); return Bgra(c.a - c.b, c.a - c.g, c.a - c.r, c.a).Word(); }, false, false, 0x00102030, 0x00F0E0D0},
    {"premultiply", PremultiplyImage,
     [](std::uint32_t p) { const Bgra c(p); const auto k = c.a + 1; return Bgra(c.b * k / 256, c.g * k / 256, c.r * k / 256, c.a).Word(); }, true, false, 0x80FFFFFF, 0x80808080},
    {"alpha to gray", [](const BitmapLockInfo& i) { ShuffleImage(i, Shuffle::alphaToGray); },
     [](std::uint32_t p) { return (p >> 24) * 0x01010101; }, false, false, 0x7F102030, 0x7F7F7F7F},
    {"color to alpha", [](const BitmapLockInfo& i) { ShuffleImage(i, Shuffle::colorToAlpha); },
     [](std::uint32_t p) { const Bgra c(p); return Bgra(c.b, c.g, c.r, std::max({c.b, c.g, c.r})).Word(); }, false, false, 0x00102030, 0x30102030},
    {"another shuffle", [](const BitmapLockInfo& i) { ShuffleImage(i, static_cast<Shuffle>(2)); },
     [](std::uint32_t p) { return p; }, false, false, 0x7F102030, 0x7F102030},
    {"replace color", [](const BitmapLockInfo& i) { ReplaceColor(i, 0xFFFFFFFF, 0x12345678); },
     [](std::uint32_t p) { return p == 0xFFFFFFFF ? 0x12345678 : p; }, true, true, 0xFEFFFFFF, 0xFEFFFFFF},
    {"whiten", WhitenImage,
     [](std::uint32_t p) { return p < 0x01000000 ? p : 0xFFFFFFFF; }, false, false, 0x01000000, 0xFFFFFFFF},
    {"colorize", [](const BitmapLockInfo& i) { ColorizeImage(i, amounts); },
     [](std::uint32_t p) { return ColorizeArgb(p, amounts); }, true, true, 0x80000000, 0x80000000},
};
// clang-format on

TEST_P(ImageEffects, ChangeEveryPixelOrPaletteEntryAndNothingElse) {
    for (const EffectCase& effect : effects) {
        EXPECT_EQ(effect.model(effect.from), effect.to) << effect.name;
        Random random(1);
        for (const int bits : {8, 16, 24, 32})
            for (int width = 0; width <= 70; ++width) {
                Image image(random, width, 1 + random.Below(4), bits, {random.Below(9), random.Below(2)});
                Image wanted = image;
                if (bits == 32 || (bits == 24 && effect.knows24))
                    wanted.Fill([&](int x, int y) {
                        return effect.model(bits == 32 ? image.At(x, y) : image.At(x, y) | 0xFF000000);
                    });
                for (DWORD& entry : wanted.Palette())
                    if (effect.knowsPalettes) entry = effect.model(static_cast<std::uint32_t>(entry));
                effect.run(image.Info());
                ASSERT_TRUE(SameBytes(image, wanted)) << effect.name << ", " << bits << " bits";
                ASSERT_EQ(image.Palette(), wanted.Palette()) << effect.name;
            }
    }
}

// A sample: every color was compared once.
TEST_P(ImageEffects, ColorizeAsOneColorIs) {
    for (const HslAmounts& by :
         {HslAmounts{0, 0, 0.01F}, {1, 1, 1}, {-1, -1, -1}, {0.33F, -0.5F, 0.9F}, {0.5F, 2, -2}}) {
        Image image(256, 256);
        image.Fill([](int x, int y) { return static_cast<std::uint32_t>(y * 256 + x) * 0x9E3779B1U; });
        Image wanted = image;
        wanted.Fill([&](int x, int y) { return ColorizeArgb(image.At(x, y), by); });
        ColorizeImage(image.Info(), by);
        ASSERT_TRUE(SameBytes(image, wanted)) << by.hue << ", " << by.saturation << ", " << by.lightness;
    }
}

TEST(Effects, LeaveTheGrayRampAndDescriptionsWithoutPixelsAlone) {
    for (const EffectCase& effect : effects) {
        const Image indices(4, 4, 8);
        BitmapLockInfo image = indices.Info();
        image.palette = const_cast<DWORD*>(GreyPalette.data());  // read-only: a write would fault
        effect.run(image);
        image.palette = nullptr;
        effect.run(image);
        for (const WORD bits : {WORD{24}, WORD{32}}) {
            image.bmBits = nullptr;
            image.bmBitsPixel = bits;
            effect.run(image);
        }
    }
}

// Nine clamped reads per pixel.
Image BlurredByNine(const Image& dst, const Image& src) {
    Image blurred = dst;
    const int right = src.Info().bmWidth - 1, bottom = src.Info().bmHeight - 1;
    for (int y = 0; y <= bottom; ++y)
        for (int x = 0; x <= right; ++x) {
            Bgra sum(0);
            for (int i = 0; i < 9; ++i) {
                const Bgra c(src.At(std::clamp(x + i % 3 - 1, 0, right), std::clamp(y + i / 3 - 1, 0, bottom)));
                sum = {sum.b + c.b, sum.g + c.g, sum.r + c.r, sum.a + c.a};
            }
            blurred.Set(std::min<int>(x, dst.Info().bmWidth - 1), std::min<int>(y, dst.Info().bmHeight - 1),
                        Bgra(sum.b / 9, sum.g / 9, sum.r / 9, sum.a / 9).Word());
        }
    return blurred;
}

TEST_P(ImageEffects, BoxBlurIsTheTruncatedMeanOfNinePixels) {
    Random random(1);
    for (int width = 1; width <= 70; ++width) {
        const int height = 1 + random.Below(5);
        const Image src(random, width, height, 32, {random.Below(9), random.Below(2)});
        for (const int columns : {width, 1 + random.Below(width), width + 3})
            for (const int rows : {height, 1 + random.Below(height), height + 2}) {
                Image dst(random, columns, rows, 32, {random.Below(9), random.Below(2)});
                const Image wanted = BlurredByNine(dst, src);
                BoxBlur(dst.Info(), src.Info());
                ASSERT_TRUE(SameBytes(dst, wanted)) << "from " << width << " x " << height;
            }
        const Image itself = src, wanted = BlurredByNine(src, src);
        BoxBlur(itself.Info(), itself.Info());
        ASSERT_TRUE(SameBytes(itself, wanted)) << "into itself";
    }
}

TEST(BoxBlur, KnowsOnly32BitImages) {
    Random random(1);
    for (const int bits : {8, 16, 24})
        for (const bool toOther : {false, true}) {
            Image dst(random, 5, 3, toOther ? bits : 32);
            const Image src(random, 5, 3, toOther ? 32 : bits), before = dst;
            BoxBlur(dst.Info(), src.Info());
            EXPECT_TRUE(SameBytes(dst, before)) << bits;
        }
}

}  // namespace
}  // namespace zorvic

// Effects on locked images: every effect at every depth and of all bytes against byte-wise formulas, and the 3 x 3 blur.
#include <algorithm>

#include "effects/pixels/box_blur.h"
#include "effects/pixels/colorize.h"
#include "effects/pixels/tone.h"
#include "kernels/all_bytes.h"
#include "raster/lookup_tables.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

using namespace host;
using enum Third;

class ImageEffects : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, ImageEffects, testing::ValuesIn(Levels()), LevelName);

constexpr HslAmounts amounts{-0.7F, 0.4F, -0.25F};
void Colorize(const BitmapLockInfo& image) { ColorizeImage(image, amounts); }
void ShowAlpha(const BitmapLockInfo& image) { ShuffleImage(image, Shuffle::alphaToGray); }
void TakeAlpha(const BitmapLockInfo& image) { ShuffleImage(image, Shuffle::colorToAlpha); }
// 24-bit pixels have no alpha to compare.
void ReplaceWhite(const BitmapLockInfo& image) {
    ReplaceColor(image, image.bmBitsPixel == 24 ? 0x77FFFFFF : 0xFFFFFFFF, 0x12345678);
}

// Channel i of what they make of a pixel.
int Gray(DWORD p, int i) { return i < 3 ? SlowLuma(p) : AlphaOf(p); }
int Inverted(DWORD p, int i) { return AlphaOf(p) - (i < 3 ? Channel(p, i) : 0); }
int Premultiplied(DWORD p, int i) { return i < 3 ? Channel(p, i) * (AlphaOf(p) + 1) / 256 : AlphaOf(p); }
int AlphaAsGray(DWORD p, int) { return AlphaOf(p); }
int LargestAsAlpha(DWORD p, int i) {
    return i < 3 ? Channel(p, i) : std::max({Channel(p, 0), Channel(p, 1), Channel(p, 2)});
}
int WhiteReplaced(DWORD p, int i) { return Channel(p == 0xFFFFFFFF ? 0x12345678 : p, i); }
int Whitened(DWORD p, int i) { return AlphaOf(p) > 0 ? 255 : Channel(p, i); }
int Colorized(DWORD p, int i) { return Channel(ColorizeArgb(p, amounts), i); }

struct Effect {
    const char* name;
    void (*run)(const BitmapLockInfo& image);
    int (*channel)(DWORD pixel, int i);  // of 24-bit pixels with alpha 255
    bool knowsPalettes, knows24;
    Third third;  // which bytes matter

    DWORD Model(DWORD pixel) const {
        return FromChannels([&](int i) { return channel(pixel, i); });
    }
};
constexpr Effect effects[] = {
    {"gray", GrayImage, Gray, true, true, destinationRed},
    {"invert", InvertImage, Inverted, false, false, destinationAlpha},
    {"premultiply", PremultiplyImage, Premultiplied, true, false, destinationAlpha},
    {"alpha to gray", ShowAlpha, AlphaAsGray, false, false, unused},
    {"color to alpha", TakeAlpha, LargestAsAlpha, false, false, destinationRed},
    {"replace color", ReplaceWhite, WhiteReplaced, true, true, unused},
    {"whiten", WhitenImage, Whitened, false, false, destinationAlpha},
    {"colorize", Colorize, Colorized, true, true, unused},
};

TEST_P(ImageEffects, ChangeEveryPixelOrPaletteEntryAndNothingElse) {
    for (const Effect& effect : effects) {
        Random random(1);
        for (const int bits : {8, 16, 24, 32})
            for (int width = 0; width <= 70; ++width) {
                Image image(random, width, 1 + random.Below(4), bits, {random.Below(9), random.Below(2)});
                Image wanted = image;
                if (bits == 32 || (bits == 24 && effect.knows24))
                    wanted.Fill([&](int x, int y) {
                        return effect.Model(bits == 32 ? image.At(x, y) : image.At(x, y) | 0xFF000000);
                    });
                for (DWORD& entry : wanted.Palette())
                    if (effect.knowsPalettes) entry = effect.Model(entry);
                effect.run(image.Info());
                ASSERT_TRUE(SameBytes(image, wanted)) << effect.name << ", " << bits << " bits";
                ASSERT_EQ(image.Palette(), wanted.Palette()) << effect.name;
            }
    }
}

TEST(Effects, OfAllBytes) {
    for (const Effect& effect : effects) {
        SCOPED_TRACE(effect.name);
        CheckAllBytes(
            effect.third, [&](const BitmapLockInfo& image, const BitmapLockInfo&, std::uint32_t) { effect.run(image); },
            [&](std::uint32_t p, std::uint32_t, std::uint32_t) { return effect.Model(p); });
    }
}

TEST(Effects, LeaveTheGrayRampAndDescriptionsWithoutPixelsAlone) {
    const Image indices(4, 4, 8);
    for (const Effect& effect : effects) {
        BitmapLockInfo image = indices.Info();
        image.palette = const_cast<DWORD*>(GreyPalette.data());  // read-only: a write would fault
        effect.run(image);
        image.palette = nullptr;
        effect.run(image);
        image.bmBits = nullptr;
        image.bmBitsPixel = 32;
        effect.run(image);
    }
}

// Nine clamped reads per pixel.
Image BlurredByNine(const Image& dst, const Image& src) {
    Image blurred = dst;
    const int right = src.Info().bmWidth - 1, bottom = src.Info().bmHeight - 1;
    for (int y = 0; y <= bottom; ++y)
        for (int x = 0; x <= right; ++x) {
            const auto mean = [&](int i) {
                int sum = 0;
                for (int k = 0; k < 9; ++k)
                    sum +=
                        Channel(src.At(std::clamp(x + k % 3 - 1, 0, right), std::clamp(y + k / 3 - 1, 0, bottom)), i);
                return sum / 9;
            };
            blurred.Set(std::min<int>(x, dst.Info().bmWidth - 1), std::min<int>(y, dst.Info().bmHeight - 1),
                        FromChannels(mean));
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
    for (const int bits : {8, 16, 24}) {
        const Image other(random, 5, 3, bits), image(random, 5, 3), otherBefore = other, before = image;
        EXPECT_FALSE(BoxBlur(other.Info(), image.Info()) || BoxBlur(image.Info(), other.Info()));
        EXPECT_TRUE(SameBytes(other, otherBefore) && SameBytes(image, before)) << bits;
    }
}

}  // namespace
}  // namespace zorvic

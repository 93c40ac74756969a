// Effects through the DLL: what each does to surfaces of every depth, its result, and what the resource manager hears.
#include <algorithm>

#include "support/recorder.h"

namespace {

using namespace host;

HGTEXTURE AsTexture(HGBITMAP bitmap) { return reinterpret_cast<HGTEXTURE>(bitmap); }

int NormalizeLocked(HGBITMAP bitmap) {
    BitmapLockInfo image;
    return LockBitmapBitsEx(bitmap, &image, nullptr) && NormalizeBitmap2(&image);
}

// A surface of one colour before and after. Where an effect does not know a depth, the colour stays.
struct EffectCase {
    const char* name;
    int (*run)(HGBITMAP bitmap);
    DWORD after32, after24, afterPalette;
    const char* log = "";
    int withoutPixels = 0;
};

constexpr DWORD before = 0x80C0A020, before24 = before & 0xFFFFFF;
const DWORD colorized = ARGBColorize(before, 0.5F, -0.3F, 0.1F);

// clang-format off
const EffectCase effects[] = {
    {"GrayBitmap", GrayBitmap, 0x80888888, 0x888888, 0x80888888},
    {"GrayTexture", [](HGBITMAP b) { return GrayTexture(AsTexture(b)); }, 0x80888888, 0x888888, 0x80888888, "change 0;"},
    {"InvertBitmap", InvertBitmap, 0x80C0E060, before24, before},
    {"NormalizeBitmap", NormalizeBitmap, 0x80605010, before24, 0x80605010},
    {"NormalizeBitmap2", NormalizeLocked, 0x80605010, before24, 0x80605010},
    {"ShuffleBitmap 1", [](HGBITMAP b) { return ShuffleBitmap(b, ZORVIC_SHUFFLE_ALPHA_TO_GRAY); }, 0x80808080, before24, before},
    {"ShuffleBitmap 6", [](HGBITMAP b) { return ShuffleBitmap(b, ZORVIC_SHUFFLE_COLOR_TO_ALPHA); }, 0xC0C0A020, before24, before},
    {"ShuffleBitmap 2", [](HGBITMAP b) { return ShuffleBitmap(b, 2); }, before, before24, before},
    {"TranslateTexture", [](HGBITMAP b) { return TranslateTexture(AsTexture(b), before, 0x11223344); }, 0x11223344, 0x223344, 0x11223344},
    {"TranslateTexture, other alpha", [](HGBITMAP b) { return TranslateTexture(AsTexture(b), before24, 0x11223344); }, before, 0x223344, before},
    {"ColorizeTexture", [](HGBITMAP b) { return ColorizeTexture(AsTexture(b), 0.5F, -0.3F, 0.1F); }, colorized, colorized & 0xFFFFFF, colorized, "change 0;"},
    {"ColorizeTexture by nothing", [](HGBITMAP b) { return ColorizeTexture(AsTexture(b), 0, 0.0000005F, 0); }, before, before24, before, "", 1},
    {"BlurBitmap", [](HGBITMAP b) { return BlurBitmap(b, b); }, before, before24, before, "", 1},
    {"LightBitmap", LightBitmap, 0xFFFFFFFF, before24, before, "release;", 1},
    {"LightTexture", [](HGBITMAP b) { return LightTexture(AsTexture(b)); }, 0xFFFFFFFF, before24, before, "release;", 1},
    {"DarkBitmap", DarkBitmap, before, before24, before, "release;", 1},
};
// clang-format on

struct Format {
    const char* name;
    int bitsPixel, colorCount;
    bool system = false;
};
constexpr Format formats[] = {{"32 bits", 32, 0}, {"DIB section", 32, 0, true}, {"24 bits", 24, 0},
                              {"16 bits", 16, 0}, {"8 bits", 8, 200},           {"8 bits, grey ramp", 8, 0}};

// Pixels for which nothing is as it was, and a palette of one colour.
OwnedBitmap Make(const Format& format, int width, DWORD pixel) {
    OwnedBitmap bitmap = format.system ? OwnedBitmap(CreateSystemBitmap(width, 3))
                                       : MakeBitmap(width, 3, format.bitsPixel, format.colorCount);
    Fill(bitmap.get(), [=](int, int) { return pixel; });
    if (format.colorCount > 0) std::fill_n(Pixels(bitmap.get())->palette, format.colorCount, before);
    return bitmap;
}

TEST(Effects, ChangeEveryDepthThatTheyKnow) {
    for (const EffectCase& effect : effects)
        for (const Format& format : formats)
            for (const int width : {1, 17, 70}) {
                SCOPED_TRACE(testing::Message()
                             << effect.name << ", " << format.name << ", " << width << " pixels wide");
                const OwnedBitmap bitmap = Make(format, width, before);
                const Snapshot pixels(bitmap.get());
                Recorder manager;
                EXPECT_EQ(effect.run(bitmap.get()), 1);
                EXPECT_EQ(manager.log, effect.log);
                EXPECT_TRUE(Shows(bitmap.get(), [&](int x, int y) {
                    return format.bitsPixel == 32   ? effect.after32
                           : format.bitsPixel == 24 ? effect.after24
                                                    : pixels(x, y);
                }));
                const Pixels lock(bitmap.get());
                for (DWORD i = 0; i < lock->colorCount; ++i)
                    ASSERT_EQ(lock->palette[i],
                              format.colorCount > 0 ? effect.afterPalette : 0xFF000000 + i * 0x010101);
            }
}

TEST(Effects, RefuseSurfacesThatCannotBeLocked) {
    for (const EffectCase& effect : effects) {
        const OwnedBitmap bitmap = MakeBitmap(8, 8, 4);  // below 8 bits
        EXPECT_EQ(effect.run(bitmap.get()), effect.withoutPixels) << effect.name;
        GetBitmapHandle(bitmap.get());  // gives the pixels up
        EXPECT_EQ(effect.run(bitmap.get()), effect.withoutPixels) << effect.name;
    }
}

TEST(Effects, ShuffleAnAreaOnly) {
    const OwnedBitmap bitmap = MakeBitmap(40, 9, Pattern{});
    const RECT area{3, 2, 37, 8};
    EXPECT_EQ(ShuffleBitmapEx(bitmap.get(), &area, 1), 1);
    const auto shuffled = [&](int x, int y) {
        const DWORD pixel = Pattern{}(x, y);
        return Inside(area, x, y) ? (pixel >> 24) * 0x01010101 : pixel;
    };
    EXPECT_TRUE(Shows(bitmap.get(), shuffled));
    for (const RECT& outside : {RECT{-1, 0, 5, 5}, {0, 0, 41, 5}, {4, 4, 4, 6}, {5, 5, 4, 6}})
        EXPECT_EQ(ShuffleBitmapEx(bitmap.get(), &outside, 6), 0) << ToText(outside);
    EXPECT_TRUE(Shows(bitmap.get(), shuffled));
}

// The glow of one dot: its first blur reaches 3 x 3 pixels, which become white; each of the others reaches one pixel more.
TEST(Effects, LightAndDarkSpreadByFourBlurs) {
    const auto dot = [](int x, int y) { return x == 6 && y == 6 ? 0x80000040U : 0U; };
    for (const bool light : {true, false}) {
        const OwnedBitmap bitmap = MakeBitmap(13, 13, dot), wanted = MakeBitmap(13, 13, dot);
        const OwnedBitmap other = MakeBitmap(13, 13);
        EXPECT_EQ(light ? LightBitmap(bitmap.get()) : DarkBitmap(bitmap.get()), 1);
        BlurBitmap(other.get(), wanted.get());
        if (light)
            Fill(other.get(), [](int x, int y) { return x >= 5 && x <= 7 && y >= 5 && y <= 7 ? 0xFFFFFFFF : 0U; });
        BlurBitmap(wanted.get(), other.get());
        BlurBitmap(other.get(), wanted.get());
        BlurBitmap(wanted.get(), other.get());
        EXPECT_TRUE(Shows(bitmap.get(), Snapshot(wanted.get())));
        EXPECT_EQ(Pixels(bitmap.get()).Get(2, 6) != 0, light) << "reaches four pixels";
    }
}

}  // namespace

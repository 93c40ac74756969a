// Effects through the DLL: what each does, its result, and what the resource manager hears. Pixels of all kinds and
// depths are tested in the pixel engine.
#include "support/recorder.h"

namespace {

using namespace host;

HGTEXTURE AsTexture(HGBITMAP bitmap) { return reinterpret_cast<HGTEXTURE>(bitmap); }

int NormalizeLocked(HGBITMAP bitmap) {
    BitmapLockInfo image;
    return LockBitmapBitsEx(bitmap, &image, nullptr) && NormalizeBitmap2(&image);
}

// What becomes of a colour in 32 bits. Soft effects leave other depths alone, and say nothing of it.
struct EffectCase {
    const char* name;
    int (*run)(HGBITMAP bitmap);
    DWORD after;
    const char* log = "";
    bool alwaysSucceeds = false;
};

constexpr DWORD before = 0x80C0A020;
const DWORD colorized = ARGBColorize(before, 0.5F, -0.3F, 0.1F);

const EffectCase effects[] = {
    {"GrayBitmap", GrayBitmap, 0x80888888},
    {"GrayTexture", [](HGBITMAP b) { return GrayTexture(AsTexture(b)); }, 0x80888888, "change 0;"},
    {"InvertBitmap", InvertBitmap, 0x80C0E060},
    {"NormalizeBitmap", NormalizeBitmap, 0x80605010},
    {"NormalizeBitmap2", NormalizeLocked, 0x80605010},
    {"ShuffleBitmap 1", [](HGBITMAP b) { return ShuffleBitmap(b, ZORVIC_SHUFFLE_ALPHA_TO_GRAY); }, 0x80808080},
    {"ShuffleBitmap 6", [](HGBITMAP b) { return ShuffleBitmap(b, ZORVIC_SHUFFLE_COLOR_TO_ALPHA); }, 0xC0C0A020},
    {"ShuffleBitmap 2", [](HGBITMAP b) { return ShuffleBitmap(b, 2); }, before},
    {"TranslateTexture", [](HGBITMAP b) { return TranslateTexture(AsTexture(b), before, 0x11223344); }, 0x11223344},
    {"TranslateTexture, no", [](HGBITMAP b) { return TranslateTexture(AsTexture(b), 0xC0A020, 0x11223344); }, before},
    {"ColorizeTexture", [](HGBITMAP b) { return ColorizeTexture(AsTexture(b), 0.5F, -0.3F, 0.1F); }, colorized,
     "change 0;"},
    {"ColorizeTexture by nothing", [](HGBITMAP b) { return ColorizeTexture(AsTexture(b), 0, 0.0000005F, 0); }, before,
     "", true},
    {"BlurBitmap", [](HGBITMAP b) { return BlurBitmap(b, b); }, before, "", true},
    {"LightBitmap", LightBitmap, 0xFFFFFFFF, "release;", true},
    {"LightTexture", [](HGBITMAP b) { return LightTexture(AsTexture(b)); }, 0xFFFFFFFF, "release;", true},
    {"DarkBitmap", DarkBitmap, before, "release;", true},
};

TEST(Effects, ChangePixelsAndTellTheManager) {
    for (const EffectCase& effect : effects)
        for (const int bitsPixel : {8, 16, 24, 32}) {
            SCOPED_TRACE(testing::Message() << effect.name << ", " << bitsPixel << " bits");
            const OwnedBitmap bitmap = MakeBitmap(17, 3, bitsPixel);
            Fill(bitmap.get(), Plain{before});
            const Snapshot unchanged(bitmap.get());
            Recorder manager;
            EXPECT_EQ(effect.run(bitmap.get()), 1);
            EXPECT_EQ(manager.log, effect.log);
            if (bitsPixel == 32) {
                EXPECT_TRUE(Shows(bitmap.get(), Plain{effect.after}));
            } else if (effect.alwaysSucceeds) {
                EXPECT_TRUE(Shows(bitmap.get(), unchanged));
            }
        }
}

TEST(Effects, RefuseSurfacesThatCannotBeLocked) {
    for (const EffectCase& effect : effects) {
        const OwnedBitmap bitmap = MakeBitmap(8, 8, 4);  // below 8 bits
        EXPECT_EQ(effect.run(bitmap.get()), effect.alwaysSucceeds) << effect.name;
        GetBitmapHandle(bitmap.get());  // gives the pixels up
        EXPECT_EQ(effect.run(bitmap.get()), effect.alwaysSucceeds) << effect.name;
    }
    EXPECT_EQ(ColorizeTexture(nullptr, 0, 0, 0), 1) << "nothing to be done";
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
        if (light) Fill(other.get(), [](int x, int y) { return Inside({5, 5, 8, 8}, x, y) ? 0xFFFFFFFF : 0U; });
        for (const bool back : {false, true, false})
            BlurBitmap(back ? other.get() : wanted.get(), back ? wanted.get() : other.get());
        EXPECT_TRUE(Shows(bitmap.get(), Snapshot(wanted.get())));
        EXPECT_EQ(Pixels(bitmap.get()).Get(2, 6) != 0, light) << "reaches four pixels";
    }
}

}  // namespace

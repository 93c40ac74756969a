// Canvases mixed, blended and scrolled: formulas by hand and by a slow model, clips, origins and lenient results.
#include <climits>
#include <cstring>

#include "support/gdi.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

constexpr DWORD withAlpha = ZORVIC_OP_SOURCE_OVER;

OwnedCanvas MakeCanvas(int width, int height, std::uint32_t seed, DWORD filter = 0) {
    OwnedCanvas canvas(CreateCanvas(width, height, nullptr));
    Fill(canvas.get(), PremultipliedPattern{seed});
    SetCanvasFilter(canvas.get(), filter);
    return canvas;
}

OwnedCanvas OnePixel(DWORD pixel, DWORD filter = 0) {
    OwnedCanvas canvas(CreateCanvas(1, 1, nullptr));
    Fill(canvas.get(), [=](int, int) { return pixel; });
    SetCanvasFilter(canvas.get(), filter);
    return canvas;
}

// The picture of source, drawn into dst with nearest sampling and composed with before by a formula(s, d).
template <class Formula>
auto Drawn(const RECT& dst, const RECT& src, PremultipliedPattern source, PremultipliedPattern before,
           Formula formula) {
    return [=](int x, int y) {
        if (!Inside(dst, x, y)) return before(x, y);
        const int column = src.left + SlowNearest(x - dst.left, src.right - src.left, dst.right - dst.left);
        const int row = src.top + SlowNearest(y - dst.top, src.bottom - src.top, dst.bottom - dst.top);
        return formula(source(column, row), before(x, y));
    };
}

constexpr int amounts[] = {0, 1, 2, 77, 127, 128, 254, 255};
constexpr RECT one{0, 0, 1, 1};
// Into a canvas of 40 x 30, from one of 32 x 24: at the same size, enlarged, reduced, both.
constexpr RECT placed{5, 3, 31, 24};
constexpr RECT sources[] = {{4, 2, 30, 23}, {1, 1, 9, 6}, {0, 0, 32, 24}, {6, 0, 7, 23}};

}  // namespace

TEST(MixCanvas, DoesToAPixelWhatTheFormulaSays) {
    const struct {
        DWORD src, dst, value, mixed, colored;
    } cases[] = {
        {0xFFFFFFFF, 0x00000000, 0, 0x00000000, 0x00000000},
        {0xFFFFFFFF, 0x00000000, 255, 0xFFFFFFFF, 0xFFFFFFFF},
        {0xFFFFFFFF, 0x00000000, 127, 0x7F7F7F7F, 0x7F7F7F7F},
        {0xFF804020, 0x00408001, 127, 0x7F606010, 0x7F606010},
        {0x01010101, 0x03030303, 127, 0x02020202, 0x01010101},  // the colour's half and the pixel's are cut one by one
        {0xFF804020, 0x00408001, 0xABCDEF00, 0x00408001, 0x00408001},  // only the low byte counts
        {0x00000000, 0xFFFFFFFF, 0, 0xFFFFFFFF, 0xFFFFFFFF},
    };
    for (const auto& c : cases) {
        const OwnedCanvas src = OnePixel(c.src);
        OwnedCanvas dst = OnePixel(c.dst);
        EXPECT_EQ(MixCanvas(dst.get(), &one, src.get(), &one, c.value), 1);
        EXPECT_TRUE(Shows(dst.get(), [&](int, int) { return c.mixed; }));
        dst = OnePixel(c.dst);
        EXPECT_EQ(MixCanvasWithColor(dst.get(), &one, c.src, c.value), 1);
        EXPECT_TRUE(Shows(dst.get(), [&](int, int) { return c.colored; }));
    }
}

TEST(MixCanvas, MatchesTheModelAtEverySizeAndIgnoresClipAndFilter) {
    const OwnedCanvas src = MakeCanvas(32, 24, 1, withAlpha);
    for (const RECT& from : sources)
        for (const int amount : amounts) {
            const OwnedCanvas dst = MakeCanvas(40, 30, 2);
            SetCanvasClipRect(dst.get(), &one);
            EXPECT_EQ(MixCanvas(dst.get(), &placed, src.get(), &from, static_cast<DWORD>(amount)), 1);
            const auto fade = [=](DWORD s, DWORD d) { return SlowCrossFade(s, d, amount); };
            EXPECT_TRUE(Shows(dst.get(), Drawn(placed, from, {1}, {2}, fade))) << ToText(from) << " by " << amount;
        }
    for (const int amount : amounts) {
        const OwnedCanvas dst = MakeCanvas(40, 30, 2);
        SetCanvasClipRect(dst.get(), &one);
        EXPECT_EQ(MixCanvasWithColor(dst.get(), &placed, 0x80F00F7F, 0x700U | static_cast<DWORD>(amount)), 1);
        EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) {
            const DWORD before = PremultipliedPattern{2}(x, y);
            return Inside(placed, x, y) ? SlowMixColor(0x80F00F7F, before, amount) : before;
        })) << amount;
    }
}

TEST(MixCanvas, FollowsTheOriginsAndNeedsBothRectanglesInside) {
    const OwnedCanvas src = MakeCanvas(32, 24, 1);
    SetViewportOrg(src.get(), 3, -2, nullptr);
    const OwnedCanvas dst = MakeCanvas(40, 30, 2);
    SetWindowOrg(dst.get(), 10, 20, nullptr);
    const RECT inside{15, 23, 41, 44};
    const RECT from{1, 4, 27, 25};
    const RECT fromDevice{4, 2, 30, 23};
    EXPECT_EQ(MixCanvas(dst.get(), &inside, src.get(), &from, 255), 1);
    const auto picture = Drawn(placed, fromDevice, {1}, {2}, [](DWORD s, DWORD) { return s; });
    EXPECT_TRUE(Shows(dst.get(), picture));

    const RECT everywhere{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    const RECT empty{15, 23, 15, 24};
    const RECT reversed{16, 24, 15, 23};
    for (const RECT& outside : {RECT{9, 20, 12, 22}, {48, 20, 51, 22}, everywhere, empty, reversed}) {
        EXPECT_EQ(MixCanvas(dst.get(), &outside, src.get(), &from, 255), 1);
        EXPECT_EQ(MixCanvasWithColor(dst.get(), &outside, 0xFFFFFFFF, 255), 1);
    }
    for (const RECT& outside : {RECT{-4, 4, 5, 9}, {20, 4, 30, 9}, {1, 1, 5, 9}, everywhere, empty, reversed})
        EXPECT_EQ(MixCanvas(dst.get(), &inside, src.get(), &outside, 255), 1);
    EXPECT_TRUE(Shows(dst.get(), picture));
}

TEST(BlendCanvas, DoesToAPixelWhatTheFormulaSays) {
    const struct {
        const char* name;
        DWORD srcFilter, dstFilter;
        BYTE alpha;
        DWORD src, dst, blended;
    } cases[] = {
        {"copy", 0, 0, 255, 0x12345678, 0xFFFFFFFF, 0x12345678},
        {"onto alpha, opaque", 0, withAlpha, 255, 0x12345678, 0xFFFFFFFF, 0xFF345678},
        {"constant alpha counts the source as opaque", 0, 0, 128, 0x00FFFFFF, 0xFF000000, 0xFF808080},
        {"constant alpha 0", 0, 0, 0, 0xFFFFFFFF, 0x80402010, 0x80402010},
        {"constant alpha onto transparent", 0, withAlpha, 127, 0xFF804020, 0x00000000, 0x7F402010},
        {"by its alpha", withAlpha, 0, 255, 0x80402010, 0xFFFFFFFF, 0xFFBF9F8F},
        {"by its alpha, whatever the constant", withAlpha, 0, 3, 0x80402010, 0xFFFFFFFF, 0xFFBF9F8F},
        {"only source-over means alpha", 0x03000000, 0x02000000, 255, 0x12345678, 0xFFFFFFFF, 0x12345678},
    };
    for (const auto& c : cases) {
        const OwnedCanvas src = OnePixel(c.src, c.srcFilter);
        const OwnedCanvas dst = OnePixel(c.dst, c.dstFilter);
        EXPECT_EQ(BlendCanvas(dst.get(), &one, src.get(), &one, c.alpha), 1) << c.name;
        EXPECT_TRUE(Shows(dst.get(), [&](int, int) { return c.blended; })) << c.name;
    }
}

// Every choice, unclipped and clipped, against the model. Clipped stretches blend by the source's alpha or copy.
TEST(BlendCanvas, MatchesTheModelWithAndWithoutClip) {
    const RECT wide{-100, -100, 100, 100};
    const RECT narrow{9, 7, 30, 20};
    for (const RECT& from : sources)
        for (const DWORD srcFilter : {0UL, DWORD{withAlpha}})
            for (const DWORD dstFilter : {0UL, DWORD{withAlpha}})
                for (const int alpha : amounts)
                    for (const RECT& clip : {wide, narrow}) {
                        const OwnedCanvas src = MakeCanvas(32, 24, 1, srcFilter);
                        const OwnedCanvas dst = MakeCanvas(40, 30, 2, dstFilter);
                        SetCanvasClipRect(dst.get(), &clip);
                        ASSERT_EQ(BlendCanvas(dst.get(), &placed, src.get(), &from, static_cast<BYTE>(alpha)), 1);

                        const bool sameSize = from == sources[0];
                        const bool plain = clip == narrow && !sameSize;
                        const auto formula = [&](DWORD s, DWORD d) {
                            if (srcFilter == withAlpha) return SlowOver(s, d);
                            return !plain && (dstFilter == withAlpha || alpha != 255) ? SlowOpaqueAlpha(s, d, alpha)
                                                                                      : s;
                        };
                        const auto whole = Drawn(placed, from, {1}, {2}, formula);
                        ASSERT_TRUE(Shows(dst.get(),
                                          [&](int x, int y) {
                                              return Inside(clip, x, y) ? whole(x, y) : PremultipliedPattern{2}(x, y);
                                          }))
                            << "source " << ToText(from) << " filters " << srcFilter << " " << dstFilter << " alpha "
                            << alpha << " clip " << ToText(clip);
                    }
}

TEST(BlendCanvas, CutsHugeStretchesAtTheSurface) {
    const OwnedCanvas src = MakeCanvas(32, 24, 1, withAlpha);
    const OwnedCanvas dst = MakeCanvas(40, 30, 2);
    const RECT all{0, 0, 32, 24};
    const RECT huge{-2000000000, -3, 2000000000, 2000000000};
    EXPECT_EQ(BlendCanvas(dst.get(), &huge, src.get(), &all, 255), 1);
    // Step 0: the first column and row of the source, everywhere.
    EXPECT_TRUE(Shows(dst.get(), [](int x, int y) {
        return SlowOver(PremultipliedPattern{1}(0, 0), PremultipliedPattern{2}(x, y));
    }));
    const RECT apart{40, 0, 50, 30};
    const RECT reversed{20, 20, 10, 10};
    const Snapshot before(dst.get());
    EXPECT_EQ(BlendCanvas(dst.get(), &apart, src.get(), &all, 255), 1);
    EXPECT_EQ(BlendCanvas(dst.get(), &reversed, src.get(), &all, 255), 1);
    EXPECT_EQ(BlendCanvas(dst.get(), &all, src.get(), &apart, 255), 1);
    EXPECT_TRUE(Shows(dst.get(), before));
}

TEST(CanvasScroll, MovesRowsAndKeepsTheUncoveredOnes) {
    for (const int dy : {0, 1, -1, 3, -3, 8, -8}) {
        const OwnedCanvas canvas = MakeCanvas(7, 9, 1);
        SetCanvasClipRect(canvas.get(), &one);
        EXPECT_EQ(CanvasScroll(canvas.get(), 0, dy), 1);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
            const int from = y - dy;
            return PremultipliedPattern{1}(x, from >= 0 && from < 9 ? from : y);
        })) << dy;
    }
}

TEST(CanvasScroll, RefusesWhatItCannotDo) {
    const OwnedCanvas canvas = MakeCanvas(7, 9, 1);
    EXPECT_EQ(CanvasScroll(canvas.get(), 1, 1), 0);
    EXPECT_EQ(CanvasScroll(canvas.get(), INT_MIN, 0), 0);
    for (const int dy : {9, -9, 10, INT_MAX, INT_MIN, -INT_MAX}) EXPECT_EQ(CanvasScroll(canvas.get(), 0, dy), 1) << dy;
    EXPECT_TRUE(Shows(canvas.get(), PremultipliedPattern{1})) << "a surface's height or more moves nothing";

    SetWindowOrg(canvas.get(), 0, 1, nullptr);
    EXPECT_EQ(CanvasScroll(canvas.get(), 0, 1), 0) << "moved origins take the surface out of reach";
    EXPECT_TRUE(Shows(canvas.get(), PremultipliedPattern{1}));

    const GdiBitmap dib = GdiBitmap::Dib(7, 9);
    const OwnedCanvas onDc(CreateCanvasFromDC(dib.Dc()));
    EXPECT_EQ(CanvasScroll(onDc.get(), 0, 1), 0);
}

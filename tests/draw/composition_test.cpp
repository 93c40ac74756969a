// Canvases mixed, blended and scrolled: formulas by a slow model, and lenient results.
#include <climits>

#include "support/gdi.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

constexpr DWORD withAlpha = ZORVIC_OP_SOURCE_OVER;

// The source column or row that nearest sampling shows at i.
int SlowNearest(int i, int sourceExtent, int drawnExtent) { return i * (sourceExtent * 65536 / drawnExtent) / 65536; }

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
// Into a canvas of 40 x 30, from one of 32 x 24: at the same size, enlarged, reduced, both; one side as it is.
constexpr RECT placed{5, 3, 31, 24};
constexpr RECT sources[] = {{4, 2, 30, 23}, {1, 1, 9, 6}, {0, 0, 32, 24}, {6, 0, 7, 23}, {6, 0, 7, 21}, {0, 0, 26, 24}};

}  // namespace

TEST(MixCanvas, MatchesTheModelAtEverySizeAndIgnoresClipAndFilter) {
    const OwnedCanvas src = MakeCanvas(32, 24, PremultipliedPattern{1}, withAlpha);
    for (const RECT& from : sources)
        for (const int amount : amounts) {
            const OwnedCanvas dst = MakeCanvas(40, 30, PremultipliedPattern{2});
            SetCanvasClipRect(dst.get(), &one);
            EXPECT_EQ(MixCanvas(dst.get(), &placed, src.get(), &from, 0x700U | static_cast<DWORD>(amount)), 1);
            const auto fade = [=](DWORD s, DWORD d) { return SlowCrossFade(s, d, amount); };
            EXPECT_TRUE(Shows(dst.get(), Drawn(placed, from, {1}, {2}, fade))) << ToText(from) << " by " << amount;
        }
    for (const int amount : amounts) {
        const OwnedCanvas dst = MakeCanvas(40, 30, PremultipliedPattern{2});
        SetCanvasClipRect(dst.get(), &one);
        EXPECT_EQ(MixCanvasWithColor(dst.get(), &placed, 0x80F00F7F, 0x700U | static_cast<DWORD>(amount)), 1);
        EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) {
            const DWORD before = PremultipliedPattern{2}(x, y);
            return Inside(placed, x, y) ? SlowMixColor(0x80F00F7F, before, amount) : before;
        })) << amount;
    }
}

TEST(MixCanvas, NeedsBothRectanglesInside) {
    const OwnedCanvas src = MakeCanvas(32, 24, PremultipliedPattern{1}),
                      dst = MakeCanvas(40, 30, PremultipliedPattern{2});
    SetViewportOrg(src.get(), 3, -2, nullptr);
    const RECT from{1, 4, 27, 25};
    for (const RECT& outside : {RECT{-1, 0, 3, 3}, {0, 28, 3, 31}, {5, 5, 5, 6}, {6, 6, 5, 5}}) {
        EXPECT_EQ(MixCanvas(dst.get(), &outside, src.get(), &from, 255), 1);
        EXPECT_EQ(MixCanvasWithColor(dst.get(), &outside, 0xFFFFFFFF, 255), 1);
    }
    for (const RECT& outside : {RECT{-4, 4, 5, 9}, {20, 4, 30, 9}, {1, 1, 5, 9}, {5, 5, 5, 6}, {6, 6, 5, 5}})
        EXPECT_EQ(MixCanvas(dst.get(), &placed, src.get(), &outside, 255), 1);
    EXPECT_TRUE(Shows(dst.get(), PremultipliedPattern{2}));
    EXPECT_EQ(MixCanvas(dst.get(), &placed, src.get(), &from, 255), 1);
    EXPECT_TRUE(Shows(dst.get(), Drawn(placed, sources[0], {1}, {2}, [](DWORD s, DWORD) { return s; })));
}

// Every choice, unclipped and clipped, against the model. Clipped stretches blend by the source's alpha or copy.
TEST(BlendCanvas, MatchesTheModelWithAndWithoutClip) {
    const RECT wide{-100, -100, 100, 100}, narrow{9, 8, 30, 20};
    constexpr DWORD filters[] = {ZORVIC_OP_COPY, withAlpha, ZORVIC_OP_MULTIPLY};  // only source-over means alpha
    for (const RECT& from : sources)
        for (const DWORD srcFilter : filters)
            for (const DWORD dstFilter : filters)
                for (const int alpha : amounts)
                    for (const RECT& clip : {wide, narrow}) {
                        const OwnedCanvas src = MakeCanvas(32, 24, PremultipliedPattern{1}, srcFilter);
                        const OwnedCanvas dst = MakeCanvas(40, 30, PremultipliedPattern{2}, dstFilter);
                        SetCanvasClipRect(dst.get(), &clip);
                        ASSERT_EQ(BlendCanvas(dst.get(), &placed, src.get(), &from, static_cast<BYTE>(alpha)), 1);

                        const bool cutStretch = clip == narrow && !(from == sources[0]);
                        const bool blended = !cutStretch && (dstFilter == withAlpha || alpha != 255);
                        const auto whole = Drawn(placed, from, {1}, {2}, [&](DWORD s, DWORD d) {
                            return srcFilter == withAlpha ? SlowOver(s, d) : blended ? SlowOpaqueAlpha(s, d, alpha) : s;
                        });
                        const auto picture = [&](int x, int y) {
                            return Inside(clip, x, y) ? whole(x, y) : PremultipliedPattern{2}(x, y);
                        };
                        ASSERT_TRUE(Shows(dst.get(), picture))
                            << "source " << ToText(from) << " filters " << srcFilter << " " << dstFilter << " alpha "
                            << alpha << " clip " << ToText(clip);
                    }
}

TEST(CanvasScroll, MovesRowsAndKeepsTheUncoveredOnes) {
    // A surface's height or more moves nothing.
    for (const int dy : {0, 1, -1, 3, -3, 8, -8, 9, -9, 10, INT_MAX, INT_MIN, -INT_MAX}) {
        const OwnedCanvas canvas = MakeCanvas(7, 9, PremultipliedPattern{1});
        SetCanvasClipRect(canvas.get(), &one);
        EXPECT_EQ(CanvasScroll(canvas.get(), 0, dy), 1);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
            const std::int64_t from = std::int64_t{y} - dy;
            return PremultipliedPattern{1}(x, from >= 0 && from < 9 ? static_cast<int>(from) : y);
        })) << dy;
    }
}

TEST(CanvasScroll, RefusesWhatItCannotDo) {
    const OwnedCanvas canvas = MakeCanvas(7, 9, PremultipliedPattern{1});
    EXPECT_EQ(CanvasScroll(canvas.get(), 1, 1), 0);
    EXPECT_EQ(CanvasScroll(canvas.get(), INT_MIN, 0), 0);
    SetWindowOrg(canvas.get(), 0, 1, nullptr);
    EXPECT_EQ(CanvasScroll(canvas.get(), 0, 1), 0) << "moved origins take the surface out of reach";
    EXPECT_TRUE(Shows(canvas.get(), PremultipliedPattern{1}));

    const GdiBitmap dib = GdiBitmap::Dib(7, 9);
    EXPECT_EQ(CanvasScroll(OwnedCanvas(CreateCanvasFromDC(dib.Dc())).get(), 0, 1), 0);
}

// Bitmaps drawn in a colour: both formulas by hand and by a slow model, every depth, clips, origins, lenient results.
#include <climits>

#include "support/slow_pixels.h"

using namespace host;

namespace {

struct Case {
    const char* name;
    DWORD src, dst, color, drawn;
};
constexpr Case cases[] = {
    // Opaque: luma 0xFF gives alpha (0x100 x 0xFF) >> 8 = 0xFF; colour (0 x 0xFF >> 8) + (c x 0xFF >> 8).
    {"white shows the colour", 0xFFFFFFFF, 0x00808080, 0xFF804020, 0xFF7F3F1F},
    {"white dims by black", 0xFFFFFFFF, 0xFF808080, 0xFF000000, 0xFF000000},
    {"black leaves the colour", 0xFF000000, 0x40808080, 0xFFFFFFFF, 0x407F7F7F},
    // (0 + 2 x 0x80 + 0) >> 2 = 0x40; (0x41 x 0xFF) >> 8 = 0x40; green (0x7F x 0xFF >> 8) + (0x80 x 0x80 >> 8).
    {"half green", 0x00008000, 0x00FFFFFF, 0xFFFF80FF, 0x40FEBEFE},
    // Not opaque: m = ((s + 1) x c) >> 8, then over.
    {"nothing changes nothing", 0x00000000, 0x12345678, 0xFEFFFFFF, 0x12345678},
    {"white is the colour over", 0xFFFFFFFF, 0xFFFFFFFF, 0x80402010, 0xFFBF9F8F},
    {"multiplied", 0xFF7F3F00, 0x00000000, 0x80808080, 0x80402000},
    {"transparent colour", 0xFFFFFFFF, 0x12345678, 0x00000000, 0x12345678},
};

}  // namespace

TEST(DrawModulation, DoesToAPixelWhatTheFormulaSays) {
    for (const Case& c : cases) {
        const OwnedBitmap bitmap = MakeBitmap(1, 1, [&](int, int) { return c.src; });
        const OwnedCanvas canvas(CreateCanvas(1, 1, nullptr));
        Fill(canvas.get(), [&](int, int) { return c.dst; });
        EXPECT_EQ(DrawModulation(canvas.get(), 0, 0, bitmap.get(), nullptr, c.color), 1) << c.name;
        EXPECT_TRUE(Shows(canvas.get(), [&](int, int) { return c.drawn; })) << c.name;
    }
}

TEST(DrawModulation, MatchesTheModelFromEveryDepthWhereverItLies) {
    const RECT clip{3, 2, 35, 27};
    const RECT part{2, 3, 25, 19};
    for (const int depth : {8, 24, 32}) {
        const OwnedBitmap bitmap = MakeBitmap(29, 23, depth, 256);
        Fill(bitmap.get(), Pattern{1});
        for (int i = 0; depth == 8 && i < 256; ++i) Pixels(bitmap.get())->palette[i] = Pattern{3}(i, 0);
        const auto source = [&](int x, int y) {
            const DWORD word = Pattern{1}(x, y);
            if (depth == 8) return Pattern{3}(static_cast<int>(word & 0xFF), 0);
            return depth == 24 ? 0xFF000000 | word : word;
        };
        for (const DWORD color : {0xFF20C0F0UL, 0xFFFFFFFFUL, 0xFE20C0F0UL, 0x80FF0013UL, 0x00FFFFFFUL})
            for (const RECT* src : {static_cast<const RECT*>(nullptr), &part})
                for (const POINT at : {POINT{5, 4}, {-12, -7}, {20, 15}, {-40, 0}}) {
                    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
                    Fill(canvas.get(), Pattern{2});
                    SetCanvasClipRect(canvas.get(), &clip);
                    SetViewportOrg(canvas.get(), 1, 2, nullptr);
                    ASSERT_EQ(DrawModulation(canvas.get(), at.x - 1, at.y - 2, bitmap.get(), src, color), 1);

                    const RECT area = src ? *src : RECT{0, 0, 29, 23};
                    const RECT dst{at.x, at.y, at.x + area.right - area.left, at.y + area.bottom - area.top};
                    ASSERT_TRUE(Shows(canvas.get(),
                                      [&](int x, int y) {
                                          const DWORD before = Pattern{2}(x, y);
                                          if (!Inside(dst, x, y) || !Inside(clip, x, y)) return before;
                                          const DWORD s = source(x - at.x + area.left, y - at.y + area.top);
                                          return color >> 24 == 255 ? SlowTint(s, before, color)
                                                                    : SlowModulate(s, before, color);
                                      }))
                        << "depth " << depth << " color " << std::hex << color << " at " << ToText(dst);
                }
    }
}

TEST(DrawModulation, DrawsNothingFromOutsideTheBitmap) {
    const OwnedBitmap bitmap = MakeBitmap(10, 10, Pattern{});
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    for (const RECT& src : {RECT{-1, 0, 5, 5},
                            {0, 0, 11, 5},
                            {5, 5, 5, 9},
                            {9, 9, 1, 1},
                            {INT_MIN, 0, INT_MAX, 9},
                            {0, INT_MIN, 1, INT_MAX}})
        for (const POINT at : {POINT{0, 0}, {INT_MAX - 3, 0}, {INT_MIN, INT_MIN}})
            EXPECT_EQ(DrawModulation(canvas.get(), at.x, at.y, bitmap.get(), &src, 0xFFFFFFFF), 1) << ToText(src);
    EXPECT_TRUE(Shows(canvas.get(), [](int, int) { return 0U; }));
}

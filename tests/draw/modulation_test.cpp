// Bitmaps drawn in a colour: both formulas by a slow model, every depth, clips, origins, lenient results.
#include <climits>

#include "support/slow_pixels.h"

using namespace host;

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

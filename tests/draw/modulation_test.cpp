// Bitmaps drawn in a colour: both formulas by a slow model, every depth, lenient results.
#include "support/host.h"
#include "support/slow_pixels.h"

using namespace host;

TEST(DrawModulation, MatchesTheModelFromEveryDepth) {
    const RECT whole{0, 0, 29, 23}, part{2, 3, 25, 19};
    for (const int depth : {8, 24, 32}) {
        const OwnedBitmap bitmap = MakeBitmap(29, 23, depth, 256);
        Pixels source(bitmap.get());
        source.Fill(Pattern{1});
        for (int i = 0; i < source->colorCount; ++i) source->palette[i] = Pattern{3}(i, 0);
        for (const DWORD color : {0xFF20C0F0UL, 0xFFFFFFFFUL, 0xFE20C0F0UL, 0x80FF0013UL, 0x00FFFFFFUL})
            for (const RECT& area : {whole, part}) {
                const OwnedCanvas canvas = MakeCanvas(40, 30, Pattern{2});
                ASSERT_EQ(DrawModulation(canvas.get(), 5, 4, bitmap.get(), area == whole ? nullptr : &area, color), 1);
                const RECT dst{5, 4, 5 + area.right - area.left, 4 + area.bottom - area.top};
                ASSERT_TRUE(Shows(canvas.get(),
                                  [&](int x, int y) {
                                      const DWORD before = Pattern{2}(x, y);
                                      if (!Inside(dst, x, y)) return before;
                                      return SlowInColor(source.Color(x - 5 + area.left, y - 4 + area.top), before,
                                                         color);
                                  }))
                    << "depth " << depth << " color " << std::hex << color << ' ' << ToText(area);
            }
    }
}

TEST(DrawModulation, DrawsNothingFromOutsideTheBitmap) {
    const OwnedBitmap bitmap = MakeBitmap(10, 10, Pattern{});
    const OwnedCanvas canvas(CreateCanvas(40, 30, nullptr));
    for (const RECT& src : {RECT{-1, 0, 5, 5}, {0, 0, 11, 5}, {5, 5, 5, 9}, {9, 9, 1, 1}, {LONG_MIN, 0, LONG_MAX, 9}})
        EXPECT_EQ(DrawModulation(canvas.get(), 0, 0, bitmap.get(), &src, 0xFFFFFFFF), 1) << ToText(src);
    EXPECT_TRUE(Shows(canvas.get(), Plain{}));
}

// CopyBitmap: what is copied where, and between which formats.
#include <climits>
#include <optional>

#include "support/host.h"
#include "support/random.h"

namespace {

using namespace host;

struct Format {
    const char* name;
    int bitsPixel, colorCount;
    bool system = false;
};
const Format formats[] = {{"grey ramp", 8, 0}, {"256 colours", 8, 256}, {"200 colours", 8, 200},     {"16 bits", 16, 0},
                          {"24 bits", 24, 0},  {"32 bits", 32, 0},      {"DIB section", 32, 0, true}};

OwnedBitmap Make(const Format& format, int width, int height) {
    OwnedBitmap bitmap = format.system ? OwnedBitmap(CreateSystemBitmap(width, height))
                                       : MakeBitmap(width, height, format.bitsPixel, format.colorCount);
    for (int i = 0; i < format.colorCount; ++i) Pixels(bitmap.get())->palette[i] = Pattern{3}(i, width);
    return bitmap;
}

std::vector<DWORD> PaletteOf(const OwnedBitmap& bitmap) {
    const Pixels pixels(bitmap.get());
    return {pixels->palette, pixels->palette + pixels->colorCount};
}

// One in two areas is all of the surface; of the others, some are empty or reach outside.
std::optional<RECT> AreaByChance(zorvic::Random& random, LONG width, LONG height) {
    constexpr LONG extremes[] = {LONG_MIN, -1, LONG_MAX};
    if (random.Below(2)) return {};
    RECT area{random.Below(width), random.Below(height), random.Below(width + 1), random.Below(height + 1)};
    if (area.right <= area.left && random.Below(4)) area.right = width;
    if (area.bottom <= area.top && random.Below(4)) area.bottom = height;
    if (random.Below(8) == 0) (random.Below(2) ? area.left : area.bottom) = extremes[random.Below(3)];
    return area;
}

TEST(CopyBitmap, CopiesAnAreaBetweenFormats) {
    constexpr int dstWidth = 12, dstHeight = 9, srcWidth = 8, srcHeight = 11;
    zorvic::Random random(1);
    for (const Format& from : formats)
        for (const Format& to : formats)
            for (int round = 0; round < 40; ++round) {
                if (from.bitsPixel == 16 && to.bitsPixel == 32) continue;  // widens to no colours in particular
                const auto dstArea = AreaByChance(random, dstWidth, dstHeight),
                           srcArea = AreaByChance(random, srcWidth, srcHeight);
                const RECT placed = dstArea.value_or(RECT{0, 0, dstWidth, dstHeight}),
                           taken = srcArea.value_or(RECT{0, 0, srcWidth, srcHeight});
                SCOPED_TRACE(from.name + ToText(taken) + " to " + to.name + ToText(placed));
                const OwnedBitmap dst = Make(to, dstWidth, dstHeight), src = Make(from, srcWidth, srcHeight);
                Fill(dst.get(), Pattern{1});
                Fill(src.get(),
                     [&](int x, int y) { return from.bitsPixel == 8 ? Pattern{2}(x, y) % 200 : Pattern{2}(x, y); });
                SetBitmapFilter(src.get(), 0x02123456);
                const Snapshot before(dst.get()), source(src.get());
                const std::vector<DWORD> palette = PaletteOf(dst);
                EXPECT_EQ(
                    CopyBitmap(dst.get(), dstArea ? &*dstArea : nullptr, src.get(), srcArea ? &*srcArea : nullptr), 1);

                const bool alike = from.bitsPixel == to.bitsPixel && PaletteOf(src).size() == palette.size();
                const bool copies = (alike || to.bitsPixel == 32) && LiesIn(placed, dstWidth, dstHeight) &&
                                    LiesIn(taken, srcWidth, srcHeight);
                // The area of the destination only places the copy, which ends with the surface.
                const RECT copied{placed.left, placed.top, placed.left + taken.right - taken.left,
                                  placed.top + taken.bottom - taken.top};
                EXPECT_TRUE(Shows(src.get(), source));
                const Pixels pixels(src.get());
                EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) {
                    if (!copies || !Inside(copied, x, y)) return before(x, y);
                    const int column = x - placed.left + taken.left, row = y - placed.top + taken.top;
                    return alike ? pixels.Get(column, row) : pixels.Color(column, row);
                }));
                EXPECT_EQ(FilterOf(dst.get()), copies ? 0x02123456U : 0U);
                // The palette comes along, but never into the ramp.
                EXPECT_EQ(PaletteOf(dst), to.colorCount != 0 && copies ? PaletteOf(src) : palette);
            }
}

}  // namespace

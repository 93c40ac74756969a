// CopyBitmap: what is copied where, between which formats, and copies within one bitmap.
#include <climits>
#include <optional>

#include "support/host.h"

namespace {

using namespace host;

constexpr int dstWidth = 12;
constexpr int dstHeight = 9;
constexpr int srcWidth = 8;
constexpr int srcHeight = 11;

struct AreaCase {
    std::optional<RECT> dstArea, srcArea;
    RECT copied;  // where the destination changes; empty, nowhere
};

const AreaCase areaCases[] = {
    // Everything, cut at the bottom: the source is higher.
    {{}, {}, {0, 0, 8, 9}},
    {{}, RECT{2, 1, 5, 4}, {0, 0, 3, 3}},
    {RECT{3, 2, 12, 9}, RECT{2, 1, 5, 4}, {3, 2, 6, 5}},
    // The destination area only places: a smaller one does not cut.
    {RECT{3, 2, 4, 3}, RECT{2, 1, 8, 4}, {3, 2, 9, 5}},
    // Cut at the right, at the bottom, at the last pixel.
    {RECT{10, 1, 12, 2}, RECT{0, 5, 8, 7}, {10, 1, 12, 3}},
    {RECT{1, 7, 2, 9}, RECT{0, 0, 8, 11}, {1, 7, 9, 9}},
    {RECT{11, 8, 12, 9}, {}, {11, 8, 12, 9}},
    // Areas that do not lie inside copy nothing.
    {RECT{-1, 0, 5, 5}, {}, {}},
    {RECT{0, 0, 13, 9}, {}, {}},
    {RECT{4, 4, 4, 6}, {}, {}},
    {RECT{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, {}, {}},
    {{}, RECT{0, 0, 9, 11}, {}},
    {{}, RECT{0, -1, 8, 11}, {}},
    {{}, RECT{5, 2, 3, 4}, {}},
    {{}, RECT{INT_MAX, 0, INT_MIN, 1}, {}},
};

struct Format {
    const char* name;
    int bitsPixel, colorCount;
    bool system = false;
};

OwnedBitmap Make(const Format& format, int width, int height) {
    if (format.system) return OwnedBitmap(CreateSystemBitmap(width, height));
    return MakeBitmap(width, height, format.bitsPixel, format.colorCount);
}

// A pixel of the source format as 32 bits; palettes hold the pattern with row -1.
DWORD Widened(const Format& format, DWORD pixel) {
    if (format.bitsPixel == 24) return 0xFF000000 | pixel;
    if (format.bitsPixel == 32) return pixel;
    return format.colorCount == 0 ? 0xFF000000 | pixel * 0x010101 : Pattern{3}(static_cast<int>(pixel), -1);
}

constexpr Format ramp{"8 bits, grey ramp", 8, 0};
constexpr Format palette{"8 bits, 256 colours", 8, 256};
constexpr Format shortPalette{"8 bits, 200 colours", 8, 200};
constexpr Format words16{"16 bits", 16, 0};
constexpr Format rgb{"24 bits", 24, 0};
constexpr Format argb{"32 bits", 32, 0};
constexpr Format dib{"DIB section", 32, 0, true};

enum class Effect { none, same, widens };

struct PairCase {
    Format dst, src;
    Effect effect;
};

const PairCase pairCases[] = {
    {argb, argb, Effect::same},
    {dib, argb, Effect::same},
    {argb, dib, Effect::same},
    {rgb, rgb, Effect::same},
    {words16, words16, Effect::same},
    {ramp, ramp, Effect::same},
    {palette, palette, Effect::same},
    {shortPalette, shortPalette, Effect::same},
    {palette, ramp, Effect::same},
    {ramp, palette, Effect::same},
    {palette, shortPalette, Effect::none},
    {argb, ramp, Effect::widens},
    {argb, palette, Effect::widens},
    {dib, rgb, Effect::widens},
    {rgb, argb, Effect::none},
    {palette, argb, Effect::none},
    {rgb, ramp, Effect::none},
    {words16, argb, Effect::none},
};

TEST(CopyBitmap, CopiesTheSourceAreaBetweenFormats) {
    for (const PairCase& pair : pairCases)
        for (const AreaCase& areas : areaCases) {
            SCOPED_TRACE(testing::Message() << pair.src.name << (areas.srcArea ? ToText(*areas.srcArea) : "") << " to "
                                            << pair.dst.name << (areas.dstArea ? ToText(*areas.dstArea) : ""));
            const OwnedBitmap dst = Make(pair.dst, dstWidth, dstHeight);
            const OwnedBitmap src = Make(pair.src, srcWidth, srcHeight);
            Fill(dst.get(), Pattern{1});
            Fill(src.get(), Pattern{2});
            for (int i = 0; i < pair.src.colorCount; ++i) Pixels(src.get())->palette[i] = Pattern{3}(i, -1);
            SetBitmapFilter(src.get(), 0x02123456);
            const Snapshot before(dst.get());
            const Snapshot source(src.get());

            EXPECT_EQ(CopyBitmap(dst.get(), areas.dstArea ? &*areas.dstArea : nullptr, src.get(),
                                 areas.srcArea ? &*areas.srcArea : nullptr),
                      1);
            const RECT copied = pair.effect == Effect::none ? RECT{} : areas.copied;
            const POINT from = areas.srcArea ? POINT{areas.srcArea->left, areas.srcArea->top} : POINT{};
            EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) {
                if (!Inside(copied, x, y)) return before(x, y);
                const DWORD pixel = source(x - copied.left + from.x, y - copied.top + from.y);
                return pair.effect == Effect::widens ? Widened(pair.src, pixel) : pixel;
            }));
            EXPECT_TRUE(Shows(src.get(), source));

            DWORD filter = 1;
            GetBitmapFilter(dst.get(), &filter);
            EXPECT_EQ(filter, IsRectEmpty(&copied) ? 0U : 0x02123456U);
            if (IsRectEmpty(&copied) || pair.dst.bitsPixel > 8) continue;
            // The palette comes along, but never into the ramp.
            const Pixels pixels(dst.get());
            for (int i = 0; i < pixels->colorCount; ++i) {
                const DWORD index = static_cast<DWORD>(i);
                ASSERT_EQ(pixels->palette[i], Widened(pair.dst.colorCount == 0 ? ramp : pair.src, index))
                    << "entry " << i;
            }
        }
}

TEST(CopyBitmap, OverlappingAreasOfOneBitmapCopyWhatWasThere) {
    for (const Format& format : {argb, rgb, palette, dib})
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                SCOPED_TRACE(testing::Message() << format.name << " moved by " << dx << ", " << dy);
                const OwnedBitmap bitmap = Make(format, 16, 16);
                Fill(bitmap.get(), Pattern{});
                const Snapshot before(bitmap.get());
                const RECT from{3, 3, 12, 12};
                const RECT to{3 + dx, 3 + dy, 12 + dx, 12 + dy};
                EXPECT_EQ(CopyBitmap(bitmap.get(), &to, bitmap.get(), &from), 1);
                EXPECT_TRUE(Shows(bitmap.get(), [&](int x, int y) {
                    return Inside(to, x, y) ? before(x - dx, y - dy) : before(x, y);
                }));
            }
}

}  // namespace

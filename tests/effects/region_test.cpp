// Regions made from pixels, compared with regions that GDI builds one pixel at a time.
#include "support/host.h"

namespace {

using namespace host;

struct DeleteRegion {
    void operator()(HRGN region) const { DeleteObject(region); }
};
using OwnedRegion = std::unique_ptr<std::remove_pointer_t<HRGN>, DeleteRegion>;

OwnedRegion RectRegion(const RECT& rect) { return OwnedRegion(CreateRectRgnIndirect(&rect)); }

template <class Kept>
OwnedRegion PixelByPixel(int width, int height, Kept kept) {
    OwnedRegion region = RectRegion({});
    for (int y = 0; y < height; ++y) {
        // A row first: adding to a small region is quick.
        const OwnedRegion row = RectRegion({});
        for (int x = 0; x < width; ++x)
            if (kept(x, y)) CombineRgn(row.get(), row.get(), RectRegion({x, y, x + 1, y + 1}).get(), RGN_OR);
        CombineRgn(region.get(), region.get(), row.get(), RGN_OR);
    }
    return region;
}

OwnedRegion RegionOf(HGBITMAP bitmap, const RECT* area = nullptr) {
    return OwnedRegion(CreateTextureRgn(reinterpret_cast<HGTEXTURE>(bitmap), area));
}

bool Same(const OwnedRegion& a, const OwnedRegion& b) { return a && b && EqualRgn(a.get(), b.get()); }

TEST(TextureRegion, IsWhatIsNotTransparentBlack) {
    struct Case {
        const char* name;
        int bitsPixel, width, height;
        bool (*kept)(int x, int y);
    };
    const Case cases[] = {
        {"nothing", 32, 9, 7, [](int, int) { return false; }},
        {"everything", 32, 9, 7, [](int, int) { return true; }},
        {"one gap", 32, 3, 1, [](int x, int) { return x != 1; }},
        {"noise", 32, 61, 47, [](int x, int y) { return Pattern{}(x, y) % 3 != 0; }},
        {"black without alpha", 24, 9, 7, [](int, int) { return true; }},
        {"noise in a palette", 8, 61, 47, [](int x, int y) { return Pattern{}(x, y) % 3 != 0; }},
        {"1999 runs", 32, 3998, 1, [](int x, int) { return x % 2 == 0; }},
        {"2000 runs", 32, 4000, 1, [](int x, int) { return x % 2 == 0; }},
        {"4096 runs", 32, 128, 64, [](int x, int y) { return (x + y) % 2 == 0; }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const OwnedBitmap bitmap = MakeBitmap(c.width, c.height, c.bitsPixel, 16);
        // Transparent white is kept; entry 3 of the palette is the only black one.
        Fill(bitmap.get(), [&](int x, int y) {
            if (c.bitsPixel == 8) return c.kept(x, y) ? 5U : 3U;
            return c.bitsPixel == 32 && c.kept(x, y) ? 0x00FFFFFFU : 0U;
        });
        for (int i = 0; c.bitsPixel == 8 && i < 16; ++i) Pixels(bitmap.get())->palette[i] = i == 3 ? 0U : 0xFF000000U;
        EXPECT_TRUE(Same(RegionOf(bitmap.get()), RectRegion({0, 0, c.width, c.height}))) << "without an operation";

        SetBitmapFilter(bitmap.get(), ZORVIC_OP_SOURCE_OVER);
        EXPECT_TRUE(Same(RegionOf(bitmap.get()), PixelByPixel(c.width, c.height, c.kept)));
        const RECT area{1, 0, c.width - 1, (c.height + 1) / 2};
        const auto inArea = [&](int x, int y) { return c.kept(x + area.left, y + area.top); };
        EXPECT_TRUE(Same(RegionOf(bitmap.get(), &area), PixelByPixel(area.right - 1, area.bottom, inArea)))
            << "of an area";
    }
}

TEST(TextureRegion, RefusesAreasThatAreNotInsideAndOtherDepths) {
    const OwnedBitmap bitmap = MakeBitmap(7, 5, Pattern{}), other = MakeBitmap(7, 5, 16);
    EXPECT_TRUE(Same(RegionOf(other.get()), RectRegion({0, 0, 7, 5})));
    SetBitmapFilter(other.get(), ZORVIC_OP_SOURCE_OVER);
    EXPECT_FALSE(RegionOf(other.get()));
    for (const DWORD operation : {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER}) {
        SetBitmapFilter(bitmap.get(), operation);
        const RECT outside[] = {{-1, 0, 7, 5}, {0, -1, 7, 5},
                                {0, 0, 8, 5},  {0, 0, 7, 6},
                                {4, 0, 3, 5},  {LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX},
                                {0, 3, 7, 2},  {LONG_MAX, 0, LONG_MIN, 5}};
        for (const RECT& area : outside) EXPECT_FALSE(RegionOf(bitmap.get(), &area)) << ToText(area);
        for (const RECT& area : {RECT{3, 0, 3, 5}, {0, 5, 7, 5}, {7, 5, 7, 5}})
            EXPECT_TRUE(Same(RegionOf(bitmap.get(), &area), RectRegion({}))) << ToText(area);
    }
}

}  // namespace

// Regions made from pixels, asked about every pixel in and around them.
#include "support/host.h"

namespace {

using namespace host;

struct DeleteRegion {
    void operator()(HRGN region) const { DeleteObject(region); }
};
using OwnedRegion = std::unique_ptr<std::remove_pointer_t<HRGN>, DeleteRegion>;

OwnedRegion RegionOf(const OwnedBitmap& bitmap, const RECT* area = nullptr) {
    return OwnedRegion(CreateTextureRgn(reinterpret_cast<HGTEXTURE>(bitmap.get()), area));
}

bool All(int, int) { return true; }
bool Noise(int x, int y) { return Pattern{}(x, y) % 3 != 0; }

// Whether it is what is kept of an area, moved to the origin.
testing::AssertionResult Holds(const OwnedRegion& region, const RECT& area, bool (*kept)(int x, int y)) {
    if (!region) return testing::AssertionFailure() << "refused";
    for (int y = area.top - 1; y <= area.bottom; ++y)
        for (int x = area.left - 1; x <= area.right; ++x)
            if (PtInRegion(region.get(), x - area.left, y - area.top) != (Inside(area, x, y) && kept(x, y)))
                return testing::AssertionFailure() << "at " << x << ", " << y;
    return testing::AssertionSuccess();
}

TEST(TextureRegion, IsWhatIsNotTransparentBlack) {
    const struct {
        const char* name;
        int bitsPixel, width, height;
        bool (*kept)(int x, int y);
    } cases[] = {
        {"nothing", 32, 9, 7, [](int, int) { return false; }},
        {"noise", 32, 61, 47, Noise},
        {"black without alpha", 24, 9, 7, All},
        {"noise in a palette", 8, 61, 47, Noise},
        // Of which the area has one less: 2000 go to the system at once.
        {"2001 runs", 32, 4002, 1, [](int x, int) { return x % 2 == 0; }},
        {"4096 runs", 32, 128, 64, [](int x, int y) { return (x + y) % 2 == 0; }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const OwnedBitmap bitmap = MakeBitmap(c.width, c.height, c.bitsPixel, 16);
        // Transparent white is kept; entry 3 of the palette is the only black one.
        Fill(bitmap.get(), [&](int x, int y) {
            if (c.bitsPixel == 8) return c.kept(x, y) ? 5U : 3U;
            return c.bitsPixel == 32 && c.kept(x, y) ? 0x00FFFFFFU : 0U;
        });
        for (int i = 0; c.bitsPixel == 8 && i < 16; ++i) Pixels(bitmap.get())->palette[i] = i == 3 ? 0U : 0xFF000000U;
        const RECT all{0, 0, c.width, c.height}, area{1, 0, c.width - 1, (c.height + 1) / 2};
        EXPECT_TRUE(Holds(RegionOf(bitmap), all, All)) << "without an operation";
        SetBitmapFilter(bitmap.get(), ZORVIC_OP_SOURCE_OVER);
        EXPECT_TRUE(Holds(RegionOf(bitmap), all, c.kept));
        EXPECT_TRUE(Holds(RegionOf(bitmap, &area), area, c.kept)) << "of an area";
    }
}

TEST(TextureRegion, RefusesAreasThatAreNotInsideAndOtherDepths) {
    const OwnedBitmap bitmap = MakeBitmap(7, 5, Pattern{}), other = MakeBitmap(7, 5, 16);
    for (const DWORD operation : {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER}) {
        SetBitmapFilter(bitmap.get(), operation);
        SetBitmapFilter(other.get(), operation);
        EXPECT_EQ(RegionOf(other) != nullptr, operation == ZORVIC_OP_COPY);
        const RECT outside[] = {{-1, 0, 7, 5},
                                {0, -1, 7, 5},
                                {0, 0, 8, 5},
                                {0, 0, 7, 6},
                                {4, 0, 3, 5},
                                {0, 3, 7, 2},
                                {LONG_MAX, 0, LONG_MIN, 5}};
        for (const RECT& area : outside) EXPECT_FALSE(RegionOf(bitmap, &area)) << ToText(area);
        for (const RECT& area : {RECT{3, 0, 3, 5}, {0, 5, 7, 5}, {7, 5, 7, 5}})
            EXPECT_TRUE(Holds(RegionOf(bitmap, &area), area, All)) << ToText(area);
    }
}

}  // namespace

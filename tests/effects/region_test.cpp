// Regions made from pixels, asked about every pixel in and around them.
#include "support/host.h"
#include "support/import_table.h"

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

// What the library asks of GDI while it lives, by way of its import table.
class GdiWork {
public:
    GdiWork() { Lead(reinterpret_cast<void*>(Create), reinterpret_cast<void*>(Combine)); }
    ~GdiWork() { Lead(reinterpret_cast<void*>(createRegion), reinterpret_cast<void*>(combine)); }
    GdiWork(const GdiWork&) = delete;
    GdiWork& operator=(const GdiWork&) = delete;

    static inline int calls, refused;           // refused: the number of the call that fails, counted from 1
    static inline std::uint64_t handed, steps;  // rectangles given to GDI, and those it goes through

private:
    void Lead(void* toCreate, void* toCombine) {
        calls = refused = 0;
        handed = steps = 0;
        const auto entries = PeImage(LoadedDll()).ImportEntries();
        void* const before = Redirect(entries.find("ExtCreateRegion")->second, toCreate);
        void* const combineBefore = Redirect(entries.find("CombineRgn")->second, toCombine);
        if (!createRegion) createRegion = reinterpret_cast<decltype(createRegion)>(before);
        if (!combine) combine = reinterpret_cast<decltype(combine)>(combineBefore);
    }
    static std::uint64_t CountOf(HRGN region) { return GetRegionData(region, 0, nullptr) / sizeof(RECT) - 2; }

    static HRGN WINAPI Create(const XFORM* transform, DWORD size, const RGNDATA* data) {
        handed += data->rdh.nCount;
        steps += std::uint64_t{data->rdh.nCount} * data->rdh.nCount / 2;
        return ++calls == refused ? nullptr : createRegion(transform, size, data);
    }
    static int WINAPI Combine(HRGN to, HRGN one, HRGN other, int mode) {
        steps += CountOf(one) + CountOf(other);
        return ++calls == refused ? ERROR : combine(to, one, other, mode);
    }

    static inline decltype(ExtCreateRegion)* createRegion;
    static inline decltype(CombineRgn)* combine;
};

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
        {"2001 runs", 32, 4002, 1, [](int x, int) { return x % 2 == 0; }},
        {"stripes", 32, 64, 9, [](int x, int) { return x % 2 == 0; }},
        {"a run less below", 32, 9, 6, [](int x, int y) { return x == 1 || (x == 5 && y % 3 == 0); }},
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

// n rectangles take GDI n log n steps, and as few calls; rows that are alike are one.
TEST(TextureRegion, CostsWhatItShows) {
    const OwnedBitmap bitmap = MakeBitmap(256, 256);
    SetBitmapFilter(bitmap.get(), ZORVIC_OP_SOURCE_OVER);
    const GdiWork work;
    Fill(bitmap.get(), [](int x, int y) { return static_cast<DWORD>((x + y) % 2); });
    ASSERT_TRUE(RegionOf(bitmap));
    constexpr int runs = 256 * 128;
    EXPECT_EQ(work.handed, runs);
    EXPECT_LE(work.steps, runs * 32U);
    EXPECT_LE(work.calls, runs / 8);
    Fill(bitmap.get(), [](int x, int y) { return static_cast<DWORD>(x % 2 + (y == 200)); });
    ASSERT_TRUE(RegionOf(bitmap));
    EXPECT_EQ(work.handed - runs, 128U + 1 + 128);
}

// What GDI refuses is missing, and nothing else: as much as a call had, or the lower of two parts.
TEST(TextureRegion, KeepsThePartsThatStand) {
    const auto kept = [](int x, int y) { return (x + y) % 2 == 0; };
    const OwnedBitmap bitmap = MakeBitmap(64, 16);
    SetBitmapFilter(bitmap.get(), ZORVIC_OP_SOURCE_OVER);
    Fill(bitmap.get(), [&](int x, int y) { return kept(x, y) ? 0xFFFFFFFFU : 0U; });
    const GdiWork work;
    ASSERT_TRUE(RegionOf(bitmap));
    for (int call = 1, all = work.calls; call <= all; ++call) {
        work.calls = 0;
        work.refused = call;
        const OwnedRegion region = RegionOf(bitmap);
        ASSERT_TRUE(region) << call;
        int missing = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 64; ++x) {
                missing += kept(x, y) && !PtInRegion(region.get(), x, y);
                ASSERT_FALSE(!kept(x, y) && PtInRegion(region.get(), x, y)) << x << ' ' << y;
            }
        EXPECT_TRUE(missing > 0 && missing <= 64 * 16 / 4) << missing << " of 512 pixels without call " << call;
    }
    // One part, which is refused.
    const RECT row{0, 0, 9, 1};
    work.calls = 0;
    work.refused = 1;
    EXPECT_FALSE(RegionOf(bitmap, &row));
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

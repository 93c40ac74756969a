// Bitmaps as hosts make and lock them: limits, strides, palettes, areas and properties.
#include <array>
#include <climits>

#include "support/host.h"

namespace {

using namespace host;

TEST(Bitmap, SizesAndDepthsThatCanBeMade) {
    const auto expect = [](int width, int height, int bitsPixel, bool possible) {
        SCOPED_TRACE(testing::Message() << width << " x " << height << " x " << bitsPixel);
        EXPECT_EQ(OwnedBitmap(CreateMemBitmapEx(width, height, bitsPixel, 0)) != nullptr, possible);
        EXPECT_EQ(OwnedTexture(CreateTextureEx(width, height, bitsPixel, 0)) != nullptr, possible);
        if (bitsPixel != 32) return;
        EXPECT_EQ(OwnedBitmap(CreateMemBitmap(width, height)) != nullptr, possible);
        EXPECT_EQ(OwnedBitmap(CreateSystemBitmap(width, height)) != nullptr, possible);
        EXPECT_EQ(OwnedTexture(CreateTexture(width, height)) != nullptr, possible);
    };
    for (const int extent : {INT_MIN, -1, 0, 1, 32767, 32768, INT_MAX})
        for (const int bitsPixel : {-8, 0, 1, 24, 31, 32, 33, 0x10000 + 8}) {
            const bool possible = extent >= 1 && extent <= 32767 && bitsPixel >= 1 && bitsPixel <= 32;
            expect(extent, 3, bitsPixel, possible);
            expect(3, extent, bitsPixel, possible);
        }
    expect(32767, 32767, 32, sizeof(void*) > 4);
}

TEST(Bitmap, RowsArePaddedTo32Bits) {
    for (const int bitsPixel : {8, 16, 24, 32})
        for (const int width : {1, 2, 3, 4, 5, 7, 8, 31, 32, 33, 1001}) {
            SCOPED_TRACE(testing::Message() << width << " pixels of " << bitsPixel << " bits");
            int wanted = width * (bitsPixel / 8);
            while (wanted % 4 != 0) ++wanted;

            const OwnedBitmap bitmap = MakeBitmap(width, 3, bitsPixel);
            const auto picture = [=](int x, int y) { return Pattern{}(x, y) & (0xFFFFFFFFU >> (32 - bitsPixel)); };
            Fill(bitmap.get(), picture);
            EXPECT_EQ(Pixels(bitmap.get())->bmWidthBytes, wanted);
            EXPECT_TRUE(Shows(bitmap.get(), picture));
        }
}

TEST(Bitmap, PaletteIsItsOwnOrTheGrayRamp) {
    struct Case {
        int bitsPixel, asked, count;
        bool ramp;
    };
    const Case cases[] = {{8, 0, 256, true},    {8, -1, 256, true},   {8, 1, 1, false},
                          {8, 256, 256, false}, {8, 300, 256, false}, {8, 70000, 256, false},
                          {16, 5, 0, false},    {24, 16, 0, false},   {32, 16, 0, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.asked << " colours asked at " << c.bitsPixel << " bits");
        const OwnedBitmap bitmap = MakeBitmap(5, 4, c.bitsPixel, c.asked);
        const OwnedBitmap twin = MakeBitmap(5, 4, c.bitsPixel, c.asked);
        const Pixels pixels(bitmap.get());
        ASSERT_EQ(pixels->colorCount, c.count);
        EXPECT_EQ(pixels->palette != nullptr, c.count > 0);
        if (c.count == 0) continue;
        if (c.ramp) {
            for (DWORD i = 0; i < 256; ++i) ASSERT_EQ(pixels->palette[i], 0xFF000000 + i * 0x010101) << "entry " << i;
            continue;
        }
        // Writing one palette harms neither the pixels nor another bitmap's palette.
        Fill(bitmap.get(), Pattern{});
        const Snapshot before(bitmap.get());
        Pixels(twin.get())->palette[c.count - 1] = 0x11223344;
        for (int i = 0; i < c.count; ++i) pixels->palette[i] = 0x55667788;
        EXPECT_TRUE(Shows(bitmap.get(), before));
        EXPECT_EQ(Pixels(twin.get())->palette[c.count - 1], 0x11223344U);
    }
}

TEST(Bitmap, LocksAreasThatLieInside) {
    constexpr LONG width = 10, height = 7;
    constexpr LONG edges[] = {LONG_MIN, -1, 0, 3, height, width, width + 1, LONG_MAX};
    std::vector<OwnedBitmap> bitmaps;
    for (const int bitsPixel : {8, 16, 24, 32}) bitmaps.push_back(MakeBitmap(width, height, bitsPixel, 5));
    bitmaps.emplace_back(CreateSystemBitmap(width, height));
    for (const OwnedBitmap& bitmap : bitmaps) {
        BITMAP whole{};
        ASSERT_EQ(LockBitmapBits(bitmap.get(), &whole, nullptr), 1);
        for (int i = 0; i < 8 * 8 * 8 * 8; ++i) {
            const RECT area{edges[i & 7], edges[i >> 3 & 7], edges[i >> 6 & 7], edges[i >> 9]};
            SCOPED_TRACE(std::to_string(whole.bmBitsPixel) + " bits " + ToText(area));
            const bool inside = area.left >= 0 && area.top >= 0 && area.left < area.right && area.top < area.bottom &&
                                area.right <= width && area.bottom <= height;
            BITMAP part{};
            BitmapLockInfo partEx{};
            ASSERT_EQ(LockBitmapBits(bitmap.get(), &part, &area), inside ? 1 : 0);
            ASSERT_EQ(LockBitmapBitsEx(bitmap.get(), &partEx, &area), inside ? 1 : 0);
            ASSERT_EQ(memcmp(&partEx, &part, sizeof part), 0);
            if (!inside) continue;
            auto* const first =
                static_cast<BYTE*>(whole.bmBits) + area.top * whole.bmWidthBytes + area.left * (whole.bmBitsPixel / 8);
            const BITMAP wanted{
                0, area.right - area.left, area.bottom - area.top, whole.bmWidthBytes, 1, whole.bmBitsPixel, first};
            ASSERT_EQ(memcmp(&part, &wanted, sizeof part), 0);
        }
    }
}

TEST(Bitmap, TellsItsProperties) {
    for (const int bitsPixel : {1, 4, 7, 8, 24, 32}) {
        const OwnedBitmap bitmap = MakeBitmap(300, 200, bitsPixel, 300);
        ReleaseBitmap(bitmap.get());  // leaves the bitmap alone
        BITMAP out{};
        EXPECT_EQ(LockBitmapBits(bitmap.get(), &out, nullptr), bitsPixel < 8 ? 0 : 1);
        SIZE size{};
        DWORD before = 9, filter = 9;
        BYTE depth = 0;
        EXPECT_EQ(GetBitmapSize(bitmap.get(), &size) + GetBitmapBitsPixel(bitmap.get(), &depth), 2);
        EXPECT_TRUE(size.cx == 300 && size.cy == 200 && depth == bitsPixel);
        EXPECT_EQ(GetBitmapFilter(bitmap.get(), &before) + SetBitmapFilter(bitmap.get(), 0x02ABCDEF) +
                      GetBitmapFilter(bitmap.get(), &filter),
                  3);
        EXPECT_TRUE(before == 0 && filter == 0x02ABCDEF);
    }
}

}  // namespace

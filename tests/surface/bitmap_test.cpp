// Bitmaps as hosts make and lock them: limits, strides, palettes and areas.
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

TEST(Bitmap, PaletteIsItsOwnOrTheGrayRamp) {
    const struct {
        int bitsPixel, asked, count;
    } cases[] = {{8, 0, 256},     {8, -1, 256}, {8, 1, 1},   {8, 256, 256}, {8, 300, 256},
                 {8, 70000, 256}, {16, 5, 0},   {24, 16, 0}, {32, 16, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.asked << " colours asked at " << c.bitsPixel << " bits");
        const OwnedBitmap bitmap = MakeBitmap(5, 4, c.bitsPixel, c.asked);
        const OwnedTexture twin(CreateTextureEx(5, 4, c.bitsPixel, c.asked));
        const Pixels pixels(bitmap.get());
        ASSERT_EQ(pixels->colorCount, c.count);
        EXPECT_EQ(pixels->palette != nullptr, c.count > 0);
        if (c.count == 0) continue;
        if (c.asked <= 0) {  // the ramp
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
    constexpr LONG width = 9, height = 7;
    constexpr LONG edges[] = {LONG_MIN, -1, 0, 3, height, width, width + 1, LONG_MAX};
    std::vector<OwnedBitmap> bitmaps;
    for (const int bitsPixel : {8, 16, 24, 32}) bitmaps.push_back(MakeBitmap(width, height, bitsPixel, 5));
    bitmaps.emplace_back(CreateSystemBitmap(width, height));
    for (const OwnedBitmap& bitmap : bitmaps) {
        BITMAP whole{};
        ASSERT_EQ(LockBitmapBits(bitmap.get(), &whole, nullptr), 1);
        const LONG pixelBytes = whole.bmBitsPixel / 8, rowBytes[] = {0, 12, 20, 28, 36};  // ending at a word
        for (int i = 0; i < 8 * 8 * 8 * 8; ++i) {
            const RECT area{edges[i & 7], edges[i >> 3 & 7], edges[i >> 6 & 7], edges[i >> 9]};
            SCOPED_TRACE(std::to_string(whole.bmBitsPixel) + " bits " + ToText(area));
            const bool inside = LiesIn(area, width, height);
            BITMAP part{};
            BitmapLockInfo partEx{};
            ASSERT_EQ(LockBitmapBits(bitmap.get(), &part, &area), inside ? 1 : 0);
            ASSERT_EQ(LockBitmapBitsEx(bitmap.get(), &partEx, &area), inside ? 1 : 0);
            ASSERT_EQ(memcmp(&partEx, &part, sizeof part), 0);
            if (!inside) continue;
            const LONG step = rowBytes[pixelBytes];
            auto* const first = static_cast<BYTE*>(whole.bmBits) + area.top * step + area.left * pixelBytes;
            const BITMAP wanted{0, area.right - area.left, area.bottom - area.top, step, 1, whole.bmBitsPixel, first};
            ASSERT_EQ(memcmp(&part, &wanted, sizeof part), 0);
        }
    }
}

}  // namespace

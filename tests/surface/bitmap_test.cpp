// Bitmaps as hosts make and lock them: limits, strides, palettes, areas and properties.
#include <array>
#include <climits>

#include "support/host.h"

namespace {

using namespace host;

TEST(Bitmap, SizesAndDepthsThatCanBeMade) {
    struct Case {
        int width, height, bitsPixel;
        bool possible;
    };
    const Case cases[] = {
        {1, 1, 32, true},
        {32767, 1, 32, true},
        {1, 32767, 32, true},
        {32768, 1, 32, false},
        {1, 32768, 32, false},
        {0, 5, 32, false},
        {5, 0, 32, false},
        {5, -1, 32, false},
        {INT_MIN, 4, 32, false},
        {4, INT_MAX, 32, false},
        {3, 3, 1, true},
        {3, 3, 24, true},
        {3, 3, 31, true},
        {3, 3, 0, false},
        {3, 3, 33, false},
        {3, 3, -8, false},
        {3, 3, 0x10000 + 8, false},
        {32767, 32767, 32, sizeof(void*) > 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " x " << c.height << " x " << c.bitsPixel);
        EXPECT_EQ(OwnedBitmap(CreateMemBitmapEx(c.width, c.height, c.bitsPixel, 0)) != nullptr, c.possible);
        EXPECT_EQ(OwnedTexture(CreateTextureEx(c.width, c.height, c.bitsPixel, 0)) != nullptr, c.possible);
        if (c.bitsPixel != 32) continue;
        EXPECT_EQ(OwnedBitmap(CreateMemBitmap(c.width, c.height)) != nullptr, c.possible);
        EXPECT_EQ(OwnedBitmap(CreateSystemBitmap(c.width, c.height)) != nullptr, c.possible);
        EXPECT_EQ(OwnedTexture(CreateTexture(c.width, c.height)) != nullptr, c.possible);
    }
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
    constexpr int width = 10;
    constexpr int height = 7;
    const RECT inside[] = {{0, 0, width, height}, {2, 3, 7, 5}, {9, 6, 10, 7}, {0, 6, 10, 7}, {3, 0, 4, 7}};
    const RECT refused[] = {{2, 3, 2, 9},
                            {2, 3, 5, 3},
                            {5, 1, 3, 4},
                            {1, 5, 4, 3},
                            {-1, 0, 4, 4},
                            {0, -1, 4, 4},
                            {0, 0, width + 1, height},
                            {0, 0, width, height + 1},
                            {10, 0, 11, 1},
                            {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                            {INT_MAX, 0, INT_MIN, 1},
                            {0, 0, INT_MIN, INT_MIN}};

    std::vector<OwnedBitmap> bitmaps;
    for (const int bitsPixel : {8, 16, 24, 32}) bitmaps.push_back(MakeBitmap(width, height, bitsPixel, 5));
    bitmaps.emplace_back(CreateSystemBitmap(width, height));
    for (const OwnedBitmap& bitmap : bitmaps) {
        BITMAP whole{};
        ASSERT_EQ(LockBitmapBits(bitmap.get(), &whole, nullptr), 1);
        SCOPED_TRACE(testing::Message() << whole.bmBitsPixel << " bits");
        EXPECT_EQ(whole.bmType, 0);
        EXPECT_EQ(whole.bmPlanes, 1);
        for (const RECT& area : inside) {
            BITMAP part{};
            BitmapLockInfo partEx{};
            ASSERT_EQ(LockBitmapBits(bitmap.get(), &part, &area), 1) << ToText(area);
            EXPECT_EQ(part.bmWidth, area.right - area.left) << ToText(area);
            EXPECT_EQ(part.bmHeight, area.bottom - area.top) << ToText(area);
            EXPECT_EQ(part.bmWidthBytes, whole.bmWidthBytes) << ToText(area);
            EXPECT_EQ(part.bmBitsPixel, whole.bmBitsPixel) << ToText(area);
            EXPECT_EQ(static_cast<BYTE*>(part.bmBits) - static_cast<BYTE*>(whole.bmBits),
                      area.top * whole.bmWidthBytes + area.left * (whole.bmBitsPixel / 8))
                << ToText(area);
            ASSERT_EQ(LockBitmapBitsEx(bitmap.get(), &partEx, &area), 1) << ToText(area);
            EXPECT_EQ(memcmp(&partEx, &part, sizeof part), 0) << ToText(area);
        }
        for (const RECT& area : refused) {
            BITMAP part{};
            BitmapLockInfo partEx{};
            EXPECT_EQ(LockBitmapBits(bitmap.get(), &part, &area), 0) << ToText(area);
            EXPECT_EQ(LockBitmapBitsEx(bitmap.get(), &partEx, &area), 0) << ToText(area);
        }
    }
}

TEST(Bitmap, BelowEightBitsCannotBeLocked) {
    for (const int bitsPixel : {1, 4, 7}) {
        const OwnedBitmap bitmap = MakeBitmap(9, 3, bitsPixel, 300);
        BITMAP out{};
        BYTE depth = 0;
        EXPECT_EQ(LockBitmapBits(bitmap.get(), &out, nullptr), 0) << bitsPixel;
        EXPECT_EQ(GetBitmapBitsPixel(bitmap.get(), &depth), 1);
        EXPECT_EQ(depth, bitsPixel);
    }
}

TEST(Bitmap, TellsItsProperties) {
    const OwnedBitmap bitmap = MakeBitmap(300, 200, 24);
    SIZE size{};
    DWORD filter = 9;
    BYTE depth = 0;
    EXPECT_EQ(GetBitmapSize(bitmap.get(), &size), 1);
    EXPECT_EQ(size.cx, 300);
    EXPECT_EQ(size.cy, 200);
    EXPECT_EQ(GetBitmapBitsPixel(bitmap.get(), &depth), 1);
    EXPECT_EQ(depth, 24);
    EXPECT_EQ(GetBitmapFilter(bitmap.get(), &filter), 1);
    EXPECT_EQ(filter, 0U);
    EXPECT_EQ(SetBitmapFilter(bitmap.get(), 0x02ABCDEF), 1);
    GetBitmapFilter(bitmap.get(), &filter);
    EXPECT_EQ(filter, 0x02ABCDEFU);

    ReleaseBitmap(bitmap.get());  // leaves the bitmap alone
    EXPECT_EQ(GetBitmapSize(bitmap.get(), &size), 1);
    EXPECT_EQ(size.cy, 200);
}

}  // namespace

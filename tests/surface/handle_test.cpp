// GDI's view of a bitmap: DIB sections, and the conversion of bitmaps in heap memory into them.
#include "support/host.h"

namespace {

using namespace host;

COLORREF GdiPixel(HBITMAP handle, int x, int y) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(dc, handle);
    const COLORREF color = GetPixel(dc, x, y);
    SelectObject(dc, previous);
    DeleteDC(dc);
    return color;
}

DWORD ColorOf(DWORD pixel) { return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF); }

TEST(BitmapHandle, SystemBitmapIsATopDownDibSectionOfZeros) {
    const OwnedBitmap bitmap(CreateSystemBitmap(7, 5));
    EXPECT_TRUE(Shows(bitmap.get(), Plain{}));

    DIBSECTION section{};
    const HBITMAP handle = GetBitmapHandle(bitmap.get());
    ASSERT_EQ(GetObjectW(handle, sizeof section, &section), static_cast<int>(sizeof section));
    const Pixels pixels(bitmap.get());
    EXPECT_EQ(section.dsBm.bmBits, pixels->bmBits);
    EXPECT_EQ(section.dsBmih.biBitCount, 32);
    EXPECT_EQ(pixels->bmBitsPixel, 32);
    EXPECT_EQ(pixels->bmWidthBytes, 28);
    EXPECT_EQ(pixels->colorCount, 0);
    EXPECT_EQ(pixels->palette, nullptr);

    Fill(bitmap.get(), Pattern{});
    EXPECT_EQ(GdiPixel(handle, 6, 0), ColorOf(Pattern{}(6, 0))) << "row 0 is on top";
}

TEST(BitmapHandle, ConversionKeepsThePictureAndIsDoneOnce) {
    struct Case {
        const char* name;
        int bitsPixel, colorCount;
        DWORD (*shown)(DWORD pixel);  // a pixel's colour; palettes hold the pattern with row -1
    };
    const Case cases[] = {
        {"8 bits, own palette", 8, 256, [](DWORD pixel) { return Pattern{}(static_cast<int>(pixel & 0xFF), -1); }},
        {"8 bits, grey ramp", 8, 0, [](DWORD pixel) { return 0xFF000000 | (pixel & 0xFF) * 0x010101; }},
        {"24 bits", 24, 0, [](DWORD pixel) { return 0xFF000000 | (pixel & 0xFFFFFF); }},
        {"32 bits", 32, 0, [](DWORD pixel) { return pixel; }},
    };
    for (const Case& c : cases)
        for (const int width : {1, 5, 33}) {
            SCOPED_TRACE(testing::Message() << c.name << ", " << width << " pixels wide");
            const OwnedBitmap bitmap = MakeBitmap(width, 9, c.bitsPixel, c.colorCount);
            SetBitmapFilter(bitmap.get(), 0x01000000);
            Fill(bitmap.get(), Pattern{});
            for (int i = 0; i < c.colorCount; ++i) Pixels(bitmap.get())->palette[i] = Pattern{}(i, -1);

            const HBITMAP handle = GetBitmapHandle(bitmap.get());
            ASSERT_NE(handle, nullptr);
            EXPECT_EQ(GetBitmapHandle(bitmap.get()), handle);
            EXPECT_TRUE(Shows(bitmap.get(), [&](int x, int y) { return c.shown(Pattern{}(x, y)); }));
            EXPECT_EQ(GdiPixel(handle, width - 1, 8), ColorOf(c.shown(Pattern{}(width - 1, 8))));

            const Pixels pixels(bitmap.get());
            BYTE depth = 0;
            DWORD filter = 0;
            GetBitmapBitsPixel(bitmap.get(), &depth);
            GetBitmapFilter(bitmap.get(), &filter);
            EXPECT_EQ(depth, 32);
            EXPECT_EQ(pixels->colorCount, 0);
            EXPECT_EQ(filter, 0x01000000U);
            Fill(bitmap.get(), Pattern{2});
            EXPECT_EQ(GetBitmapHandle(bitmap.get()), handle);
            EXPECT_TRUE(Shows(bitmap.get(), Pattern{2})) << "converted twice";
        }
}

// Depths without a kernel of their own are read as 32-bit words, so that words of the last row lie behind its pixels.
// The block is large enough for the heap to give it pages of its own, which end with it.
TEST(BitmapHandle, ConversionOfOtherDepthsStaysInsideTheBlock) {
    for (const int bitsPixel : {9, 16}) {
        const OwnedBitmap bitmap = MakeBitmap(32767, 64, bitsPixel);
        BITMAP image{};
        MEMORY_BASIC_INFORMATION pages{};
        ASSERT_EQ(LockBitmapBits(bitmap.get(), &image, nullptr), 1);
        ASSERT_NE(VirtualQuery(image.bmBits, &pages, sizeof pages), 0U);
        const BYTE* end = static_cast<BYTE*>(pages.BaseAddress) + pages.RegionSize;
        EXPECT_GE(end - static_cast<BYTE*>(image.bmBits), 63 * image.bmWidthBytes + 4 * image.bmWidth) << bitsPixel;
        EXPECT_NE(GetBitmapHandle(bitmap.get()), nullptr) << bitsPixel;
    }
}

TEST(BitmapHandle, WhatCannotBeLockedLosesItsPixels) {
    const OwnedBitmap bitmap = MakeBitmap(8, 8, 4, 16);
    SIZE size{1, 1};
    BYTE depth = 1;
    EXPECT_EQ(GetBitmapHandle(bitmap.get()), nullptr);
    EXPECT_EQ(GetBitmapHandle(bitmap.get()), nullptr);
    EXPECT_EQ(GetBitmapSize(bitmap.get(), &size), 1);
    EXPECT_EQ(size.cx | size.cy, 0);
    EXPECT_EQ(GetBitmapBitsPixel(bitmap.get(), &depth), 1);
    EXPECT_EQ(depth, 0);
    EXPECT_EQ(CopyBitmap(bitmap.get(), nullptr, bitmap.get(), nullptr), 1);
}

TEST(BitmapHandle, DiesWithTheBitmap) {
    OwnedBitmap made(CreateSystemBitmap(4, 4));
    OwnedBitmap converted = MakeBitmap(4, 4);
    const HBITMAP handles[] = {GetBitmapHandle(made.get()), GetBitmapHandle(converted.get())};
    for (const HBITMAP handle : handles) EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_BITMAP));
    made.reset();
    converted.reset();
    for (const HBITMAP handle : handles) EXPECT_EQ(GetObjectType(handle), 0U);
}

}  // namespace

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
    for (const int bitsPixel : {8, 24, 32})
        for (const int colorCount : {0, 256})
            for (const int width : {1, 5, 33}) {
                SCOPED_TRACE(testing::Message() << bitsPixel << " bits, " << colorCount << " colours, width " << width);
                const OwnedBitmap bitmap = MakeBitmap(width, 9, bitsPixel, colorCount);
                SetBitmapFilter(bitmap.get(), 0x01000000);
                Fill(bitmap.get(), Pattern{});
                const bool hasPalette = bitsPixel == 8 && colorCount != 0;
                for (int i = 0; hasPalette && i < 256; ++i) Pixels(bitmap.get())->palette[i] = Pattern{}(i, -1);
                const auto picture = [=](int x, int y) {
                    const DWORD word = Pattern{}(x, y), index = word & 0xFF;
                    if (bitsPixel == 8)
                        return hasPalette ? Pattern{}(static_cast<int>(index), -1) : 0xFF000000 | index * 0x010101;
                    return bitsPixel == 24 ? 0xFF000000 | word : word;
                };

                const HBITMAP handle = GetBitmapHandle(bitmap.get());
                ASSERT_NE(handle, nullptr);
                EXPECT_TRUE(Shows(bitmap.get(), picture));
                EXPECT_EQ(GdiPixel(handle, width - 1, 8), ColorOf(picture(width - 1, 8)));
                const Pixels pixels(bitmap.get());
                BYTE depth = 0;
                DWORD filter = 0;
                GetBitmapBitsPixel(bitmap.get(), &depth);
                GetBitmapFilter(bitmap.get(), &filter);
                EXPECT_TRUE(depth == 32 && pixels->colorCount == 0 && filter == 0x01000000);
                Fill(bitmap.get(), Pattern{2});
                EXPECT_EQ(GetBitmapHandle(bitmap.get()), handle);
                EXPECT_TRUE(Shows(bitmap.get(), Pattern{2})) << "converted twice";
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

}  // namespace

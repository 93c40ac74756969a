// GDI's view of a bitmap: DIB sections, and the conversion of bitmaps in heap memory into them.
#include "support/host.h"

namespace {

using namespace host;

TEST(BitmapHandle, IsADibSectionOfThePicture) {
    std::vector<OwnedBitmap> bitmaps;
    for (const auto& [bitsPixel, colorCount] : {std::pair{8, 0}, {8, 256}, {24, 0}, {32, 0}})
        bitmaps.push_back(MakeBitmap(33, 9, bitsPixel, colorCount));
    for (int i = 0; i < 256; ++i) Pixels(bitmaps[1].get())->palette[i] = Pattern{}(i, -1);
    bitmaps.emplace_back(CreateSystemBitmap(33, 9));
    EXPECT_TRUE(Shows(bitmaps.back().get(), Plain{}));
    for (const OwnedBitmap& bitmap : bitmaps) {
        SCOPED_TRACE(&bitmap - bitmaps.data());
        SetBitmapFilter(bitmap.get(), 0x01000000);
        Fill(bitmap.get(), Pattern{});
        const OwnedBitmap copy = MakeBitmap(33, 9);
        EXPECT_EQ(CopyBitmap(copy.get(), nullptr, bitmap.get(), nullptr), 1);

        const HBITMAP handle = GetBitmapHandle(bitmap.get());
        EXPECT_TRUE(Shows(bitmap.get(), Snapshot(copy.get())));
        DIBSECTION section{};
        ASSERT_EQ(GetObjectW(handle, sizeof section, &section), static_cast<int>(sizeof section));
        const Pixels pixels(bitmap.get());
        EXPECT_EQ(section.dsBm.bmBits, pixels->bmBits);
        EXPECT_EQ(section.dsBmih.biBitCount, 32);
        EXPECT_TRUE(pixels->bmBitsPixel == 32 && pixels->colorCount == 0 && !pixels->palette);
        EXPECT_EQ(FilterOf(bitmap.get()), 0x01000000U);

        Fill(bitmap.get(), Pattern{2});
        EXPECT_EQ(GetBitmapHandle(bitmap.get()), handle);
        EXPECT_TRUE(Shows(bitmap.get(), Pattern{2})) << "converted twice";
    }
}

TEST(BitmapHandle, WhatCannotBeLockedLosesItsPixels) {
    OwnedBitmap bitmap = MakeBitmap(8, 8, 4, 16);
    EXPECT_EQ(GetBitmapHandle(bitmap.get()), nullptr);
    EXPECT_EQ(CopyBitmap(bitmap.get(), nullptr, bitmap.get(), nullptr), 1);
    BYTE depth = 1;
    EXPECT_EQ(GetBitmapBitsPixel(bitmap.get(), &depth), 1);
    EXPECT_EQ(depth, 0);

    const OwnedTexture texture(BitmapToTexture(bitmap.release()));
    BITMAP out{};
    SIZE size{1, 1};
    RECT slice{1, 1, 1, 1};
    EXPECT_EQ(GetTextureHandle(texture.get()), nullptr);
    EXPECT_EQ(LockTextureBits(texture.get(), &out, nullptr), 0);
    EXPECT_EQ(GetTextureSize(texture.get(), &size) + GetTextureCurSlice(texture.get(), &slice), 2);
    EXPECT_TRUE(size.cx == 0 && size.cy == 0 && slice == RECT{});
}

}  // namespace

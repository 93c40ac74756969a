// Textures: slices, the layout record, and pixels taken over from a bitmap or borrowed from a canvas.
#include <climits>

#include "support/host.h"

namespace {

using namespace host;

constexpr RECT slices[3] = {{0, 0, 4, 6}, {4, 0, 9, 6}, {9, 1, 20, 5}};

RECT CurrentSlice(HGTEXTURE texture) {
    RECT slice{-1, -1, -1, -1};
    EXPECT_EQ(GetTextureCurSlice(texture, &slice), 1);
    return slice;
}

testing::AssertionResult HasSize(HGTEXTURE texture, LONG width, LONG height) {
    SIZE size{-1, -1};
    if (GetTextureSize(texture, &size) == 1 && size.cx == width && size.cy == height)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "got " << size.cx << " x " << size.cy << ", wanted " << width << " x "
                                       << height;
}

TEST(Texture, WithoutSlicesIsTheWholeSurface) {
    const OwnedTexture texture(CreateTexture(20, 6));
    EXPECT_EQ(GetTextureSliceCount(texture.get()), 0);
    EXPECT_EQ(SetTextureCurSlice(texture.get(), 0), -1);
    EXPECT_EQ(CurrentSlice(texture.get()), (RECT{0, 0, 20, 6}));
    EXPECT_TRUE(HasSize(texture.get(), 20, 6));
    EXPECT_EQ(SetTextureSlice(texture.get(), 3, nullptr), 0);
    EXPECT_EQ(GetTextureSliceCount(texture.get()), 0);
}

TEST(Texture, SelectsSlices) {
    const OwnedTexture texture(CreateTexture(20, 6));
    EXPECT_EQ(SetTextureSlice(texture.get(), 3, slices), 3);
    EXPECT_EQ(GetTextureSliceCount(texture.get()), 3);
    EXPECT_EQ(CurrentSlice(texture.get()), slices[2]) << "the last one is current";
    EXPECT_TRUE(HasSize(texture.get(), 11, 4));

    for (const int index : {3, -1, INT_MIN, INT_MAX}) EXPECT_EQ(SetTextureCurSlice(texture.get(), index), -1) << index;
    EXPECT_EQ(CurrentSlice(texture.get()), slices[2]);
    EXPECT_EQ(SetTextureCurSlice(texture.get(), 0), 2);
    EXPECT_EQ(SetTextureCurSlice(texture.get(), 1), 0);
    EXPECT_EQ(CurrentSlice(texture.get()), slices[1]);
    EXPECT_TRUE(HasSize(texture.get(), 5, 6));

    EXPECT_EQ(SetTextureSlice(texture.get(), 3, nullptr), 0);
    EXPECT_EQ(SetTextureSlice(texture.get(), 0xFFFFFFFF, slices), 0) << "more than can be stored";
    EXPECT_EQ(CurrentSlice(texture.get()), slices[1]) << "refused calls change nothing";

    EXPECT_EQ(SetTextureSlice(texture.get(), 0, slices), 0);
    EXPECT_EQ(GetTextureSliceCount(texture.get()), 0);
    EXPECT_EQ(CurrentSlice(texture.get()), (RECT{0, 0, 20, 6})) << "the former index does not count";
    EXPECT_TRUE(HasSize(texture.get(), 20, 6));
    EXPECT_EQ(SetTextureCurSlice(texture.get(), 0), -1);

    const RECT outside{-5, INT_MIN, 100, INT_MAX};
    EXPECT_EQ(SetTextureSlice(texture.get(), 1, &outside), 1);
    EXPECT_EQ(CurrentSlice(texture.get()), outside) << "slices are not checked";
}

TEST(Texture, KeepsItsLayoutRecord) {
    const OwnedTexture texture(CreateTexture(4, 4));
    TextureMode mode{1, 2, {3, 4, 5, 6}};
    EXPECT_EQ(GetTextureMode(texture.get(), &mode), 1);
    EXPECT_EQ(mode.layout, 0);
    EXPECT_EQ(mode.argument, 0U);
    EXPECT_EQ(mode.margins, RECT{});
    const TextureMode set{99, 0x80000001, {INT_MIN, -1, INT_MAX, 7}};
    EXPECT_EQ(SetTextureMode(texture.get(), &set), 1);
    EXPECT_EQ(GetTextureMode(texture.get(), &mode), 1);
    EXPECT_EQ(memcmp(&mode, &set, sizeof set), 0);
}

TEST(Texture, IsABitmap) {
    const OwnedTexture texture(CreateTextureEx(5, 4, 8, 16));
    const HGBITMAP bitmap = AsBitmap(texture.get());
    Fill(texture.get(), [](int x, int y) { return static_cast<DWORD>(x + y); });
    EXPECT_EQ(Pixels(texture.get())->colorCount, 16);
    SIZE size{};
    DWORD filter = 0;
    EXPECT_EQ(GetBitmapSize(bitmap, &size), 1);
    EXPECT_EQ(size.cx, 5);
    SetTextureFilter(texture.get(), 0x03000000);
    GetBitmapFilter(bitmap, &filter);
    EXPECT_EQ(filter, 0x03000000U);
}

TEST(Texture, TakesOverABitmapsPixels) {
    for (const bool system : {false, true}) {
        OwnedBitmap bitmap(system ? CreateSystemBitmap(6, 5) : CreateMemBitmap(6, 5));
        Fill(bitmap.get(), Pattern{});
        SetBitmapFilter(bitmap.get(), 0x01000000);
        const void* bits = Pixels(bitmap.get())->bmBits;
        const HBITMAP handle = system ? GetBitmapHandle(bitmap.get()) : nullptr;

        OwnedTexture texture(BitmapToTexture(bitmap.release()));
        ASSERT_TRUE(texture);
        EXPECT_EQ(Pixels(texture.get())->bmBits, bits) << "moved, not copied";
        EXPECT_TRUE(Shows(texture.get(), Pattern{}));
        DWORD filter = 0;
        GetTextureFilter(texture.get(), &filter);
        EXPECT_EQ(filter, 0x01000000U);
        EXPECT_EQ(GetTextureSliceCount(texture.get()), 0);
        const HBITMAP now = GetTextureHandle(texture.get());
        EXPECT_NE(now, nullptr) << "it owns the pixels and may convert them";
        EXPECT_TRUE(!system || now == handle);
        texture.reset();
        EXPECT_EQ(GetObjectType(now), 0U) << "the pixels die with the texture";
    }
}

TEST(Texture, OfABitmapWithoutPixelsHasNone) {
    OwnedBitmap bitmap = MakeBitmap(8, 8, 4);
    GetBitmapHandle(bitmap.get());  // gives the pixels up
    const OwnedTexture texture(BitmapToTexture(bitmap.release()));
    ASSERT_TRUE(texture);
    BITMAP out{};
    EXPECT_TRUE(HasSize(texture.get(), 0, 0));
    EXPECT_EQ(CurrentSlice(texture.get()), RECT{});
    EXPECT_EQ(LockTextureBits(texture.get(), &out, nullptr), 0);
    EXPECT_EQ(GetTextureHandle(texture.get()), nullptr);
    EXPECT_EQ(UnlockTextureBits(texture.get(), 0, 1), 1);
}

TEST(Texture, BorrowedFromACanvasKeepsTheOldPixelsWhenTheCanvasConvertsItsOwn) {
    const OwnedCanvas canvas(CreateCanvas(7, 5, nullptr));
    SetCanvasFilter(canvas.get(), 0x06000000);
    OwnedTexture view(GetTexture(canvas.get()));
    ASSERT_TRUE(view);
    DWORD filter = 0;
    GetTextureFilter(view.get(), &filter);
    EXPECT_EQ(filter, 0x06000000U);
    Fill(canvas.get(), Pattern{1});
    EXPECT_TRUE(Shows(view.get(), Pattern{1})) << "one store";
    EXPECT_EQ(GetTextureHandle(view.get()), nullptr) << "not its own to convert";

    ASSERT_NE(GetCanvasHandle(canvas.get()), nullptr);
    Fill(canvas.get(), Pattern{2});
    EXPECT_TRUE(Shows(view.get(), Pattern{1}));
    EXPECT_TRUE(Shows(canvas.get(), Pattern{2}));
    view.reset();
    EXPECT_TRUE(Shows(canvas.get(), Pattern{2})) << "the canvas keeps its pixels";
}

}  // namespace

// Textures: slices, the layout record, and pixels taken over from a bitmap or borrowed from a canvas.
#include <climits>

#include "support/host.h"
#include "support/random.h"

namespace {

using namespace host;

RECT CurrentSlice(HGTEXTURE texture) {
    RECT slice{-1, -1, -1, -1};
    EXPECT_EQ(GetTextureCurSlice(texture, &slice), 1);
    return slice;
}

SIZE ImageSize(HGTEXTURE texture) {
    SIZE size{-1, -1};
    EXPECT_EQ(GetTextureSize(texture, &size), 1);
    return size;
}

// Calls by chance against a model; slices are not checked.
TEST(Texture, SelectsSlices) {
    const RECT all{0, 0, 20, 6}, rects[3] = {{0, 0, 4, 6}, {9, 1, 20, 5}, {-5, INT_MIN, 100, 7}};
    const OwnedTexture texture(CreateTexture(all.right, all.bottom));
    zorvic::Random random(1);
    int count = 0, current = -1;
    for (int i = 0; i < 500; ++i) {
        const unsigned wanted = static_cast<unsigned>(random.Below(4));
        switch (random.Below(4)) {
            case 0:
                EXPECT_EQ(SetTextureSlice(texture.get(), wanted, rects), wanted);
                count = static_cast<int>(wanted);
                current = count - 1;  // the last one
                break;
            case 1:  // more than can be stored
                EXPECT_EQ(SetTextureSlice(texture.get(), 0xFFFFFFFF, rects), 0);
                break;
            default:
                const int indices[] = {0, 1, 2, 3, -1, INT_MIN, INT_MAX}, index = indices[random.Below(7)];
                const bool exists = index >= 0 && index < count;
                EXPECT_EQ(SetTextureCurSlice(texture.get(), index), exists ? std::exchange(current, index) : -1);
        }
        const RECT slice = count > 0 ? rects[current] : all;
        EXPECT_EQ(GetTextureSliceCount(texture.get()), count);
        EXPECT_EQ(CurrentSlice(texture.get()), slice);
        const SIZE size = ImageSize(texture.get());
        EXPECT_EQ(size.cx, slice.right - slice.left);
        EXPECT_EQ(size.cy, static_cast<LONG>(static_cast<DWORD>(slice.bottom) - static_cast<DWORD>(slice.top)));
    }
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
    EXPECT_EQ(Pixels(texture.get())->colorCount, 16);
    SIZE size{};
    EXPECT_EQ(GetBitmapSize(AsBitmap(texture.get()), &size), 1);
    EXPECT_EQ(size.cx, 5);
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
    EXPECT_EQ(ImageSize(texture.get()).cx, 0);
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

// Textures: slices, the layout record, and pixels taken over from a bitmap or borrowed from a canvas.
#include <climits>

#include "support/host.h"
#include "support/random.h"

namespace {

using namespace host;

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
        const RECT wantedSlice = count > 0 ? rects[current] : all;
        RECT slice{-1, -1, -1, -1};
        SIZE size{-1, -1};
        EXPECT_EQ(GetTextureSliceCount(texture.get()), count);
        EXPECT_EQ(GetTextureCurSlice(texture.get(), &slice) + GetTextureSize(texture.get(), &size), 2);
        EXPECT_EQ(slice, wantedSlice);
        EXPECT_EQ(size.cx, slice.right - slice.left);
        EXPECT_EQ(size.cy, static_cast<LONG>(static_cast<DWORD>(slice.bottom) - static_cast<DWORD>(slice.top)));
    }
}

TEST(Texture, KeepsItsLayoutRecord) {
    const OwnedTexture texture(CreateTexture(4, 4));
    const TextureMode plain{}, set{99, 0x80000001, {INT_MIN, -1, INT_MAX, 7}};
    TextureMode mode = set;
    EXPECT_EQ(GetTextureMode(texture.get(), &mode), 1);
    EXPECT_EQ(memcmp(&mode, &plain, sizeof mode), 0);
    EXPECT_EQ(SetTextureMode(texture.get(), &set) + GetTextureMode(texture.get(), &mode), 2);
    EXPECT_EQ(memcmp(&mode, &set, sizeof mode), 0);
}

TEST(Texture, TakesOverABitmapsPixels) {
    for (const auto create : {CreateMemBitmap, CreateSystemBitmap}) {
        OwnedBitmap bitmap(create(6, 5));
        Fill(bitmap.get(), Pattern{});
        SetBitmapFilter(bitmap.get(), 0x01000000);
        const void* bits = Pixels(bitmap.get())->bmBits;
        const HBITMAP handle = create == CreateSystemBitmap ? GetBitmapHandle(bitmap.get()) : nullptr;

        const OwnedTexture texture(BitmapToTexture(bitmap.release()));
        EXPECT_EQ(Pixels(texture.get())->bmBits, bits) << "moved, not copied";
        EXPECT_TRUE(Shows(texture.get(), Pattern{}));
        EXPECT_EQ(FilterOf(texture.get()), 0x01000000U);
        EXPECT_EQ(GetTextureSliceCount(texture.get()), 0);
        const HBITMAP now = GetTextureHandle(texture.get());
        EXPECT_NE(now, nullptr) << "it owns the pixels and may convert them";
        EXPECT_TRUE(!handle || now == handle);
    }
}

TEST(Texture, BorrowedFromACanvasKeepsTheOldPixelsWhenTheCanvasConvertsItsOwn) {
    const OwnedCanvas canvas(CreateCanvas(7, 5, nullptr));
    SetCanvasFilter(canvas.get(), 0x06000000);
    OwnedTexture view(GetTexture(canvas.get()));
    ASSERT_TRUE(view);
    EXPECT_EQ(FilterOf(view.get()), 0x06000000U);
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

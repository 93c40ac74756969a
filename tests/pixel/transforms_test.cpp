// Bitmaps and textures made from others: what is kept, what is always 32 bits, which ops and sizes are refused.
#include "support/host.h"

using namespace host;

namespace {

// 1 2 3
// 4 5 6
DWORD Numbered(int x, int y) { return static_cast<DWORD>(3 * y + x + 1); }

// By op: turned by 90, 180 and 270 degrees clockwise, mirrored top to bottom and left to right, about both diagonals.
const char* const transformed[] = {"", "415263", "654321", "362514", "456123", "321654", "142536", "635241"};

std::string DigitsOf(HGBITMAP bitmap) {
    std::string digits;
    for (const DWORD pixel : Snapshot(bitmap).words) digits += static_cast<char>('0' + pixel);
    return digits;
}

DWORD FilterOf(HGBITMAP bitmap) {
    DWORD filter = 0;
    GetBitmapFilter(bitmap, &filter);
    return filter;
}

// A system bitmap gives its handle without a move of its pixels.
bool IsSystem(HGBITMAP bitmap) {
    const void* before = Pixels(bitmap)->bmBits;
    return GetBitmapHandle(bitmap) && Pixels(bitmap)->bmBits == before;
}

}  // namespace

TEST(Transforms, MoveThePixelsOfEveryDepthAndKeepThePalette) {
    for (const int depth : {8, 24, 32})
        for (int op = 1; op <= 7; ++op) {
            SCOPED_TRACE(testing::Message() << "op " << op << ", depth " << depth);
            const OwnedTexture source(CreateTextureEx(3, 2, depth, 17));
            Fill(source.get(), Numbered);
            const Pixels from(source.get());
            for (int i = 0; i < from->colorCount; ++i) from->palette[i] = Pattern{}(i, 0);
            SetTextureFilter(source.get(), 0x02ABCDEF);
            const OwnedBitmap bitmap(TransformBitmap(AsBitmap(source.get()), op));
            const OwnedTexture texture(TransformTexture(source.get(), op));
            for (const HGBITMAP made : {bitmap.get(), AsBitmap(texture.get())}) {
                EXPECT_EQ(DigitsOf(made), transformed[op]);
                const Pixels to(made);
                EXPECT_EQ(to.Width(), op == 2 || op == 4 || op == 5 ? 3 : 2);
                EXPECT_EQ(to->bmBitsPixel, depth);
                ASSERT_EQ(to->colorCount, from->colorCount);
                EXPECT_TRUE(std::equal(to->palette, to->palette + to->colorCount, from->palette));
                EXPECT_EQ(FilterOf(made), 0x02ABCDEFU);
            }
        }
}

TEST(Transforms, KeepTheStoreKindOfBitmaps) {
    for (const bool system : {false, true}) {
        OwnedBitmap source(system ? CreateSystemBitmap(5, 4) : CreateMemBitmap(5, 4));
        EXPECT_EQ(IsSystem(OwnedBitmap(TransformBitmap(source.get(), 1)).get()), system);
        EXPECT_EQ(IsSystem(OwnedBitmap(ResizeBitmap(source.get(), 9, 9, 0)).get()), system);
        const OwnedTexture texture(BitmapToTexture(source.release()));
        EXPECT_FALSE(IsSystem(AsBitmap(OwnedTexture(TransformTexture(texture.get(), 1)).get()))) << "heap memory";
        EXPECT_FALSE(IsSystem(AsBitmap(OwnedTexture(ResizeTexture(texture.get(), 9, 9, 0)).get())));
    }
}

TEST(Transforms, RefuseOtherOps) {
    const OwnedTexture texture(CreateTexture(3, 2));
    const HGBITMAP bitmap = AsBitmap(texture.get());
    for (const int op : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, INT_MAX}) {
        const bool rotates = op >= 1 && op <= 3, flips = op == 4 || op == 5;
        EXPECT_EQ(OwnedBitmap(TransformBitmap(bitmap, op)) != nullptr, op >= 1 && op <= 7) << op;
        EXPECT_EQ(OwnedTexture(TransformTexture(texture.get(), op)) != nullptr, op >= 1 && op <= 7) << op;
        EXPECT_EQ(OwnedBitmap(RotateBitmap(bitmap, op)) != nullptr, rotates) << op;
        EXPECT_EQ(OwnedTexture(RotateTexture(texture.get(), op)) != nullptr, rotates) << op;
        EXPECT_EQ(OwnedBitmap(FlipBitmap(bitmap, op)) != nullptr, flips) << op;
        EXPECT_EQ(OwnedTexture(FlipTexture(texture.get(), op)) != nullptr, flips) << op;
    }
    EXPECT_TRUE(OwnedBitmap(TransformBitmap(MakeBitmap(6, 3, 4).get(), 6))) << "made, though not readable";
}

// A draw that copies stretches with the same kernels, to 32 bits.
TEST(Resizing, GivesThePixelsOfAStretchedDraw) {
    for (const int depth : {8, 24, 32})
        for (const SIZE size : {SIZE{23, 17}, {9, 5}, {23, 60}, {32767, 1}, {1, 32767}})
            for (const DWORD mode : {0UL, 1UL, 4UL, 5UL, 77UL}) {
                const OwnedTexture source(CreateTextureEx(23, 17, depth, 0));
                Fill(source.get(), PremultipliedPattern{});
                const OwnedCanvas canvas(CreateCanvas(size.cx, size.cy, nullptr));
                const RECT all{0, 0, size.cx, size.cy};
                SetTextureFilter(source.get(), ZORVIC_OP_COPY);
                DrawBitmap(canvas.get(), &all, AsBitmap(source.get()), mode);
                SetTextureFilter(source.get(), 0x01234567);
                const auto filter = static_cast<int>(mode);
                const OwnedBitmap bitmap(ResizeBitmap(AsBitmap(source.get()), size.cx, size.cy, filter));
                const OwnedTexture texture(ResizeTexture(source.get(), size.cx, size.cy, filter));
                for (const HGBITMAP made : {bitmap.get(), AsBitmap(texture.get())}) {
                    EXPECT_TRUE(Shows(made, Snapshot(canvas.get()))) << size.cx << " x " << size.cy << " mode " << mode;
                    EXPECT_EQ(FilterOf(made), 0x01234567U);
                }
            }
}

TEST(Resizing, RefusesBadSizes) {
    const OwnedTexture texture(CreateTexture(3, 2));
    for (const SIZE size : {SIZE{0, 4}, SIZE{4, -1}, SIZE{32768, 1}, SIZE{1, LONG_MAX}, SIZE{LONG_MIN, 1}}) {
        EXPECT_FALSE(OwnedBitmap(ResizeBitmap(AsBitmap(texture.get()), size.cx, size.cy, 0)));
        EXPECT_FALSE(OwnedTexture(ResizeTexture(texture.get(), size.cx, size.cy, 0)));
    }
    EXPECT_TRUE(OwnedBitmap(ResizeBitmap(MakeBitmap(6, 3, 4).get(), 8, 9, 1))) << "made, though not readable";
}

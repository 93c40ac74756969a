// Bitmaps and textures made from others: what is kept, what is always 32 bits, which ops and sizes are refused.
#include "support/host.h"

using namespace host;

namespace {

using Words = std::vector<DWORD>;

// 1 2 3
// 4 5 6
DWORD Numbered(int x, int y) { return static_cast<DWORD>(3 * y + x + 1); }

struct TransformCase {
    int op;
    int width;
    Words pixels;
};
const TransformCase transformCases[] = {
    {ZORVIC_TRANSFORM_ROTATE_90, 2, {4, 1, 5, 2, 6, 3}},       {ZORVIC_TRANSFORM_ROTATE_180, 3, {6, 5, 4, 3, 2, 1}},
    {ZORVIC_TRANSFORM_ROTATE_270, 2, {3, 6, 2, 5, 1, 4}},      {ZORVIC_TRANSFORM_FLIP_VERTICAL, 3, {4, 5, 6, 1, 2, 3}},
    {ZORVIC_TRANSFORM_FLIP_HORIZONTAL, 3, {3, 2, 1, 6, 5, 4}}, {ZORVIC_TRANSFORM_TRANSPOSE, 2, {1, 4, 2, 5, 3, 6}},
    {ZORVIC_TRANSFORM_ANTI_TRANSPOSE, 2, {6, 3, 5, 2, 4, 1}},
};

DWORD FilterOf(HGBITMAP bitmap) {
    DWORD filter = 0;
    GetBitmapFilter(bitmap, &filter);
    return filter;
}

SIZE SizeOf(HGBITMAP bitmap) {
    SIZE size{};
    GetBitmapSize(bitmap, &size);
    return size;
}

// A system bitmap gives its handle without a move of its pixels.
bool IsSystem(HGBITMAP bitmap) {
    const void* before = Pixels(bitmap)->bmBits;
    return GetBitmapHandle(bitmap) && Pixels(bitmap)->bmBits == before;
}

}  // namespace

TEST(Transforms, MoveThePixelsOfEveryDepth) {
    for (const int depth : {8, 24, 32})
        for (const TransformCase& c : transformCases) {
            const OwnedTexture source(CreateTextureEx(3, 2, depth, 0));
            Fill(source.get(), Numbered);
            SetTextureFilter(source.get(), 0x02ABCDEF);
            const OwnedBitmap bitmap(TransformBitmap(AsBitmap(source.get()), c.op));
            const OwnedTexture texture(TransformTexture(source.get(), c.op));
            for (const HGBITMAP made : {bitmap.get(), AsBitmap(texture.get())}) {
                const Snapshot shown(made);
                EXPECT_EQ(shown.width, c.width) << "op " << c.op;
                EXPECT_EQ(shown.words, c.pixels) << "op " << c.op << " depth " << depth;
                EXPECT_EQ(Pixels(made)->bmBitsPixel, depth);
                EXPECT_EQ(FilterOf(made), 0x02ABCDEFU);
            }
            EXPECT_TRUE(Shows(source.get(), Numbered)) << "the source is only read";
        }
}

TEST(Transforms, KeepPaletteAndStoreKind) {
    for (const int colors : {0, 17, 256}) {
        const OwnedBitmap source = MakeBitmap(5, 4, 8, colors);
        for (int i = 0; i < colors; ++i) Pixels(source.get())->palette[i] = Pattern{}(i, 0);
        const OwnedBitmap turned(TransformBitmap(source.get(), ZORVIC_TRANSFORM_ROTATE_90));
        const Pixels from(source.get()), to(turned.get());
        ASSERT_EQ(to->colorCount, from->colorCount);
        EXPECT_TRUE(std::equal(to->palette, to->palette + to->colorCount, from->palette)) << colors << " colours";
    }
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
}

TEST(Transforms, GoToTheLimitsOfSizeAndDepth) {
    const OwnedBitmap wide = MakeBitmap(32767, 1, Pattern{});
    EXPECT_TRUE(Shows(OwnedBitmap(RotateBitmap(wide.get(), 1)).get(), [](int, int y) { return Pattern{}(y, 0); }));
    for (const int depth : {1, 4, 16}) {
        const OwnedBitmap source = MakeBitmap(6, 3, depth), made(TransformBitmap(source.get(), 6));
        BYTE bitsPixel = 0;
        GetBitmapBitsPixel(made.get(), &bitsPixel);
        EXPECT_EQ(bitsPixel, depth);
        EXPECT_EQ(SizeOf(made.get()).cy, 6);
    }
}

// A draw that copies stretches with the same kernels, to 32 bits.
TEST(Resizing, GivesThePixelsOfAStretchedDraw) {
    const SIZE sizes[] = {{23, 17}, {9, 5}, {50, 40}, {23, 60}, {1, 1}, {32767, 1}, {1, 32767}};
    for (const int depth : {8, 24, 32}) {
        const OwnedTexture source(CreateTextureEx(23, 17, depth, 0));
        Fill(source.get(), PremultipliedPattern{});
        for (const SIZE size : sizes)
            for (const DWORD mode : {0UL, 1UL, 4UL, 5UL, 77UL}) {
                const OwnedCanvas canvas(CreateCanvas(size.cx, size.cy, nullptr));
                const RECT all{0, 0, size.cx, size.cy};
                SetTextureFilter(source.get(), ZORVIC_OP_COPY);
                DrawBitmap(canvas.get(), &all, AsBitmap(source.get()), mode);
                const Snapshot drawn(canvas.get());
                SetTextureFilter(source.get(), 0x01234567);
                const auto filter = static_cast<int>(mode);
                const OwnedBitmap bitmap(ResizeBitmap(AsBitmap(source.get()), size.cx, size.cy, filter));
                const OwnedTexture texture(ResizeTexture(source.get(), size.cx, size.cy, filter));
                for (const HGBITMAP made : {bitmap.get(), AsBitmap(texture.get())}) {
                    EXPECT_TRUE(Shows(made, drawn)) << size.cx << " x " << size.cy << " mode " << mode;
                    EXPECT_EQ(FilterOf(made), 0x01234567U);
                }
            }
    }
}

TEST(Resizing, RefusesBadSizes) {
    const OwnedTexture texture(CreateTexture(3, 2));
    for (const SIZE size : {SIZE{0, 4}, SIZE{4, -1}, SIZE{32768, 1}, SIZE{1, LONG_MAX}, SIZE{LONG_MIN, 1}}) {
        EXPECT_FALSE(OwnedBitmap(ResizeBitmap(AsBitmap(texture.get()), size.cx, size.cy, 0)));
        EXPECT_FALSE(OwnedTexture(ResizeTexture(texture.get(), size.cx, size.cy, 0)));
    }
    const OwnedBitmap shallow = MakeBitmap(6, 3, 4);
    EXPECT_EQ(SizeOf(OwnedBitmap(ResizeBitmap(shallow.get(), 8, 9, 1)).get()).cy, 9) << "made, though not readable";
}

// Pixels that went away behind the library's back, pixels that outlive their owner, and what is read beyond them.
#include "support/allocations.h"
#include "support/gdi.h"

namespace {

using namespace host;

constexpr RECT all{0, 0, 9, 7};

// What draws on a canvas or reads it, by every route to its pixels.
TEST(LostPixels, AreNotTouched) {
    const Allocations fences(true);
    for (const bool bound : {false, true}) {
        const OwnedCanvas owned(CreateCanvas(9, 7, nullptr)), other(CreateCanvas(9, 7, nullptr));
        const OwnedBitmap bitmap = MakeBitmap(9, 7, Pattern{});
        const HGCANVAS canvas = owned.get();
        const HGBITMAP surface = GetBitmap(canvas);
        if (bound) DrawPoint(canvas, 1, 1);
        const HBITMAP section = GetBitmapHandle(surface);
        if (bound) DrawPoint(canvas, 1, 1);
        const OwnedTexture view(GetTexture(canvas));
        ASSERT_TRUE(section && DeleteObject(section)) << "a host may do this";
        DrawPoint(canvas, 4, 4);
        FillSolidRect(canvas, 0x80112233, &all);
        GeoRectangle(canvas, &all, nullptr, nullptr);
        DrawBitmap(canvas, &all, bitmap.get(), 1);
        DrawBitmap(other.get(), nullptr, surface, 0);
        DrawTexture(other.get(), &all, view.get(), 0);
        CopyBitmap(bitmap.get(), nullptr, surface, nullptr);
        BITMAP image;
        EXPECT_EQ(LockBitmapBits(surface, &image, nullptr), 0);
        EXPECT_TRUE(Shows(bitmap.get(), Pattern{}));
    }
}

// Neither when memory is short nor while another device context has the bitmap; failure_tests has all other calls.
TEST(LostPixels, AreNotThoseOfACanvas) {
    bool (*const ways[])(HGCANVAS) = {[](HGCANVAS c) { return GetCanvasHandle(c) != nullptr; },
                                      [](HGCANVAS c) { return GetBitmapHandle(GetBitmap(c)) != nullptr; }};
    for (const auto& convert : ways) {
        bool failed = true;
        for (int k = 1; failed; ++k) {
            const OwnedCanvas canvas = MakeCanvas(9, 7, Pattern{});
            Allocations memory;
            memory.FailAt(k);
            const bool converted = convert(canvas.get());
            failed = memory.HasFailed();
            memory.FailAt(0);
            EXPECT_NE(converted, failed) << "allocation " << k;
            EXPECT_TRUE(Shows(canvas.get(), Pattern{})) << "allocation " << k;
        }
    }
    const OwnedCanvas canvas = MakeCanvas(9, 7, Pattern{});
    const GdiBitmap dib = GdiBitmap::Dib(9, 7);
    const HGDIOBJ former = SelectObject(dib.Dc(), GetBitmapHandle(GetBitmap(canvas.get())));
    EXPECT_EQ(GetCanvasHandle(canvas.get()), nullptr);
    SelectObject(dib.Dc(), former);
    EXPECT_NE(GetCanvasHandle(canvas.get()), nullptr);
    EXPECT_TRUE(Shows(canvas.get(), Pattern{}));
}

TEST(BorrowedPixels, OutliveTheirCanvas) {
    const Allocations fences(true);
    for (const bool converted : {false, true}) {
        OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
        if (converted) GetCanvasHandle(canvas.get());
        Fill(canvas.get(), Pattern{});
        const OwnedTexture view(GetTexture(canvas.get()));
        canvas.reset();
        EXPECT_TRUE(Shows(view.get(), Pattern{}));
        Fill(view.get(), Pattern{2});
    }
}

// Calls that take pixels for four bytes meet the last row of narrower ones, which has no gap behind it.
TEST(MemoryBitmaps, EndWithTheLastPixelOfTheirRecords) {
    const Allocations fences(true);
    for (const auto& [bits, left] : {std::pair{24, 100L}, {8, 300L}}) {
        const OwnedBitmap bitmap = MakeBitmap(400, 2, bits), other = MakeBitmap(400, 2, bits);
        const RECT area{left, 0, 400, 2};
        BITMAP image, second;
        ASSERT_TRUE(LockBitmapBits(bitmap.get(), &image, &area) && LockBitmapBits(other.get(), &second, &area));
        EXPECT_TRUE(SetColor_IPP(&image, 0x11223344, 0) && SetColor_IPP(&image, 0x11223344, 1));
        EXPECT_TRUE(AlphaBlend_IPP(&image, &second) && AlphaBlend_IPP(&second, &second));
        EXPECT_TRUE(ARGBOrBitmap_IPP(&image, &second, 1) && ARGBAndBitmap_IPP(&image, &second, ~0UL));
        EXPECT_TRUE(Mirror(&image, 0) && Mirror(&image, 1) && Mirror(&image, 2));
        EXPECT_TRUE(MirrorEx(&image, &second, 0) && MirrorEx(&image, &second, 1) && MirrorEx(&image, &second, 2));
    }
}

// Kernels look up any index in any palette, and take pixels of depths that they do not know as words.
TEST(MemoryBitmaps, HoldWhatKernelsReadOfThem) {
    const Allocations fences(true);
    const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
    for (int bits = 8; bits <= 32; ++bits)
        for (const int width : {1, 2, 3, 9})
            for (const int colors : {0, 1, 2, 200}) {
                const OwnedBitmap bitmap = MakeBitmap(width, 2, bits, colors);
                Fill(bitmap.get(), [](int, int) { return 0xFFFFFFFF; });
                SetBitmapFilter(bitmap.get(), ZORVIC_OP_SOURCE_OVER);
                for (const DWORD filter : {0UL, 1UL, 4UL, 5UL}) DrawBitmap(canvas.get(), &all, bitmap.get(), filter);
                DrawModulation(canvas.get(), 0, 0, bitmap.get(), nullptr, 0x80FFFFFF);
                DeleteObject(CreateTextureRgn(reinterpret_cast<HGTEXTURE>(bitmap.get()), nullptr));
                for (int op = 1; op <= 7; ++op) DeleteBitmap(TransformBitmap(bitmap.get(), op));
                DeleteBitmap(ResizeBitmap(bitmap.get(), 5, 5, 5));
                EXPECT_NE(GetBitmapHandle(bitmap.get()), nullptr) << bits << " bits, " << width << " pixels wide";
            }
}

// A copy whose pixels could not be made must not come into the bitmap.
TEST(SoftEffects, ChangeNothingWhenMemoryIsShortAtFirst) {
    for (int k = 1; k <= 4; ++k) {
        const OwnedBitmap bitmap = MakeBitmap(9, 7, Pattern{});
        Allocations memory(true);
        memory.FailAt(k);
        EXPECT_EQ(LightBitmap(bitmap.get()), 1);
        EXPECT_TRUE(memory.HasFailed());
        EXPECT_TRUE(Shows(bitmap.get(), Pattern{})) << "allocation " << k;
    }
}

}  // namespace

// Pixels that went away behind the library's back, pixels that outlive their owner, and what is read beyond them.
#include "support/gdi.h"

namespace {

using namespace host;

constexpr RECT all{0, 0, 9, 7};

// What draws on a canvas or reads it, by every route to its pixels.
void UseAll(HGCANVAS canvas, HGBITMAP bitmap, HGTEXTURE view) {
    const OwnedCanvas other(CreateCanvas(9, 7, nullptr));
    DrawPoint(canvas, 4, 4);
    DrawRoundRect(canvas, &all, 2, 2);
    FillRectangleEx(canvas, &all, 0xFF112233);
    FillGradualRect(canvas, 0xFF112233, 0xFF332211, &all, 1);
    GeoRectangleEx(canvas, &all, 0xFF112233, 1);
    GeoRectangle(canvas, &all, nullptr, nullptr);
    FillSolidRect(canvas, 0x80112233, &all);
    DrawBitmap(canvas, &all, bitmap, 1);
    DrawBitmap(other.get(), nullptr, GetBitmap(canvas), 0);
    DrawTexture(other.get(), &all, view, 0);
    MixCanvas(other.get(), &all, canvas, &all, 99);
    CanvasScroll(canvas, 0, 2);
    LightBitmap(GetBitmap(canvas));
    CopyBitmap(bitmap, nullptr, GetBitmap(canvas), nullptr);
    DeleteBitmap(TransformBitmap(GetBitmap(canvas), 1));
}

TEST(LostPixels, AreNotTouched) {
    for (const bool bound : {false, true}) {
        const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
        const OwnedBitmap bitmap = MakeBitmap(9, 7, Pattern{});
        if (bound) DrawPoint(canvas.get(), 1, 1);
        const HBITMAP section = GetBitmapHandle(GetBitmap(canvas.get()));
        if (bound) DrawPoint(canvas.get(), 1, 1);
        const OwnedTexture view(GetTexture(canvas.get()));
        ASSERT_TRUE(section && DeleteObject(section)) << "a host may do this";
        UseAll(canvas.get(), bitmap.get(), view.get());
        EXPECT_TRUE(Shows(bitmap.get(), Pattern{}));
    }
}

TEST(BorrowedPixels, OutliveTheirCanvas) {
    for (const bool convertedBefore : {false, true})
        for (const bool convertedAfter : {false, true}) {
            OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
            if (convertedBefore) GetCanvasHandle(canvas.get());
            Fill(canvas.get(), Pattern{});
            const OwnedTexture view(GetTexture(canvas.get()));
            if (convertedAfter) GetBitmapHandle(GetBitmap(canvas.get()));
            canvas.reset();
            EXPECT_TRUE(Shows(view.get(), Pattern{})) << convertedBefore << convertedAfter;
            Fill(view.get(), Pattern{2});
            EXPECT_TRUE(Shows(view.get(), Pattern{2}));
        }
}

// Of the heap's block.
std::size_t BlockSize(const void* block) {
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count && i < 64; ++i)
        if (HeapValidate(heaps[i], 0, block)) return HeapSize(heaps[i], 0, block);
    ADD_FAILURE() << "not on a heap";
    return 0;
}

// Kernels look up any index in any palette, and take pixels of depths that they do not know as words.
TEST(MemoryBitmaps, HoldWhatKernelsReadOfThem) {
    for (int bits = 8; bits <= 32; ++bits)
        for (const int width : {1, 2, 3, 9})
            for (const int colors : {0, 1, 2, 200, 256}) {
                if (bits > 8 && colors > 0) continue;
                const OwnedBitmap bitmap = MakeBitmap(width, 2, bits, colors);
                const Pixels pixels(bitmap.get());
                const void* const block = colors > 0 ? pixels->palette : pixels->bmBits;
                const auto* const lastRow = static_cast<const BYTE*>(pixels->bmBits) + pixels->bmWidthBytes;
                const int bytesRead = bits == 8 ? 1 : bits == 24 ? 3 : 4;
                const std::size_t size = BlockSize(block);
                EXPECT_LE(lastRow + width * bytesRead, static_cast<const BYTE*>(block) + size) << bits << " bits";
                EXPECT_GE(size, colors > 0 ? 256 * sizeof(DWORD) : 0) << colors << " colours";
            }
}

// A device context's pixels may be wider than any surface.
TEST(WideDeviceContexts, AreReadToTheirEnd) {
    constexpr int width = 70000, drawn = 70;
    const GdiBitmap dib = GdiBitmap::Dib(width, 1);
    BITMAP image{};
    GetObjectW(dib.Handle(), sizeof image, &image);
    for (DWORD x = 0; x < width; ++x) static_cast<DWORD*>(image.bmBits)[x] = 0xFF000000 | x / (width / drawn);
    const OwnedCanvas source(CreateCanvasFromDC(dib.Dc())), canvas(CreateCanvas(drawn, 1, nullptr));
    const RECT from{0, 0, width, 1}, to{0, 0, drawn, 1};
    EXPECT_EQ(MixCanvas(canvas.get(), &to, source.get(), &from, 255), 1);
    EXPECT_TRUE(Shows(canvas.get(), [](int x, int) { return 0xFF000000 | static_cast<DWORD>(x); }));
}

}  // namespace

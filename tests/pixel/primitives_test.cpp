// The primitives through the DLL: each export, the order of its arguments and its results. What they do to pixels, byte
// by byte, is tested in the pixel engine.
#include "support/host.h"

namespace {

BITMAP RecordOf(std::vector<DWORD>& pixels, int width) {
    const auto height = static_cast<int>(pixels.size()) / width;
    return {0, width, height, 4 * width, 1, 32, pixels.data()};
}

using Words = std::vector<DWORD>;

TEST(PrimitiveExports, CopySourceToDestination) {
    Words from{1, 2, 3, 4, 5, 6}, to(6);
    const BITMAP src = RecordOf(from, 3);
    BITMAP dst = RecordOf(to, 3);
    const RECT lastRow{0, 1, 2, 2}, tooWide{0, 0, 4, 2};
    EXPECT_EQ(CopyBitmap_IPP(&src, &dst, &lastRow), 1);
    EXPECT_EQ(to, (Words{0, 0, 0, 4, 5, 0}));
    EXPECT_EQ(CopyBitmap_IPP(&src, &dst, &tooWide), 0);
    EXPECT_EQ(CopyBitmap_IPP(&src, &dst, nullptr), 1);
    EXPECT_EQ(to, from);
}

TEST(PrimitiveExports, Mirror) {
    Words pixels{1, 2, 3, 4, 5, 6}, other(6);
    BITMAP image = RecordOf(pixels, 3), second = RecordOf(other, 3), turned = RecordOf(other, 2);
    EXPECT_EQ(Mirror(&image, 0), 1);
    EXPECT_EQ(pixels, (Words{4, 5, 6, 1, 2, 3}));
    EXPECT_EQ(Mirror(&image, 1), 1);
    EXPECT_EQ(pixels, (Words{6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(Mirror(&image, 3), 0);
    EXPECT_EQ(MirrorEx(&image, &second, 2), 1);
    EXPECT_EQ(other, (Words{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(MirrorEx(&image, &turned, 2), 0);
    EXPECT_EQ(MirrorEx(&image, &second, -1), 0);
}

TEST(PrimitiveExports, ComposeFillAndMask) {
    Words from{0x80402010, 0x00000000}, to{0xFFFFFFFF, 0x12345678};
    const BITMAP src = RecordOf(from, 2);
    BITMAP dst = RecordOf(to, 2);
    EXPECT_EQ(AlphaBlend_IPP(&src, &dst), 1);
    EXPECT_EQ(to, (Words{0xFFBF9F8F, 0x12345678}));
    EXPECT_EQ(SetColor_IPP(&dst, 0x80FF0000, 1), 1);
    EXPECT_EQ(to, (Words{0xFFFF0000, 0x12FF0000}));
    EXPECT_EQ(SetColor_IPP(&dst, 0x80FF0000, 0), 1);
    EXPECT_EQ(to, (Words{0x80FF0000, 0x80FF0000}));
    EXPECT_EQ(ARGBOrBitmap_IPP(&src, &dst, 0x0F000001), 1);
    EXPECT_EQ(to, (Words{0x8F402011, 0x0F000001}));
    EXPECT_EQ(ARGBAndBitmap_IPP(&dst, &dst, 0xFF0000FF), 1);
    EXPECT_EQ(to, (Words{0x8F000011, 0x0F000001}));
    dst.bmWidth = 0;
    EXPECT_EQ(SetColor_IPP(&dst, 0x80FF0000, 0), 0);
    EXPECT_EQ(ARGBAndBitmap_IPP(&src, &dst, 0), 0);
    EXPECT_EQ(to, (Words{0x8F000011, 0x0F000001}));
}

TEST(PrimitiveExports, BlurDataTwice) {
    Words pixels(25, 0);
    pixels[12] = 0xFF5100A2;
    EXPECT_EQ(BlurBitmapData(5, 5, 20, pixels.data(), 32, 3), 1);
    // Ninths: 28, 9 and 18 in nine pixels; of these the corner sees one, its neighbor two, the middle all.
    EXPECT_EQ(pixels[0], 0x03010002U);
    EXPECT_EQ(pixels[1], 0x06020004U);
    EXPECT_EQ(pixels[12], 0x1C090012U);
}

}  // namespace

// The primitives through the DLL: each export, the order of its arguments and its results. What they do to pixels, byte
// by byte, is tested in the pixel engine.
#include "support/host.h"

namespace {

using Words = std::vector<DWORD>;

BITMAP RecordOf(Words& pixels, int width) {
    const auto height = static_cast<int>(pixels.size()) / width;
    return {0, width, height, 4 * width, 1, 32, pixels.data()};
}

const RECT lastRow{0, 1, 2, 2}, outside{1, -1, 3, 2};

// clang-format off
// Run on a source of 3 x 2 pixels, 80402010 and others, and a destination that is all white.
const struct {
    const char* name;
    int (*run)(BITMAP* src, BITMAP* dst);
    int result;
    Words after;
} cases[] = {
    {"copy", [](BITMAP* s, BITMAP* d) { return CopyBitmap_IPP(s, d, nullptr); }, 1, {0x80402010, 0, 3, 4, 5, 6}},
    {"copy a row", [](BITMAP* s, BITMAP* d) { return CopyBitmap_IPP(s, d, &lastRow); }, 1, {~0UL, ~0UL, ~0UL, 4, 5, ~0UL}},
    {"copy what lies inside", [](BITMAP* s, BITMAP* d) { return CopyBitmap_IPP(s, d, &outside); }, 1, {0x80402010, ~0UL, 3, 4, ~0UL, 6}},
    {"copy onto its own next rows", [](BITMAP* s, BITMAP* d) -> int {
         Words image{1, 2, 3, 4, 5, 6, 7, 8, 9};
         *s = *d = {0, 3, 2, 12, 1, 32, image.data()};
         d->bmBits = &image[3];
         return CopyBitmap_IPP(s, d, &outside) && image == Words{1, 2, 3, 1, 5, 3, 4, 8, 6};
     }, 1, Words(6, ~0UL)},
    {"copy to bits and step", [](BITMAP* s, BITMAP* d) -> int { return d->bmWidth = d->bmHeight = 0, CopyBitmap_IPP(s, d, nullptr); }, 1, {0x80402010, 0, 3, 4, 5, 6}},
    {"copy to a smaller image", [](BITMAP* s, BITMAP* d) -> int { return d->bmWidth = 2, d->bmHeight = 1, CopyBitmap_IPP(s, d, nullptr); }, 1, {0x80402010, 0, ~0UL, ~0UL, ~0UL, ~0UL}},
    {"blur two columns", [](BITMAP* s, BITMAP* d) -> int {
         return CopyBitmap_IPP(s, d, nullptr) && BlurBitmapData(2, 2, 12, d->bmBits, 32, 3);
     }, 1, {0x27130A07, 0x1F100806, 3, 0x1F100806, 0x190C0606, 6}},
    {"copy of 16 bits", [](BITMAP* s, BITMAP* d) { return s->bmBitsPixel = 16, CopyBitmap_IPP(s, d, nullptr); }, 0, Words(6, ~0UL)},
    {"mirror rows", [](BITMAP* s, BITMAP* d) { return MirrorEx(s, d, 0); }, 1, {4, 5, 6, 0x80402010, 0, 3}},
    {"mirror columns", [](BITMAP* s, BITMAP* d) { return MirrorEx(s, d, 1); }, 1, {3, 0, 0x80402010, 6, 5, 4}},
    {"mirror both", [](BITMAP* s, BITMAP* d) { return MirrorEx(s, d, 2); }, 1, {6, 5, 4, 3, 0, 0x80402010}},
    {"mirror otherwise", [](BITMAP* s, BITMAP* d) { return MirrorEx(s, d, -1); }, 0, Words(6, ~0UL)},
    {"mirror into another size", [](BITMAP* s, BITMAP* d) { return ++s->bmHeight, MirrorEx(s, d, 0); }, 0, Words(6, ~0UL)},
    {"mirror in place, twice", [](BITMAP* s, BITMAP* d) -> int {
         s->bmBitsPixel = 24;  // four bytes all the same
         return Mirror(s, 2) && Mirror(s, 0) && Mirror(s, 1) && !Mirror(s, 3) && CopyBitmap_IPP(d, d, nullptr) &&
                static_cast<DWORD*>(s->bmBits)[5] == 6;
     }, 1, Words(6, ~0UL)},
    {"compose", [](BITMAP* s, BITMAP* d) { return AlphaBlend_IPP(s, d); }, 1, {0xFFBF9F8F, ~0UL, ~0UL, ~0UL, ~0UL, ~0UL}},
    {"set", [](BITMAP*, BITMAP* d) { return SetColor_IPP(d, 0x80FF0000, 0); }, 1, Words(6, 0x80FF0000)},
    {"set colors", [](BITMAP*, BITMAP* d) { return SetColor_IPP(d, 0x80FF0000, 1); }, 1, Words(6, 0xFFFF0000)},
    {"or", [](BITMAP* s, BITMAP* d) { return ARGBOrBitmap_IPP(s, d, 0x0F000001); }, 1,
     {0x8F402011, 0x0F000001, 0x0F000003, 0x0F000005, 0x0F000005, 0x0F000007}},
    {"and of three bytes per pixel", [](BITMAP* s, BITMAP* d) {
         s->bmBitsPixel = d->bmBitsPixel = 24;
         s->bmWidthBytes = d->bmWidthBytes = 9;
         return ARGBAndBitmap_IPP(s, d, 0);
     }, 1, {0, 0, 0, 0, ~0UL, ~0UL}},
    {"and in place", [](BITMAP*, BITMAP* d) { return ARGBAndBitmap_IPP(d, d, 0xFF0000FF); }, 1, Words(6, 0xFF0000FF)},
    {"and of two sizes", [](BITMAP* s, BITMAP* d) { return --s->bmWidth, ARGBAndBitmap_IPP(s, d, 0); }, 0, Words(6, ~0UL)},
};
// clang-format on

TEST(PrimitiveExports, DoWhatTheirNamesSay) {
    for (const auto& c : cases) {
        Words from{0x80402010, 0, 3, 4, 5, 6}, to(6, ~0UL);
        BITMAP src = RecordOf(from, 3), dst = RecordOf(to, 3);
        EXPECT_EQ(c.run(&src, &dst), c.result) << c.name;
        EXPECT_EQ(to, c.after) << c.name;
    }
}

}  // namespace

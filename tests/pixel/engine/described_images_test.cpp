// Images described by callers: which pixels are taken for what. What is refused is tested among the guards.
#include "pixel/described_images.h"

#include "support/image.h"

namespace zorvic {
namespace {

BITMAP RecordOf(const Image& image) {
    const BitmapLockInfo& info = image.Info();
    return {0, info.bmWidth, info.bmHeight, info.bmWidthBytes, 1, info.bmBitsPixel, info.bmBits};
}

// The offset is bits per pixel x left / 4 bytes: twice the left edge in columns. What ends behind a row goes on in the
// next one, as the step says; a negative left starts in the one before.
TEST(CopyImage, CopiesAllOrAnArea) {
    Random random(1);
    for (const int bitsPixel : {24, 32}) {
        const Image src(random, 11, 6, bitsPixel);
        for (const RECT& area : {RECT{0, 2, 7, 5}, {3, 1, 8, 6}, {1, 0, 2, 1}, {7, 1, 11, 5}, {-2, 1, 1, 3}}) {
            const Image dst(random, 11, 6, bitsPixel);
            Image wanted = dst;
            for (int y = area.top; y < area.bottom; ++y)
                for (int x = area.left; x < area.right; ++x) {
                    const int place = 11 * y + area.left + x;
                    wanted.Set(place % 11, place / 11, src.At(place % 11, place / 11));
                }
            EXPECT_TRUE(CopyImage(RecordOf(src), RecordOf(dst), &area));
            EXPECT_TRUE(SameBytes(dst, wanted)) << bitsPixel << " bits, left " << area.left;
        }
        const Image dst(random, 11, 6, bitsPixel, {5, 0});
        EXPECT_TRUE(CopyImage(RecordOf(src), RecordOf(dst), nullptr));
        EXPECT_EQ(dst.Pixels(), src.Pixels());
        const RECT beyond{0, 0, 12, 1};  // the step has room for it
        EXPECT_FALSE(CopyImage(RecordOf(dst), RecordOf(dst), &beyond));
    }
}

// Steps that are shorter than a row say nothing. Where rows run upwards, only the first one lies behind the bits.
TEST(OrAndImage, TakeRowsAsPackedWhateverTheStep) {
    Random random(6);
    for (const LONG step : {20, 0, 24, 3, -20}) {
        const Image src(random, 5, 3), dst(random, 5, 3);
        BITMAP from = RecordOf(src), to = RecordOf(dst);
        from.bmWidthBytes = to.bmWidthBytes = step;
        Image wanted = dst;
        EXPECT_TRUE(OrImage(from, to, 0xFF000001) && AndImage(to, to, 0xFFFFFFF1));
        wanted.Fill([&](int x, int y) {
            return y == 0 || step >= 0 ? (src.At(x, y) | 0xFF000001) & 0xFFFFFFF1 : wanted.At(x, y);
        });
        EXPECT_TRUE(SameBytes(dst, wanted)) << step;
    }
}

}  // namespace
}  // namespace zorvic

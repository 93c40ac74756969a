// Images described by callers: which pixels are taken for what. What is refused is tested among the guards.
#include "pixel/described_images.h"

#include "support/image.h"

namespace zorvic {
namespace {

BITMAP RecordOf(const Image& image) {
    const BitmapLockInfo& info = image.Info();
    return {0, info.bmWidth, info.bmHeight, info.bmWidthBytes, 1, info.bmBitsPixel, info.bmBits};
}

TEST(CopyImage, CopiesAllOrAnArea) {
    Random random(1);
    for (const int bitsPixel : {24, 32}) {
        const Image src(random, 11, 6, bitsPixel, {3, 0});
        struct {
            RECT area;
            int fromColumn;  // twice the left edge: the offset is bits per pixel x left / 4 bytes
        } const cases[] = {{{0, 0, 11, 6}, 0}, {{0, 2, 7, 5}, 0}, {{3, 1, 8, 6}, 6}, {{1, 0, 2, 1}, 2}};
        for (const auto& [area, fromColumn] : cases) {
            Image dst(random, 12, 6, bitsPixel);
            Image wanted = dst;
            for (int y = area.top; y < area.bottom; ++y)
                for (int i = 0; i < area.right - area.left; ++i)
                    wanted.Set(fromColumn + i, y, src.At(fromColumn + i, y));
            EXPECT_TRUE(CopyImage(RecordOf(src), RecordOf(dst), &area));
            EXPECT_TRUE(SameBytes(dst, wanted)) << bitsPixel << " bits from column " << fromColumn;
        }
        Image dst(random, 11, 6, bitsPixel);
        EXPECT_TRUE(CopyImage(RecordOf(src), RecordOf(dst), nullptr));
        EXPECT_EQ(dst.Pixels(), src.Pixels());
    }
}

// Columns that end behind a row go on in the next one, as its step says; a negative left starts in the one before.
TEST(CopyImage, ReadsOnInNeighboringRows) {
    Random random(2);
    const Image src(random, 8, 4);
    Image dst(random, 8, 4);
    const auto word = [](const Image& image, int i) { return image.At(i % 8, i / 8); };
    for (const RECT area : {RECT{5, 1, 8, 3}, RECT{-2, 1, 1, 3}}) {
        Image wanted = dst;
        for (int y = area.top; y < area.bottom; ++y)
            for (int i = 0; i < area.right - area.left; ++i) {
                const int place = 8 * y + 2 * area.left + i;
                wanted.Set(place % 8, place / 8, word(src, place));
            }
        EXPECT_TRUE(CopyImage(RecordOf(src), RecordOf(dst), &area));
        EXPECT_TRUE(SameBytes(dst, wanted)) << "left " << area.left;
    }
}

TEST(MirrorImage, TwiceIsNothingAtAnyDepth) {
    Random random(4);
    for (int axis = 0; axis < 3; ++axis) {
        Image image(random, 13, 7, 32, {2, 0}), other(random, 13, 7);
        const Image before = image;
        BITMAP record = RecordOf(image);
        record.bmBitsPixel = 24;  // four bytes all the same
        EXPECT_TRUE(MirrorImage(record, axis));
        EXPECT_EQ(image.At(0, 0), before.At(axis == 0 ? 0 : 12, axis == 1 ? 0 : 6));
        EXPECT_TRUE(MirrorImage(record, RecordOf(other), axis));
        EXPECT_EQ(other.Pixels(), before.Pixels());
        EXPECT_TRUE(MirrorImage(record, record, axis)) << "one image as both";
        EXPECT_TRUE(SameBytes(image, before)) << axis;
    }
}

TEST(OrAndImage, TakeRowsAsPackedWhateverTheStep) {
    Random random(6);
    for (const LONG step : {20, 0, 24, 3, -20, INT32_MIN}) {
        const Image src(random, 5, 3);
        Image dst(random, 5, 3);
        BITMAP from = RecordOf(src), to = RecordOf(dst);
        from.bmWidthBytes = to.bmWidthBytes = step;
        EXPECT_TRUE(OrImage(from, to, 0xFF000001));
        for (int i = 0; i < 15; ++i) ASSERT_EQ(dst.At(i % 5, i / 5), src.At(i % 5, i / 5) | 0xFF000001) << step;
        EXPECT_TRUE(AndImage(to, to, 0x00FFFFFF));
        for (int i = 0; i < 15; ++i) ASSERT_EQ(dst.At(i % 5, i / 5), (src.At(i % 5, i / 5) | 1) & 0xFFFFFF) << step;
    }
}

}  // namespace
}  // namespace zorvic

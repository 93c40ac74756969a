// Images described by callers: what is done to them, and that no byte outside the described rows is touched.
#include "pixel/described_images.h"

#include <functional>

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

TEST(CopyImage, RefusesAreasOutsideAndOtherDepths) {
    Random random(3);
    const Image src(random, 8, 4);
    Image dst(random, 8, 4);
    const Image before = dst;
    const RECT areas[] = {{0, 0, 9, 4},
                          {0, 0, 8, 5},
                          {0, 0, 0, 4},
                          {0, 3, 8, 3},
                          {5, 0, 3, 4},
                          {7, 3, 8, 4},
                          {-1, 0, 8, 4},
                          {0, -1, 8, 4},
                          {INT32_MIN, 0, 8, 4},
                          {0, INT32_MIN, 8, 4},
                          {INT32_MIN, 0, INT32_MIN, 4},
                          {INT32_MIN, INT32_MIN, 8, 4},
                          {INT32_MAX, 0, 8, 4}};
    for (const RECT& area : areas)
        EXPECT_FALSE(CopyImage(RecordOf(src), RecordOf(dst), &area))
            << area.left << ' ' << area.top << ' ' << area.right << ' ' << area.bottom;
    for (const WORD bitsPixel : {WORD{0}, WORD{1}, WORD{8}, WORD{16}, WORD{48}}) {
        BITMAP record = RecordOf(src);
        record.bmBitsPixel = bitsPixel;
        EXPECT_FALSE(CopyImage(record, RecordOf(dst), nullptr)) << bitsPixel;
    }
    EXPECT_TRUE(SameBytes(dst, before));
}

TEST(MirrorImage, TwiceIsNothingAtAnyDepth) {
    Random random(4);
    for (int axis = 0; axis < 3; ++axis) {
        Image image(random, 13, 7, 32, {2, 0});
        const Image before = image;
        BITMAP record = RecordOf(image);
        record.bmBitsPixel = 24;  // four bytes all the same
        EXPECT_TRUE(MirrorImage(record, axis));
        EXPECT_EQ(image.At(0, 0), before.At(axis == 0 ? 0 : 12, axis == 1 ? 0 : 6));
        Image other(random, 13, 7);
        EXPECT_TRUE(MirrorImage(record, RecordOf(other), axis));
        EXPECT_EQ(other.Pixels(), before.Pixels());
        EXPECT_TRUE(MirrorImage(record, record, axis)) << "one image as both";
        EXPECT_TRUE(SameBytes(image, before)) << axis;
    }
    Image image(random, 13, 7);
    EXPECT_FALSE(MirrorImage(RecordOf(image), 3));
    EXPECT_FALSE(MirrorImage(RecordOf(image), -1));
    EXPECT_FALSE(MirrorImage(RecordOf(image), RecordOf(Image(13, 6)), 0));
    EXPECT_FALSE(MirrorImage(RecordOf(image), RecordOf(Image(12, 7)), 0));
}

TEST(BlendImage, RoundsToNearest) {
    Image dst = RowOf({0xFFFFFFFF, 0xFF808080, 0x12345678, 0xFF010203});
    const Image src = RowOf({0x80402010, 0x7F000000, 0x00000000, 0xFE000000});
    EXPECT_TRUE(BlendImage(RecordOf(src), RecordOf(dst)));
    // 255 x 127 / 255 = 127; 128 x 128 / 255 = 64.25; 1, 2 and 3 of 255 are 0.
    EXPECT_EQ(dst.Pixels(), (std::vector<std::uint32_t>{0xFFBF9F8F, 0xFF404040, 0x12345678, 0xFF000000}));
}

TEST(BlendImage, TakesTheSizeOfTheSource) {
    Random random(5);
    const Image src(random, 3, 2);
    Image dst(random, 5, 4);
    Image wanted = dst;
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) wanted.Set(x, y, src.At(x, y) | 0xFF000000);
    Image opaque = src;
    EXPECT_TRUE(OrImage(RecordOf(src), RecordOf(opaque), 0xFF000000));
    EXPECT_TRUE(BlendImage(RecordOf(opaque), RecordOf(dst)));
    EXPECT_TRUE(SameBytes(dst, wanted));
}

TEST(SetImageColor, WithAndWithoutAlpha) {
    Image image = RowOf({0x00000000, 0x12345678, 0xFFFFFFFF});
    EXPECT_TRUE(SetImageColor(RecordOf(image), 0x80FF0000, true));
    EXPECT_EQ(image.Pixels(), (std::vector<std::uint32_t>{0x00FF0000, 0x12FF0000, 0xFFFF0000}));
    EXPECT_TRUE(SetImageColor(RecordOf(image), 0x80FF0000, false));
    EXPECT_EQ(image.Pixels(), std::vector<std::uint32_t>(3, 0x80FF0000));
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
    Image image(random, 5, 3);
    const Image before = image;
    EXPECT_FALSE(OrImage(RecordOf(Image(5, 4)), RecordOf(image), ~0U));
    EXPECT_FALSE(AndImage(RecordOf(Image(4, 3)), RecordOf(image), 0));
    BITMAP nothing = RecordOf(image);
    nothing.bmBits = nullptr;
    EXPECT_TRUE(OrImage(nothing, RecordOf(image), ~0U)) << "only the sizes decide";
    EXPECT_TRUE(SameBytes(image, before));
}

// Every operation on a pair of images, or on the second alone.
struct Operation {
    const char* name;
    std::function<bool(const BITMAP& src, const BITMAP& dst)> run;
    bool tells;  // false when only the sizes decide on the result
};
const Operation operations[] = {
    {"copy", [](const BITMAP& src, const BITMAP& dst) { return CopyImage(src, dst, nullptr); }, true},
    {"mirror", [](const BITMAP&, const BITMAP& dst) { return MirrorImage(dst, 2); }, true},
    {"mirror into", [](const BITMAP& src, const BITMAP& dst) { return MirrorImage(src, dst, 1); }, true},
    {"blend", BlendImage, true},
    {"set", [](const BITMAP&, const BITMAP& dst) { return SetImageColor(dst, 0x12345678, false); }, true},
    {"set colors", [](const BITMAP&, const BITMAP& dst) { return SetImageColor(dst, 0x12345678, true); }, true},
    {"or", [](const BITMAP& src, const BITMAP& dst) { return OrImage(src, dst, 0x12345678); }, false},
    {"and", [](const BITMAP& src, const BITMAP& dst) { return AndImage(src, dst, 0x12345678); }, false},
};

TEST(DescribedImages, TouchNothingOutsideTheirRows) {
    Random random(7);
    Image dst(random, 6, 4, 24);  // ends at the fence: a fourth byte per pixel would cross it
    const Image src(random, 6, 4), before = dst;
    const BITMAP large = RecordOf(src);
    for (const Operation& operation : operations) {
        if (operation.tells) {
            EXPECT_FALSE(operation.run(RecordOf(src), RecordOf(dst))) << operation.name;
        } else {
            operation.run(RecordOf(src), RecordOf(dst));
        }
        ASSERT_TRUE(SameBytes(dst, before)) << operation.name;
    }
    // A destination of fewer or shorter rows than the source.
    for (const SIZE size : {SIZE{6, 3}, SIZE{5, 4}}) {
        Image target(random, size.cx, size.cy);
        const Image untouched = target;
        EXPECT_FALSE(CopyImage(large, RecordOf(target), nullptr));
        EXPECT_FALSE(BlendImage(large, RecordOf(target)));
        EXPECT_TRUE(SameBytes(target, untouched));
    }
}

TEST(DescribedImages, RefuseNullBitsAndSizesWithoutPixels) {
    Random random(8);
    Image image(random, 6, 4);
    const Image before = image;
    const auto refuse = [&](const char* what, auto change) {
        BITMAP record = RecordOf(image);
        change(record);
        for (const Operation& operation : operations) {
            const bool result = operation.run(record, record);
            EXPECT_EQ(result, !operation.tells) << operation.name << ", " << what;
        }
    };
    refuse("null bits", [](BITMAP& record) { record.bmBits = nullptr; });
    refuse("width 0", [](BITMAP& record) { record.bmWidth = 0; });
    refuse("height 0", [](BITMAP& record) { record.bmHeight = 0; });
    refuse("negative size", [](BITMAP& record) { record.bmWidth = record.bmHeight = -3; });
    refuse("smallest size", [](BITMAP& record) { record.bmWidth = record.bmHeight = INT32_MIN; });
    refuse("largest width", [](BITMAP& record) { record.bmWidth = INT32_MAX, record.bmBitsPixel = 24; });
    EXPECT_TRUE(SameBytes(image, before));
}

}  // namespace
}  // namespace zorvic

// The box filter against sums over every box: boxes of all kinds, sizes, steps and margins.
#include "pixel/box_filter.h"

#include <algorithm>

#include "pixel/described_images.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

std::size_t BufferSize(SIZE size, int box, int channels) {
    std::size_t bytes = 0;
    EXPECT_EQ(BoxFilterBufferSize(size, box, channels, &bytes), Status::success);
    return bytes;
}

void Filter(const Image& dst, const Image& src, int box) {
    const BitmapLockInfo &from = src.Info(), &to = dst.Info();
    const int channels = from.bmBitsPixel / 8;
    const FencedMemory buffer(BufferSize({from.bmWidth, from.bmHeight}, box, channels));
    ASSERT_EQ(BoxFilter({from.bmBits, from.bmWidthBytes}, {to.bmBits, to.bmWidthBytes}, {from.bmWidth, from.bmHeight},
                        box, channels, buffer.Bytes().data()),
              Status::success);
}

// How often the box around place i of n holds place j.
std::vector<double> Weights(int box, int i, int n) {
    std::vector<double> weights(static_cast<std::size_t>(n));
    // One place at a time would take years for the largest boxes: what lies outside counts for the edge.
    const double first = static_cast<double>(i) - box / 2, last = first + box - 1;
    for (int j = 0; j < n; ++j) weights[static_cast<std::size_t>(j)] = j >= first && j <= last ? 1 : 0;
    weights.front() += std::max(0 - first, 0.0);
    weights.back() += std::max(last - (n - 1), 0.0);
    return weights;
}

// Sums of up to 2^53 are exact.
void FilterByModel(Image& dst, const Image& src, int box) {
    const int width = src.Info().bmWidth, height = src.Info().bmHeight;
    dst.Fill([&](int x, int y) {
        const std::vector<double> across = Weights(box, x, width), down = Weights(box, y, height);
        std::uint32_t pixel = 0;
        for (int shift = 0; shift < src.Info().bmBitsPixel; shift += 8) {
            double sum = 0;
            for (int j = 0; j < height; ++j)
                for (int i = 0; i < width; ++i)
                    sum += across[static_cast<std::size_t>(i)] * down[static_cast<std::size_t>(j)] *
                           (src.At(i, j) >> shift & 255);
            const double area = static_cast<double>(box) * box;
            pixel |= static_cast<std::uint32_t>((sum + (box % 2 == 0 ? area / 2 : (area - 1) / 2)) / area) << shift;
        }
        return pixel;
    });
}

class BoxFilterSums : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, BoxFilterSums, testing::ValuesIn(Levels()), LevelName);

TEST_P(BoxFilterSums, MatchThoseOfEveryBox) {
    Random random(1);
    for (const int bitsPixel : {24, 32})
        for (const int box : {1, 2, 3, 4, 5, 15, 64, 255, 1000, 4096, 4097, 1 << 20})
            for (int round = 0; round < 12; ++round) {
                const auto side = [&] { return 1 + random.Below(round < 6 ? 4 : 24); };
                const auto margins = [&] { return Margins{random.Below(5), random.Below(2)}; };
                const Image src(random, side(), side(), bitsPixel, margins());
                Image dst(random, src.Info().bmWidth, src.Info().bmHeight, bitsPixel, margins());
                Image wanted = dst;
                FilterByModel(wanted, src, box);
                ASSERT_NO_FATAL_FAILURE(Filter(dst, src, box));
                ASSERT_TRUE(SameBytes(dst, wanted)) << bitsPixel << " bits, box " << box;
            }
}

// Rounding and the sums' largest values show here: each row and column in turn, and both kinds of sums.
TEST_P(BoxFilterSums, KeepFlatImages) {
    for (const int box : {1, 2, 3, 64, 4095, 4096, 4097, 5000, 65535, 1 << 28, INT32_MAX})
        for (const std::uint32_t color : {0x00000000U, 0xFFFFFFFFU, 0xFE0180FFU}) {
            Image src(7, 5), dst(7, 5);
            src.Fill([&](int, int) { return color; });
            ASSERT_NO_FATAL_FAILURE(Filter(dst, src, box));
            EXPECT_EQ(dst.Pixels(), src.Pixels()) << "box " << box;
        }
}

// Halves of the largest boxes lie left and right of any image.
TEST(BoxFilter, MeansOfTheLargestBoxesAreThoseOfTheEdges) {
    const Image src = RowOf({0xFF000064, 0xFFFFFF00, 0xFF0000C8});
    Image dst = RowOf({0, 0, 0});
    ASSERT_NO_FATAL_FAILURE(Filter(dst, src, INT32_MAX));
    EXPECT_EQ(dst.Pixels(), std::vector<std::uint32_t>(3, 0xFF000096));
}

BITMAP RecordOf(const Image& image) {
    const BitmapLockInfo& info = image.Info();
    return {0, info.bmWidth, info.bmHeight, info.bmWidthBytes, 0, info.bmBitsPixel, info.bmBits};
}

TEST(BlurImage, FiltersTwiceInPlace) {
    Random random(2);
    for (const int bitsPixel : {24, 32})
        for (const int box : {1, 2, 3, 64}) {
            Image image(random, 19, 11, bitsPixel, {5, 0});
            Image once = image, twice = image;
            FilterByModel(once, image, box);
            FilterByModel(twice, once, box);
            EXPECT_TRUE(BlurImage(RecordOf(image), box));
            EXPECT_TRUE(SameBytes(image, twice)) << bitsPixel << " bits, box " << box;
        }
}

}  // namespace
}  // namespace zorvic

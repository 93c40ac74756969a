// The blur of described images, which is the box filter twice, against sums over every box: boxes of all kinds, sizes,
// steps and depths.
#include <algorithm>
#include <cmath>

#include "pixel/described_images.h"
#include "pixel/large_box.h"
#include "support/image.h"
#include "support/levels.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

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

// Sums of up to 2^53 are exact. Halves of an odd area do not occur.
Image Filtered(const Image& src, int box) {
    const int width = src.Info().bmWidth, height = src.Info().bmHeight;
    Image dst = src;
    dst.Fill([&](int x, int y) {
        const std::vector<double> across = Weights(box, x, width), down = Weights(box, y, height);
        return host::FromChannels([&](int channel) {
            double sum = 0;
            for (int j = 0; j < height; ++j)
                for (int i = 0; i < width; ++i)
                    sum += across[static_cast<std::size_t>(i)] * down[static_cast<std::size_t>(j)] *
                           host::Channel(src.At(i, j), channel);
            return static_cast<int>(std::floor(sum / (static_cast<double>(box) * box) + 0.5));
        });
    });
    return dst;
}

bool Blur(const Image& image, int box) {
    const BitmapLockInfo& info = image.Info();
    return BlurImage({0, info.bmWidth, info.bmHeight, info.bmWidthBytes, 0, info.bmBitsPixel, info.bmBits}, box);
}

class BlurImages : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, BlurImages, testing::ValuesIn(Levels()), LevelName);

TEST_P(BlurImages, MeansAreThoseOfEveryBoxTwice) {
    Random random(1);
    for (const int bitsPixel : {24, 32})
        for (const int box : {1, 2, 3, 4, 5, 15, 64, 255, 1000, 4096, 4097, 1 << 20})
            for (int round = 0; round < 12; ++round) {
                const auto side = [&] { return 1 + random.Below(round < 6 ? 4 : 24); };
                Image image(random, side(), side(), bitsPixel, {random.Below(5), 0});
                const Image wanted = Filtered(Filtered(image, box), box);
                EXPECT_TRUE(Blur(image, box));
                ASSERT_TRUE(SameBytes(image, wanted)) << bitsPixel << " bits, box " << box;
            }
}

// Rounding and the sums' largest values show here: each row and column in turn, and both kinds of sums. Halves of the
// largest boxes lie left and right of any image, so that their means are those of the edges.
TEST_P(BlurImages, LargestSumsFit) {
    for (const int box : {2, 64, 2896, 2897, 4095, 4096, 65535, 1 << 28, INT32_MAX})
        for (const std::uint32_t color : {0xFFFFFFFFU, 0xFE0180FFU}) {
            Image flat(7, 5);
            flat.Fill([&](int, int) { return color; });
            EXPECT_TRUE(Blur(flat, box));
            EXPECT_EQ(flat.Pixels(), std::vector<std::uint32_t>(35, color)) << "box " << box;
        }
    const Image edges = RowOf({0xFF000064, 0xFFFFFF00, 0xFF0000C8});
    EXPECT_TRUE(Blur(edges, INT32_MAX));
    EXPECT_EQ(edges.Pixels(), std::vector<std::uint32_t>(3, 0xFF000096));
}

// Sums in plain numbers that know how often they were divided.
struct Counted {
    explicit(false) Counted(std::uint64_t number = 0) : value(number) {}
    friend Counted operator+(Counted a, Counted b) { return a.value + b.value; }
    friend Counted operator-(Counted a, Counted b) { return a.value - b.value; }
    friend Counted operator*(Counted a, Counted b) { return a.value * b.value; }
    friend Counted operator/(Counted a, Counted b) { return ++divisions, a.value / b.value; }

    static inline int divisions = 0;
    std::uint64_t value;
};

struct CountedSums {
    using Number = Counted;
    static CountedSums Load(const Counted* in) { return {in[0].value}; }  // one channel shows it
    static CountedSums Repeat(Counted number) { return {number.value}; }
    void StorePixel(std::uint32_t* out) const { *out = static_cast<std::uint32_t>(sum); }
    friend CountedSums operator+(CountedSums a, CountedSums b) { return {a.sum + b.sum}; }
    friend CountedSums operator-(CountedSums a, CountedSums b) { return {a.sum - b.sum}; }
    friend CountedSums operator&(CountedSums a, CountedSums b) { return {a.sum & b.sum}; }
    friend CountedSums Signs(CountedSums s) { return {0 - (s.sum >> 63)}; }

    std::uint64_t sum;
};

// Black and white columns at random: means go up and down.
TEST(LargeBoxes, AreDividedOncePerRow) {
    constexpr int n = 9000;
    Random random(4);
    std::vector<Counted> columns(std::size_t{4} * n);
    std::vector<std::uint32_t> means(n);
    for (const int box : {2897, 3000, 30000}) {
        for (Counted& sum : columns) sum = random.Below(2) ? 0 : std::uint64_t{255} * static_cast<unsigned>(box);
        const auto area = static_cast<std::uint64_t>(box) * static_cast<std::uint64_t>(box);
        const Window window(box, n);
        Counted::divisions = 0;
        MeansOfLargeBoxes<CountedSums>(columns.data(), window, area, means.data());
        EXPECT_LE(Counted::divisions, 2 * 4) << "the mean of the first box, and half the area, of each channel";
        for (int x = 0; x < n; x += 250) {
            std::uint64_t sum = area / 2;
            for (int i = x - box / 2; i < x - box / 2 + box; ++i)
                sum += columns[static_cast<std::size_t>(4 * std::clamp(i, 0, n - 1))].value;
            ASSERT_EQ(means[static_cast<std::size_t>(x)], sum / area) << "box " << box << ", column " << x;
        }
    }
}

TEST(BlurImage, LeavesOtherDepthsAlone) {
    Random random(3);
    const Image image(random, 8, 8, 16), before = image;
    EXPECT_TRUE(Blur(image, 3));
    EXPECT_FALSE(Blur(image, 0));
    EXPECT_TRUE(SameBytes(image, before));
}

}  // namespace
}  // namespace zorvic

// Which source column and row each pixel of a nearest-sample draw shows, worked by hand.
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

// Sources in which every pixel tells its place: column in the low half, row in the high half.
Image Places(int width, int height) {
    Image image(width, height);
    image.Fill([](int x, int y) { return static_cast<std::uint32_t>(y << 16 | x); });
    return image;
}

TEST(NearestSample, ColumnsAndRows) {
    struct {
        int source, destination;
        std::vector<int> shown;
    } const cases[] = {
        {2, 4, {0, 0, 1, 1}},
        {3, 2, {0, 1}},
        {4, 3, {0, 1, 2}},
        {1, 3, {0, 0, 0}},
        {5, 1, {0}},
        {2, 3, {0, 0, 1}},
        // The step 2 / 3 is 43690 / 65536, a little too small: three steps fall just short of column 2.
        {4, 6, {0, 0, 1, 1, 2, 3}},
        {10, 7, {0, 1, 2, 4, 5, 7, 8}},
        {3, 9, {0, 0, 0, 0, 1, 1, 1, 2, 2}},
    };
    for (const auto& c : cases) {
        const Image source = Places(c.source, c.source);
        Image image(c.destination, c.destination), wanted(c.destination, c.destination);
        wanted.Fill([&](int x, int y) {
            return static_cast<std::uint32_t>(c.shown[static_cast<std::size_t>(y)] << 16 |
                                              c.shown[static_cast<std::size_t>(x)]);
        });
        EXPECT_EQ(SelectResizeKernel(image.Info(), source.Info(), 0), 1);
        EXPECT_TRUE(SameBytes(image, wanted)) << c.source << " to " << c.destination;
    }
}

TEST(NearestSample, PlacedDrawsStartInsideTheirExtent) {
    const Image source = Places(2, 2);
    Image image(2, 1);
    EXPECT_EQ(SelectPlacedKernel(image.Info(), {2, 1, 4, 4}, source.Info(), 0, 0, 255), 1);
    EXPECT_EQ(image.Pixels(), (std::vector<std::uint32_t>{1, 1}));
    EXPECT_EQ(SelectPlacedKernel(image.Info(), {1, 2, 4, 4}, source.Info(), 0, 0, 255), 1);
    EXPECT_EQ(image.Pixels(), (std::vector<std::uint32_t>{0x10000, 0x10001}));
}

TEST(NearestSample, ExtentsBeyond32Bits) {
    constexpr std::int64_t wide = std::int64_t{1} << 32;
    struct {
        int sourceWidth;
        Placement placement;
        std::uint32_t first;
    } constexpr cases[] = {
        {3, {wide - 4, wide - 1, wide, wide}, 0},                          // a step of 0
        {32767, {(1 << 30) - 4, 0, 1 << 30, 1}, 16383},                    // 1.99 is a step of 1
        {32767, {(1 << 29) - 4, wide - 1, 1 << 29, wide}, 24575},          // 3.99: 3 x 2^29 - 12
        {60000, {3'000'000'000 - 4, 5, 3'000'000'000, wide}, 45776},       // 1.31: a step of 1
        {60000, {wide / 4 - 4, wide / 4 - 1, wide / 4, wide / 4}, 49151},  // 3.66: 3 x 2^30 - 12
    };
    for (const auto& c : cases) {
        const Image source = Places(c.sourceWidth, 1);
        for (const std::uint32_t filterMode : {0U, 1U, 4U, 5U}) {
            Image image(4, 1);
            EXPECT_EQ(SelectPlacedKernel(image.Info(), c.placement, source.Info(), 0, filterMode, 255), 1);
            if (filterMode == 0) {
                EXPECT_EQ(image.At(0, 0), c.first) << "extent " << c.placement.width;
            }
        }
    }
}

}  // namespace
}  // namespace zorvic

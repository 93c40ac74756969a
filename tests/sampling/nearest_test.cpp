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
        int source;
        std::int64_t position, extent;
        std::uint32_t shown;
    } constexpr cases[] = {
        {3, wide - 1, wide, 0},                        // a step of 0
        {32767, wide / 4 - 4, wide / 4, 16383},        // 1.99 is a step of 1
        {32767, wide / 8 - 4, wide / 8, 24575},        // 3.99: (3 x 2^29 - 12) >> 16
        {60000, 2'999'999'996, 3'000'000'000, 45776},  // 1.31
        {60000, wide / 4 - 4, wide / 4, 49151},        // 3.66: (3 x 2^30 - 12) >> 16
    };
    for (const auto& c : cases) {
        const Image row = Places(c.source, 1), column = Places(1, c.source);
        for (const std::uint32_t filterMode : {0U, 1U, 4U, 5U}) {
            Image image(1, 1);
            const auto at = [&](const Placement& placement, const Image& source) {
                EXPECT_EQ(SelectPlacedKernel(image.Info(), placement, source.Info(), 0, filterMode, 255), 1);
                return image.At(0, 0);
            };
            const std::uint32_t alongX = at({c.position, wide - 1, c.extent, wide}, row);
            const std::uint32_t alongY = at({wide - 1, c.position, wide, c.extent}, column);
            if (filterMode == 0) {
                EXPECT_EQ(alongX, c.shown) << "extent " << c.extent;
                EXPECT_EQ(alongY, c.shown << 16) << "extent " << c.extent;
            }
        }
    }
}

}  // namespace
}  // namespace zorvic

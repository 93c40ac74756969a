// Which source pixels a draw shows: rows worked by hand, extremes, and the distance from exact filters.
#include <algorithm>
#include <cmath>

#include "raster/kernel_table.h"
#include "raster/lookup_tables.h"
#include "raster/selectors.h"
#include "support/image.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

constexpr std::uint32_t nearest = 0, bilinear = 1, bicubic = 4, area = 5;

// Forces the kernels of a processor with or without MMX, that is with packed or plain weights; and a kernel mode.
class Sampling : public testing::Test {
protected:
    ~Sampling() override {
        SetStretchKernelMode(1);
        InitKernelTable();
    }

    static void Use(bool packedWeights, std::uint32_t mode) {
        SetStretchKernelMode(mode);
        CpuFeatures features;
        features.cpuHasMMX = packedWeights;
        FillTables(features);
    }

    static Image Stretched(const Image& source, int width, int height, std::uint32_t filterMode) {
        Image drawn(width, height);
        SelectStretchKernel(drawn.Info(), source.Info(), 0, filterMode, 255);
        return drawn;
    }
};

TEST_F(Sampling, RowsAndColumnsWorkedByHand) {
    const struct {
        std::uint32_t filterMode;
        bool packedWeights;
        std::uint32_t kernelMode;
        std::vector<std::uint32_t> source, drawn;
    } cases[] = {
        {nearest, true, 1, {0, 1}, {0, 0, 1, 1}},
        {nearest, true, 1, {0, 1, 2}, {0, 0, 0, 0, 1, 1, 1, 2, 2}},  // the step 21845 / 65536 is a little too small
        {nearest, true, 1, {0, 1, 2, 3}, {0, 0, 1, 1, 2, 3}},
        {nearest, true, 1, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, {0, 1, 2, 4, 5, 7, 8}},
        // Step 0x8001, start 0x4000 - 0x8000: -0.25 (clamped), 0.25, 0.75, 1.25 (clamped); the fractions are 0xC0, 0x40,
        // 0xC0, 0x40. 255 x 64 >> 8 = 63, 255 x 192 >> 8 = 191.
        {bilinear, true, 1, {0, 0xFFFFFFFF}, {0, 0x3F3F3F3F, 0xBFBFBFBF, 0xFFFFFFFF}},
        {bilinear, true, 1, {10, 20, 200, 100}, {15, 150}},  // positions 0.5 and 2.5
        // Step 0x30001, start 0x10000: exactly the middle. The other way all four taps are one pixel.
        {bicubic, false, 0, {0, 0xFF, 0}, {0xFF}},  // weights 0, 256, 0, 0
        {bicubic, false, 1, {0, 0xFF, 0}, {170}},   // 255 x 171 x (43 + 171 + 43) >> 16
        {bicubic, true, 0, {0, 0xFF, 0}, {0xFF}},
        {bicubic, true, 1, {0, 0xFF, 0}, {170}},  // 255 x 10923 / 16384 = 170.0
        // 43 + 171 + 43 = 257: flat areas come out as c x 257 x 257 >> 16, saturated, and are not renormalised.
        {bicubic, false, 1, {0x80FF0001, 0x80FF0001, 0x80FF0001}, {0x81FF0001}},
        {area, true, 1, {10, 21, 200, 100}, {15, 150}},
        {area, true, 1, {9, 30, 90}, {16, 70}},  // (9 + 15) / 1.5, (15 + 90) / 1.5
    };
    for (const auto& c : cases) {
        Use(c.packedWeights, c.kernelMode);
        const int n = static_cast<int>(c.source.size()), drawn = static_cast<int>(c.drawn.size());
        Image column(1, n);
        column.Fill([&](int, int y) { return c.source[static_cast<std::size_t>(y)]; });
        EXPECT_EQ(Stretched(RowOf(c.source), drawn, 1, c.filterMode).Pixels(), c.drawn) << c.filterMode;
        EXPECT_EQ(Stretched(column, 1, drawn, c.filterMode).Pixels(), c.drawn) << c.filterMode << ", column";
    }
}

TEST_F(Sampling, AreaEnlargesBicubicallyOnEveryProcessor) {
    Random random(5);
    for (int features = 0; features < 8; ++features) {
        FillTables({true, (features & 1) != 0, (features & 2) != 0, (features & 4) != 0});
        for (const int bits : {8, 24, 32}) {
            const Image source(random, 9, 7, bits);
            EXPECT_EQ(Stretched(source, 20, 13, area).Pixels(), Stretched(source, 20, 13, bicubic).Pixels())
                << features;
            const Image one(20, 13), other(20, 13);
            const Placement part{3, 2, 40, 30};
            SelectPlacedKernel(one.Info(), part, source.Info(), 0, area, 255);
            SelectPlacedKernel(other.Info(), part, source.Info(), 0, bicubic, 255);
            EXPECT_EQ(one.Pixels(), other.Pixels()) << "placed, processor " << features;
        }
    }
}

TEST_F(Sampling, AreaReducesTheLargestImagesToOnePixel) {
    // Half of the pixels white: 255 / 2, truncated; all of them white: 255.
    for (const auto& [width, height] : {std::pair{32766, 40}, {40, 32766}, {4000, 4000}})
        for (const bool half : {true, false}) {
            Image source(width, height, 8);
            for (std::size_t i = 0; i < 256; ++i) source.Palette()[i] = i == 0 ? 0 : 0xFFFFFFFF;
            const BitmapLockInfo& info = source.Info();
            auto* bytes = static_cast<std::uint8_t*>(info.bmBits);
            for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{info.bmWidthBytes} * height; ++i) bytes[i] = !half || i % 2;
            EXPECT_EQ(Stretched(source, 1, 1, area).At(0, 0), half ? 0x7F7F7F7FU : 0xFFFFFFFFU) << width;
        }
}

TEST_F(Sampling, ExtentsBeyond32Bits) {
    constexpr std::int64_t wide = std::int64_t{1} << 32;
    struct {
        int source;
        std::int64_t position, extent;
        std::uint32_t shown;
    } constexpr cases[] = {
        {3, wide - 1, wide, 0},                        // a step of 0
        {32767, wide / 8 - 4, wide / 8, 24575},        // 3.99: (3 x 2^29 - 12) >> 16
        {60000, 2'999'999'996, 3'000'000'000, 45776},  // 1.31
    };
    for (const auto& c : cases)
        for (const bool down : {false, true}) {
            Image source(down ? 1 : c.source, down ? c.source : 1), drawn(1, 1);
            source.Fill([](int x, int y) { return static_cast<std::uint32_t>(x + y); });
            const Placement placement = down ? Placement{wide - 1, c.position, wide, c.extent}
                                             : Placement{c.position, wide - 1, c.extent, wide};
            // Of the smooth ones, only that they stay inside.
            for (const std::uint32_t filterMode : {bilinear, bicubic, area, nearest})
                SelectPlacedKernel(drawn.Info(), placement, source.Info(), 0, filterMode, 255);
            EXPECT_EQ(drawn.At(0, 0), c.shown) << "extent " << c.extent;
        }
}

double ExactChannel(const Image& source, double x, double y, int channel, std::uint32_t mode) {
    double sum = 0;
    for (int row = static_cast<int>(std::floor(y)) - 1; row <= y + 2; ++row)
        for (int column = static_cast<int>(std::floor(x)) - 1; column <= x + 2; ++column) {
            const std::uint32_t tap = source.At(std::clamp(column, 0, 63), std::clamp(row, 0, 47));
            sum += host::Channel(tap, channel) *
                   static_cast<double>(StretchWeight(mode, static_cast<float>(std::abs(x - column)))) *
                   static_cast<double>(StretchWeight(mode, static_cast<float>(std::abs(y - row))));
        }
    return std::clamp(sum, 0.0, 255.0);
}

// The packed form stays within 1 of the exact filter; the plain one, with its coarse weights, within 4 of the packed.
TEST_F(Sampling, BicubicIsCloseToTheExactFilter) {
    Image source(64, 48);
    source.Fill([](int x, int y) {
        return host::FromChannels([=](int i) {
            const double wave = std::sin(x * 0.21 + i) * std::cos(y * 0.17 - i) + ((x / 9 + y / 7) % 3) * 0.4;
            return static_cast<int>(std::clamp(100 + 90 * wave, 0.0, 255.0));
        });
    });
    for (const std::uint32_t mode : {0U, 1U, 2U}) {
        Use(true, mode);
        const Image packed = Stretched(source, 151, 113, bicubic);
        Use(false, mode);
        const Image plain = Stretched(source, 151, 113, bicubic);
        for (int i = 0; i < 4 * 151 * 113; ++i) {
            const int x = i / 4 % 151, y = i / 4 / 151, value = host::Channel(packed.At(x, y), i % 4);
            const double exact =
                ExactChannel(source, (x + 0.5) * 64 / 151 - 0.5, (y + 0.5) * 48 / 113 - 0.5, i % 4, mode);
            ASSERT_NEAR(value, exact, 1) << "mode " << mode << ", at " << x << ", " << y;
            ASSERT_NEAR(value, host::Channel(plain.At(x, y), i % 4), 4) << "mode " << mode << ", at " << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace zorvic

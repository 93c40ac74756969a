// Bilinear, bicubic and area sampling: figures worked by hand, flat images, extremes, and the distance from exact filters.
#include <algorithm>
#include <cmath>

#include "raster/kernel_table.h"
#include "raster/lookup_tables.h"
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

constexpr std::uint32_t bilinear = 1, bicubic = 4, area = 5;

// Forces the kernels of a processor with or without MMX, that is with packed or plain weights; and a kernel mode.
class Filtered : public testing::Test {
protected:
    ~Filtered() override {
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

Image Flat(int width, int height, std::uint32_t pixel, int bitsPixel = 32) {
    Image image(width, height, bitsPixel);
    image.Fill([&](int, int) { return pixel; });
    return image;
}

testing::AssertionResult IsFlat(const Image& image, std::uint32_t pixel) {
    return SameBytes(image, Flat(image.Info().bmWidth, image.Info().bmHeight, pixel));
}

TEST_F(Filtered, BilinearPixelsWorkedByHand) {
    // 2 columns to 4: step 0x8001, start 0x4000 - 0x8000: -0.25 (clamped), 0.25, 0.75, 1.25 (clamped); the fractions
    // are 0xC0, 0x40, 0xC0, 0x40. 255 x 64 >> 8 = 63, 255 x 192 >> 8 = 191.
    const Image row = RowOf({0x00000000, 0xFFFFFFFF});
    EXPECT_EQ(Stretched(row, 4, 1, bilinear).Pixels(),
              (std::vector<std::uint32_t>{0x00000000, 0x3F3F3F3F, 0xBFBFBFBF, 0xFFFFFFFF}));
    // Both ways at 0.25: weights 64 x 64 >> 8 = 16 for the far corner, 48 for its neighbours.
    Image corners(2, 2);
    corners.Fill([](int x, int y) { return static_cast<std::uint32_t>(x == 1 && y == 1 ? 0xFF : x == 1 ? 0x80 : 0); });
    EXPECT_EQ(Stretched(corners, 4, 4, bilinear).At(1, 1), (0x80 * 48 + 0xFF * 16) / 256U);
    // 4 columns to 2: positions 0.5 and 2.5.
    EXPECT_EQ(Stretched(RowOf({10, 20, 200, 100}), 2, 1, bilinear).Pixels(), (std::vector<std::uint32_t>{15, 150}));
}

TEST_F(Filtered, BicubicAtFractionZeroHasTheQuantisedWeights) {
    // 3 x 3 to 1 x 1: step 0x30001, start 0x10000, so the position is exactly pixel (1, 1).
    Image source(3, 3);
    source.Fill([](int x, int y) { return static_cast<std::uint32_t>(x == 1 && y == 1 ? 0xFF : 0); });
    const struct {
        bool packed;
        std::uint32_t mode, centre;
    } cases[] = {
        {false, 0, 255},  // weights 0, 256, 0, 0
        {false, 1, 113},  // 255 x 171 x 171 >> 16
        {false, 7, 255}, {true, 0, 255},
        {true, 1, 113},  // 255 x 10923 / 16384 = 170.0 at 6 bits; x 10923 / 16384 = 113.3
        {true, 7, 255},
    };
    for (const auto& c : cases) {
        Use(c.packed, c.mode);
        EXPECT_EQ(Stretched(source, 1, 1, bicubic).At(0, 0), c.centre) << c.packed << " mode " << c.mode;
    }
    // 43 + 171 + 43 = 257: flat areas come out as c x 257 x 257 >> 16, saturated, and are not renormalised.
    Use(false, 1);
    EXPECT_TRUE(IsFlat(Stretched(Flat(3, 3, 0x80FF0001), 1, 1, bicubic), 0x81FF0001));
}

TEST_F(Filtered, BicubicSaturates) {
    for (const bool packed : {false, true}) {
        Use(packed, 0);
        const Image edge = RowOf({0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0, 0, 0});
        for (const std::uint32_t pixel : Stretched(edge, 24, 1, bicubic).Pixels()) {
            const std::uint32_t byte = pixel & 0xFF;
            EXPECT_EQ(pixel, byte * 0x01010101) << "a channel wrapped";
        }
        const std::vector<std::uint32_t> drawn = Stretched(edge, 24, 1, bicubic).Pixels();
        EXPECT_TRUE(std::is_sorted(drawn.rbegin(), drawn.rend())) << "overshoot must be cut, not wrapped";
    }
}

TEST_F(Filtered, FlatImagesStayFlat) {
    Random random(11);
    for (int i = 0; i < 400; ++i) {
        const std::uint32_t pixel = random.Word();
        const int width = 1 + random.Below(40), height = 1 + random.Below(40);
        const Image source = Flat(width, height, pixel);
        const int drawnWidth = 1 + random.Below(90), drawnHeight = 1 + random.Below(90);
        ASSERT_TRUE(IsFlat(Stretched(source, drawnWidth, drawnHeight, bilinear), pixel))
            << width << " x " << height << " to " << drawnWidth << " x " << drawnHeight;
        const int reducedWidth = 1 + random.Below(width), reducedHeight = 1 + random.Below(height);
        ASSERT_TRUE(IsFlat(Stretched(source, reducedWidth, reducedHeight, area), pixel))
            << width << " x " << height << " to " << reducedWidth << " x " << reducedHeight;
    }
}

TEST_F(Filtered, TheThreeDepthsAgree) {
    Random random(12);
    Image palette(random, 21, 13, 8), rgb(21, 13, 24), argb(21, 13);
    for (DWORD& entry : palette.Palette()) entry |= 0xFF000000;
    const auto color = [&](int x, int y) { return static_cast<std::uint32_t>(palette.Palette()[palette.At(x, y)]); };
    rgb.Fill([&](int x, int y) { return color(x, y) & 0x00FFFFFF; });
    argb.Fill(color);
    for (const std::uint32_t filterMode : {bilinear, bicubic, area})
        for (const auto& [width, height] : {std::pair{50, 31}, {9, 5}, {1, 1}, {50, 5}}) {
            const Image wanted = Stretched(argb, width, height, filterMode);
            EXPECT_TRUE(SameBytes(Stretched(palette, width, height, filterMode), wanted)) << filterMode;
            EXPECT_TRUE(SameBytes(Stretched(rgb, width, height, filterMode), wanted)) << filterMode;
        }
}

// The mean of the box is exact: integer factors against the plain mean, truncated, on both sides of the long span.
TEST_F(Filtered, AreaByIntegerFactorsIsTheMean) {
    Random random(13);
    for (const int factor : {2, 3, 15, 16, 17, 40}) {
        Image source(random, 3 * factor, 2 * factor);
        const Image drawn = Stretched(source, 3, 2, area);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                for (int shift = 0; shift < 32; shift += 8) {
                    std::uint32_t sum = 0;
                    for (int i = 0; i < factor * factor; ++i)
                        sum += source.At(x * factor + i % factor, y * factor + i / factor) >> shift & 0xFF;
                    EXPECT_EQ(drawn.At(x, y) >> shift & 0xFF, sum / static_cast<std::uint32_t>(factor * factor))
                        << "factor " << factor;
                }
    }
}

TEST_F(Filtered, AreaReducesTheLargestImagesToOnePixel) {
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

// A picture with smooth and sharp parts.
Image Picture(int width, int height) {
    Image picture(width, height);
    picture.Fill([&](int x, int y) {
        const auto channel = [&](double phase) {
            const double wave = std::sin(x * 0.21 + phase) * std::cos(y * 0.17 - phase) + ((x / 9 + y / 7) % 3) * 0.4;
            return static_cast<std::uint32_t>(std::clamp(100 + 90 * wave, 0.0, 255.0));
        };
        return channel(0) << 24 | channel(1) << 16 | channel(2) << 8 | channel(3);
    });
    return picture;
}

double BicubicReference(const Image& source, double x, double y, int shift, std::uint32_t mode) {
    const int n = static_cast<int>(std::floor(x)), m = static_cast<int>(std::floor(y));
    double sum = 0;
    for (int row = m - 1; row <= m + 2; ++row)
        for (int column = n - 1; column <= n + 2; ++column)
            sum += (source.At(std::clamp<int>(column, 0, source.Info().bmWidth - 1),
                              std::clamp<int>(row, 0, source.Info().bmHeight - 1)) >>
                        shift &
                    0xFF) *
                   static_cast<double>(StretchWeight(mode, static_cast<float>(std::abs(x - column)))) *
                   static_cast<double>(StretchWeight(mode, static_cast<float>(std::abs(y - row))));
    return std::clamp(sum, 0.0, 255.0);
}

// The packed form stays above 50 dB of the exact filter; the plain one, with its coarse weights, within 4 of the packed.
TEST_F(Filtered, BicubicIsCloseToTheExactFilter) {
    const Image source = Picture(64, 48);
    for (const std::uint32_t mode : {0U, 1U, 2U}) {
        Use(true, mode);
        const Image packed = Stretched(source, 151, 113, bicubic);
        Use(false, mode);
        const Image plain = Stretched(source, 151, 113, bicubic);
        double squares = 0;
        int distance = 0;
        for (int y = 0; y < 113; ++y)
            for (int x = 0; x < 151; ++x)
                for (int shift = 0; shift < 32; shift += 8) {
                    const int value = static_cast<int>(packed.At(x, y) >> shift & 0xFF);
                    const double exact =
                        BicubicReference(source, (x + 0.5) * 64 / 151 - 0.5, (y + 0.5) * 48 / 113 - 0.5, shift, mode);
                    squares += (value - exact) * (value - exact);
                    distance = std::max(distance, std::abs(value - static_cast<int>(plain.At(x, y) >> shift & 0xFF)));
                }
        const double decibels = 10 * std::log10(255.0 * 255 * 151 * 113 * 4 / squares);
        EXPECT_GT(decibels, 50) << "mode " << mode;
        EXPECT_LE(distance, 4) << "mode " << mode;
    }
}

TEST_F(Filtered, TheKernelModeChangesBicubicOnly) {
    const Image source = Picture(20, 20);
    for (const std::uint32_t filterMode : {0U, bilinear, bicubic, area})
        for (const int extent : {13, 37}) {
            Use(true, 1);
            const Image smooth = Stretched(source, extent, extent, filterMode);
            SetStretchKernelMode(0);
            const bool changed = !SameBytes(Stretched(source, extent, extent, filterMode), smooth);
            // Area reduction is bicubic when it enlarges.
            EXPECT_EQ(changed, filterMode == bicubic || (filterMode == area && extent > 20)) << filterMode;
        }
}

}  // namespace
}  // namespace zorvic

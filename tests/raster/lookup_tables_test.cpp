// Stretch filter weights in both encodings.
#include "raster/lookup_tables.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zorvic {
namespace {

// The filters in double precision, as their usual polynomials.
double Weight(std::uint32_t mode, double x) {
    if (mode == 1) return x < 1 ? 2.0 / 3 - x * x + x * x * x / 2 : std::pow(2 - x, 3) / 6;
    return x < 1 ? (x - 1) * (x * x - x - 1) : (1 - x) * (x - 2) * (x - 2);
}

TEST(StretchWeights, FollowTheFilterAtEveryDistance) {
    for (const bool packed : {true, false})
        for (const std::uint32_t mode : {0U, 1U, 2U, 3U, 0xFFFFFFFFU}) {
            const FilterWeights weights =
                MakeFilterWeights(mode, packed ? WeightEncoding::packed16384 : WeightEncoding::plain256);
            for (std::size_t i = 0; i <= 512; ++i) {
                const double scaled = Weight(mode, static_cast<double>(i) / 256) * (packed ? 16384 : 256) + 0.5;
                const int got = packed ? static_cast<std::int16_t>(weights[i] & 0xFFFF) : weights[i];
                // Truncated toward zero; single precision may be off by less than a twentieth.
                EXPECT_TRUE(got == std::trunc(scaled - 0.05) || got == std::trunc(scaled + 0.05))
                    << "entry " << i << " of mode " << mode << (packed ? ", packed" : "") << ": got " << got
                    << ", wanted the whole part of " << scaled;
                EXPECT_TRUE(!packed || (weights[i] >> 16) == got) << "the halves of entry " << i << " differ";
            }
        }
}

TEST(StretchWeights, ChangeWithTheMode) {
    EXPECT_EQ(StretchKernelMode, 1U);
    for (const std::uint32_t mode : {0U, 77U, 1U}) {
        EXPECT_TRUE(SetStretchKernelMode(mode)) << "any value is a mode";
        EXPECT_EQ(StretchKernelMode, mode);
        EXPECT_EQ(StretchFilterWeights[0], mode == 1 ? 0x2AAB2AAB : 0x40004000);
        StretchFilterWeights[5] = 12345;
        EXPECT_FALSE(SetStretchKernelMode(mode));
        EXPECT_EQ(StretchFilterWeights[5], 12345) << "rebuilt although nothing changed";
    }
    BuildStretchFilterWeights();
}

}  // namespace
}  // namespace zorvic

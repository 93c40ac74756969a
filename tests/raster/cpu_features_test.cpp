// Processor detection, on processors that do not exist: what they answer is set here.
#include "raster/cpu_features.h"

#include <gtest/gtest.h>

namespace zorvic {
namespace {

bool cpuidExists;
std::uint32_t edx;
int timesAsked;
constexpr CpuProbe probe{[] { return cpuidExists; }, [] { return ++timesAsked, edx; }};

constexpr std::uint32_t mmxBit = 0x800000, sseBit = 0x2000000, sse2Bit = 0x4000000;

TEST(CpuFeatures, ComeFromThreeBits) {
    cpuidExists = true;
    for (int combination = 0; combination < 8; ++combination)
        for (const std::uint32_t otherBits : {0U, ~(mmxBit | sseBit | sse2Bit)}) {
            const bool mmx = combination & 1, sse = combination & 2, sse2 = combination & 4;
            edx = otherBits | (mmx ? mmxBit : 0) | (sse ? sseBit : 0) | (sse2 ? sse2Bit : 0);
            CpuFeatures features;
            DetectCpuFeatures(features, probe);
            EXPECT_TRUE(features.cpuFeaturesKnown);
            EXPECT_EQ(features.cpuHasMMX, mmx) << std::hex << edx;
            EXPECT_EQ(features.cpuHasSSE, sse) << std::hex << edx;
            EXPECT_EQ(features.cpuHasSSE2, sse2) << std::hex << edx;
        }
}

TEST(CpuFeatures, AreAskedForUntilKnownAndNeverCleared) {
    cpuidExists = false;
    edx = sseBit;
    timesAsked = 0;
    CpuFeatures features;
    features.cpuHasMMX = true;
    DetectCpuFeatures(features, probe);
    EXPECT_EQ(timesAsked, 0) << "CPUID ran where it does not exist";
    EXPECT_FALSE(features.cpuFeaturesKnown || features.cpuHasSSE);
    EXPECT_TRUE(features.cpuHasMMX);

    cpuidExists = true;
    DetectCpuFeatures(features, probe);
    EXPECT_EQ(timesAsked, 1);
    EXPECT_TRUE(features.cpuFeaturesKnown && features.cpuHasSSE);
    EXPECT_TRUE(features.cpuHasMMX) << "cleared by a clear bit";

    edx = sse2Bit;
    DetectCpuFeatures(features, probe);
    EXPECT_EQ(timesAsked, 1) << "asked again although known";
    EXPECT_FALSE(features.cpuHasSSE2);
}

TEST(CpuFeatures, OfThisProcessor) {
    CpuFeatures features;
    DetectCpuFeatures(features);
    // The library is built for processors with SSE2; any of those has the other two.
    EXPECT_TRUE(features.cpuFeaturesKnown && features.cpuHasMMX && features.cpuHasSSE && features.cpuHasSSE2);
}

}  // namespace
}  // namespace zorvic

// Processor detection, on processors that do not exist: what they answer is set here.
#include "raster/cpu_features.h"

#include <gtest/gtest.h>

namespace zorvic {
namespace {

bool cpuidExists;
std::uint32_t edx;
constexpr CpuProbe probe{[] { return cpuidExists; },
                         [] {
                             EXPECT_TRUE(cpuidExists) << "CPUID ran where it does not exist";
                             return edx;
                         }};

// Bit 0 says that the others are known: MMX, SSE and SSE2.
int FlagsOf(const CpuFeatures& f) { return f.cpuFeaturesKnown + 2 * f.cpuHasMMX + 4 * f.cpuHasSSE + 8 * f.cpuHasSSE2; }

TEST(CpuFeatures, ComeFromThreeBitsUntilKnownAndAreNeverCleared) {
    constexpr std::uint32_t mmx = 0x800000, sse = 0x2000000, sse2 = 0x4000000;
    for (int before = 0; before < 16; ++before)
        for (int answer = 0; answer < 16; ++answer)
            for (const std::uint32_t otherBits : {0U, ~(mmx | sse | sse2)}) {
                cpuidExists = (answer & 1) != 0;
                edx = otherBits | (answer & 2 ? mmx : 0) | (answer & 4 ? sse : 0) | (answer & 8 ? sse2 : 0);
                CpuFeatures features{(before & 1) != 0, (before & 2) != 0, (before & 4) != 0, (before & 8) != 0};
                DetectCpuFeatures(features, probe);
                const bool asks = (before & 1) == 0 && cpuidExists;
                EXPECT_EQ(FlagsOf(features), asks ? before | answer : before) << before << ", " << answer;
            }
}

TEST(CpuFeatures, OfThisProcessor) {
    CpuFeatures features;
    DetectCpuFeatures(features);
    EXPECT_EQ(FlagsOf(features), 15) << "the library is built for SSE2, and such processors have the other two";
}

}  // namespace
}  // namespace zorvic

// Processor detection through the identification flag and CPUID leaf 1.
#include "raster/cpu_features.h"

#include <intrin.h>

namespace zorvic {

namespace {

// A processor without CPUID holds EFLAGS bit 21 still.
bool HasCpuid() {
    constexpr unsigned idFlag = 1U << 21;
    const auto before = __readeflags();
    __writeeflags(before ^ idFlag);
    const auto after = __readeflags();
    __writeeflags(before);
    return ((before ^ after) & idFlag) != 0;
}

std::uint32_t Leaf1Edx() {
    int registers[4];
    __cpuid(registers, 1);
    return static_cast<std::uint32_t>(registers[3]);
}

}  // namespace

const CpuProbe thisProcessor{HasCpuid, Leaf1Edx};

void DetectCpuFeatures(CpuFeatures& features, const CpuProbe& probe) {
    if (features.cpuFeaturesKnown || !probe.hasCpuid()) return;
    const std::uint32_t edx = probe.leaf1Edx();
    features.cpuFeaturesKnown = true;
    if (edx & 1U << 23) features.cpuHasMMX = true;
    if (edx & 1U << 25) features.cpuHasSSE = true;
    if (edx & 1U << 26) features.cpuHasSSE2 = true;
}

}  // namespace zorvic

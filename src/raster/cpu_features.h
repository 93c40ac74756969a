// What the kernel table asks of the processor. Newer levels belong to the pixel primitive layer.
#pragma once

#include <cstdint>

namespace zorvic {

struct CpuFeatures {
    bool cpuFeaturesKnown = false;  // the identification instruction exists and was queried
    bool cpuHasMMX = false;
    bool cpuHasSSE = false;
    bool cpuHasSSE2 = false;
};

// The processor as detection sees it; tests put another one in its place.
struct CpuProbe {
    bool (*hasCpuid)();
    std::uint32_t (*leaf1Edx)();
};

extern const CpuProbe thisProcessor;

// Fills the flags; returns at once when they are known, asks again when they are not. Flags are never cleared.
void DetectCpuFeatures(CpuFeatures& features, const CpuProbe& probe = thisProcessor);

// This process's flags, as the kernel table was filled by them.
extern CpuFeatures ProcessorFeatures;

}  // namespace zorvic

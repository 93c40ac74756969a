// The process-wide tables and the one setting they depend on.
#include "raster/lookup_tables.h"

#include "raster/cpu_features.h"

namespace zorvic {

namespace {

constexpr std::array<DWORD, 256> MakeGreyPalette() {
    std::array<DWORD, 256> palette{};
    for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = static_cast<DWORD>(0xFF000000U + i * 0x010101U);
    return palette;
}

// Both encodings of the three kernels, made by the compiler. Modes above 1 share the last row.
template <WeightEncoding encoding>
constexpr std::array<FilterWeights, 3> weightsOfModes{MakeFilterWeights(0, encoding), MakeFilterWeights(1, encoding),
                                                      MakeFilterWeights(2, encoding)};

}  // namespace

constinit std::uint32_t StretchKernelMode = 1;
constinit FilterWeights StretchFilterWeights{};
constinit ClampBytes ClampTable{};
constinit const std::array<DWORD, 256> GreyPalette = MakeGreyPalette();

void BuildStretchFilterWeights() {
    const std::size_t row = StretchKernelMode < 2 ? StretchKernelMode : 2;
    StretchFilterWeights = ProcessorFeatures.cpuHasMMX ? weightsOfModes<WeightEncoding::packed16384>[row]
                                                       : weightsOfModes<WeightEncoding::plain256>[row];
}

bool SetStretchKernelMode(std::uint32_t mode) {
    if (mode == StretchKernelMode) return false;
    StretchKernelMode = mode;
    BuildStretchFilterWeights();
    return true;
}

}  // namespace zorvic

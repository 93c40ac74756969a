// The three tables that kernels read: stretch filter weights, byte clamp and grey palette.
// All come from constexpr functions, so no build option can change a value.
#pragma once

#include <array>
#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// Entry i is the filter's weight at the distance i / 256, 0 to 2.
using FilterWeights = std::array<std::int32_t, 513>;

enum class WeightEncoding {
    packed16384,  // weight x 16384, rounded, as the same 16 bits twice: for packed multiplication
    plain256      // weight x 256 + 0.5, truncated toward zero
};

// The cubic filter kernels (R. Keys, "Cubic convolution interpolation for digital image processing", 1981, and the
// cubic B-spline), in single precision. mode: 0 cubic convolution with a = -1, 1 B-spline, other values the
// convolution.
constexpr float StretchWeight(std::uint32_t mode, float x) {
    if (mode == 1) {
        if (x > 2) return 0;
        constexpr auto cube = [](float t) { return t > 0 ? t * t * t : 0.0F; };
        return (cube(x + 2) - 4 * cube(x + 1) + 6 * cube(x) - 4 * cube(x - 1)) * 0.16666667F;
    }
    if (mode == 0) {
        if (x < 1) return x * x * x - 2 * x * x + 1;
        return x < 2 ? 4 - 8 * x + 5 * x * x - x * x * x : 0;
    }
    if (x == 0) return 1;
    if (x <= 1) return x * x * x - 2 * x * x + 1;
    return x <= 2 ? 5 * x * x - 8 * x - x * x * x + 4 : 0;
}

constexpr std::int32_t EncodeWeight(float weight, WeightEncoding encoding) {
    if (encoding == WeightEncoding::plain256) return static_cast<std::int32_t>(static_cast<double>(weight * 256) + 0.5);
    const auto scaled = static_cast<std::int32_t>(static_cast<double>(weight * 16384) + 0.5);
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(scaled) & 0xFFFFU) * 0x10001U);
}

constexpr FilterWeights MakeFilterWeights(std::uint32_t mode, WeightEncoding encoding) {
    FilterWeights weights{};
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = EncodeWeight(StretchWeight(mode, static_cast<float>(static_cast<double>(i) / 256)), encoding);
    return weights;
}

// Entry j is j - 256, clamped to 0..255.
using ClampBytes = std::array<std::uint8_t, 768>;

constexpr ClampBytes MakeClampTable() {
    ClampBytes table{};
    for (int j = 0; j < 768; ++j)
        table[static_cast<std::size_t>(j)] = static_cast<std::uint8_t>(j < 256 ? 0 : j < 512 ? j - 256 : 255);
    return table;
}

extern std::uint32_t StretchKernelMode;
extern FilterWeights StretchFilterWeights;  // for the current mode, encoded as the table's bicubic kernels want it
extern ClampBytes ClampTable;               // built only without MMX: wider forms saturate by themselves
extern const std::array<DWORD, 256> GreyPalette;  // entry i is 0xFF000000 + i x 0x010101

// Fills StretchFilterWeights for the current mode, in place and without a lock.
void BuildStretchFilterWeights();

// False when the mode is set already.
bool SetStretchKernelMode(std::uint32_t mode);

}  // namespace zorvic

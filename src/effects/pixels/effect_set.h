// The effects on pixels in one form, and the set of the form that this process uses.
#pragma once

#include "pixel/primitive_set.h"

namespace zorvic {

// What is done to a run of 32-bit pixels, in place.
using PixelEffect = void (*)(std::uint32_t* pixels, int n);

// What colorize makes of the hue, saturation and lightness of a pixel.
struct ColorizeTables {
    static constexpr int hueOffset = 64, hues = 288;  // entry i is of the hue i - 64: left of red it is negative

    float saturation[256], lightness[256];   // 0 to 1, of the adjusted bytes
    float rise[hues];                        // along the ramp, 0 to 60 degrees
    float highPlace[hues], rampPlace[hues];  // what multiplies the byte of the channel: 1, 256 or 65536
};

struct EffectSet {
    PixelEffect gray, invert, premultiply, alphaToGray, colorToAlpha, whiten;
    void (*replaceColor)(std::uint32_t* pixels, int n, std::uint32_t from, std::uint32_t to);
    void (*colorize)(std::uint32_t* pixels, int n, const ColorizeTables& tables);

    // The 3 x 3 box. Sums of three neighbours in a row of n pixels, whose ends repeat outside: words with those of blue
    // and red, and `plane` words further those of green and alpha. And a ninth of the sums of three rows.
    void (*sumNeighbors)(const std::uint32_t* row, int n, std::uint32_t* sums, int plane);
    void (*meanOfNine)(const std::uint32_t* above, const std::uint32_t* here, const std::uint32_t* below, int plane,
                       std::uint32_t* dst, int count);
};

extern const EffectSet genericEffects, sse2Effects, avx2Effects, avx512Effects;

inline const EffectSet& Effects() { return AtCurrentLevel(genericEffects, sse2Effects, avx2Effects, avx512Effects); }

}  // namespace zorvic

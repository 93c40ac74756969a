// The effects on pixels in one form, and the set of the form that this process uses.
#pragma once

#include "pixel/primitive_set.h"

namespace zorvic {

// What is done to a run of 32-bit pixels, in place.
using PixelEffect = void (*)(std::uint32_t* pixels, int n);

struct EffectSet {
    PixelEffect gray, invert, premultiply, alphaToGray, colorToAlpha, whiten;
    void (*replaceColor)(std::uint32_t* pixels, int n, std::uint32_t from, std::uint32_t to);

    // The 3 x 3 box. Sums of three neighbours in a row of n pixels, whose ends repeat outside: words with those of blue
    // and red, and `plane` words further those of green and alpha. And a ninth of the sums of three rows.
    void (*sumNeighbors)(const std::uint32_t* row, int n, std::uint32_t* sums, int plane);
    void (*meanOfNine)(const std::uint32_t* above, const std::uint32_t* here, const std::uint32_t* below, int plane,
                       std::uint32_t* dst, int count);
};

extern const EffectSet genericEffects, sse2Effects, avx2Effects, avx512Effects;

inline const EffectSet& Effects() { return AtCurrentLevel(genericEffects, sse2Effects, avx2Effects, avx512Effects); }

}  // namespace zorvic

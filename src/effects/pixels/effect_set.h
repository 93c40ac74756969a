// The effects on pixels in one form, and the set of the form that this process uses.
#pragma once

#include "pixel/primitive_set.h"

namespace zorvic {

// What is done to a run of 32-bit pixels, in place.
using PixelEffect = void (*)(std::uint32_t* pixels, int n);

struct EffectSet {
    PixelEffect gray, invert, premultiply, alphaToGray, colorToAlpha, whiten;
    void (*replaceColor)(std::uint32_t* pixels, int n, std::uint32_t from, std::uint32_t to);
};

extern const EffectSet genericEffects, sse2Effects, avx2Effects, avx512Effects;

inline const EffectSet& Effects() { return AtCurrentLevel(genericEffects, sse2Effects, avx2Effects, avx512Effects); }

}  // namespace zorvic

// Numbers of any size and kind turned into coordinates: what a LONG cannot hold is limited to what it can, so that an
// absurd rectangle stays absurd instead of wrapping around into a plausible one.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "canvas/rect.h"

namespace zorvic {

constexpr LONG ToCoordinate(std::int64_t value) {
    using Limits = std::numeric_limits<LONG>;
    return static_cast<LONG>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

constexpr RECT ToRect(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    return {ToCoordinate(left), ToCoordinate(top), ToCoordinate(right), ToCoordinate(bottom)};
}

// Toward zero; 0 for NaN.
inline LONG Truncate(double value) {
    using Limits = std::numeric_limits<LONG>;
    if (std::isnan(value)) return 0;
    return static_cast<LONG>(std::clamp<double>(value, Limits::min(), Limits::max()));
}

// To nearest, halves away from zero; 0 for NaN.
inline LONG Round(float value) { return Truncate(std::round(value)); }

}  // namespace zorvic

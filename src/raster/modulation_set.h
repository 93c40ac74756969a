// The kernels that draw an image in a colour, in one form.
#pragma once

#include "pixel/primitive_set.h"
#include "raster/image.h"

namespace zorvic {

using ColoredBlit = void (*)(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color);

// One for each source depth.
struct ModulationSet {
    ColoredBlit tint[3], modulate[3];
};

extern const ModulationSet genericModulation, sse2Modulation, avx2Modulation, avx512Modulation;

}  // namespace zorvic

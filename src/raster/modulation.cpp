// The choice of the kernel that draws in a colour.
#include "raster/modulation.h"

#include "raster/modulation_set.h"

namespace zorvic {

void ModulateImage(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color) {
    const ModulationSet& set = AtCurrentLevel(genericModulation, sse2Modulation, avx2Modulation, avx512Modulation);
    const bool isOpaque = color >> 24 == 255;
    (isOpaque ? set.tint : set.modulate)[static_cast<int>(DepthOf(src.bmBitsPixel))](dst, src, color);
}

}  // namespace zorvic

// The two modulation loops, in the baseline form.
#include "raster/modulation.h"

#include "pixel/forms/baseline.h"
#include "raster/kernels_inl.h"
#include "raster/ops/modulate.h"

namespace zorvic {

namespace {

template <SourceDepth depth>
void ModulateFrom(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color) {
    const UnscaledRows<depth> rows(src, WholeOf(dst));
    if (color >> 24 == 255) {
        RunKernel<Baseline>(dst, rows, Tint(color));
    } else {
        RunKernel<Baseline>(dst, rows, Modulate(color));
    }
}

}  // namespace

void ModulateImage(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color) {
    switch (DepthOf(src.bmBitsPixel)) {
        case SourceDepth::palette8:
            return ModulateFrom<SourceDepth::palette8>(dst, src, color);
        case SourceDepth::rgb24:
            return ModulateFrom<SourceDepth::rgb24>(dst, src, color);
        case SourceDepth::argb32:
            return ModulateFrom<SourceDepth::argb32>(dst, src, color);
    }
}

}  // namespace zorvic

// The composition that bicubic draws end with, on samples that are there already.
#include "raster/saturated_over.h"

#include "pixel/forms/baseline.h"
#include "raster/kernels_inl.h"

int zorvic::DrawSaturatedOver(const BitmapLockInfo& dst, const BitmapLockInfo& samples, std::uint8_t alpha) {
    const UnscaledRows<SourceDepth::argb32> rows(samples, WholeOf(dst));
    return RunKernel<Baseline>(dst, rows, AtOpacity<SaturatedOver>(alpha));
}

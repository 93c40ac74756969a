// Drawing in a colour once, for any form. Only the files that instantiate a form include this; see kernels_inl.h.
#pragma once

#include "raster/kernels_inl.h"
#include "raster/modulation_set.h"
#include "raster/ops/modulate.h"

namespace zorvic {
namespace {

template <Form V, class Op, SourceDepth depth>
void DrawInColor(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t color) {
    RunKernel<V>(dst, UnscaledRows<depth>(src, WholeOf(dst)), Op(color));
}

template <Form V>
consteval ModulationSet MakeModulation() {
    using enum SourceDepth;
    return {
        .tint = {DrawInColor<V, Tint, palette8>, DrawInColor<V, Tint, rgb24>, DrawInColor<V, Tint, argb32>},
        .modulate = {DrawInColor<V, Modulate, palette8>, DrawInColor<V, Modulate, rgb24>,
                     DrawInColor<V, Modulate, argb32>},
    };
}

}  // namespace
}  // namespace zorvic

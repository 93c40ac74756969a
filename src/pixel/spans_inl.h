// An operation on a span of pixels, in vectors of any form. Only files that instantiate forms include this.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

// Samples that need no memory: one color for every pixel.
struct SolidColor {
    std::uint32_t color;
};

template <PixelForm V>
V Samples(const std::uint32_t* samples, int i) {
    return V::Load(samples + i);
}
template <PixelForm V>
V Samples(SolidColor solid, int) {
    return V::Broadcast(solid.color);
}

// The n samples from i on, fewer than a vector holds.
template <PixelForm V>
V LastSamples(const std::uint32_t* samples, int i, int n) {
    return V::LoadPart(samples + i, n);
}
template <PixelForm V>
V LastSamples(SolidColor solid, int, int) {
    return V::Broadcast(solid.color);
}

// Applies the operation to n pixels. The last ones go through the same operation in a vector that is partly empty.
template <PixelForm V, class Op, class Source>
void ApplySpan(const Op& op, std::uint32_t* dst, Source src, int n) {
    int i = 0;
    for (; n - i >= V::lanes; i += V::lanes) op(V::Load(dst + i), Samples<V>(src, i)).Store(dst + i);
    if constexpr (V::lanes > 1)
        if (i < n) op(V::LoadPart(dst + i, n - i), LastSamples<V>(src, i, n - i)).StorePart(dst + i, n - i);
}

}  // namespace
}  // namespace zorvic

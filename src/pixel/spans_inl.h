// An operation on a span of pixels, in vectors of any form. Only files that instantiate forms include this.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

// Samples that need no memory: one color for every pixel.
struct SolidColor {
    std::uint32_t color;
};

template <Form V>
V Samples(const std::uint32_t* samples, int i) {
    return V::Load(samples + i);
}
template <Form V>
V Samples(SolidColor solid, int) {
    return V::Broadcast(solid.color);
}

// The n samples from i on, fewer than a vector holds.
template <Form V>
V LastSamples(const std::uint32_t* samples, int i, int n) {
    return V::LoadPart(samples + i, n);
}
template <Form V>
V LastSamples(SolidColor solid, int, int) {
    return V::Broadcast(solid.color);
}

// What an operation may state about its samples, for the forms that look at them.
template <class Op>
concept CopiesOpaque = Op::opaqueIsCopy;
template <class Op>
concept SkipsTransparent = Op::transparentIsNothing;

template <Form V, class Op>
void ApplyVector(const Op& op, std::uint32_t* dst, V src) {
    if constexpr (LooksAtAlpha<V> && SkipsTransparent<Op>)
        if (IsTransparentBlack(src)) return;
    if constexpr (LooksAtAlpha<V> && CopiesOpaque<Op>)
        if (IsOpaque(src)) return src.Store(dst);
    op(V::Load(dst), src).Store(dst);
}

// Applies the operation to n pixels.
template <Form V, class Op, class Source>
void ApplySpan(const Op& op, std::uint32_t* dst, Source src, int n) {
    if constexpr (V::lanes == 1) {
        for (int i = 0; i < n; ++i) op(V::Load(dst + i), Samples<V>(src, i)).Store(dst + i);
    } else if (n >= V::lanes) {
        // The last vector ends with the span and may overlap the one before it: both of its sides are read first.
        const int last = n - V::lanes;
        const V lastDst = V::Load(dst + last), lastSrc = Samples<V>(src, last);
        for (int i = 0; i < last; i += V::lanes) ApplyVector(op, dst + i, Samples<V>(src, i));
        op(lastDst, lastSrc).Store(dst + last);
    } else if constexpr (requires { typename V::Narrower; }) {
        ApplySpan<typename V::Narrower>(op, dst, src, n);
    } else if (n > 0) {
        op(V::LoadPart(dst, n), LastSamples<V>(src, 0, n)).StorePart(dst, n);
    }
}

}  // namespace
}  // namespace zorvic

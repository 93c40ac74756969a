// An operation on a span of pixels, in vectors of any form. Only files that instantiate forms include this.
#pragma once

#include <intrin.h>

#include "pixel/forms/form.h"
#include "pixel/ops/compose.h"

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

// Operations that may state what a look at the samples can spare.
template <class Op>
concept CopiesOpaque = Op::opaqueIsCopy;
template <class Op>
concept SkipsTransparent = Op::transparentIsNothing;

template <Form V, class Op>
void ApplyVector(Op op, std::uint32_t* dst, V src) {
    if constexpr (LooksAtAlpha<V> && SkipsTransparent<Op>)
        if (IsTransparentBlack(src)) return;
    if constexpr (LooksAtAlpha<V> && CopiesOpaque<Op>)
        if (IsOpaque(src)) return src.Store(dst);
    op(V::Load(dst), src).Store(dst);
}

template <Form V, class Op>
void ApplyVectors(Op op, std::uint32_t* dst, const std::uint32_t* samples, int n) {
// The loop's own instructions cost a twentieth of its time.
#pragma GCC unroll 2
    for (int i = 0; i < n; i += V::lanes) ApplyVector(op, dst + i, V::Load(samples + i));
}
template <Form V, class Op>
void ApplyVectors(Op op, std::uint32_t* dst, SolidColor solid, int n) {
    const V samples = V::Broadcast(solid.color);
#pragma GCC unroll 2
    for (int i = 0; i < n; i += V::lanes) op(V::Load(dst + i), samples).Store(dst + i);
}

// Runs that leave the first cache are moved by the processor's own loop, which keeps up with the widest vectors there.
constexpr int longRun = 8192;

inline void ApplyLongRun(Copy, std::uint32_t* dst, const std::uint32_t* samples, int n) {
    __movsb(reinterpret_cast<unsigned char*>(dst), reinterpret_cast<const unsigned char*>(samples),
            sizeof *dst * static_cast<std::size_t>(n));
}
inline void ApplyLongRun(Copy, std::uint32_t* dst, SolidColor solid, int n) {
    __stosd(reinterpret_cast<unsigned long*>(dst), solid.color, static_cast<std::size_t>(n));
}

// Applies the operation to n pixels. It is passed by value: pixels cannot be part of it, as far as a compiler knows.
template <Form V, class Op, class Source>
void ApplySpan(Op op, std::uint32_t* dst, Source src, int n) {
    if constexpr (std::same_as<Op, Copy>)
        if (n >= longRun) return ApplyLongRun(op, dst, src, n);
    if constexpr (V::lanes == 1) {
        ApplyVectors<V>(op, dst, src, n);
    } else if (n >= V::lanes) {
        // The last vector ends with the span and may overlap the one before it: both of its sides are read first.
        const int last = n - V::lanes;
        const V lastDst = V::Load(dst + last), lastSrc = Samples<V>(src, last);
        ApplyVectors<V>(op, dst, src, last);
        op(lastDst, lastSrc).Store(dst + last);
    } else if constexpr (requires { typename V::Narrower; }) {
        ApplySpan<typename V::Narrower>(op, dst, src, n);
    } else if (n > 0) {
        op(V::LoadPart(dst, n), LastSamples<V>(src, 0, n)).StorePart(dst, n);
    }
}

}  // namespace
}  // namespace zorvic

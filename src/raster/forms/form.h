// What the operations of kernels may ask for beyond what every form has; see pixel/forms/form.h.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

template <class V>
concept Form = PixelForm<V> && requires(V v, typename V::Weight k, const std::uint32_t* in) {
    { V::LoadWeights(in) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, from every 32-bit word
    { AddBytes(v, v) } -> std::same_as<V>;                       // every byte by itself, modulo 256
    { AddSaturated(v, v) } -> std::same_as<V>;                   // every byte by itself, at most 255
    { MixBytes(v, k, v, k) } -> std::same_as<V>;                 // every byte (a x k + b x l) >> 8, k + l <= 256
    // Every byte of four taps weighted by fractions 0..255: with c = k x l >> 8 the sum of v x (256 - k - l + c), v x
    // (k - c), v x (l - c) and v x c, >> 8.
    { MixTaps(v, v, v, v, k, k) } -> std::same_as<V>;
    { MultiplyBytes(v, v) } -> std::same_as<V>;      // every byte (a + 1) x b >> 8
    { ScaleBytes(v, v) } -> std::same_as<V>;         // every byte a x b >> 8
    { Luma(v) } -> std::same_as<V>;                  // (blue + 2 x green + red) >> 2 in every byte
    { SelectEqual(v, v, v, v) } -> std::same_as<V>;  // pixels of c where a == b, else of d
};

}  // namespace
}  // namespace zorvic

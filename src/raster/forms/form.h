// What an operation may ask for. A form is a vector of `lanes` ARGB pixels; each header beside this one wraps one
// instruction set in it. Everything here is private to the file that compiles it, see kernels_inl.h.
#pragma once

#include <concepts>
#include <cstdint>

namespace zorvic {
namespace {

template <class V>
concept Form = requires(V v, typename V::Weight k, const std::uint32_t* in, std::uint32_t* out, std::uint32_t word,
                        int factor) {
    { V::lanes } -> std::convertible_to<int>;
    { V::Load(in) } -> std::same_as<V>;                          // any alignment
    { V::Broadcast(word) } -> std::same_as<V>;                   // one pixel in every lane
    { V::LoadWeights(in) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, from every 32-bit word
    { V::Uniform(factor) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, for every lane
    { v + v } -> std::same_as<V>;                                // as 32-bit words
    { v | v } -> std::same_as<V>;
    { AddBytes(v, v) } -> std::same_as<V>;        // every byte by itself, modulo 256
    { Scale(v, k) } -> std::same_as<V>;           // every byte x k >> 8
    { MixBytes(v, k, v, k) } -> std::same_as<V>;  // every byte (a x k + b x l) >> 8, k + l <= 256
    // Every byte of four taps weighted by fractions 0..255: with c = k x l >> 8 the sum of v x (256 - k - l + c), v x
    // (k - c), v x (l - c) and v x c, >> 8.
    { MixTaps(v, v, v, v, k, k) } -> std::same_as<V>;
    { MultiplyBytes(v, v) } -> std::same_as<V>;               // every byte (a + 1) x b >> 8
    { ScaleBytes(v, v) } -> std::same_as<V>;                  // every byte a x b >> 8
    { InvertBytes(v) } -> std::same_as<V>;                    // every byte 255 - a
    { Luma(v) } -> std::same_as<V>;                           // (blue + 2 x green + red) >> 2 in every byte
    { AlphaWeight(v) } -> std::same_as<typename V::Weight>;   // alpha of each pixel
    { InverseAlpha(v) } -> std::same_as<typename V::Weight>;  // 256 - alpha of each pixel
    { SelectEqual(v, v, v, v) } -> std::same_as<V>;           // pixels of c where a == b, else of d
    { WithAlphaOf(v, v) } -> std::same_as<V>;                 // colour of the first, alpha of the second
    v.Store(out);
};

}  // namespace
}  // namespace zorvic

// What every operation may ask for. A form is a vector of `lanes` ARGB pixels; each header beside this one wraps one
// instruction set in it, and they hold the only intrinsics. Kernels ask for more, see raster/forms/form.h.
//
// Everything here and in the files that use it is private to the file that compiles it, in unnamed namespaces: the
// linker keeps one copy of a shared inline function, of std:: ones too, and might keep the one with wider instructions.
#pragma once

#include <concepts>
#include <cstdint>

namespace zorvic {
namespace {

template <class V>
concept PixelForm = requires(V v, typename V::Weight k, const std::uint32_t* in, std::uint32_t* out, std::uint32_t word,
                             int number) {
    { V::lanes } -> std::convertible_to<int>;
    { V::Load(in) } -> std::same_as<V>;                          // any alignment
    { V::LoadPart(in, number) } -> std::same_as<V>;              // the first 1..lanes - 1 pixels; touches no other
    { V::Broadcast(word) } -> std::same_as<V>;                   // one pixel in every lane
    { V::Uniform(number) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, for every lane
    { v + v } -> std::same_as<V>;                                // as 32-bit words
    { v | v } -> std::same_as<V>;
    { Scale(v, k) } -> std::same_as<V>;                       // every byte x k >> 8
    { InvertBytes(v) } -> std::same_as<V>;                    // every byte 255 - a
    { AlphaWeight(v) } -> std::same_as<typename V::Weight>;   // alpha of each pixel
    { InverseAlpha(v) } -> std::same_as<typename V::Weight>;  // 256 - alpha of each pixel
    { WithAlphaOf(v, v) } -> std::same_as<V>;                 // color of the first, alpha of the second
    v.Store(out);
    v.StorePart(out, number);
};

}  // namespace
}  // namespace zorvic

// What operations and row sources may ask for. A form is a vector of `lanes` ARGB pixels; each header beside this one
// wraps one instruction set in it, and they hold the only intrinsics.
//
// Everything here and in the files that use it is private to the file that compiles it, in unnamed namespaces: the
// linker keeps one copy of a shared inline function, of std:: ones too, and might keep the one with wider instructions.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

#include "pixel/forms/boxes.h"
#include "pixel/forms/taps.h"

namespace zorvic {
namespace {

template <class V>
concept Form = requires(V v, typename V::Weight k, typename V::Wide w, const std::uint32_t* in, std::uint32_t* out,
                        std::uint32_t word, int number, const int* places, const TapGroup& taps, std::int16_t* sums,
                        const std::byte* bytes, std::ptrdiff_t step, typename V::ColumnForm (&columnVectors)[4]) {
    { V::lanes } -> std::convertible_to<int>;
    { V::picksFromWindows } -> std::convertible_to<bool>;
    typename V::Guard;                                           // lives as long as vectors are in use
    { V::Load(in) } -> std::same_as<V>;                          // any alignment
    { V::LoadPart(in, number) } -> std::same_as<V>;              // the first 1..lanes - 1 pixels; touches no other
    { V::Broadcast(word) } -> std::same_as<V>;                   // one pixel in every lane
    { V::Uniform(number) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, for every lane
    { V::LoadWeights(in) } -> std::same_as<typename V::Weight>;  // one factor, 0..256, from every 32-bit word
    { k - k } -> std::same_as<typename V::Weight>;
    { V::ScaleWeight(k, k) } -> std::same_as<typename V::Weight>;  // k x l >> 8
    v.Store(out);
    v.StorePart(out, number);

    // Pixels.
    { v + v } -> std::same_as<V>;  // as 32-bit words
    { v | v } -> std::same_as<V>;
    { v& v } -> std::same_as<V>;
    { AddBytes(v, v) } -> std::same_as<V>;           // every byte by itself, modulo 256
    { AddSaturated(v, v) } -> std::same_as<V>;       // every byte by itself, at most 255
    { InvertBytes(v) } -> std::same_as<V>;           // every byte 255 - a
    { WithAlphaOf(v, v) } -> std::same_as<V>;        // color of the first, alpha of the second
    { SelectEqual(v, v, v, v) } -> std::same_as<V>;  // pixels of c where a == b, else of d
    { Luma(v) } -> std::same_as<V>;                  // (blue + 2 x green + red) >> 2 in every byte
    { AlphaBytes(v) } -> std::same_as<V>;            // alpha in every byte
    { LargestColor(v) } -> std::same_as<V>;          // the largest of blue, green and red as alpha
    { Reversed(v) } -> std::same_as<V>;              // the last pixel first

    // Products. A weight is one factor for the four bytes of each pixel.
    { AlphaWeight(v) } -> std::same_as<typename V::Weight>;   // alpha of each pixel
    { AlphaPlusOne(v) } -> std::same_as<typename V::Weight>;  // alpha + 1 of each pixel
    { InverseAlpha(v) } -> std::same_as<typename V::Weight>;  // 256 - alpha of each pixel
    { Scale(v, k) } -> std::same_as<V>;                       // every byte x k >> 8
    { ScaleRounded(v, k) } -> std::same_as<V>;                // every byte x k / 255 to nearest, k at most 255
    { MixBytes(v, k, v, k) } -> std::same_as<V>;              // every byte (a x k + b x l) >> 8, k + l <= 256
    { MultiplyBytes(v, v) } -> std::same_as<V>;               // every byte (a + 1) x b >> 8
    { ScaleBytes(v, v) } -> std::same_as<V>;                  // every byte a x b >> 8

    // Every byte as a 16-bit number, modulo 65536.
    { Widened(v) } -> std::same_as<typename V::Wide>;
    { w + w } -> std::same_as<typename V::Wide>;
    { w - w } -> std::same_as<typename V::Wide>;
    { w* k } -> std::same_as<typename V::Wide>;
    { Times256(w) } -> std::same_as<typename V::Wide>;
    { HighBytes(w) } -> std::same_as<V>;                            // every number >> 8
    { LowBytes(w) } -> std::same_as<V>;                             // of numbers below 256
    { HighProducts(w, number) } -> std::same_as<typename V::Wide>;  // every a x number >> 16, both below 32768
    { V::LoadWide(in, in) } -> std::same_as<typename V::Wide>;      // of each pixel one word with blue and red,
    StoreWide(w, out, out);                                         // and in another place one with green and alpha

    // The pixels at ascending places, one for each lane: of one or two vectors from there on, or anywhere for 0.
    { V::template Pick<0>(in, places) } -> std::same_as<V>;
    V::template PickPairs<0>(in, places, v, v);  // and their right neighbours

    // Four columns of `lanes` rows of the form that turns images, each from top to bottom; step: bytes from row to row.
    V::ColumnForm::LoadColumns(bytes, step, columnVectors);

    // Four-tap filters; see taps.h.
    V::SumTaps(in, taps, sums);
    // From pixel `number` on; the four rows are so many numbers apart.
    { V::template MixSums<16>(sums, number, RowWeights{}) } -> std::same_as<V>;

    // Means of boxes; see boxes.h.
    requires Boxes<typename V::Boxes>;
};

// Whether all pixels of a vector are of one kind; for forms that gain by looking.
template <class V>
concept LooksAtAlpha = requires(V v) {
    { IsOpaque(v) } -> std::same_as<bool>;
    { IsTransparentBlack(v) } -> std::same_as<bool>;
};

// Forms that mix four taps of half a vector's pixels at once, left and right ones side by side.
template <class V>
concept MixesHalves = requires(const typename V::PairHalf (&halves)[2], const std::uint32_t* in, const int* columns,
                               int number, typename V::Weight k) {
    { V::MakeHalf(columns, in, number) } -> std::same_as<typename V::PairHalf>;
    { MixHalves(halves, in, in, k) } -> std::same_as<V>;
};

}  // namespace
}  // namespace zorvic

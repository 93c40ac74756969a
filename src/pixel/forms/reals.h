// Arithmetic in single precision, a number for each pixel: V::Reals, in forms that effects run in. The same numbers in
// every form, as each operation rounds to nearest and none are contracted.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

template <class R>
concept RealNumbers = requires(R a, typename R::Pixels v, int shift, float number, const float* table) {
    { R::Byte(v, shift) } -> std::same_as<R>;           // the byte of each pixel at a shift of 0, 8, 16 or 24
    { R::Repeat(number) } -> std::same_as<R>;           // one number for every pixel
    { R::Lookup(table, a) } -> std::same_as<R>;         // entry a of the table, a truncated
    { a.Words() } -> std::same_as<typename R::Pixels>;  // truncated, as 32-bit words
    { a + a } -> std::same_as<R>;
    { a - a } -> std::same_as<R>;
    { a* a } -> std::same_as<R>;
    { a / a } -> std::same_as<R>;
    { Larger(a, a) } -> std::same_as<R>;
    { Smaller(a, a) } -> std::same_as<R>;
    { Whole(a) } -> std::same_as<R>;                  // truncated
    { SelectEqual(a, a, a, a) } -> std::same_as<R>;   // of c where a == b, else of d
    { SelectAtMost(a, a, a, a) } -> std::same_as<R>;  // of c where a <= b, else of d
};

}  // namespace
}  // namespace zorvic

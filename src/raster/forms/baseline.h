// The baseline form with all that kernels ask for.
#pragma once

#include "pixel/forms/baseline.h"
#include "raster/forms/form.h"

namespace zorvic {
namespace {

inline std::uint32_t Byte(Baseline v, int shift) { return v.pixel >> shift & 0xFF; }

inline Baseline MixBytes(Baseline a, Baseline::Weight k, Baseline b, Baseline::Weight l) {
    const std::uint32_t even = ((a.pixel & evenBytes) * k + (b.pixel & evenBytes) * l) >> 8;
    const std::uint32_t odd = (a.pixel >> 8 & evenBytes) * k + (b.pixel >> 8 & evenBytes) * l;
    return {(even & evenBytes) | (odd & oddBytes)};
}

inline Baseline MixTaps(Baseline p00, Baseline p10, Baseline p01, Baseline p11, Baseline::Weight tx,
                        Baseline::Weight ty) {
    const std::uint32_t w11 = tx * ty >> 8, w10 = tx - w11, w01 = ty - w11, w00 = 256 - tx - w01;
    const auto sum = [&](int shift) {
        return (p00.pixel >> shift & evenBytes) * w00 + (p10.pixel >> shift & evenBytes) * w10 +
               (p01.pixel >> shift & evenBytes) * w01 + (p11.pixel >> shift & evenBytes) * w11;
    };
    return {(sum(0) >> 8 & evenBytes) | (sum(8) & oddBytes)};
}

inline Baseline AddBytes(Baseline a, Baseline b) {
    const std::uint32_t even = (a.pixel & evenBytes) + (b.pixel & evenBytes);
    const std::uint32_t odd = (a.pixel >> 8 & evenBytes) + (b.pixel >> 8 & evenBytes);
    return {(even & evenBytes) | (odd & evenBytes) << 8};
}

// Every byte f(a's byte, b's byte).
template <class Function>
Baseline EachByte(Baseline a, Baseline b, Function f) {
    std::uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8) pixel |= f(Byte(a, shift), Byte(b, shift)) << shift;
    return {pixel};
}

inline Baseline MultiplyBytes(Baseline a, Baseline b) {
    return EachByte(a, b, [](std::uint32_t x, std::uint32_t y) { return (x + 1) * y >> 8; });
}

inline Baseline ScaleBytes(Baseline a, Baseline b) {
    return EachByte(a, b, [](std::uint32_t x, std::uint32_t y) { return x * y >> 8; });
}

inline Baseline Luma(Baseline v) { return {(Byte(v, 0) + 2 * Byte(v, 8) + Byte(v, 16)) / 4 * 0x01010101}; }
inline Baseline SelectEqual(Baseline a, Baseline b, Baseline c, Baseline d) { return a.pixel == b.pixel ? c : d; }

}  // namespace
}  // namespace zorvic

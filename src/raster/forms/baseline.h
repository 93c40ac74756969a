// The baseline form: one pixel in a 32-bit word, plain integer C++, two channels per multiplication.
#pragma once

#include <cstring>

#include "raster/forms/form.h"

namespace zorvic {
namespace {

struct Baseline {
    using Weight = std::uint32_t;
    static constexpr int lanes = 1;

    std::uint32_t pixel;

    static Baseline Load(const std::uint32_t* in) {
        Baseline v;
        std::memcpy(&v.pixel, in, sizeof v.pixel);  // rows may start at any byte
        return v;
    }
    static Baseline Broadcast(std::uint32_t word) { return {word}; }
    static Weight LoadWeights(const std::uint32_t* in) { return *in; }
    static Weight Uniform(int factor) { return static_cast<Weight>(factor); }
    void Store(std::uint32_t* out) const { std::memcpy(out, &pixel, sizeof pixel); }

    friend Baseline operator+(Baseline a, Baseline b) { return {a.pixel + b.pixel}; }
    friend Baseline operator|(Baseline a, Baseline b) { return {a.pixel | b.pixel}; }
};

// Blue and red stand in the even bytes, green and alpha in the odd ones.
constexpr std::uint32_t evenBytes = 0x00FF00FF;
constexpr std::uint32_t oddBytes = 0xFF00FF00;

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

inline Baseline Scale(Baseline v, Baseline::Weight k) {
    const std::uint32_t even = ((v.pixel & evenBytes) * k) >> 8;
    const std::uint32_t odd = (v.pixel >> 8 & evenBytes) * k;
    return {(even & evenBytes) | (odd & oddBytes)};
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

inline Baseline InvertBytes(Baseline v) { return {~v.pixel}; }
inline Baseline Luma(Baseline v) { return {(Byte(v, 0) + 2 * Byte(v, 8) + Byte(v, 16)) / 4 * 0x01010101}; }
inline Baseline::Weight AlphaWeight(Baseline v) { return v.pixel >> 24; }
inline Baseline::Weight InverseAlpha(Baseline v) { return 256 - (v.pixel >> 24); }
inline Baseline SelectEqual(Baseline a, Baseline b, Baseline c, Baseline d) { return a.pixel == b.pixel ? c : d; }
inline Baseline WithAlphaOf(Baseline color, Baseline alpha) {
    return {(color.pixel & 0x00FFFFFF) | (alpha.pixel & 0xFF000000)};
}

}  // namespace
}  // namespace zorvic

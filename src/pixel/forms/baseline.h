// The baseline form: one pixel in a 32-bit word, plain integer C++, two channels per multiplication.
#pragma once

#include <cstring>

#include "pixel/forms/form.h"

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
    static Baseline LoadPart(const std::uint32_t*, int) { return {0}; }
    static Baseline Broadcast(std::uint32_t word) { return {word}; }
    static Weight LoadWeights(const std::uint32_t* in) { return *in; }
    static Weight Uniform(int factor) { return static_cast<Weight>(factor); }
    void Store(std::uint32_t* out) const { std::memcpy(out, &pixel, sizeof pixel); }
    void StorePart(std::uint32_t*, int) const {}

    friend Baseline operator+(Baseline a, Baseline b) { return {a.pixel + b.pixel}; }
    friend Baseline operator|(Baseline a, Baseline b) { return {a.pixel | b.pixel}; }
    friend Baseline operator&(Baseline a, Baseline b) { return {a.pixel & b.pixel}; }
};

// Blue and red stand in the even bytes, green and alpha in the odd ones.
constexpr std::uint32_t evenBytes = 0x00FF00FF;
constexpr std::uint32_t oddBytes = 0xFF00FF00;

inline Baseline Scale(Baseline v, Baseline::Weight k) {
    const std::uint32_t even = ((v.pixel & evenBytes) * k) >> 8;
    const std::uint32_t odd = (v.pixel >> 8 & evenBytes) * k;
    return {(even & evenBytes) | (odd & oddBytes)};
}

// Every byte x k / 255, k in 0..255, rounded to nearest: with t = byte x k + 128 that is (t + (t >> 8)) >> 8.
inline Baseline ScaleRounded(Baseline v, Baseline::Weight k) {
    const auto scaled = [k](std::uint32_t two) {
        const std::uint32_t t = two * k + 0x00800080;
        return t + (t >> 8 & evenBytes);
    };
    return {(scaled(v.pixel & evenBytes) >> 8 & evenBytes) | (scaled(v.pixel >> 8 & evenBytes) & oddBytes)};
}

// Every byte by itself, at most 255.
inline Baseline AddSaturated(Baseline a, Baseline b) {
    const auto sum = [](std::uint32_t x, std::uint32_t y) {
        const std::uint32_t two = x + y;
        return (two | ((two >> 8 & 0x00010001) * 0xFF)) & evenBytes;
    };
    return {sum(a.pixel & evenBytes, b.pixel & evenBytes) | sum(a.pixel >> 8 & evenBytes, b.pixel >> 8 & evenBytes)
                                                                << 8};
}

inline Baseline InvertBytes(Baseline v) { return {~v.pixel}; }
inline Baseline::Weight AlphaWeight(Baseline v) { return v.pixel >> 24; }
inline Baseline::Weight InverseAlpha(Baseline v) { return 256 - (v.pixel >> 24); }
inline Baseline WithAlphaOf(Baseline color, Baseline alpha) {
    return {(color.pixel & 0x00FFFFFF) | (alpha.pixel & 0xFF000000)};
}
inline Baseline Reversed(Baseline v) { return v; }

}  // namespace
}  // namespace zorvic

// The baseline form: one pixel in a 32-bit word, plain integer C++, two channels per multiplication.
#pragma once

#include <cstring>

#include "pixel/forms/boxes_baseline.h"
#include "pixel/forms/form.h"
#include "pixel/forms/sums.h"

namespace zorvic {
namespace {

// Blue and red stand in the even bytes, green and alpha in the odd ones.
constexpr std::uint32_t evenBytes = 0x00FF00FF;
constexpr std::uint32_t oddBytes = 0xFF00FF00;

struct Baseline {
    using Boxes = BaselineBoxes;
    using ColumnForm = Baseline;
    using Weight = std::uint32_t;

    // Two 16-bit numbers in each word. Borrows and carries between them cancel: what the sums come to at the end lies
    // within 16 bits.
    struct Wide {
        std::uint32_t even, odd;

        friend Wide operator+(Wide a, Wide b) { return {a.even + b.even, a.odd + b.odd}; }
        friend Wide operator-(Wide a, Wide b) { return {a.even - b.even, a.odd - b.odd}; }
        friend Wide operator*(Wide a, Weight k) { return {a.even * k, a.odd * k}; }
    };

    // A number in single precision for each pixel; see reals.h.
    struct Reals {
        using Pixels = Baseline;

        float value;

        static Reals Byte(Baseline v, int shift) { return {static_cast<float>(v.pixel >> shift & 0xFF)}; }
        static Reals Repeat(float number) { return {number}; }
        static Reals Lookup(const float* table, Reals index) { return {table[static_cast<int>(index.value)]}; }
        Baseline Words() const { return {static_cast<std::uint32_t>(static_cast<int>(value))}; }

        friend Reals operator+(Reals a, Reals b) { return {a.value + b.value}; }
        friend Reals operator-(Reals a, Reals b) { return {a.value - b.value}; }
        friend Reals operator*(Reals a, Reals b) { return {a.value * b.value}; }
        friend Reals operator/(Reals a, Reals b) { return {a.value / b.value}; }
        friend Reals Larger(Reals a, Reals b) { return a.value > b.value ? a : b; }
        friend Reals Smaller(Reals a, Reals b) { return a.value < b.value ? a : b; }
        friend Reals Whole(Reals a) { return {static_cast<float>(static_cast<int>(a.value))}; }
        friend Reals SelectEqual(Reals a, Reals b, Reals c, Reals d) { return a.value == b.value ? c : d; }
        friend Reals SelectAtMost(Reals a, Reals b, Reals c, Reals d) { return a.value <= b.value ? c : d; }
    };

    using Sums = PlainSums<std::uint32_t, SumDivider>;

    struct Guard {};
    static constexpr int lanes = 1;
    static constexpr bool picksFromWindows = false;

    std::uint32_t pixel;

    static Baseline Load(const std::uint32_t* in) {
        Baseline v;
        std::memcpy(&v.pixel, in, sizeof v.pixel);  // rows may start at any byte
        return v;
    }
    static Baseline LoadPart(const std::uint32_t*, int) { return {0}; }
    static Baseline Broadcast(std::uint32_t word) { return {word}; }
    static Weight LoadWeights(const std::uint32_t* in) { return *in; }
    static Weight ScaleWeight(Weight k, Weight l) { return k * l >> 8; }
    static Weight Uniform(int factor) { return static_cast<Weight>(factor); }

    template <int reach>
    static Baseline Pick(const std::uint32_t* window, const int* lane) {
        return Load(window + *lane);
    }

    template <int reach>
    static void PickPairs(const std::uint32_t* window, const int* lane, Baseline& left, Baseline& right) {
        left = Load(window + *lane);
        right = Load(window + *lane + 1);
    }

    static void LoadColumns(const std::byte* rows, std::ptrdiff_t, Baseline (&columns)[4]) {
        std::memcpy(columns, rows, sizeof columns);
    }

    static void SumTaps(const std::uint32_t* row, const TapGroup& taps, std::int16_t* sums) {
        for (int column = 0; column < 4; ++column)
            for (int shift = 0; shift < 32; shift += 8) {
                int sum = horizontalRound;
                for (int tap = 0; tap < 4; ++tap)
                    sum += static_cast<int>(Load(row + taps.first[column] + tap).pixel >> shift & 0xFF) *
                           taps.weights[column % 2][tap / 2][column / 2][tap % 2];
                *sums++ = static_cast<std::int16_t>(sum >> horizontalShift);
            }
    }

    template <int rowLength>
    static Baseline MixSums(const std::int16_t* rows, int i, const RowWeights& weights) {
        std::uint32_t pixel = 0;
        for (int channel = 0; channel < 4; ++channel) {
            int sum = verticalRound;
            for (int tap = 0; tap < 4; ++tap) sum += rows[tap * rowLength + 4 * i + channel] * weights.weight[tap];
            sum >>= verticalShift;
            pixel |= static_cast<std::uint32_t>(sum < 0 ? 0 : sum > 255 ? 255 : sum) << (8 * channel);
        }
        return {pixel};
    }

    static Wide LoadWide(const std::uint32_t* even, const std::uint32_t* odd) { return {*even, *odd}; }

    void Store(std::uint32_t* out) const { std::memcpy(out, &pixel, sizeof pixel); }
    void StorePart(std::uint32_t*, int) const {}

    friend Baseline operator+(Baseline a, Baseline b) { return {a.pixel + b.pixel}; }
    friend Baseline operator|(Baseline a, Baseline b) { return {a.pixel | b.pixel}; }
    friend Baseline operator&(Baseline a, Baseline b) { return {a.pixel & b.pixel}; }
};

inline std::uint32_t Byte(Baseline v, int shift) { return v.pixel >> shift & 0xFF; }

// Every byte f(a's byte, b's byte).
template <class Function>
Baseline EachByte(Baseline a, Baseline b, Function f) {
    std::uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8) pixel |= f(Byte(a, shift), Byte(b, shift)) << shift;
    return {pixel};
}

inline Baseline AddBytes(Baseline a, Baseline b) {
    const std::uint32_t even = (a.pixel & evenBytes) + (b.pixel & evenBytes);
    const std::uint32_t odd = (a.pixel >> 8 & evenBytes) + (b.pixel >> 8 & evenBytes);
    return {(even & evenBytes) | (odd & evenBytes) << 8};
}

inline Baseline AddSaturated(Baseline a, Baseline b) {
    const auto sum = [](std::uint32_t x, std::uint32_t y) {
        const std::uint32_t two = x + y;
        return (two | ((two >> 8 & 0x00010001) * 0xFF)) & evenBytes;
    };
    return {sum(a.pixel & evenBytes, b.pixel & evenBytes) | sum(a.pixel >> 8 & evenBytes, b.pixel >> 8 & evenBytes)
                                                                << 8};
}

inline Baseline InvertBytes(Baseline v) { return {~v.pixel}; }
inline Baseline WithAlphaOf(Baseline color, Baseline alpha) {
    return {(color.pixel & 0x00FFFFFF) | (alpha.pixel & 0xFF000000)};
}
inline Baseline SelectEqual(Baseline a, Baseline b, Baseline c, Baseline d) { return a.pixel == b.pixel ? c : d; }
inline Baseline Luma(Baseline v) { return {(Byte(v, 0) + 2 * Byte(v, 8) + Byte(v, 16)) / 4 * 0x01010101}; }
inline Baseline AlphaBytes(Baseline v) { return {Byte(v, 24) * 0x01010101}; }
inline Baseline LargestColor(Baseline v) {
    const std::uint32_t blue = Byte(v, 0), green = Byte(v, 8), red = Byte(v, 16);
    const std::uint32_t larger = blue > green ? blue : green;
    return {(larger > red ? larger : red) << 24};
}
inline Baseline Reversed(Baseline v) { return v; }

inline Baseline::Weight AlphaWeight(Baseline v) { return v.pixel >> 24; }
inline Baseline::Weight AlphaPlusOne(Baseline v) { return (v.pixel >> 24) + 1; }
inline Baseline::Weight InverseAlpha(Baseline v) { return 256 - (v.pixel >> 24); }

inline Baseline::Wide Widened(Baseline v) { return {v.pixel & evenBytes, v.pixel >> 8 & evenBytes}; }
inline Baseline::Wide Times256(Baseline::Wide w) { return {w.even << 8, w.odd << 8}; }
inline Baseline HighBytes(Baseline::Wide w) { return {(w.even >> 8 & evenBytes) | (w.odd & oddBytes)}; }

inline Baseline LowBytes(Baseline::Wide w) { return {w.even | w.odd << 8}; }
inline Baseline::Wide HighProducts(Baseline::Wide w, int number) {
    const auto product = [=](std::uint32_t two) {
        const auto k = static_cast<std::uint32_t>(number);
        return (two & 0xFFFF) * k >> 16 | ((two >> 16) * k & 0xFFFF0000);
    };
    return {product(w.even), product(w.odd)};
}
inline void StoreWide(Baseline::Wide w, std::uint32_t* even, std::uint32_t* odd) {
    *even = w.even;
    *odd = w.odd;
}

inline Baseline Scale(Baseline v, Baseline::Weight k) { return HighBytes(Widened(v) * k); }

// With t = byte x k + 128 the quotient is (t + (t >> 8)) >> 8.
inline Baseline ScaleRounded(Baseline v, Baseline::Weight k) {
    const auto rounded = [](std::uint32_t two) { return two + 0x00800080 + ((two + 0x00800080) >> 8 & evenBytes); };
    const Baseline::Wide w = Widened(v) * k;
    return HighBytes({rounded(w.even), rounded(w.odd)});
}

inline Baseline MixBytes(Baseline a, Baseline::Weight k, Baseline b, Baseline::Weight l) {
    return HighBytes(Widened(a) * k + Widened(b) * l);
}
inline Baseline MultiplyBytes(Baseline a, Baseline b) {
    return EachByte(a, b, [](std::uint32_t x, std::uint32_t y) { return (x + 1) * y >> 8; });
}
inline Baseline ScaleBytes(Baseline a, Baseline b) {
    return EachByte(a, b, [](std::uint32_t x, std::uint32_t y) { return x * y >> 8; });
}

}  // namespace
}  // namespace zorvic

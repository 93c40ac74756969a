// Two pixels in a 64-bit register of the MMX unit; mmx.h and sse.h name the two forms, which differ in how they spread
// alpha. Only files built for MMX include this.
#pragma once

#include <mmintrin.h>

#include <cstring>

#include "pixel/forms/boxes_baseline.h"
#include "pixel/forms/form.h"

namespace zorvic {
namespace {

// Spread::Alpha: the alpha of each pixel twice in 16 bits.
template <class Spread>
struct Packed64 {
    using Boxes = BaselineBoxes;  // means take floating point, which these registers rule out
    using ColumnForm = Packed64;

    // The factor of a pixel twice in 16 bits.
    struct Weight {
        __m64 factors;

        friend Weight operator-(Weight k, Weight l) { return {_mm_sub_pi16(k.factors, l.factors)}; }
    };

    // Blue and red, and green and alpha, of each pixel.
    struct Wide {
        __m64 even, odd;

        // Member by member: compilers copy the whole through the stack.
        Wide() {}
        Wide(__m64 evenNumbers, __m64 oddNumbers) : even(evenNumbers), odd(oddNumbers) {}
        Wide(const Wide& other) : even(other.even), odd(other.odd) {}
        Wide& operator=(const Wide& other) {
            even = other.even;
            odd = other.odd;
            return *this;
        }

        friend Wide operator+(Wide a, Wide b) { return {_mm_add_pi16(a.even, b.even), _mm_add_pi16(a.odd, b.odd)}; }
        friend Wide operator-(Wide a, Wide b) { return {_mm_sub_pi16(a.even, b.even), _mm_sub_pi16(a.odd, b.odd)}; }
        friend Wide operator*(Wide a, Weight k) {
            return {_mm_mullo_pi16(a.even, k.factors), _mm_mullo_pi16(a.odd, k.factors)};
        }
    };

    // The registers are those of the x87 unit, which finds them free again.
    struct Guard {
        ~Guard() { _mm_empty(); }
    };

    static constexpr int lanes = 2;
    static constexpr bool picksFromWindows = false;

    __m64 pixels;

    static Packed64 Load(const std::uint32_t* in) { return {LoadAll(in)}; }
    static Packed64 LoadPart(const std::uint32_t* in, int) { return {LoadOne(in)}; }
    static Packed64 Broadcast(std::uint32_t word) { return {_mm_set1_pi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) { return {_mm_set1_pi16(static_cast<short>(factor))}; }
    static Weight LoadWeights(const std::uint32_t* in) {
        const __m64 words = LoadAll(in);
        return {_mm_or_si64(words, _mm_slli_pi32(words, 16))};
    }
    static Weight ScaleWeight(Weight k, Weight l) { return {_mm_srli_pi16(_mm_mullo_pi16(k.factors, l.factors), 8)}; }

    template <int reach>
    static Packed64 Pick(const std::uint32_t* window, const int* lane) {
        return {_mm_unpacklo_pi32(LoadOne(window + lane[0]), LoadOne(window + lane[1]))};
    }

    template <int reach>
    static void PickPairs(const std::uint32_t* window, const int* lane, Packed64& left, Packed64& right) {
        const __m64 first = LoadAll(window + lane[0]), last = LoadAll(window + lane[1]);
        left.pixels = _mm_unpacklo_pi32(first, last);
        right.pixels = _mm_unpackhi_pi32(first, last);
    }

    static void LoadColumns(const std::byte* rows, std::ptrdiff_t step, Packed64 (&columns)[4]) {
        for (int half = 0; half < 2; ++half) {
            const __m64 upper = LoadAll(rows + 8 * half), lower = LoadAll(rows + step + 8 * half);
            columns[2 * half] = {_mm_unpacklo_pi32(upper, lower)};
            columns[2 * half + 1] = {_mm_unpackhi_pi32(upper, lower)};
        }
    }

    static void SumTaps(const std::uint32_t* row, const TapGroup& taps, std::int16_t* sums) {
        const __m64 zero = _mm_setzero_si64();
        for (int column = 0; column < 4; ++column, sums += 4) {
            const std::uint32_t* const in = row + taps.first[column];
            const auto& weights = taps.weights[column % 2];
            const __m64 pairs = _mm_unpacklo_pi8(LoadOne(in), LoadOne(in + 1));
            const __m64 lastPairs = _mm_unpacklo_pi8(LoadOne(in + 2), LoadOne(in + 3));
            const __m64 first = LoadAll(weights[0][column / 2]), last = LoadAll(weights[1][column / 2]);
            const auto sum = [&](__m64 pair, __m64 lastPair) {
                const __m64 all = _mm_add_pi32(_mm_madd_pi16(pair, first), _mm_madd_pi16(lastPair, last));
                return _mm_srai_pi32(_mm_add_pi32(all, _mm_set1_pi32(horizontalRound)), horizontalShift);
            };
            StoreAll(sums, _mm_packs_pi32(sum(_mm_unpacklo_pi8(pairs, zero), _mm_unpacklo_pi8(lastPairs, zero)),
                                          sum(_mm_unpackhi_pi8(pairs, zero), _mm_unpackhi_pi8(lastPairs, zero))));
        }
    }

    template <int rowLength>
    static Packed64 MixSums(const std::int16_t* rows, int i, const RowWeights& weights) {
        std::int32_t pairs[2];
        std::memcpy(pairs, weights.weight, sizeof pairs);
        const __m64 first = _mm_set1_pi32(pairs[0]), last = _mm_set1_pi32(pairs[1]);
        const auto mixed = [&](int at) {
            const __m64 r0 = LoadAll(rows + at), r1 = LoadAll(rows + rowLength + at);
            const __m64 r2 = LoadAll(rows + 2 * rowLength + at), r3 = LoadAll(rows + 3 * rowLength + at);
            const auto total = [&](__m64 upper, __m64 lower) {
                const __m64 sum = _mm_add_pi32(_mm_madd_pi16(upper, first), _mm_madd_pi16(lower, last));
                return _mm_srai_pi32(_mm_add_pi32(sum, _mm_set1_pi32(verticalRound)), verticalShift);
            };
            return _mm_packs_pi32(total(_mm_unpacklo_pi16(r0, r1), _mm_unpacklo_pi16(r2, r3)),
                                  total(_mm_unpackhi_pi16(r0, r1), _mm_unpackhi_pi16(r2, r3)));
        };
        return {_mm_packs_pu16(mixed(4 * i), mixed(4 * i + 4))};
    }

    static Wide LoadWide(const std::uint32_t* even, const std::uint32_t* odd) { return {LoadAll(even), LoadAll(odd)}; }

    void Store(std::uint32_t* out) const { StoreAll(out, pixels); }
    void StorePart(std::uint32_t* out, int) const {
        const int word = _mm_cvtsi64_si32(pixels);
        std::memcpy(out, &word, sizeof word);
    }

    friend Packed64 operator+(Packed64 a, Packed64 b) { return {_mm_add_pi32(a.pixels, b.pixels)}; }
    friend Packed64 operator|(Packed64 a, Packed64 b) { return {_mm_or_si64(a.pixels, b.pixels)}; }
    friend Packed64 operator&(Packed64 a, Packed64 b) { return {_mm_and_si64(a.pixels, b.pixels)}; }

    friend Packed64 AddBytes(Packed64 a, Packed64 b) { return {_mm_add_pi8(a.pixels, b.pixels)}; }
    friend Packed64 AddSaturated(Packed64 a, Packed64 b) { return {_mm_adds_pu8(a.pixels, b.pixels)}; }
    friend Packed64 InvertBytes(Packed64 v) { return {_mm_xor_si64(v.pixels, _mm_set1_pi32(-1))}; }
    friend Packed64 WithAlphaOf(Packed64 color, Packed64 alpha) {
        return {Select(_mm_set1_pi32(0x00FFFFFF), color.pixels, alpha.pixels)};
    }
    friend Packed64 SelectEqual(Packed64 a, Packed64 b, Packed64 c, Packed64 d) {
        return {Select(_mm_cmpeq_pi32(a.pixels, b.pixels), c.pixels, d.pixels)};
    }

    friend Packed64 Luma(Packed64 v) {
        const Wide w = Widened(v);
        const __m64 sum = _mm_add_pi32(_mm_madd_pi16(w.even, _mm_set1_pi16(1)), _mm_madd_pi16(w.odd, _mm_set1_pi32(2)));
        const __m64 two = _mm_srli_pi32(sum, 2), four = _mm_or_si64(two, _mm_slli_pi32(two, 16));
        return {_mm_or_si64(four, _mm_slli_pi32(four, 8))};
    }
    friend Packed64 AlphaBytes(Packed64 v) {
        const __m64 alphas = Spread::Alpha(v.pixels);
        return {_mm_or_si64(alphas, _mm_slli_pi16(alphas, 8))};
    }
    // A difference that does not go below 0 makes a maximum.
    friend Packed64 LargestColor(Packed64 v) {
        const auto larger = [](__m64 a, __m64 b) { return _mm_adds_pu8(_mm_subs_pu8(a, b), b); };
        return {larger(_mm_slli_pi32(v.pixels, 8), larger(_mm_slli_pi32(v.pixels, 16), _mm_slli_pi32(v.pixels, 24)))};
    }
    friend Packed64 Reversed(Packed64 v) {
        return {_mm_or_si64(_mm_srli_si64(v.pixels, 32), _mm_slli_si64(v.pixels, 32))};
    }

    friend Weight AlphaWeight(Packed64 v) { return {Spread::Alpha(v.pixels)}; }
    friend Weight AlphaPlusOne(Packed64 v) { return {_mm_add_pi16(_mm_set1_pi16(1), Spread::Alpha(v.pixels))}; }
    friend Weight InverseAlpha(Packed64 v) { return {_mm_sub_pi16(_mm_set1_pi16(256), Spread::Alpha(v.pixels))}; }

    friend Wide Widened(Packed64 v) { return {_mm_and_si64(v.pixels, LowBytes()), _mm_srli_pi16(v.pixels, 8)}; }
    friend Wide Times256(Wide w) { return {_mm_slli_pi16(w.even, 8), _mm_slli_pi16(w.odd, 8)}; }
    friend Packed64 HighBytes(Wide w) {
        return {_mm_or_si64(_mm_srli_pi16(w.even, 8), _mm_andnot_si64(LowBytes(), w.odd))};
    }

    friend Packed64 LowBytes(Wide w) { return {_mm_or_si64(w.even, _mm_slli_pi16(w.odd, 8))}; }
    friend Wide HighProducts(Wide w, int number) {
        const __m64 k = _mm_set1_pi16(static_cast<short>(number));
        return {_mm_mulhi_pi16(w.even, k), _mm_mulhi_pi16(w.odd, k)};
    }
    friend void StoreWide(Wide w, std::uint32_t* even, std::uint32_t* odd) {
        StoreAll(even, w.even);
        StoreAll(odd, w.odd);
    }

    friend Packed64 Scale(Packed64 v, Weight k) { return HighBytes(Widened(v) * k); }
    friend Packed64 ScaleBytes(Packed64 a, Packed64 b) { return Products(Widened(a), Widened(b)); }
    friend Packed64 MultiplyBytes(Packed64 a, Packed64 b) {
        const __m64 one = _mm_set1_pi16(1);
        return Products(Widened(a) + Wide{one, one}, Widened(b));
    }
    friend Packed64 MixBytes(Packed64 a, Weight k, Packed64 b, Weight l) {
        return HighBytes(Widened(a) * k + Widened(b) * l);
    }

    // With t = byte x k + 128 the quotient is (t + (t >> 8)) >> 8.
    friend Packed64 ScaleRounded(Packed64 v, Weight k) {
        const auto rounded = [](__m64 product) {
            const __m64 t = _mm_add_pi16(product, _mm_set1_pi16(128));
            return _mm_add_pi16(t, _mm_srli_pi16(t, 8));
        };
        const Wide w = Widened(v) * k;
        return HighBytes(Wide{rounded(w.even), rounded(w.odd)});
    }

private:
    static __m64 LoadAll(const void* in) {
        __m64 v;
        std::memcpy(&v, in, sizeof v);
        return v;
    }
    static void StoreAll(void* out, __m64 v) { std::memcpy(out, &v, sizeof v); }
    static __m64 LoadOne(const std::uint32_t* in) {
        int word;
        std::memcpy(&word, in, sizeof word);
        return _mm_cvtsi32_si64(word);
    }
    static __m64 LowBytes() { return _mm_set1_pi16(0xFF); }
    // Bits of a where the mask has ones, else of b.
    static __m64 Select(__m64 mask, __m64 a, __m64 b) {
        return _mm_or_si64(_mm_and_si64(mask, a), _mm_andnot_si64(mask, b));
    }
    static Packed64 Products(Wide a, Wide b) {
        return HighBytes(Wide{_mm_mullo_pi16(a.even, b.even), _mm_mullo_pi16(a.odd, b.odd)});
    }
};

}  // namespace
}  // namespace zorvic

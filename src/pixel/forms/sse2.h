// The SSE2 form: four pixels in a 128-bit register. Only files built for SSE2 include this.
#pragma once

#include <emmintrin.h>

#include <cstring>

#include "pixel/forms/boxes_sse2.h"
#include "pixel/forms/form.h"
#include "pixel/forms/sums.h"

namespace zorvic {
namespace {

struct Sse2 {
    using Boxes = Sse2Boxes;
    using ColumnForm = Sse2;

    // The factor of a pixel twice in 16 bits.
    struct Weight {
        __m128i factors;

        friend Weight operator-(Weight k, Weight l) { return {_mm_sub_epi16(k.factors, l.factors)}; }
    };

    // Blue and red, and green and alpha, of each pixel.
    struct Wide {
        __m128i even, odd;

        // Member by member: compilers copy the whole through the stack.
        Wide() {}
        Wide(__m128i evenNumbers, __m128i oddNumbers) : even(evenNumbers), odd(oddNumbers) {}
        Wide(const Wide& other) : even(other.even), odd(other.odd) {}
        Wide& operator=(const Wide& other) {
            even = other.even;
            odd = other.odd;
            return *this;
        }

        friend Wide operator+(Wide a, Wide b) { return {_mm_add_epi16(a.even, b.even), _mm_add_epi16(a.odd, b.odd)}; }
        friend Wide operator-(Wide a, Wide b) { return {_mm_sub_epi16(a.even, b.even), _mm_sub_epi16(a.odd, b.odd)}; }
        friend Wide operator*(Wide a, Weight k) {
            return {_mm_mullo_epi16(a.even, k.factors), _mm_mullo_epi16(a.odd, k.factors)};
        }
    };

    // A number in single precision for each pixel; see reals.h.
    struct Reals {
        using Pixels = Sse2;

        __m128 values;

        static Reals Byte(Sse2 v, int shift) {
            return {_mm_cvtepi32_ps(_mm_and_si128(_mm_srli_epi32(v.pixels, shift), _mm_set1_epi32(0xFF)))};
        }
        static Reals Repeat(float number) { return {_mm_set1_ps(number)}; }
        static Reals Lookup(const float* table, Reals index) {
            alignas(16) int i[4];
            StoreAll(i, _mm_cvttps_epi32(index.values));
            return {_mm_setr_ps(table[i[0]], table[i[1]], table[i[2]], table[i[3]])};
        }
        Sse2 Words() const { return {_mm_cvttps_epi32(values)}; }

        friend Reals operator+(Reals a, Reals b) { return {_mm_add_ps(a.values, b.values)}; }
        friend Reals operator-(Reals a, Reals b) { return {_mm_sub_ps(a.values, b.values)}; }
        friend Reals operator*(Reals a, Reals b) { return {_mm_mul_ps(a.values, b.values)}; }
        friend Reals operator/(Reals a, Reals b) { return {_mm_div_ps(a.values, b.values)}; }
        friend Reals Larger(Reals a, Reals b) { return {_mm_max_ps(a.values, b.values)}; }
        friend Reals Smaller(Reals a, Reals b) { return {_mm_min_ps(a.values, b.values)}; }
        friend Reals Whole(Reals a) { return {_mm_cvtepi32_ps(_mm_cvttps_epi32(a.values))}; }
        friend Reals SelectEqual(Reals a, Reals b, Reals c, Reals d) {
            return Chosen(_mm_cmpeq_ps(a.values, b.values), c, d);
        }
        friend Reals SelectAtMost(Reals a, Reals b, Reals c, Reals d) {
            return Chosen(_mm_cmple_ps(a.values, b.values), c, d);
        }

    private:
        static Reals Chosen(__m128 mask, Reals c, Reals d) {
            return {_mm_or_ps(_mm_and_ps(mask, c.values), _mm_andnot_ps(mask, d.values))};
        }
    };

    // One pixel.
    struct Sums {
        using Number = std::uint32_t;
        using Divider = SumDivider;
        static constexpr int pixels = 1;

        __m128i numbers;

        static Sums FromPixels(const std::uint32_t* in) {
            const __m128i zero = _mm_setzero_si128();
            return {_mm_unpacklo_epi16(_mm_unpacklo_epi8(LoadOne(in), zero), zero)};
        }
        static Sums Load(const std::uint32_t* in) { return {LoadAll(in)}; }
        static Sums Repeat(const std::uint32_t* in) { return Load(in); }
        void Store(std::uint32_t* out) const { StoreAll(out, numbers); }
        void StorePixels(std::uint32_t* out) const {
            const __m128i words = _mm_packs_epi32(numbers, numbers);
            StoreOne(out, _mm_packus_epi16(words, words));
        }

        friend Sums operator+(Sums a, Sums b) { return {_mm_add_epi32(a.numbers, b.numbers)}; }
        friend Sums operator-(Sums a, Sums b) { return {_mm_sub_epi32(a.numbers, b.numbers)}; }
        friend Sums Quotients(Sums s, SumDivider divider) {
            const __m128i k = _mm_set1_epi32(static_cast<int>(divider.multiplier));
            const __m128i even = _mm_mul_epu32(s.numbers, k), odd = _mm_mul_epu32(_mm_srli_epi64(s.numbers, 32), k);
            const __m128i high =
                _mm_or_si128(_mm_srli_epi64(even, 32), _mm_andnot_si128(_mm_set1_epi64x(0xFFFFFFFF), odd));
            return {_mm_srl_epi32(high, _mm_cvtsi32_si128(divider.shift))};
        }
    };

    struct Guard {};
    static constexpr int lanes = 4;
    static constexpr bool picksFromWindows = false;

    __m128i pixels;

    static Sse2 Load(const std::uint32_t* in) { return {LoadAll(in)}; }
    static Sse2 LoadPart(const std::uint32_t* in, int n) {
        if (n == 1) return {LoadOne(in)};
        return {n == 2 ? LoadTwo(in) : _mm_unpacklo_epi64(LoadTwo(in), LoadOne(in + 2))};
    }
    static Sse2 Broadcast(std::uint32_t word) { return {_mm_set1_epi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) { return {_mm_set1_epi16(static_cast<short>(factor))}; }
    static Weight LoadWeights(const std::uint32_t* in) { return {Twice(LoadAll(in))}; }
    static Weight ScaleWeight(Weight k, Weight l) { return {_mm_srli_epi16(_mm_mullo_epi16(k.factors, l.factors), 8)}; }

    template <int reach>
    static Sse2 Pick(const std::uint32_t* window, const int* lane) {
        const __m128i low = _mm_unpacklo_epi32(LoadOne(window + lane[0]), LoadOne(window + lane[1]));
        const __m128i high = _mm_unpacklo_epi32(LoadOne(window + lane[2]), LoadOne(window + lane[3]));
        return {_mm_unpacklo_epi64(low, high)};
    }

    static void LoadColumns(const std::byte* rows, std::ptrdiff_t step, Sse2 (&columns)[4]) {
        const __m128i r0 = LoadAll(rows), r1 = LoadAll(rows + step);
        const __m128i r2 = LoadAll(rows + 2 * step), r3 = LoadAll(rows + 3 * step);
        const __m128i left = _mm_unpacklo_epi32(r0, r1), leftBelow = _mm_unpacklo_epi32(r2, r3);
        const __m128i right = _mm_unpackhi_epi32(r0, r1), rightBelow = _mm_unpackhi_epi32(r2, r3);
        columns[0] = {_mm_unpacklo_epi64(left, leftBelow)};
        columns[1] = {_mm_unpackhi_epi64(left, leftBelow)};
        columns[2] = {_mm_unpacklo_epi64(right, rightBelow)};
        columns[3] = {_mm_unpackhi_epi64(right, rightBelow)};
    }

    template <int reach>
    static void PickPairs(const std::uint32_t* window, const int* lane, Sse2& left, Sse2& right) {
        const __m128i first = _mm_unpacklo_epi32(LoadTwo(window + lane[0]), LoadTwo(window + lane[1]));
        const __m128i last = _mm_unpacklo_epi32(LoadTwo(window + lane[2]), LoadTwo(window + lane[3]));
        left.pixels = _mm_unpacklo_epi64(first, last);
        right.pixels = _mm_unpackhi_epi64(first, last);
    }

    static void SumTaps(const std::uint32_t* row, const TapGroup& taps, std::int16_t* sums) {
        const auto sum = [&](int column) {
            const __m128i zero = _mm_setzero_si128();
            const __m128i taken = LoadAll(row + taps.first[column]);
            const __m128i pairs = _mm_unpacklo_epi8(taken, _mm_srli_si128(taken, 4));
            const __m128i lastPairs = _mm_unpacklo_epi8(_mm_srli_si128(taken, 8), _mm_srli_si128(taken, 12));
            const auto& weights = taps.weights[column % 2];
            const __m128i first = _mm_madd_epi16(_mm_unpacklo_epi8(pairs, zero), LoadAll(weights[0][column / 2]));
            const __m128i last = _mm_madd_epi16(_mm_unpacklo_epi8(lastPairs, zero), LoadAll(weights[1][column / 2]));
            const __m128i all = _mm_add_epi32(_mm_add_epi32(first, last), _mm_set1_epi32(horizontalRound));
            return _mm_srai_epi32(all, horizontalShift);
        };
        StoreAll(sums, _mm_packs_epi32(sum(0), sum(1)));
        StoreAll(sums + 8, _mm_packs_epi32(sum(2), sum(3)));
    }

    template <int rowLength>
    static Sse2 MixSums(const std::int16_t* rows, int i, const RowWeights& weights) {
        std::int32_t pairs[2];
        std::memcpy(pairs, weights.weight, sizeof pairs);
        const __m128i first = _mm_set1_epi32(pairs[0]), last = _mm_set1_epi32(pairs[1]);
        const auto mixed = [&](int at) {
            const __m128i r0 = LoadAll(rows + at), r1 = LoadAll(rows + rowLength + at);
            const __m128i r2 = LoadAll(rows + 2 * rowLength + at), r3 = LoadAll(rows + 3 * rowLength + at);
            const auto total = [&](__m128i upper, __m128i lower) {
                const __m128i sum = _mm_add_epi32(_mm_madd_epi16(upper, first), _mm_madd_epi16(lower, last));
                return _mm_srai_epi32(_mm_add_epi32(sum, _mm_set1_epi32(verticalRound)), verticalShift);
            };
            return _mm_packs_epi32(total(_mm_unpacklo_epi16(r0, r1), _mm_unpacklo_epi16(r2, r3)),
                                   total(_mm_unpackhi_epi16(r0, r1), _mm_unpackhi_epi16(r2, r3)));
        };
        return {_mm_packus_epi16(mixed(4 * i), mixed(4 * i + 8))};
    }

    static Wide LoadWide(const std::uint32_t* even, const std::uint32_t* odd) { return {LoadAll(even), LoadAll(odd)}; }

    void Store(std::uint32_t* out) const { StoreAll(out, pixels); }
    void StorePart(std::uint32_t* out, int n) const {
        if (n == 1) return StoreOne(out, pixels);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out), pixels);
        if (n == 3) StoreOne(out + 2, _mm_unpackhi_epi64(pixels, pixels));
    }

    friend Sse2 operator+(Sse2 a, Sse2 b) { return {_mm_add_epi32(a.pixels, b.pixels)}; }
    friend Sse2 operator|(Sse2 a, Sse2 b) { return {_mm_or_si128(a.pixels, b.pixels)}; }
    friend Sse2 operator&(Sse2 a, Sse2 b) { return {_mm_and_si128(a.pixels, b.pixels)}; }

    // The low half of every 32-bit word in both halves.
    static __m128i Twice(__m128i words) { return _mm_or_si128(words, _mm_slli_epi32(words, 16)); }

private:
    static __m128i LoadAll(const void* in) { return _mm_loadu_si128(static_cast<const __m128i*>(in)); }
    static void StoreAll(void* out, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(out), v); }
    static __m128i LoadOne(const std::uint32_t* in) {
        int word;
        std::memcpy(&word, in, sizeof word);
        return _mm_cvtsi32_si128(word);
    }
    static __m128i LoadTwo(const std::uint32_t* in) { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(in)); }
    static void StoreOne(std::uint32_t* out, __m128i v) {
        const int word = _mm_cvtsi128_si32(v);
        std::memcpy(out, &word, sizeof word);
    }
};

inline Sse2 AddBytes(Sse2 a, Sse2 b) { return {_mm_add_epi8(a.pixels, b.pixels)}; }
inline Sse2 AddSaturated(Sse2 a, Sse2 b) { return {_mm_adds_epu8(a.pixels, b.pixels)}; }
inline Sse2 InvertBytes(Sse2 v) { return {_mm_xor_si128(v.pixels, _mm_set1_epi32(-1))}; }

// Bits of a where the mask has ones, else of b.
inline __m128i Select(__m128i mask, __m128i a, __m128i b) {
    return _mm_or_si128(_mm_and_si128(mask, a), _mm_andnot_si128(mask, b));
}
inline Sse2 WithAlphaOf(Sse2 color, Sse2 alpha) {
    return {Select(_mm_set1_epi32(0x00FFFFFF), color.pixels, alpha.pixels)};
}
inline Sse2 SelectEqual(Sse2 a, Sse2 b, Sse2 c, Sse2 d) {
    return {Select(_mm_cmpeq_epi32(a.pixels, b.pixels), c.pixels, d.pixels)};
}

inline Sse2 Luma(Sse2 v) {
    const __m128i even = _mm_and_si128(v.pixels, _mm_set1_epi16(0xFF)), odd = _mm_srli_epi16(v.pixels, 8);
    const __m128i sum = _mm_add_epi32(_mm_madd_epi16(even, _mm_set1_epi16(1)), _mm_madd_epi16(odd, _mm_set1_epi32(2)));
    const __m128i gray = Sse2::Twice(_mm_srli_epi32(sum, 2));
    return {_mm_or_si128(gray, _mm_slli_epi32(gray, 8))};
}
inline Sse2 AlphaBytes(Sse2 v) {
    const __m128i alphas = Sse2::Twice(_mm_srli_epi32(v.pixels, 24));
    return {_mm_or_si128(alphas, _mm_slli_epi16(alphas, 8))};
}
inline Sse2 LargestColor(Sse2 v) {
    const __m128i larger = _mm_max_epu8(_mm_slli_epi32(v.pixels, 16), _mm_slli_epi32(v.pixels, 24));
    return {_mm_max_epu8(_mm_slli_epi32(v.pixels, 8), larger)};
}
inline Sse2 Reversed(Sse2 v) { return {_mm_shuffle_epi32(v.pixels, _MM_SHUFFLE(0, 1, 2, 3))}; }

inline Sse2::Weight AlphaWeight(Sse2 v) { return {Sse2::Twice(_mm_srli_epi32(v.pixels, 24))}; }
inline Sse2::Weight AlphaPlusOne(Sse2 v) { return {_mm_add_epi16(_mm_set1_epi16(1), AlphaWeight(v).factors)}; }
inline Sse2::Weight InverseAlpha(Sse2 v) { return {_mm_sub_epi16(_mm_set1_epi16(256), AlphaWeight(v).factors)}; }

inline Sse2::Wide Widened(Sse2 v) {
    return {_mm_and_si128(v.pixels, _mm_set1_epi16(0xFF)), _mm_srli_epi16(v.pixels, 8)};
}
inline Sse2::Wide Times256(Sse2::Wide w) { return {_mm_slli_epi16(w.even, 8), _mm_slli_epi16(w.odd, 8)}; }
inline Sse2 HighBytes(Sse2::Wide w) {
    const __m128i odd = _mm_andnot_si128(_mm_set1_epi16(0xFF), w.odd);
    return {_mm_or_si128(_mm_srli_epi16(w.even, 8), odd)};
}

inline Sse2 LowBytes(Sse2::Wide w) { return {_mm_or_si128(w.even, _mm_slli_epi16(w.odd, 8))}; }
inline Sse2::Wide HighProducts(Sse2::Wide w, int number) {
    const __m128i k = _mm_set1_epi16(static_cast<short>(number));
    return {_mm_mulhi_epi16(w.even, k), _mm_mulhi_epi16(w.odd, k)};
}
inline void StoreWide(Sse2::Wide w, std::uint32_t* even, std::uint32_t* odd) {
    Sse2{w.even}.Store(even);
    Sse2{w.odd}.Store(odd);
}

// Every byte of b by the 16-bit factor of its place, >> 8. The high half of a product needs no shift.
inline Sse2 Products(Sse2 b, __m128i evenFactors, __m128i oddFactors) {
    const __m128i even = _mm_mulhi_epu16(_mm_slli_epi16(b.pixels, 8), evenFactors);
    const __m128i odd = _mm_mullo_epi16(_mm_srli_epi16(b.pixels, 8), oddFactors);
    return {_mm_or_si128(even, _mm_andnot_si128(_mm_set1_epi16(0xFF), odd))};
}
inline Sse2 Scale(Sse2 v, Sse2::Weight k) { return Products(v, k.factors, k.factors); }
inline Sse2 ScaleBytes(Sse2 a, Sse2 b) {
    const Sse2::Wide factors = Widened(a);
    return Products(b, factors.even, factors.odd);
}
inline Sse2 MultiplyBytes(Sse2 a, Sse2 b) {
    const Sse2::Wide factors = Widened(a);
    const __m128i one = _mm_set1_epi16(1);
    return Products(b, _mm_add_epi16(factors.even, one), _mm_add_epi16(factors.odd, one));
}
inline Sse2 MixBytes(Sse2 a, Sse2::Weight k, Sse2 b, Sse2::Weight l) {
    return HighBytes(Widened(a) * k + Widened(b) * l);
}

// With t = byte x k + 128 the quotient is (t + (t >> 8)) >> 8.
inline Sse2 ScaleRounded(Sse2 v, Sse2::Weight k) {
    const auto rounded = [](__m128i product) {
        const __m128i t = _mm_add_epi16(product, _mm_set1_epi16(128));
        return _mm_add_epi16(t, _mm_srli_epi16(t, 8));
    };
    const Sse2::Wide w = Widened(v) * k;
    return HighBytes({rounded(w.even), rounded(w.odd)});
}

inline bool IsOpaque(Sse2 v) {
    constexpr int alphaBytes = 0x8888;
    return (~_mm_movemask_epi8(_mm_cmpeq_epi8(v.pixels, _mm_set1_epi32(-1))) & alphaBytes) == 0;
}
inline bool IsTransparentBlack(Sse2 v) {
    return _mm_movemask_epi8(_mm_cmpeq_epi8(v.pixels, _mm_setzero_si128())) == 0xFFFF;
}

}  // namespace
}  // namespace zorvic

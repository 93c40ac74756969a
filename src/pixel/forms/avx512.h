// The AVX-512 form: sixteen pixels in a 512-bit register. Only files built for AVX-512 (F, BW, VL, DQ) include this.
#pragma once

#include <immintrin.h>

#include <cstring>

#include "pixel/forms/avx2.h"

namespace zorvic {
namespace {

struct Avx512 {
    using Boxes = Avx2Boxes;
    using ColumnForm = Avx2;  // sixteen rows at once push one another out of the cache

    // The factor of a pixel twice in 16 bits.
    struct Weight {
        __m512i factors;

        friend Weight operator-(Weight k, Weight l) { return {_mm512_sub_epi16(k.factors, l.factors)}; }
    };

    // Blue and red, and green and alpha, of each pixel.
    struct Wide {
        __m512i even, odd;

        // Member by member: compilers copy the whole through the stack.
        Wide() {}
        Wide(__m512i evenNumbers, __m512i oddNumbers) : even(evenNumbers), odd(oddNumbers) {}
        Wide(const Wide& other) : even(other.even), odd(other.odd) {}
        Wide& operator=(const Wide& other) {
            even = other.even;
            odd = other.odd;
            return *this;
        }

        friend Wide operator+(Wide a, Wide b) {
            return {_mm512_add_epi16(a.even, b.even), _mm512_add_epi16(a.odd, b.odd)};
        }
        friend Wide operator-(Wide a, Wide b) {
            return {_mm512_sub_epi16(a.even, b.even), _mm512_sub_epi16(a.odd, b.odd)};
        }
        friend Wide operator*(Wide a, Weight k) {
            return {_mm512_mullo_epi16(a.even, k.factors), _mm512_mullo_epi16(a.odd, k.factors)};
        }
    };

    using Reals = Avx2::Reals;
    // Four pixels at a time would straddle cache lines.
    using Sums = Avx2::Sums;

    // Code outside runs 128-bit instructions, which are slow while upper halves are in use.
    struct Guard {
        ~Guard() { _mm256_zeroupper(); }
    };

    static constexpr int lanes = 16;
    static constexpr bool picksFromWindows = true;

    __m512i pixels;

    static Avx512 Load(const std::uint32_t* in) { return {LoadAll(in)}; }
    static Avx512 LoadPart(const std::uint32_t* in, int n) { return {_mm512_maskz_loadu_epi32(First(n), in)}; }
    static Avx512 Broadcast(std::uint32_t word) { return {_mm512_set1_epi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) { return {_mm512_set1_epi16(static_cast<short>(factor))}; }
    static Weight LoadWeights(const std::uint32_t* in) {
        const __m512i words = LoadAll(in);
        return {_mm512_or_si512(words, _mm512_slli_epi32(words, 16))};
    }
    static Weight ScaleWeight(Weight k, Weight l) {
        return {_mm512_srli_epi16(_mm512_mullo_epi16(k.factors, l.factors), 8)};
    }

    // Places that are close together come from one or two loads.
    template <int reach>
    static Avx512 Pick(const std::uint32_t* window, const int* lane) {
        return PickFrom<reach>(window, LoadAll(lane));
    }
    template <int reach>
    static void PickPairs(const std::uint32_t* window, const int* lane, Avx512& left, Avx512& right) {
        const __m512i from = LoadAll(lane);
        left = PickFrom<reach>(window, from);
        right = PickFrom<reach>(window + 1, from);
    }

    static void SumTaps(const std::uint32_t* row, const TapGroup& taps, std::int16_t* sums) {
        // Pixels 0, 2, 1 and 3 side by side, as their weights stand.
        const auto pixelsAt = [&](int p) { return LoadQuarter(row + taps.first[p]); };
        const __m512i pixels = Quarters(pixelsAt(0), pixelsAt(2), pixelsAt(1), pixelsAt(3));
        const __m512i pairs =
            _mm512_broadcast_i32x4(_mm_setr_epi8(0, -1, 4, -1, 1, -1, 5, -1, 2, -1, 6, -1, 3, -1, 7, -1));
        const __m512i lastPairs =
            _mm512_broadcast_i32x4(_mm_setr_epi8(8, -1, 12, -1, 9, -1, 13, -1, 10, -1, 14, -1, 11, -1, 15, -1));
        const auto weights = [&](int half) {
            return _mm512_inserti64x4(_mm512_castsi256_si512(LoadHalf(taps.weights[0][half])),
                                      LoadHalf(taps.weights[1][half]), 1);
        };
        const __m512i all = _mm512_add_epi32(_mm512_madd_epi16(_mm512_shuffle_epi8(pixels, pairs), weights(0)),
                                             _mm512_madd_epi16(_mm512_shuffle_epi8(pixels, lastPairs), weights(1)));
        const __m512i sum =
            _mm512_srai_epi32(_mm512_add_epi32(all, _mm512_set1_epi32(horizontalRound)), horizontalShift);
        const __m256i packed = _mm256_packs_epi32(_mm512_castsi512_si256(sum), _mm512_extracti64x4_epi64(sum, 1));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(sums), packed);
    }

    template <int rowLength>
    static Avx512 MixSums(const std::int16_t* rows, int i, const RowWeights& weights) {
        std::int32_t pairs[2];
        std::memcpy(pairs, weights.weight, sizeof pairs);
        const __m512i first = _mm512_set1_epi32(pairs[0]), last = _mm512_set1_epi32(pairs[1]);
        const auto mixed = [&](int at) {
            const __m512i r0 = LoadAll(rows + at), r1 = LoadAll(rows + rowLength + at);
            const __m512i r2 = LoadAll(rows + 2 * rowLength + at), r3 = LoadAll(rows + 3 * rowLength + at);
            const auto total = [&](__m512i upper, __m512i lower) {
                const __m512i sum = _mm512_add_epi32(_mm512_madd_epi16(upper, first), _mm512_madd_epi16(lower, last));
                return _mm512_srai_epi32(_mm512_add_epi32(sum, _mm512_set1_epi32(verticalRound)), verticalShift);
            };
            return _mm512_packs_epi32(total(_mm512_unpacklo_epi16(r0, r1), _mm512_unpacklo_epi16(r2, r3)),
                                      total(_mm512_unpackhi_epi16(r0, r1), _mm512_unpackhi_epi16(r2, r3)));
        };
        // Packing works in quarters of 128 bits.
        const __m512i packed = _mm512_packus_epi16(mixed(4 * i), mixed(4 * i + 32));
        return {_mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), packed)};
    }

    static Wide LoadWide(const std::uint32_t* even, const std::uint32_t* odd) { return {LoadAll(even), LoadAll(odd)}; }

    void Store(std::uint32_t* out) const { _mm512_storeu_si512(out, pixels); }
    void StorePart(std::uint32_t* out, int n) const { _mm512_mask_storeu_epi32(out, First(n), pixels); }

    friend Avx512 operator+(Avx512 a, Avx512 b) { return {_mm512_add_epi32(a.pixels, b.pixels)}; }
    friend Avx512 operator|(Avx512 a, Avx512 b) { return {_mm512_or_si512(a.pixels, b.pixels)}; }
    friend Avx512 operator&(Avx512 a, Avx512 b) { return {_mm512_and_si512(a.pixels, b.pixels)}; }

private:
    template <int reach>
    static Avx512 PickFrom(const std::uint32_t* window, __m512i from) {
        if constexpr (reach == 0) return {_mm512_i32gather_epi32(from, window, 4)};
        if constexpr (reach == 1) return {_mm512_permutexvar_epi32(from, LoadAll(window))};
        return {_mm512_permutex2var_epi32(LoadAll(window), from, LoadAll(window + lanes))};
    }
    static __m512i LoadAll(const void* in) { return _mm512_loadu_si512(in); }
    static __m256i LoadHalf(const void* in) { return _mm256_loadu_si256(static_cast<const __m256i*>(in)); }
    static __m128i LoadQuarter(const void* in) { return _mm_loadu_si128(static_cast<const __m128i*>(in)); }
    static __m512i Quarters(__m128i a, __m128i b, __m128i c, __m128i d) {
        return _mm512_inserti64x4(_mm512_castsi256_si512(_mm256_inserti128_si256(_mm256_castsi128_si256(a), b, 1)),
                                  _mm256_inserti128_si256(_mm256_castsi128_si256(c), d, 1), 1);
    }
    // The first n of 16 lanes.
    static __mmask16 First(int n) { return static_cast<__mmask16>((1U << n) - 1); }
};

inline Avx512 AddBytes(Avx512 a, Avx512 b) { return {_mm512_add_epi8(a.pixels, b.pixels)}; }
inline Avx512 AddSaturated(Avx512 a, Avx512 b) { return {_mm512_adds_epu8(a.pixels, b.pixels)}; }
inline Avx512 InvertBytes(Avx512 v) { return {_mm512_xor_si512(v.pixels, _mm512_set1_epi32(-1))}; }

// Bits of a where the mask has ones, else of b.
inline __m512i Select(__m512i mask, __m512i a, __m512i b) { return _mm512_ternarylogic_epi32(mask, a, b, 0xCA); }
inline Avx512 WithAlphaOf(Avx512 color, Avx512 alpha) {
    return {Select(_mm512_set1_epi32(0x00FFFFFF), color.pixels, alpha.pixels)};
}
inline Avx512 SelectEqual(Avx512 a, Avx512 b, Avx512 c, Avx512 d) {
    return {_mm512_mask_mov_epi32(d.pixels, _mm512_cmpeq_epi32_mask(a.pixels, b.pixels), c.pixels)};
}

// One shuffle in every quarter.
inline __m512i ShufflePixels(__m512i pixels, __m128i places) {
    return _mm512_shuffle_epi8(pixels, _mm512_broadcast_i32x4(places));
}
inline Avx512 Luma(Avx512 v) {
    const __m512i pairs = _mm512_maddubs_epi16(v.pixels, _mm512_set1_epi32(0x00010201));
    const __m512i gray = _mm512_srli_epi32(_mm512_madd_epi16(pairs, _mm512_set1_epi16(1)), 2);
    return {ShufflePixels(gray, _mm_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12))};
}
inline Avx512 AlphaBytes(Avx512 v) {
    return {ShufflePixels(v.pixels, _mm_setr_epi8(3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15))};
}
inline Avx512 LargestColor(Avx512 v) {
    const __m512i larger = _mm512_max_epu8(_mm512_slli_epi32(v.pixels, 16), _mm512_slli_epi32(v.pixels, 24));
    return {_mm512_max_epu8(_mm512_slli_epi32(v.pixels, 8), larger)};
}
inline Avx512 Reversed(Avx512 v) {
    return {
        _mm512_permutexvar_epi32(_mm512_setr_epi32(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0), v.pixels)};
}

inline Avx512::Weight AlphaWeight(Avx512 v) {
    return {ShufflePixels(v.pixels, _mm_setr_epi8(3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1))};
}
inline Avx512::Weight AlphaPlusOne(Avx512 v) {
    return {_mm512_add_epi16(_mm512_set1_epi16(1), AlphaWeight(v).factors)};
}
inline Avx512::Weight InverseAlpha(Avx512 v) {
    return {_mm512_sub_epi16(_mm512_set1_epi16(256), AlphaWeight(v).factors)};
}

inline Avx512::Wide Widened(Avx512 v) {
    return {_mm512_and_si512(v.pixels, _mm512_set1_epi16(0xFF)), _mm512_srli_epi16(v.pixels, 8)};
}
inline Avx512::Wide Times256(Avx512::Wide w) { return {_mm512_slli_epi16(w.even, 8), _mm512_slli_epi16(w.odd, 8)}; }
inline Avx512 HighBytes(Avx512::Wide w) {
    return {Select(_mm512_set1_epi16(0xFF), _mm512_srli_epi16(w.even, 8), w.odd)};
}

inline Avx512 LowBytes(Avx512::Wide w) { return {_mm512_or_si512(w.even, _mm512_slli_epi16(w.odd, 8))}; }
inline Avx512::Wide HighProducts(Avx512::Wide w, int number) {
    const __m512i k = _mm512_set1_epi16(static_cast<short>(number));
    return {_mm512_mulhi_epi16(w.even, k), _mm512_mulhi_epi16(w.odd, k)};
}
inline void StoreWide(Avx512::Wide w, std::uint32_t* even, std::uint32_t* odd) {
    Avx512{w.even}.Store(even);
    Avx512{w.odd}.Store(odd);
}

// Every byte of b by the 16-bit factor of its place, >> 8. The high half of a product needs no shift.
inline Avx512 Products(Avx512 b, __m512i evenFactors, __m512i oddFactors) {
    const __m512i even = _mm512_mulhi_epu16(_mm512_slli_epi16(b.pixels, 8), evenFactors);
    const __m512i odd = _mm512_mullo_epi16(_mm512_srli_epi16(b.pixels, 8), oddFactors);
    return {Select(_mm512_set1_epi16(0xFF), even, odd)};
}
inline Avx512 Scale(Avx512 v, Avx512::Weight k) { return Products(v, k.factors, k.factors); }
inline Avx512 ScaleBytes(Avx512 a, Avx512 b) {
    const Avx512::Wide factors = Widened(a);
    return Products(b, factors.even, factors.odd);
}
inline Avx512 MultiplyBytes(Avx512 a, Avx512 b) {
    const Avx512::Wide factors = Widened(a);
    const __m512i one = _mm512_set1_epi16(1);
    return Products(b, _mm512_add_epi16(factors.even, one), _mm512_add_epi16(factors.odd, one));
}
inline Avx512 MixBytes(Avx512 a, Avx512::Weight k, Avx512 b, Avx512::Weight l) {
    return HighBytes(Widened(a) * k + Widened(b) * l);
}

// With t = byte x k + 128 the quotient is (t + (t >> 8)) >> 8.
inline Avx512 ScaleRounded(Avx512 v, Avx512::Weight k) {
    const auto rounded = [](__m512i product) {
        const __m512i t = _mm512_add_epi16(product, _mm512_set1_epi16(128));
        return _mm512_add_epi16(t, _mm512_srli_epi16(t, 8));
    };
    const Avx512::Wide w = Widened(v) * k;
    return HighBytes({rounded(w.even), rounded(w.odd)});
}

}  // namespace
}  // namespace zorvic

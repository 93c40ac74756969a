// The AVX2 form: eight pixels in a 256-bit register. Only files built for AVX2 include this.
#pragma once

#include <immintrin.h>

#include "pixel/forms/boxes_avx2.h"
#include "pixel/forms/sse2.h"

namespace zorvic {
namespace {

// One shuffle in both halves.
inline __m256i ShufflePixels(__m256i pixels, __m128i places) {
    return _mm256_shuffle_epi8(pixels, _mm256_broadcastsi128_si256(places));
}

struct Avx2 {
    using Boxes = Avx2Boxes;
    using ColumnForm = Avx2;
    using Narrower = Sse2;  // for spans shorter than a vector

    // The factor of a pixel twice in 16 bits.
    struct Weight {
        __m256i factors;

        friend Weight operator-(Weight k, Weight l) { return {_mm256_sub_epi16(k.factors, l.factors)}; }
    };

    // Blue and red, and green and alpha, of each pixel.
    struct Wide {
        __m256i even, odd;

        // Member by member: compilers copy the whole through the stack.
        Wide() {}
        Wide(__m256i evenNumbers, __m256i oddNumbers) : even(evenNumbers), odd(oddNumbers) {}
        Wide(const Wide& other) : even(other.even), odd(other.odd) {}
        Wide& operator=(const Wide& other) {
            even = other.even;
            odd = other.odd;
            return *this;
        }

        friend Wide operator+(Wide a, Wide b) {
            return {_mm256_add_epi16(a.even, b.even), _mm256_add_epi16(a.odd, b.odd)};
        }
        friend Wide operator-(Wide a, Wide b) {
            return {_mm256_sub_epi16(a.even, b.even), _mm256_sub_epi16(a.odd, b.odd)};
        }
        friend Wide operator*(Wide a, Weight k) {
            return {_mm256_mullo_epi16(a.even, k.factors), _mm256_mullo_epi16(a.odd, k.factors)};
        }
    };

    // A number in single precision for each pixel; see reals.h.
    struct Reals {
        using Pixels = Avx2;

        __m256 values;

        static Reals Byte(Avx2 v, int shift) {
            return {_mm256_cvtepi32_ps(_mm256_and_si256(_mm256_srli_epi32(v.pixels, shift), _mm256_set1_epi32(0xFF)))};
        }
        static Reals Repeat(float number) { return {_mm256_set1_ps(number)}; }
        static Reals Lookup(const float* table, Reals index) {
            return {_mm256_i32gather_ps(table, _mm256_cvttps_epi32(index.values), 4)};
        }
        Avx2 Words() const { return {_mm256_cvttps_epi32(values)}; }

        friend Reals operator+(Reals a, Reals b) { return {_mm256_add_ps(a.values, b.values)}; }
        friend Reals operator-(Reals a, Reals b) { return {_mm256_sub_ps(a.values, b.values)}; }
        friend Reals operator*(Reals a, Reals b) { return {_mm256_mul_ps(a.values, b.values)}; }
        friend Reals operator/(Reals a, Reals b) { return {_mm256_div_ps(a.values, b.values)}; }
        friend Reals Larger(Reals a, Reals b) { return {_mm256_max_ps(a.values, b.values)}; }
        friend Reals Smaller(Reals a, Reals b) { return {_mm256_min_ps(a.values, b.values)}; }
        friend Reals Whole(Reals a) { return {_mm256_cvtepi32_ps(_mm256_cvttps_epi32(a.values))}; }
        friend Reals SelectEqual(Reals a, Reals b, Reals c, Reals d) {
            return {_mm256_blendv_ps(d.values, c.values, _mm256_cmp_ps(a.values, b.values, _CMP_EQ_OQ))};
        }
        friend Reals SelectAtMost(Reals a, Reals b, Reals c, Reals d) {
            return {_mm256_blendv_ps(d.values, c.values, _mm256_cmp_ps(a.values, b.values, _CMP_LE_OQ))};
        }
    };

    // Two pixels.
    struct Sums {
        using Number = std::uint32_t;
        using Divider = SumDivider;
        using OnePixel = Sse2::Sums;
        static constexpr int pixels = 2;

        __m256i numbers;

        static Sums FromPixels(const std::uint32_t* in) {
            return {_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(in)))};
        }
        static Sums Load(const std::uint32_t* in) { return {LoadAll(in)}; }
        static Sums Repeat(const std::uint32_t* in) { return {_mm256_broadcastsi128_si256(LoadHalf(in))}; }
        void Store(std::uint32_t* out) const { StoreAll(out, numbers); }
        void StorePixels(std::uint32_t* out) const {
            const __m256i bytes =
                ShufflePixels(numbers, _mm_setr_epi8(0, 4, 8, 12, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1));
            const __m256i both = _mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 4, 0, 0, 0, 0, 0, 0));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(out), _mm256_castsi256_si128(both));
        }

        friend Sums operator+(Sums a, Sums b) { return {_mm256_add_epi32(a.numbers, b.numbers)}; }
        friend Sums operator-(Sums a, Sums b) { return {_mm256_sub_epi32(a.numbers, b.numbers)}; }
        friend Sums Quotients(Sums s, SumDivider divider) {
            const __m256i k = _mm256_set1_epi32(static_cast<int>(divider.multiplier));
            const __m256i even = _mm256_mul_epu32(s.numbers, k);
            const __m256i odd = _mm256_mul_epu32(_mm256_srli_epi64(s.numbers, 32), k);
            const __m256i high = _mm256_blend_epi32(_mm256_srli_epi64(even, 32), odd, 0xAA);
            return {_mm256_srl_epi32(high, _mm_cvtsi32_si128(divider.shift))};
        }
    };

    // Code outside runs 128-bit instructions, which are slow while upper halves are in use.
    struct Guard {
        ~Guard() { _mm256_zeroupper(); }
    };

    static constexpr int lanes = 8;
    static constexpr bool picksFromWindows = true;

    __m256i pixels;

    static Avx2 Load(const std::uint32_t* in) { return {LoadAll(in)}; }
    static Avx2 LoadPart(const std::uint32_t* in, int n) {
        return {_mm256_maskload_epi32(reinterpret_cast<const int*>(in),
                                      _mm256_cmpgt_epi32(_mm256_set1_epi32(n), LaneNumbers()))};
    }
    static Avx2 Broadcast(std::uint32_t word) { return {_mm256_set1_epi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) { return {_mm256_set1_epi16(static_cast<short>(factor))}; }
    static Weight LoadWeights(const std::uint32_t* in) {
        const __m256i words = LoadAll(in);
        return {_mm256_or_si256(words, _mm256_slli_epi32(words, 16))};
    }
    static Weight ScaleWeight(Weight k, Weight l) {
        return {_mm256_srli_epi16(_mm256_mullo_epi16(k.factors, l.factors), 8)};
    }

    // Places that are close together come from one or two loads.
    template <int reach>
    static Avx2 Pick(const std::uint32_t* window, const int* lane) {
        return PickFrom<reach>(window, LoadAll(lane));
    }
    template <int reach>
    static void PickPairs(const std::uint32_t* window, const int* lane, Avx2& left, Avx2& right) {
        const __m256i from = LoadAll(lane);
        left = PickFrom<reach>(window, from);
        right = PickFrom<reach>(window + 1, from);
    }

    // Rows i and i + 4 side by side.
    static void LoadColumns(const std::byte* rows, std::ptrdiff_t step, Avx2 (&columns)[4]) {
        const auto twoRows = [=](int i) {
            return _mm256_inserti128_si256(_mm256_castsi128_si256(LoadHalf(rows + i * step)),
                                           LoadHalf(rows + (i + 4) * step), 1);
        };
        const __m256i r0 = twoRows(0), r1 = twoRows(1), r2 = twoRows(2), r3 = twoRows(3);
        const __m256i left = _mm256_unpacklo_epi32(r0, r1), leftBelow = _mm256_unpacklo_epi32(r2, r3);
        const __m256i right = _mm256_unpackhi_epi32(r0, r1), rightBelow = _mm256_unpackhi_epi32(r2, r3);
        columns[0] = {_mm256_unpacklo_epi64(left, leftBelow)};
        columns[1] = {_mm256_unpackhi_epi64(left, leftBelow)};
        columns[2] = {_mm256_unpacklo_epi64(right, rightBelow)};
        columns[3] = {_mm256_unpackhi_epi64(right, rightBelow)};
    }

    // Four pixels as pairs: a window of eight source pixels, where the left and the right ones stand in it, and their
    // weights, 256 - tx and tx.
    struct PairHalf {
        __m256i places, weights;
        int start;
    };
    static PairHalf MakeHalf(const int* columns, const std::uint32_t* fractions, int lastStart) {
        const int start = columns[0] < lastStart ? columns[0] : lastStart;
        const __m128i left = _mm_sub_epi32(LoadHalf(columns), _mm_set1_epi32(start));
        const __m128i right = _mm_add_epi32(left, _mm_set1_epi32(1));
        const __m128i tx = Sse2::Twice(LoadHalf(fractions)), rest = _mm_sub_epi16(_mm_set1_epi16(256), tx);
        return {_mm256_inserti128_si256(_mm256_castsi128_si256(left), right, 1),
                _mm256_inserti128_si256(_mm256_castsi128_si256(rest), tx, 1), start};
    }

    static void SumTaps(const std::uint32_t* row, const TapGroup& taps, std::int16_t* sums) {
        // Pixels p and p + 2 side by side, so that packing puts the four sums in order.
        const auto sum = [&](int p) {
            const __m256i taken = _mm256_inserti128_si256(_mm256_castsi128_si256(LoadHalf(row + taps.first[p])),
                                                          LoadHalf(row + taps.first[p + 2]), 1);
            const __m256i pairs =
                _mm256_broadcastsi128_si256(_mm_setr_epi8(0, -1, 4, -1, 1, -1, 5, -1, 2, -1, 6, -1, 3, -1, 7, -1));
            const __m256i lastPairs = _mm256_broadcastsi128_si256(
                _mm_setr_epi8(8, -1, 12, -1, 9, -1, 13, -1, 10, -1, 14, -1, 11, -1, 15, -1));
            const __m256i first = _mm256_madd_epi16(_mm256_shuffle_epi8(taken, pairs), LoadAll(taps.weights[p][0]));
            const __m256i last = _mm256_madd_epi16(_mm256_shuffle_epi8(taken, lastPairs), LoadAll(taps.weights[p][1]));
            const __m256i all = _mm256_add_epi32(_mm256_add_epi32(first, last), _mm256_set1_epi32(horizontalRound));
            return _mm256_srai_epi32(all, horizontalShift);
        };
        StoreAll(sums, _mm256_packs_epi32(sum(0), sum(1)));
    }

    template <int rowLength>
    static Avx2 MixSums(const std::int16_t* rows, int i, const RowWeights& weights) {
        std::int32_t pairs[2];
        std::memcpy(pairs, weights.weight, sizeof pairs);
        const __m256i first = _mm256_set1_epi32(pairs[0]), last = _mm256_set1_epi32(pairs[1]);
        const auto mixed = [&](int at) {
            const __m256i r0 = LoadAll(rows + at), r1 = LoadAll(rows + rowLength + at);
            const __m256i r2 = LoadAll(rows + 2 * rowLength + at), r3 = LoadAll(rows + 3 * rowLength + at);
            const auto total = [&](__m256i upper, __m256i lower) {
                const __m256i sum = _mm256_add_epi32(_mm256_madd_epi16(upper, first), _mm256_madd_epi16(lower, last));
                return _mm256_srai_epi32(_mm256_add_epi32(sum, _mm256_set1_epi32(verticalRound)), verticalShift);
            };
            return _mm256_packs_epi32(total(_mm256_unpacklo_epi16(r0, r1), _mm256_unpacklo_epi16(r2, r3)),
                                      total(_mm256_unpackhi_epi16(r0, r1), _mm256_unpackhi_epi16(r2, r3)));
        };
        // Packing works in halves of 128 bits.
        const __m256i packed = _mm256_packus_epi16(mixed(4 * i), mixed(4 * i + 16));
        return {_mm256_permute4x64_epi64(packed, _MM_SHUFFLE(3, 1, 2, 0))};
    }

    static Wide LoadWide(const std::uint32_t* even, const std::uint32_t* odd) { return {LoadAll(even), LoadAll(odd)}; }

    void Store(std::uint32_t* out) const { StoreAll(out, pixels); }
    // In pieces: masked stores are slow on many processors.
    void StorePart(std::uint32_t* out, int n) const {
        Sse2 rest{_mm256_castsi256_si128(pixels)};
        if (n >= Sse2::lanes) {
            rest.Store(out);
            out += Sse2::lanes;
            n -= Sse2::lanes;
            rest = {_mm256_extracti128_si256(pixels, 1)};
        }
        if (n > 0) rest.StorePart(out, n);
    }

    friend Avx2 operator+(Avx2 a, Avx2 b) { return {_mm256_add_epi32(a.pixels, b.pixels)}; }
    friend Avx2 operator|(Avx2 a, Avx2 b) { return {_mm256_or_si256(a.pixels, b.pixels)}; }
    friend Avx2 operator&(Avx2 a, Avx2 b) { return {_mm256_and_si256(a.pixels, b.pixels)}; }

private:
    template <int reach>
    static Avx2 PickFrom(const std::uint32_t* window, __m256i from) {
        if constexpr (reach == 0) return {_mm256_i32gather_epi32(reinterpret_cast<const int*>(window), from, 4)};
        const __m256i nearPixels = _mm256_permutevar8x32_epi32(LoadAll(window), from);
        if constexpr (reach == 1) return {nearPixels};
        const __m256i farPixels = _mm256_permutevar8x32_epi32(LoadAll(window + lanes), from);
        // Bit 3 of the place tells the window.
        const __m256 isFar = _mm256_castsi256_ps(_mm256_slli_epi32(from, 28));
        return {_mm256_castps_si256(
            _mm256_blendv_ps(_mm256_castsi256_ps(nearPixels), _mm256_castsi256_ps(farPixels), isFar))};
    }
    static __m256i LoadAll(const void* in) { return _mm256_loadu_si256(static_cast<const __m256i*>(in)); }
    static __m128i LoadHalf(const void* in) { return _mm_loadu_si128(static_cast<const __m128i*>(in)); }
    static void StoreAll(void* out, __m256i v) { _mm256_storeu_si256(static_cast<__m256i*>(out), v); }
    static __m256i LaneNumbers() { return _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7); }
};

inline Avx2 AddBytes(Avx2 a, Avx2 b) { return {_mm256_add_epi8(a.pixels, b.pixels)}; }
inline Avx2 AddSaturated(Avx2 a, Avx2 b) { return {_mm256_adds_epu8(a.pixels, b.pixels)}; }
inline Avx2 InvertBytes(Avx2 v) { return {_mm256_xor_si256(v.pixels, _mm256_set1_epi32(-1))}; }
inline Avx2 WithAlphaOf(Avx2 color, Avx2 alpha) {
    return {_mm256_blendv_epi8(color.pixels, alpha.pixels, _mm256_set1_epi32(static_cast<int>(0xFF000000)))};
}
inline Avx2 SelectEqual(Avx2 a, Avx2 b, Avx2 c, Avx2 d) {
    return {_mm256_blendv_epi8(d.pixels, c.pixels, _mm256_cmpeq_epi32(a.pixels, b.pixels))};
}

inline Avx2 Luma(Avx2 v) {
    const __m256i pairs = _mm256_maddubs_epi16(v.pixels, _mm256_set1_epi32(0x00010201));
    const __m256i gray = _mm256_srli_epi32(_mm256_madd_epi16(pairs, _mm256_set1_epi16(1)), 2);
    return {ShufflePixels(gray, _mm_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12))};
}
inline Avx2 AlphaBytes(Avx2 v) {
    return {ShufflePixels(v.pixels, _mm_setr_epi8(3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15))};
}
inline Avx2 LargestColor(Avx2 v) {
    const __m256i larger = _mm256_max_epu8(_mm256_slli_epi32(v.pixels, 16), _mm256_slli_epi32(v.pixels, 24));
    return {_mm256_max_epu8(_mm256_slli_epi32(v.pixels, 8), larger)};
}
inline Avx2 Reversed(Avx2 v) {
    return {_mm256_permutevar8x32_epi32(v.pixels, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
}

inline Avx2::Weight AlphaWeight(Avx2 v) {
    return {ShufflePixels(v.pixels, _mm_setr_epi8(3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1))};
}
inline Avx2::Weight AlphaPlusOne(Avx2 v) { return {_mm256_add_epi16(_mm256_set1_epi16(1), AlphaWeight(v).factors)}; }
inline Avx2::Weight InverseAlpha(Avx2 v) { return {_mm256_sub_epi16(_mm256_set1_epi16(256), AlphaWeight(v).factors)}; }

inline Avx2::Wide Widened(Avx2 v) {
    return {_mm256_and_si256(v.pixels, _mm256_set1_epi16(0xFF)), _mm256_srli_epi16(v.pixels, 8)};
}
inline Avx2::Wide Times256(Avx2::Wide w) { return {_mm256_slli_epi16(w.even, 8), _mm256_slli_epi16(w.odd, 8)}; }
inline Avx2 HighBytes(Avx2::Wide w) {
    const __m256i odd = _mm256_andnot_si256(_mm256_set1_epi16(0xFF), w.odd);
    return {_mm256_or_si256(_mm256_srli_epi16(w.even, 8), odd)};
}

inline Avx2 LowBytes(Avx2::Wide w) { return {_mm256_or_si256(w.even, _mm256_slli_epi16(w.odd, 8))}; }
inline Avx2::Wide HighProducts(Avx2::Wide w, int number) {
    const __m256i k = _mm256_set1_epi16(static_cast<short>(number));
    return {_mm256_mulhi_epi16(w.even, k), _mm256_mulhi_epi16(w.odd, k)};
}
inline void StoreWide(Avx2::Wide w, std::uint32_t* even, std::uint32_t* odd) {
    Avx2{w.even}.Store(even);
    Avx2{w.odd}.Store(odd);
}

// Every byte of b by the 16-bit factor of its place, >> 8. The high half of a product needs no shift.
inline Avx2 Products(Avx2 b, __m256i evenFactors, __m256i oddFactors) {
    const __m256i even = _mm256_mulhi_epu16(_mm256_slli_epi16(b.pixels, 8), evenFactors);
    const __m256i odd = _mm256_mullo_epi16(_mm256_srli_epi16(b.pixels, 8), oddFactors);
    return {_mm256_or_si256(even, _mm256_andnot_si256(_mm256_set1_epi16(0xFF), odd))};
}
inline Avx2 Scale(Avx2 v, Avx2::Weight k) { return Products(v, k.factors, k.factors); }
inline Avx2 ScaleBytes(Avx2 a, Avx2 b) {
    const Avx2::Wide factors = Widened(a);
    return Products(b, factors.even, factors.odd);
}
inline Avx2 MultiplyBytes(Avx2 a, Avx2 b) {
    const Avx2::Wide factors = Widened(a);
    const __m256i one = _mm256_set1_epi16(1);
    return Products(b, _mm256_add_epi16(factors.even, one), _mm256_add_epi16(factors.odd, one));
}
inline Avx2 MixBytes(Avx2 a, Avx2::Weight k, Avx2 b, Avx2::Weight l) {
    return HighBytes(Widened(a) * k + Widened(b) * l);
}

// Weights of the lower row are ty - (tx x ty >> 8), which is (256 - tx) x ty + 255 >> 8, and tx x ty >> 8.
inline Avx2 MixHalves(const Avx2::PairHalf (&halves)[2], const std::uint32_t* upper, const std::uint32_t* lower,
                      Avx2::Weight ty) {
    const __m256i up = _mm256_inserti128_si256(_mm256_setzero_si256(), _mm_set1_epi16(255), 0);
    const auto mixed = [&](const Avx2::PairHalf& half) {
        const Avx2 u{_mm256_permutevar8x32_epi32(Avx2::Load(upper + half.start).pixels, half.places)};
        const Avx2 l{_mm256_permutevar8x32_epi32(Avx2::Load(lower + half.start).pixels, half.places)};
        const __m256i product = _mm256_mullo_epi16(half.weights, ty.factors);
        const Avx2::Weight below{_mm256_srli_epi16(_mm256_add_epi16(product, up), 8)};
        return Widened(u) * (Avx2::Weight{half.weights} - below) + Widened(l) * below;
    };
    const Avx2::Wide first = mixed(halves[0]), last = mixed(halves[1]);
    const auto sum = [](__m256i a, __m256i b) {
        return _mm256_add_epi16(_mm256_permute2x128_si256(a, b, 0x20), _mm256_permute2x128_si256(a, b, 0x31));
    };
    return HighBytes(Avx2::Wide{sum(first.even, last.even), sum(first.odd, last.odd)});
}

// With t = byte x k + 128 the quotient is (t + (t >> 8)) >> 8.
inline Avx2 ScaleRounded(Avx2 v, Avx2::Weight k) {
    const auto rounded = [](__m256i product) {
        const __m256i t = _mm256_add_epi16(product, _mm256_set1_epi16(128));
        return _mm256_add_epi16(t, _mm256_srli_epi16(t, 8));
    };
    const Avx2::Wide w = Widened(v) * k;
    return HighBytes({rounded(w.even), rounded(w.odd)});
}

}  // namespace
}  // namespace zorvic

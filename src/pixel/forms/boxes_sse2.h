// Means of boxes in 128-bit registers.
#pragma once

#include <emmintrin.h>

#include <cstring>

#include "pixel/forms/boxes.h"

namespace zorvic {
namespace {

struct Sse2Boxes {
    static constexpr int lanes = 4;

    static void SumRows(const BoxRows& rows, ColumnSpan span, std::uint32_t* sums) {
        const __m128i zero = _mm_setzero_si128();
        const __m128i weights = _mm_set1_epi32(rows.WeightPair());
        const __m128i firstOnceMore = _mm_set1_epi32(rows.FirstCountsOnceMore() ? -1 : 0);
        const __m128i lastOnceMore = _mm_set1_epi32(rows.LastCountsOnceMore() ? -1 : 0);
        for (int x = 0; x < span.count; x += lanes) {
            const std::ptrdiff_t at = 4 * span.Vector(x);
            const __m128i first = Load(rows.Row(0) + at), last = Load(rows.Last() + at);
            Sums whole{zero, zero};
            whole.Add(_mm_and_si128(first, firstOnceMore));
            whole.Add(_mm_and_si128(last, lastOnceMore));
            for (int i = 1; i < rows.count - 1; ++i) whole.Add(Load(rows.Row(i) + at));
            // The outer rows' bytes side by side, for both products at once.
            const __m128i low = _mm_unpacklo_epi8(first, last), high = _mm_unpackhi_epi8(first, last);
            const auto store = [&](int column, __m128i pairs, __m128i times65536) {
                Store(sums + at + 4 * column, _mm_add_epi32(_mm_madd_epi16(pairs, weights), times65536));
            };
            store(0, _mm_unpacklo_epi8(low, zero), _mm_unpacklo_epi16(zero, whole.low));
            store(1, _mm_unpackhi_epi8(low, zero), _mm_unpackhi_epi16(zero, whole.low));
            store(2, _mm_unpacklo_epi8(high, zero), _mm_unpacklo_epi16(zero, whole.high));
            store(3, _mm_unpackhi_epi8(high, zero), _mm_unpackhi_epi16(zero, whole.high));
        }
    }

    static void SumWholeRows(const BoxRows& rows, ColumnSpan span, const WholeMean&, std::uint16_t* sums) {
        for (int x = 0; x < span.count; x += lanes) {
            const std::ptrdiff_t at = 4 * span.Vector(x);
            Sums whole{_mm_setzero_si128(), _mm_setzero_si128()};
            const std::byte* row = rows.first + at;
            for (int i = 0; i < rows.count; ++i, row += rows.stride) whole.Add(Load(row));
            Store(sums + at, whole.low);
            Store(sums + at + 8, whole.high);
        }
    }

    static void Means(const std::uint32_t* sums, const BoxColumns& columns, int n, std::uint32_t* out) {
        const __m128d reciprocal = _mm_set1_pd(columns.reciprocal), exponent = _mm_set1_pd(two52);
        // Blue and red, and green and alpha, each in 64 bits.
        const __m128i lowWords = _mm_set_epi32(0, -1, 0, -1);
        const auto outside = [&](int i, __m128i& even, __m128i& odd) {
            const __m128i sum = Load(sums + columns.SumAt(i));
            const __m128i fraction = _mm_set1_epi32(static_cast<int>(columns.edges[i].fraction));
            even = _mm_mul_epu32(sum, fraction);
            odd = _mm_mul_epu32(_mm_srli_epi64(sum, 32), fraction);
        };
        const auto mean = [&](__m128i started, __m128i before, __m128i after) {
            const __m128i total = _mm_add_epi64(_mm_slli_epi64(started, 16), _mm_sub_epi64(after, before));
            const __m128d number = _mm_sub_pd(_mm_or_pd(_mm_castsi128_pd(total), exponent), exponent);
            return _mm_cvttpd_epi32(_mm_mul_pd(number, reciprocal));
        };
        __m128i evenBefore, oddBefore;
        outside(0, evenBefore, oddBefore);
        for (int i = 0; i < n; ++i) {
            const std::uint32_t* const at = sums + columns.SumAt(i);
            const __m128i mask = _mm_set1_epi32(static_cast<int>(columns.edges[i].extraColumn));
            __m128i sum = _mm_and_si128(mask, Load(at + 4 * columns.narrowest));
            for (int k = 0; k < columns.narrowest; ++k) sum = _mm_add_epi32(sum, Load(at + 4 * k));
            __m128i evenAfter, oddAfter;
            outside(i + 1, evenAfter, oddAfter);
            const __m128i even = mean(_mm_and_si128(sum, lowWords), evenBefore, evenAfter);
            const __m128i odd = mean(_mm_srli_epi64(sum, 32), oddBefore, oddAfter);
            evenBefore = evenAfter;
            oddBefore = oddAfter;
            StoreBytes(out + i, _mm_unpacklo_epi32(even, odd));
        }
    }

    static void WholeMeans(const std::uint16_t* sums, const WholeMean& mean, int n, std::uint32_t* out) {
        const __m128i factor = _mm_set1_epi16(static_cast<short>(mean.factor));
        const __m128i shift = _mm_cvtsi32_si128(mean.shift);
        const auto box = [&](int i) {
            const std::uint16_t* const at = sums + std::ptrdiff_t{4} * mean.boxColumns * i;
            __m128i sum = LoadLow(at + 4 * (mean.boxColumns - 1));
            if (mean.boxColumns % 2 == 0) sum = _mm_setzero_si128();
            for (int k = 0; k < mean.boxColumns - 1; k += 2) sum = _mm_add_epi16(sum, Load(at + 4 * k));
            return sum;
        };
        const auto means = [&](__m128i sum) { return _mm_srl_epi16(_mm_mulhi_epu16(sum, factor), shift); };
        const auto two = [&](int i) {
            if (mean.boxColumns == 1) return means(Load(sums + 4 * i));
            const __m128i a = box(i), b = box(i + 1);
            return means(_mm_add_epi16(_mm_unpacklo_epi64(a, b), _mm_unpackhi_epi64(a, b)));
        };
        int i = 0;
        for (; i <= n - 4; i += 4) Store(out + i, _mm_packus_epi16(two(i), two(i + 2)));
        for (; i < n; ++i) {
            const __m128i a = box(i), sum = means(_mm_add_epi16(a, _mm_unpackhi_epi64(a, a)));
            StoreOne(out + i, _mm_packus_epi16(sum, sum));
        }
    }

    // Sums of 16 bits.
    struct Sums {
        __m128i low, high;

        void Add(__m128i pixels) {
            const __m128i zero = _mm_setzero_si128();
            low = _mm_add_epi16(low, _mm_unpacklo_epi8(pixels, zero));
            high = _mm_add_epi16(high, _mm_unpackhi_epi8(pixels, zero));
        }
    };

    static __m128i Load(const void* in) { return _mm_loadu_si128(static_cast<const __m128i*>(in)); }
    static __m128i LoadLow(const void* in) { return _mm_loadl_epi64(static_cast<const __m128i*>(in)); }
    static void Store(void* out, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(out), v); }
    static void StoreOne(std::uint32_t* out, __m128i v) {
        const int word = _mm_cvtsi128_si32(v);
        std::memcpy(out, &word, sizeof word);
    }

    // The four bytes of a pixel, in 32 bits each.
    static void StoreBytes(std::uint32_t* out, __m128i bytes) {
        const __m128i words = _mm_packs_epi32(bytes, bytes);
        StoreOne(out, _mm_packus_epi16(words, words));
    }
};

}  // namespace
}  // namespace zorvic

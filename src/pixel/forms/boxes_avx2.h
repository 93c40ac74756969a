// Means of boxes in 256-bit registers.
#pragma once

#include <immintrin.h>

#include "pixel/forms/boxes_sse2.h"

namespace zorvic {
namespace {

struct Avx2Boxes {
    static constexpr int lanes = 8;

    // Numbers of rows and columns that come up most have loops of their own.
    static void SumRows(const BoxRows& rows, ColumnSpan span, std::uint32_t* sums) {
        if (rows.count == 3) return SumRowsBetween<1>(rows, span, sums);
        if (rows.count == 4) return SumRowsBetween<2>(rows, span, sums);
        if (rows.count == 5) return SumRowsBetween<3>(rows, span, sums);
        SumRowsBetween<anyNumber>(rows, span, sums);
    }

    // Boxes of an even width take sums of two columns.
    static void SumWholeRows(const BoxRows& rows, ColumnSpan span, const WholeMean& mean, std::uint16_t* sums) {
        if (mean.boxColumns % 2 == 0) {
            if (rows.count == 2) return SumColumnPairs<2>(rows, span, sums);
            if (rows.count == 4) return SumColumnPairs<4>(rows, span, sums);
            return SumColumnPairs<anyNumber>(rows, span, sums);
        }
        for (int x = 0; x < span.count; x += lanes) {
            const std::ptrdiff_t at = 4 * span.Vector(x);
            Sums whole{_mm256_setzero_si256(), _mm256_setzero_si256()};
            const std::byte* row = rows.first + at;
            for (int left = rows.count; left > 0; --left, row += rows.stride) whole.Add(Load(row));
            Store(sums + at, _mm256_permute2x128_si256(whole.low, whole.high, 0x20));
            Store(sums + at + 16, _mm256_permute2x128_si256(whole.low, whole.high, 0x31));
        }
    }

    static void Means(const std::uint32_t* sums, const BoxColumns& columns, int n, std::uint32_t* out) {
        if (columns.narrowest == 1) return MeansOf<1>(sums, columns, n, out);
        if (columns.narrowest == 2) return MeansOf<2>(sums, columns, n, out);
        if (columns.narrowest == 3) return MeansOf<3>(sums, columns, n, out);
        MeansOf<anyNumber>(sums, columns, n, out);
    }

    static void WholeMeans(const std::uint16_t* sums, WholeMean mean, int n, std::uint32_t* out) {
        if (mean.boxColumns % 2 == 0) mean.boxColumns /= 2;
        int done = 0;
        if (mean.boxColumns <= 2) {
            const __m256i factor = _mm256_set1_epi16(static_cast<short>(mean.factor));
            const __m128i shift = _mm_cvtsi32_si128(mean.shift);
            const auto means = [&](__m256i sum) { return _mm256_srl_epi16(_mm256_mulhi_epu16(sum, factor), shift); };
            // Boxes 0 to 3 of two columns in the order 0, 2, 1, 3.
            const auto four = [&](const std::uint16_t* in) {
                const __m256i a = Load(in), b = Load(in + 16);
                return means(_mm256_add_epi16(_mm256_unpacklo_epi64(a, b), _mm256_unpackhi_epi64(a, b)));
            };
            for (; done <= n - 8; done += 8, sums += 32 * mean.boxColumns) {
                const __m256i all = mean.boxColumns == 1
                                        ? _mm256_packus_epi16(means(Load(sums)), means(Load(sums + 16)))
                                        : _mm256_packus_epi16(four(sums), four(sums + 32));
                const __m256i order = mean.boxColumns == 1 ? _mm256_setr_epi32(0, 1, 4, 5, 2, 3, 6, 7)
                                                           : _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
                Store(out + done, _mm256_permutevar8x32_epi32(all, order));
            }
        }
        Sse2Boxes::WholeMeans(sums, mean, n - done, out + done);
    }

private:
    static constexpr int anyNumber = -1;

    // Sums of 16 bits: of the first two pixels of each half, and of the others.
    struct Sums {
        __m256i low, high;

        void Add(__m256i pixels) {
            const __m256i zero = _mm256_setzero_si256();
            low = _mm256_add_epi16(low, _mm256_unpacklo_epi8(pixels, zero));
            high = _mm256_add_epi16(high, _mm256_unpackhi_epi8(pixels, zero));
        }
    };

    // The first and the last row of boxes and those between them.
    template <int fixed>
    static void SumRowsBetween(const BoxRows& rows, ColumnSpan span, std::uint32_t* sums) {
        const __m256i zero = _mm256_setzero_si256();
        const __m256i weights = _mm256_set1_epi32(rows.WeightPair());
        const __m256i onceMore = _mm256_set1_epi16(
            static_cast<short>((rows.FirstCountsOnceMore() ? 1 : 0) + (rows.LastCountsOnceMore() ? 256 : 0)));
        const int between = fixed == anyNumber ? rows.count - 2 : fixed;
        const std::byte *const firstRow = rows.first, *const lastRow = rows.Last();
        const std::ptrdiff_t stride = rows.stride;
        // Pixels 0, 2, 4, 6 and 1, 3, 5, 7, so that unpacking leaves them in order.
        const __m256i order = _mm256_setr_epi32(0, 2, 4, 6, 1, 3, 5, 7);
        const auto load = [&](const std::byte* row) { return _mm256_permutevar8x32_epi32(Load(row), order); };
        for (int x = 0; x < span.count; x += lanes) {
            const std::ptrdiff_t at = 4 * span.Vector(x);
            // The outer rows' bytes side by side, for both products at once.
            const __m256i first = load(firstRow + at), last = load(lastRow + at);
            const __m256i low = _mm256_unpacklo_epi8(first, last), high = _mm256_unpackhi_epi8(first, last);
            Sums whole{_mm256_maddubs_epi16(low, onceMore), _mm256_maddubs_epi16(high, onceMore)};
            const std::byte* row = firstRow + at;
            for (int i = 0; i < between; ++i) whole.Add(load(row += stride));
            const auto store = [&](int column, __m256i pairs, __m256i times65536) {
                Store(sums + at + 4 * column, _mm256_add_epi32(_mm256_madd_epi16(pairs, weights), times65536));
            };
            store(0, _mm256_unpacklo_epi8(low, zero), _mm256_unpacklo_epi16(zero, whole.low));
            store(2, _mm256_unpackhi_epi8(low, zero), _mm256_unpackhi_epi16(zero, whole.low));
            store(4, _mm256_unpacklo_epi8(high, zero), _mm256_unpacklo_epi16(zero, whole.high));
            store(6, _mm256_unpackhi_epi8(high, zero), _mm256_unpackhi_epi16(zero, whole.high));
        }
    }

    // The columns that start in every box and, in some, one more.
    template <int fixed>
    static void MeansOf(const std::uint32_t* sums, const BoxColumns& columns, int n, std::uint32_t* out) {
        const int narrowest = fixed == anyNumber ? columns.narrowest : fixed;
        const __m256d reciprocal = _mm256_set1_pd(columns.reciprocal), exponent = _mm256_set1_pd(two52);
        const std::uint32_t* at = sums;
        const BoxEdge* edge = columns.edges;
        const int firstColumn = edge->column;
        const auto broadcast = [](const std::uint32_t& word) {
            return _mm_castps_si128(_mm_broadcast_ss(reinterpret_cast<const float*>(&word)));
        };
        const auto outside = [&] {
            const __m256i fraction = _mm256_set1_epi32(static_cast<int>(edge->fraction));
            return _mm256_mul_epu32(_mm256_cvtepu32_epi64(Sse2Boxes::Load(at)), fraction);
        };
        __m256i before = outside();
        for (int i = 0; i < n; ++i) {
            __m128i sum = _mm_and_si128(broadcast(edge->extraColumn), Sse2Boxes::Load(at + 4 * narrowest));
            for (int k = 0; k < narrowest; ++k) sum = _mm_add_epi32(sum, Sse2Boxes::Load(at + 4 * k));
            ++edge;
            at = sums + std::ptrdiff_t{4} * (edge->column - firstColumn);
            const __m256i after = outside(), started = _mm256_slli_epi64(_mm256_cvtepu32_epi64(sum), 16);
            const __m256i total = _mm256_add_epi64(started, _mm256_sub_epi64(after, before));
            before = after;
            const __m256d number = _mm256_sub_pd(_mm256_or_pd(_mm256_castsi256_pd(total), exponent), exponent);
            Sse2Boxes::StoreBytes(out + i, _mm256_cvttpd_epi32(_mm256_mul_pd(number, reciprocal)));
        }
    }

    template <int fixed>
    static void SumColumnPairs(const BoxRows& rows, ColumnSpan span, std::uint16_t* sums) {
        const __m256i ones = _mm256_set1_epi8(1);
        const __m256i order =
            _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15));
        const int count = fixed == anyNumber ? rows.count : fixed;
        const std::ptrdiff_t stride = rows.stride;
        const auto pairs = [&](const std::byte* pixels) {
            return _mm256_maddubs_epi16(_mm256_shuffle_epi8(Load(pixels), order), ones);
        };
        int x = 0;
        for (; x <= span.count - 2 * lanes; x += 2 * lanes) {
            const std::byte* row = rows.first + 4 * x;
            __m256i a = pairs(row), b = pairs(row + 32);
            for (int i = 1; i < count; ++i) {
                row += stride;
                a = _mm256_add_epi16(a, pairs(row));
                b = _mm256_add_epi16(b, pairs(row + 32));
            }
            Store(sums + 2 * x, a);
            Store(sums + 2 * x + 16, b);
        }
        for (; x < span.count; x += lanes) {
            const int at = span.Vector(x);
            const std::byte* row = rows.first + 4 * at;
            __m256i sum = pairs(row);
            for (int i = 1; i < count; ++i) sum = _mm256_add_epi16(sum, pairs(row += stride));
            Store(sums + 2 * at, sum);
        }
    }

    static __m256i Load(const void* in) { return _mm256_loadu_si256(static_cast<const __m256i*>(in)); }
    static void Store(void* out, __m256i v) { _mm256_storeu_si256(static_cast<__m256i*>(out), v); }
};

}  // namespace
}  // namespace zorvic

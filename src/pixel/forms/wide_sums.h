// Sums of the four channels of a pixel in 64 bits each, for instructions that every processor of the library has.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

namespace zorvic {

struct WideSums {
    using Number = std::uint64_t;

    __m128i low, high;  // blue and green; red and alpha

    static WideSums FromPixel(const std::uint32_t* in) {
        int pixel;
        std::memcpy(&pixel, in, sizeof pixel);
        const __m128i zero = _mm_setzero_si128();
        const __m128i words = _mm_unpacklo_epi16(_mm_unpacklo_epi8(_mm_cvtsi32_si128(pixel), zero), zero);
        return {_mm_unpacklo_epi32(words, zero), _mm_unpackhi_epi32(words, zero)};
    }
    static WideSums Load(const Number* in) {
        const auto* const vectors = reinterpret_cast<const __m128i*>(in);
        return {_mm_loadu_si128(vectors), _mm_loadu_si128(vectors + 1)};
    }
    static WideSums Repeat(Number number) {
        const __m128i both = _mm_set1_epi64x(static_cast<long long>(number));
        return {both, both};
    }

    void Store(Number* out) const {
        auto* const vectors = reinterpret_cast<__m128i*>(out);
        _mm_storeu_si128(vectors, low);
        _mm_storeu_si128(vectors + 1, high);
    }
    // Numbers below 256.
    void StorePixel(std::uint32_t* out) const {
        const __m128i words = _mm_packs_epi32(low, high);  // each number is one of them and a zero
        const __m128i bytes = _mm_packus_epi16(_mm_packs_epi32(words, words), words);
        const int pixel = _mm_cvtsi128_si32(bytes);
        std::memcpy(out, &pixel, sizeof pixel);
    }

    friend WideSums operator+(WideSums a, WideSums b) {
        return {_mm_add_epi64(a.low, b.low), _mm_add_epi64(a.high, b.high)};
    }
    friend WideSums operator-(WideSums a, WideSums b) {
        return {_mm_sub_epi64(a.low, b.low), _mm_sub_epi64(a.high, b.high)};
    }
    friend WideSums operator&(WideSums a, WideSums b) {
        return {_mm_and_si128(a.low, b.low), _mm_and_si128(a.high, b.high)};
    }
    // All ones where a number is negative, else 0.
    friend WideSums Signs(WideSums s) { return {Sign(s.low), Sign(s.high)}; }

private:
    static __m128i Sign(__m128i v) { return _mm_shuffle_epi32(_mm_srai_epi32(v, 31), _MM_SHUFFLE(3, 3, 1, 1)); }
};

}  // namespace zorvic

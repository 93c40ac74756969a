// The AVX2 form: eight pixels in a 256-bit register. Only files built for AVX2 include this.
#pragma once

#include <immintrin.h>

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

struct Avx2 {
    // 16 bits for every byte of the pixels that unpacking finds low and high: 0, 1, 4, 5 and 2, 3, 6, 7.
    struct Weight {
        __m256i low, high;
    };
    static constexpr int lanes = 8;

    __m256i pixels;

    static Avx2 Load(const std::uint32_t* in) { return {_mm256_loadu_si256(reinterpret_cast<const __m256i*>(in))}; }
    static Avx2 LoadPart(const std::uint32_t* in, int n) {
        return {_mm256_maskload_epi32(reinterpret_cast<const int*>(in), First(n))};
    }
    static Avx2 Broadcast(std::uint32_t word) { return {_mm256_set1_epi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) {
        const __m256i k = _mm256_set1_epi16(static_cast<short>(factor));
        return {k, k};
    }
    void Store(std::uint32_t* out) const { _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), pixels); }
    void StorePart(std::uint32_t* out, int n) const {
        _mm256_maskstore_epi32(reinterpret_cast<int*>(out), First(n), pixels);
    }

    Weight Widened() const {
        const __m256i zero = _mm256_setzero_si256();
        return {_mm256_unpacklo_epi8(pixels, zero), _mm256_unpackhi_epi8(pixels, zero)};
    }
    static Avx2 Narrowed(Weight w) { return {_mm256_packus_epi16(w.low, w.high)}; }

    friend Avx2 operator+(Avx2 a, Avx2 b) { return {_mm256_add_epi32(a.pixels, b.pixels)}; }
    friend Avx2 operator|(Avx2 a, Avx2 b) { return {_mm256_or_si256(a.pixels, b.pixels)}; }
    friend Avx2 operator&(Avx2 a, Avx2 b) { return {_mm256_and_si256(a.pixels, b.pixels)}; }

private:
    // All bits set in the first n words.
    static __m256i First(int n) {
        return _mm256_cmpgt_epi32(_mm256_set1_epi32(n), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
    }
};

inline Avx2 Scale(Avx2 v, Avx2::Weight k) {
    const Avx2::Weight w = v.Widened();
    return Avx2::Narrowed({_mm256_srli_epi16(_mm256_mullo_epi16(w.low, k.low), 8),
                           _mm256_srli_epi16(_mm256_mullo_epi16(w.high, k.high), 8)});
}

inline Avx2 ScaleRounded(Avx2 v, Avx2::Weight k) {
    const auto scaled = [](__m256i bytes, __m256i factors) {
        const __m256i t = _mm256_add_epi16(_mm256_mullo_epi16(bytes, factors), _mm256_set1_epi16(128));
        return _mm256_srli_epi16(_mm256_add_epi16(t, _mm256_srli_epi16(t, 8)), 8);
    };
    const Avx2::Weight w = v.Widened();
    return Avx2::Narrowed({scaled(w.low, k.low), scaled(w.high, k.high)});
}

inline Avx2 AddSaturated(Avx2 a, Avx2 b) { return {_mm256_adds_epu8(a.pixels, b.pixels)}; }
inline Avx2 InvertBytes(Avx2 v) { return {_mm256_xor_si256(v.pixels, _mm256_set1_epi32(-1))}; }

inline Avx2::Weight AlphaWeight(Avx2 v) {
    const auto alphas = [](__m256i bytes) {
        return _mm256_shufflehi_epi16(_mm256_shufflelo_epi16(bytes, 0xFF), 0xFF);  // the fourth number of each pixel
    };
    const Avx2::Weight w = v.Widened();
    return {alphas(w.low), alphas(w.high)};
}

inline Avx2::Weight InverseAlpha(Avx2 v) {
    const Avx2::Weight alpha = AlphaWeight(v);
    const __m256i full = _mm256_set1_epi16(256);
    return {_mm256_sub_epi16(full, alpha.low), _mm256_sub_epi16(full, alpha.high)};
}

inline Avx2 WithAlphaOf(Avx2 color, Avx2 alpha) {
    const __m256i mask = _mm256_set1_epi32(0x00FFFFFF);
    return {_mm256_or_si256(_mm256_and_si256(mask, color.pixels), _mm256_andnot_si256(mask, alpha.pixels))};
}

inline Avx2 Reversed(Avx2 v) {
    return {_mm256_permutevar8x32_epi32(v.pixels, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
}

}  // namespace
}  // namespace zorvic

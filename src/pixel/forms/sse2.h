// The SSE2 form: four pixels in a 128-bit register. Only files built for SSE2 include this.
#pragma once

#include <emmintrin.h>

#include <cstring>

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

struct Sse2 {
    // 16 bits for every byte of pixels 0 and 1, and of 2 and 3.
    struct Weight {
        __m128i low, high;
    };
    static constexpr int lanes = 4;

    __m128i pixels;

    static Sse2 Load(const std::uint32_t* in) { return {_mm_loadu_si128(reinterpret_cast<const __m128i*>(in))}; }
    static Sse2 LoadPart(const std::uint32_t* in, int n) {
        if (n == 1) return {LoadOne(in)};
        const __m128i two = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(in));
        return {n == 2 ? two : _mm_unpacklo_epi64(two, LoadOne(in + 2))};
    }
    static Sse2 Broadcast(std::uint32_t word) { return {_mm_set1_epi32(static_cast<int>(word))}; }
    static Weight Uniform(int factor) {
        const __m128i k = _mm_set1_epi16(static_cast<short>(factor));
        return {k, k};
    }
    void Store(std::uint32_t* out) const { _mm_storeu_si128(reinterpret_cast<__m128i*>(out), pixels); }
    void StorePart(std::uint32_t* out, int n) const {
        if (n == 1) return StoreOne(out, pixels);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out), pixels);
        if (n == 3) StoreOne(out + 2, _mm_unpackhi_epi64(pixels, pixels));
    }

    // Bytes as 16-bit numbers, and back: the result's bytes are at most 255.
    Weight Widened() const {
        const __m128i zero = _mm_setzero_si128();
        return {_mm_unpacklo_epi8(pixels, zero), _mm_unpackhi_epi8(pixels, zero)};
    }
    static Sse2 Narrowed(Weight w) { return {_mm_packus_epi16(w.low, w.high)}; }

    friend Sse2 operator+(Sse2 a, Sse2 b) { return {_mm_add_epi32(a.pixels, b.pixels)}; }
    friend Sse2 operator|(Sse2 a, Sse2 b) { return {_mm_or_si128(a.pixels, b.pixels)}; }
    friend Sse2 operator&(Sse2 a, Sse2 b) { return {_mm_and_si128(a.pixels, b.pixels)}; }

private:
    static __m128i LoadOne(const std::uint32_t* in) {
        int word;
        std::memcpy(&word, in, sizeof word);
        return _mm_cvtsi32_si128(word);
    }
    static void StoreOne(std::uint32_t* out, __m128i v) {
        const int word = _mm_cvtsi128_si32(v);
        std::memcpy(out, &word, sizeof word);
    }
};

inline Sse2 Scale(Sse2 v, Sse2::Weight k) {
    const Sse2::Weight w = v.Widened();
    return Sse2::Narrowed(
        {_mm_srli_epi16(_mm_mullo_epi16(w.low, k.low), 8), _mm_srli_epi16(_mm_mullo_epi16(w.high, k.high), 8)});
}

inline Sse2 ScaleRounded(Sse2 v, Sse2::Weight k) {
    const auto scaled = [](__m128i bytes, __m128i factors) {
        const __m128i t = _mm_add_epi16(_mm_mullo_epi16(bytes, factors), _mm_set1_epi16(128));
        return _mm_srli_epi16(_mm_add_epi16(t, _mm_srli_epi16(t, 8)), 8);
    };
    const Sse2::Weight w = v.Widened();
    return Sse2::Narrowed({scaled(w.low, k.low), scaled(w.high, k.high)});
}

inline Sse2 AddSaturated(Sse2 a, Sse2 b) { return {_mm_adds_epu8(a.pixels, b.pixels)}; }
inline Sse2 InvertBytes(Sse2 v) { return {_mm_xor_si128(v.pixels, _mm_set1_epi32(-1))}; }

inline Sse2::Weight AlphaWeight(Sse2 v) {
    const auto alphas = [](__m128i bytes) {
        return _mm_shufflehi_epi16(_mm_shufflelo_epi16(bytes, 0xFF), 0xFF);  // the fourth number of both pixels
    };
    const Sse2::Weight w = v.Widened();
    return {alphas(w.low), alphas(w.high)};
}

inline Sse2::Weight InverseAlpha(Sse2 v) {
    const Sse2::Weight alpha = AlphaWeight(v);
    const __m128i full = _mm_set1_epi16(256);
    return {_mm_sub_epi16(full, alpha.low), _mm_sub_epi16(full, alpha.high)};
}

inline Sse2 WithAlphaOf(Sse2 color, Sse2 alpha) {
    const __m128i mask = _mm_set1_epi32(0x00FFFFFF);
    return {_mm_or_si128(_mm_and_si128(mask, color.pixels), _mm_andnot_si128(mask, alpha.pixels))};
}

inline Sse2 Reversed(Sse2 v) { return {_mm_shuffle_epi32(v.pixels, _MM_SHUFFLE(0, 1, 2, 3))}; }

}  // namespace
}  // namespace zorvic

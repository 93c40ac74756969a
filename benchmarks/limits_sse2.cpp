// The limits with 128-bit vectors.
#include <emmintrin.h>

#include "limits_inl.h"

namespace bench {

namespace {

struct Vector {
    using Word = __m128i;
    static constexpr std::size_t pixels = 4;
    static Word Load(const std::uint32_t* p) { return _mm_loadu_si128(reinterpret_cast<const Word*>(p)); }
    static void Store(std::uint32_t* p, Word word) { _mm_storeu_si128(reinterpret_cast<Word*>(p), word); }
    static Word Add(Word a, Word b) { return _mm_add_epi32(a, b); }
    static Word Splat(std::uint32_t value) { return _mm_set1_epi32(static_cast<int>(value)); }
};

}  // namespace

const LimitLoops sse2Limits = LoopsOf<Vector>("sse2");

}  // namespace bench

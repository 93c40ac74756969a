// The limits with 256-bit vectors.
#include <immintrin.h>

#include "limits_inl.h"

namespace bench {

namespace {

struct Vector {
    using Word = __m256i;
    static constexpr std::size_t pixels = 8;
    static Word Load(const std::uint32_t* p) { return _mm256_loadu_si256(reinterpret_cast<const Word*>(p)); }
    static void Store(std::uint32_t* p, Word word) { _mm256_storeu_si256(reinterpret_cast<Word*>(p), word); }
    static Word Add(Word a, Word b) { return _mm256_add_epi32(a, b); }
    static Word Splat(std::uint32_t value) { return _mm256_set1_epi32(static_cast<int>(value)); }
};

}  // namespace

const LimitLoops avx2Limits = LoopsOf<Vector>("avx2");

}  // namespace bench

// The machine's own limits: what is left of a drawing when only its loads and stores are done. One table of loops for
// each vector width and one for the processor's string instructions.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// n is rounded down to whole blocks of four vectors. Null where there is no such loop.
struct LimitLoops {
    void (*store)(std::uint32_t* dst, std::size_t n, std::uint32_t value);
    void (*modify)(std::uint32_t* dst, std::size_t n, std::uint32_t value);  // adds it
    void (*copy)(std::uint32_t* dst, const std::uint32_t* src, std::size_t n);
    void (*combine)(std::uint32_t* dst, const std::uint32_t* src, std::size_t n);  // dst becomes dst + src
};

extern const LimitLoops stringLimits, sse2Limits, avx2Limits, avx512Limits;

}  // namespace bench

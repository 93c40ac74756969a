// What a call must leave as it found it: the x87 registers free, x87 control word, MXCSR, direction flag, the registers
// that calls keep, and the stack pointer. For 32-bit Windows programs; elsewhere compilers keep to it unasked.
#pragma once

#include <cstdint>
#include <span>

namespace zorvic {

#if defined(_WIN32) && defined(__i386__)
#define ZORVIC_WATCHES_CALLS 1

struct CallOutcome {
    std::uint32_t result;
    double real;         // of functions that return one
    const char* broken;  // what was not left as found, or null
};

// Calls a cdecl function with these words as its arguments and the stack pointer residue (0, 4, 8, 12) bytes past a
// multiple of 16. One thread at a time.
CallOutcome CallWatched(const void* function, std::span<const std::uint32_t> words, int residue = 0,
                        bool returnsReal = false);
#else
#define ZORVIC_WATCHES_CALLS 0
#endif

}  // namespace zorvic

// Restoring the initial state of the registers that only wide code uses.
#include <immintrin.h>

#include <cstdint>

#include "pixel/primitive_set.h"
#include "vector_state.h"

namespace bench {

void ForgetUpperHalves() {
    if (zorvic::BestLevel() < zorvic::Level::avx2) return;
    constexpr std::uint64_t wide = 0xE4;  // the upper halves of 256 bits, masks and all that 512 bits add
    constexpr int header = 512 / sizeof(std::uint64_t);
    alignas(64) static std::uint64_t state[1024];
    _xsave(state, wide);
    state[header] = 0;  // nothing of it counts as saved
    _xrstor(state, wide);
}

}  // namespace bench

// The MMX form: two pixels in a 64-bit register.
#pragma once

#include "pixel/forms/packed64.h"

namespace zorvic {
namespace {

struct SpreadByShifts {
    static __m64 Alpha(__m64 pixels) {
        const __m64 alphas = _mm_srli_pi32(pixels, 24);
        return _mm_or_si64(alphas, _mm_slli_pi32(alphas, 16));
    }
};

using Mmx = Packed64<SpreadByShifts>;

}  // namespace
}  // namespace zorvic

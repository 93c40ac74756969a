// The SSE form: the MMX form with the shuffle that came with SSE.
#pragma once

#include <xmmintrin.h>

#include "pixel/forms/packed64.h"

namespace zorvic {
namespace {

struct SpreadByShuffle {
    static __m64 Alpha(__m64 pixels) { return _mm_shuffle_pi16(_mm_srli_pi16(pixels, 8), _MM_SHUFFLE(3, 3, 1, 1)); }
};

using Sse = Packed64<SpreadByShuffle>;

}  // namespace
}  // namespace zorvic

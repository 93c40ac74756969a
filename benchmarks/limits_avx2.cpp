// The limits with 256-bit vectors.
#include "limits_inl.h"
#include "pixel/forms/avx2.h"

const bench::LimitLoops bench::avx2Limits = bench::LoopsOf<zorvic::Avx2>();

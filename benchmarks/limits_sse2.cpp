// The limits with 128-bit vectors.
#include "limits_inl.h"
#include "pixel/forms/sse2.h"

const bench::LimitLoops bench::sse2Limits = bench::LoopsOf<zorvic::Sse2>();

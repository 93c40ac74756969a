// The AVX-512 form of every primitive.
#include "pixel/forms/avx512.h"
#include "pixel/primitives_inl.h"

constinit const zorvic::PrimitiveSet zorvic::avx512Primitives = zorvic::MakePrimitives<zorvic::Avx512>();

// The AVX2 form of every primitive.
#include "pixel/forms/avx2.h"
#include "pixel/primitives_inl.h"

constinit const zorvic::PrimitiveSet zorvic::avx2Primitives = zorvic::MakePrimitives<zorvic::Avx2>();

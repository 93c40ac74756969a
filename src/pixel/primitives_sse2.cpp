// The SSE2 form of every primitive.
#include "pixel/forms/sse2.h"
#include "pixel/primitives_inl.h"

constinit const zorvic::PrimitiveSet zorvic::sse2Primitives = zorvic::MakePrimitives<zorvic::Sse2>();

// The baseline form of every primitive.
#include "pixel/forms/baseline.h"
#include "pixel/primitives_inl.h"

constinit const zorvic::PrimitiveSet zorvic::genericPrimitives = zorvic::MakePrimitives<zorvic::Baseline>();

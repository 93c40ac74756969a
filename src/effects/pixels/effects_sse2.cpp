// The SSE2 form of every effect on pixels.
#include "effects/pixels/effects_inl.h"
#include "pixel/forms/sse2.h"

constinit const zorvic::EffectSet zorvic::sse2Effects = zorvic::MakeEffects<zorvic::Sse2>();

// The baseline form of every effect on pixels.
#include "effects/pixels/effects_inl.h"
#include "pixel/forms/baseline.h"

constinit const zorvic::EffectSet zorvic::genericEffects = zorvic::MakeEffects<zorvic::Baseline>();

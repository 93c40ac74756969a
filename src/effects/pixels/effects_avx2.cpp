// The AVX2 form of every effect on pixels.
#include "effects/pixels/effects_inl.h"
#include "pixel/forms/avx2.h"

constinit const zorvic::EffectSet zorvic::avx2Effects = zorvic::MakeEffects<zorvic::Avx2>();

// The AVX-512 form of every effect on pixels.
#include "effects/pixels/effects_inl.h"
#include "pixel/forms/avx512.h"

constinit const zorvic::EffectSet zorvic::avx512Effects = zorvic::MakeEffects<zorvic::Avx512>();

// The AVX-512 form of drawing in a colour.
#include "pixel/forms/avx512.h"
#include "raster/modulation_inl.h"

constinit const zorvic::ModulationSet zorvic::avx512Modulation = zorvic::MakeModulation<zorvic::Avx512>();

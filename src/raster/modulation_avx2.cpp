// The AVX2 form of drawing in a colour.
#include "pixel/forms/avx2.h"
#include "raster/modulation_inl.h"

constinit const zorvic::ModulationSet zorvic::avx2Modulation = zorvic::MakeModulation<zorvic::Avx2>();

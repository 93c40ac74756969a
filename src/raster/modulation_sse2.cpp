// The SSE2 form of drawing in a colour.
#include "pixel/forms/sse2.h"
#include "raster/modulation_inl.h"

constinit const zorvic::ModulationSet zorvic::sse2Modulation = zorvic::MakeModulation<zorvic::Sse2>();

// The baseline form of drawing in a colour.
#include "pixel/forms/baseline.h"
#include "raster/modulation_inl.h"

constinit const zorvic::ModulationSet zorvic::genericModulation = zorvic::MakeModulation<zorvic::Baseline>();

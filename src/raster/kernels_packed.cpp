// The baseline form with the bicubic arithmetic of packed weights, which is all that processors with MMX have in
// memory.
#include "pixel/forms/baseline.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::packedKernels =
    zorvic::MakeKernels<zorvic::Baseline, zorvic::WeightEncoding::packed16384>();

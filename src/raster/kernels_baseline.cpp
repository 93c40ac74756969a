// The baseline form of every slot.
#include "pixel/forms/baseline.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::baselineKernels =
    zorvic::MakeKernels<zorvic::Baseline, zorvic::WeightEncoding::plain256>();

// The SSE2 form of every slot.
#include "pixel/forms/sse2.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::sse2Kernels =
    zorvic::MakeKernels<zorvic::Sse2, zorvic::WeightEncoding::packed16384>();

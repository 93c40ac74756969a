// The SSE form of every slot.
#include "pixel/forms/sse.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::sseKernels =
    zorvic::MakeKernels<zorvic::Sse, zorvic::WeightEncoding::packed16384>();

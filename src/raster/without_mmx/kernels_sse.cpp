// The SSE form's place in builds whose compiler has no MMX: the next form, which gives the same bytes.
#include "pixel/forms/sse2.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::sseKernels =
    zorvic::MakeKernels<zorvic::Sse2, zorvic::WeightEncoding::packed16384>();

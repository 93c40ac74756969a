// The AVX2 form of every slot.
#include "pixel/forms/avx2.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::avx2Kernels =
    zorvic::MakeKernels<zorvic::Avx2, zorvic::WeightEncoding::packed16384>();

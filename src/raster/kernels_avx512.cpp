// The AVX-512 form of every slot.
#include "pixel/forms/avx512.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::avx512Kernels =
    zorvic::MakeKernels<zorvic::Avx512, zorvic::WeightEncoding::packed16384>();

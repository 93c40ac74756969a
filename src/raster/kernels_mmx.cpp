// The MMX form of every slot.
#include "pixel/forms/mmx.h"
#include "raster/kernels.h"
#include "raster/kernels_inl.h"

constinit const zorvic::KernelSet zorvic::mmxKernels =
    zorvic::MakeKernels<zorvic::Mmx, zorvic::WeightEncoding::packed16384>();

// The kernel sets, one per form.
#pragma once

#include "raster/kernel_set.h"

namespace zorvic {

extern const KernelSet baselineKernels;
extern const KernelSet packedKernels;  // baseline, with the bicubic arithmetic of packed filter weights
extern const KernelSet mmxKernels, sseKernels, sse2Kernels, avx2Kernels, avx512Kernels;

}  // namespace zorvic

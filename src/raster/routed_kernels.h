// Kernels that try the pixel primitives first.
#pragma once

#include "raster/kernel_set.h"

namespace zorvic {

// The four slots that have such a kernel; the others are empty. Each gives what the kernel gives before which it
// stands, and calls that one for a job that the primitives refuse.
extern const KernelSet routedKernels;

// The kernels before which these stand: the process's table without them.
extern KernelSet SavedKernels;

}  // namespace zorvic

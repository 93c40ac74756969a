// The kernel sets, one per form.
#pragma once

#include "raster/kernel_set.h"

namespace zorvic {

extern const KernelSet baselineKernels;

}  // namespace zorvic

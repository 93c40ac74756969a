// A number for everything that a slot of a kernel set draws: the same for each form, build and processor.
#pragma once

#include <cstdint>

#include "kernels/slot_calls.h"

namespace zorvic {

// FNV-1a of all bytes of the destinations of a fixed list of jobs, gaps between rows included.
std::uint64_t ChecksumOf(const SlotCall& slot, const KernelSet& kernels);

}  // namespace zorvic

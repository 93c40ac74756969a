// The composition that bicubic draws end with, on samples that are there already: no slot has it.
#pragma once

#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// Both images have 32 bits and the same size. Returns 1.
int DrawSaturatedOver(const BitmapLockInfo& dst, const BitmapLockInfo& samples, std::uint8_t alpha);

}  // namespace zorvic

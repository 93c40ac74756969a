// Horizontal runs of pixels that differ from a key.
#pragma once

#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// Columns first to end - 1; none when both are the same.
struct Run {
    int first, end;
};

// The next run of row y from column x on. Pixels are compared as 32-bit words: 24-bit ones with alpha 255, indices as
// their palette entries. For 8, 24 and 32 bits.
Run NextRun(const BitmapLockInfo& image, int y, int x, std::uint32_t key);

}  // namespace zorvic

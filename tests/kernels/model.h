// What slots have to do, said a second time: one pixel and one byte at a time. Slow on purpose.
#pragma once

#include "raster/slots.h"

namespace zorvic {

// All that a kernel of any kind is given; each takes what it needs.
struct Job {
    BitmapLockInfo dst;
    Placement placement;
    BitmapLockInfo src;
    std::uint32_t color;     // of fills
    std::uint32_t argument;  // opacity (its low byte), key or mix value
};

// What a slot samples and what it does with it.
struct SlotMeaning {
    Rows rows;
    Op op;
};

// Filters by the weights that the processor, or the one that is forced, has in memory.
void DrawByModel(const SlotMeaning& meaning, const Job& job);

// What an operation makes of one pixel and a sample of such rows.
std::uint32_t ResultByModel(const SlotMeaning& meaning, std::uint32_t dst, std::uint32_t sample,
                            std::uint32_t argument);

// A source pixel as the ARGB word that is drawn.
std::uint32_t SourceColor(const BitmapLockInfo& src, std::int64_t x, std::int64_t y);

}  // namespace zorvic

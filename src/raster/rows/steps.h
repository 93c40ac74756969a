// Where the pixels of a filtered draw fall in the source, in 16.16 fixed point. Centres map to centres: destination
// column i of an extent lies at (step >> 1) - 1/2 + i x step, the step being the truncated quotient of the extents
// plus one unit; the fraction is used with 8 bits.
#pragma once

#include "raster/image.h"

namespace zorvic {
namespace {

constexpr int ClampIndex(int index, int extent) { return index < 0 ? 0 : index >= extent ? extent - 1 : index; }

// A position between two source pixels: the whole part, and the fraction in 1/256.
struct Position {
    int pixel;
    int fraction;
};

class CenteredSteps {
public:
    CenteredSteps(int sourceExtent, std::int64_t drawExtent, std::int64_t firstIndex)
        : step((static_cast<std::int64_t>(sourceExtent) << 16) / drawExtent + 1),
          start((step >> 1) - 32768 + firstIndex * step) {}

    std::int64_t Step() const { return step; }

    Position At(int i) const { return PositionOf(start + i * step); }

    // Calls f(position) for n of them, the first being i.
    template <class Function>
    void ForEach(int i, int n, const Function& f) const {
        std::int64_t position = start + i * step;
        for (; n > 0; --n, position += step) f(PositionOf(position));
    }

private:
    static Position PositionOf(std::int64_t f) {
        return {static_cast<int>(f >> 16), static_cast<int>(static_cast<std::uint32_t>(f) >> 8 & 0xFF)};
    }

    std::int64_t step;
    std::int64_t start;
};

}  // namespace
}  // namespace zorvic

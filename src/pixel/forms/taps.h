// Four-tap filters in 16-bit arithmetic: weights scaled by 16384, and sums of a source row with 6 fraction bits, which
// is what 16-bit lanes hold. Sums are rounded to nearest, once horizontally and once at the end.
#pragma once

#include <cstdint>

namespace zorvic {
namespace {

// The taps of four neighbouring columns: four consecutive source pixels each. Column p + 2 x k has its weights at
// [p][0][k], the first two, and [p][1][k], the last two, four times each, one for every channel.
struct TapGroup {
    alignas(32) std::int16_t weights[2][2][2][8];
    int first[4];

    void Set(int column, int firstPixel, const std::int16_t (&weight)[4]) {
        first[column] = firstPixel;
        for (int half = 0; half < 2; ++half)
            for (int i = 0; i < 8; ++i) weights[column % 2][half][column / 2][i] = weight[2 * half + i % 2];
    }
};

// The weights of four rows of sums.
struct RowWeights {
    std::int16_t weight[4];
};

constexpr int horizontalRound = 1 << 7, horizontalShift = 8;
constexpr int verticalRound = 1 << 19, verticalShift = 20;

}  // namespace
}  // namespace zorvic

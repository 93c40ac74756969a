// Single calls with extreme numbers: many short dashes, wide strokes, many gradient stops, tiny tiles, huge sources. A call
// costs what it shows, so each one is meant to end within a quarter of a second at 1920 x 1080.
#pragma once

#include <string_view>
#include <vector>

namespace bench {

inline constexpr double mostMilliseconds = 250;

struct ExtremeResult {
    const char* name;
    double milliseconds;  // the least of a few calls
    bool IsMet() const { return milliseconds <= mostMilliseconds; }
};

// Those that have the text in their names.
std::vector<ExtremeResult> MeasureExtremeCalls(std::string_view text);

}  // namespace bench

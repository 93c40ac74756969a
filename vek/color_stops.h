// The colour stops of a gradient. However many there are, few are shown: what lies between the first and the last stop of
// a small part of the gradient is finer than can be seen, and the rasteriser looks for each pixel's stop one by one.
#pragma once

#include <cstdint>
#include <vector>

namespace zorvic::vek {

struct Stop {
    double offset;  // 0..1
    std::uint32_t color;
};

class ColorStops {
public:
    static constexpr int parts = 256;

    void Add(double offset, std::uint32_t color);

    // By offset, of equal offsets by age: at most two of every part.
    const std::vector<Stop>& Shown();

private:
    std::vector<Stop> stops;
    std::size_t sorted = 0;  // so many of them, from the first on
    std::vector<Stop> shown;
};

}  // namespace zorvic::vek

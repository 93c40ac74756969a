// What an area reduction covers: a destination pixel shows a box of the source in 16.16 coordinates.
#pragma once

#include <cstdint>

namespace zorvic {
namespace {

// The source pixels that one destination column or row covers, and how much of the outer ones, in 1/65536.
struct Coverage {
    int first, last;
    std::uint32_t firstWeight, lastWeight;  // the last one's is 0 where it is the first, too

    std::uint32_t WeightOf(int pixel) const {
        if (pixel == first) return firstWeight;
        return pixel == last ? lastWeight : 65536;
    }
};

inline Coverage CoverageAt(std::int64_t index, std::int64_t step) {
    const std::int64_t start = index * step, end = start + step;
    const auto first = static_cast<int>(start >> 16), last = static_cast<int>((end - 1) >> 16);
    if (first == last) return {first, last, static_cast<std::uint32_t>(step), 0};
    return {first, last, static_cast<std::uint32_t>(65536 - (start & 0xFFFF)),
            static_cast<std::uint32_t>(end - (static_cast<std::int64_t>(last) << 16))};
}

inline std::int64_t CoverageStep(int sourceExtent, std::int64_t drawExtent) {
    return (static_cast<std::int64_t>(sourceExtent) << 16) / drawExtent;
}

}  // namespace
}  // namespace zorvic

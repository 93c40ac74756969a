// The two words of a drawing request, turned into choices once: the operation word and the sampling filter.
#pragma once

#include <cstdint>

namespace zorvic {

// The top byte of an operation word. Other values copy when drawn and compose source-over when filled.
enum class Operation : std::uint32_t {
    copy = 0,
    sourceOver = 1,
    colorKey = 2,  // draws only
    multiply = 3,
    bitOr = 4,     // fills only
    grayWash = 5,  // fills only
    destinationOver = 6
};

constexpr Operation OperationOf(std::uint32_t operationWord) { return static_cast<Operation>(operationWord >> 24); }

enum class Filter { nearest, bilinear, bicubic, area };

constexpr Filter FilterOf(std::uint32_t filterMode) {
    switch (filterMode) {
        case 0:
            return Filter::nearest;
        case 4:
            return Filter::bicubic;
        case 5:
            return Filter::area;
        default:
            return Filter::bilinear;
    }
}

}  // namespace zorvic

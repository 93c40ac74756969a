// Memory of a call's records and images, each with known bytes before it and an inaccessible page behind.
#pragma once

#include <algorithm>
#include <array>

#include "support/fenced_memory.h"

namespace calls {

class Fence {
public:
    static constexpr std::size_t capacity = 1 << 15;

    std::byte* Place(std::size_t bytes) {
        placed = bytes;
        std::ranges::fill(Margin(), known);
        return memory.Bytes().last(placed).data();
    }
    // Whether nothing was written before the placed bytes.
    bool IsIntact() const {
        return std::ranges::all_of(Margin(), [](std::byte byte) { return byte == known; });
    }
    std::span<const std::byte> Placed() const { return memory.Bytes().last(placed); }

private:
    static constexpr std::size_t margin = 64;
    static constexpr std::byte known{0xA7};

    std::span<std::byte> Margin() const { return memory.Bytes().last(placed + margin).first(margin); }

    zorvic::FencedMemory memory{margin + capacity};
    std::size_t placed = 0;
};

// As many as one call needs.
using Fences = std::array<Fence, 8>;

}  // namespace calls

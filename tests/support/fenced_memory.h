// Memory whose end is the end of the world: the byte behind it lies on a page that may not be touched.
#pragma once

#include <cstddef>
#include <span>

namespace zorvic {

class FencedMemory {
public:
    explicit FencedMemory(std::size_t size);
    ~FencedMemory();
    FencedMemory(const FencedMemory&) = delete;
    FencedMemory& operator=(const FencedMemory&) = delete;

    std::span<std::byte> Bytes() const { return bytes; }

private:
    std::byte* pages;
    std::size_t pagesSize;  // with the fence
    std::span<std::byte> bytes;
};

}  // namespace zorvic

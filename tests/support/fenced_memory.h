// Memory with an end: the byte behind it lies on a page that may not be touched.
#pragma once

#include <cstddef>
#include <span>

namespace zorvic {

// Blocks of whole pages, with an inaccessible page before and behind each of them.
class FencedBlocks {
public:
    FencedBlocks(std::size_t count, std::size_t bytesOfEach);
    ~FencedBlocks();
    FencedBlocks(const FencedBlocks&) = delete;
    FencedBlocks& operator=(const FencedBlocks&) = delete;

    std::byte* Block(std::size_t i) const { return pages + pageSize + i * Step(); }
    std::size_t BlockSize() const { return blockSize; }
    std::size_t Step() const { return blockSize + pageSize; }  // from block to block

private:
    static constexpr std::size_t pageSize = 4096;  // x86

    std::size_t blockSize, allSize;
    std::byte* pages;
};

// So many bytes, the last one at the end of a block.
class FencedMemory {
public:
    explicit FencedMemory(std::size_t size) : block(1, size), bytes(block.Block(0) + block.BlockSize() - size, size) {}

    std::span<std::byte> Bytes() const { return bytes; }

private:
    FencedBlocks block;
    std::span<std::byte> bytes;
};

}  // namespace zorvic

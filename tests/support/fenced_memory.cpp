#include "support/fenced_memory.h"

#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace zorvic {

namespace {

#ifdef _WIN32
std::byte* AllocatePages(std::size_t size) {
    return static_cast<std::byte*>(VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
}
bool MakeInaccessible(std::byte* page, std::size_t size) {
    DWORD before;
    return VirtualProtect(page, size, PAGE_NOACCESS, &before) != 0;
}
void FreePages(std::byte* pages, std::size_t) { VirtualFree(pages, 0, MEM_RELEASE); }
#else
std::byte* AllocatePages(std::size_t size) {
    void* pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : static_cast<std::byte*>(pages);
}
bool MakeInaccessible(std::byte* page, std::size_t size) { return mprotect(page, size, PROT_NONE) == 0; }
void FreePages(std::byte* pages, std::size_t size) { munmap(pages, size); }
#endif

}  // namespace

FencedBlocks::FencedBlocks(std::size_t count, std::size_t bytesOfEach)
    : blockSize((bytesOfEach + pageSize - 1) / pageSize * pageSize),
      allSize(count * Step() + pageSize),
      pages(AllocatePages(allSize)) {
    if (pages == nullptr) throw std::bad_alloc();
    for (std::size_t i = 0; i <= count; ++i)
        if (!MakeInaccessible(pages + i * Step(), pageSize)) throw std::bad_alloc();
}

FencedBlocks::~FencedBlocks() { FreePages(pages, allSize); }

}  // namespace zorvic

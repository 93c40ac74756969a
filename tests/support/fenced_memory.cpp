#include "support/fenced_memory.h"

#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#endif

namespace zorvic {

namespace {

constexpr std::size_t pageSize = 4096;  // x86

#ifdef _WIN32
std::byte* AllocatePages(std::size_t size) {
    return static_cast<std::byte*>(VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
}
bool MakeInaccessible(std::byte* page) {
    DWORD before;
    return VirtualProtect(page, pageSize, PAGE_NOACCESS, &before) != 0;
}
void FreePages(std::byte* pages, std::size_t) { VirtualFree(pages, 0, MEM_RELEASE); }
#else
std::byte* AllocatePages(std::size_t size) {
    void* pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : static_cast<std::byte*>(pages);
}
bool MakeInaccessible(std::byte* page) { return mprotect(page, pageSize, PROT_NONE) == 0; }
void FreePages(std::byte* pages, std::size_t size) { munmap(pages, size); }
#endif

}  // namespace

FencedMemory::FencedMemory(std::size_t size) {
    const std::size_t usable = (size + pageSize - 1) / pageSize * pageSize;
    pagesSize = usable + pageSize;
    pages = AllocatePages(pagesSize);
    if (pages == nullptr || !MakeInaccessible(pages + usable)) throw std::bad_alloc();
    bytes = {pages + usable - size, size};
}

FencedMemory::~FencedMemory() { FreePages(pages, pagesSize); }

}  // namespace zorvic

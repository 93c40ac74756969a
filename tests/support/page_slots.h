// Pages for blocks of memory that end at an inaccessible page. Pages that were given back are inaccessible, too, and
// stay so as long as others can be had.
#pragma once

#include <windows.h>

#include <bit>
#include <cstddef>
#include <deque>
#include <map>

namespace host {

inline constexpr std::size_t pageSize = 4096;  // x86

// A power of 2.
inline std::size_t PagesFor(std::size_t bytes) { return std::bit_ceil((bytes + pageSize - 1) / pageSize); }

class PageSlots {
public:
    // The end of that many accessible pages; null when there are none.
    std::byte* Take(std::size_t pages) {
        auto& waiting = free[pages];
        if (waiting.size() <= (pages > largestShared ? 0 : quarantine) && !AddSlots(pages)) {
            if (waiting.empty()) return nullptr;
        }
        std::byte* const first = waiting.front();
        waiting.pop_front();
        Protect(first, pages, PAGE_READWRITE);
        return first + pages * pageSize;
    }

    void GiveBack(std::byte* end, std::size_t pages) {
        std::byte* const first = end - pages * pageSize;
        if (pages > largestShared) {
            VirtualFree(first, 0, MEM_RELEASE);
        } else {
            Protect(first, pages, PAGE_NOACCESS);
            free[pages].push_back(first);
        }
    }

private:
    static constexpr std::size_t quarantine = 64;      // slots of a size that wait before the first is used again
    static constexpr std::size_t largestShared = 256;  // pages: larger slots are the system's own
    static constexpr std::size_t chunk = 4 << 20;      // bytes

    static void Protect(std::byte* first, std::size_t pages, DWORD protection) {
        DWORD before;
        VirtualProtect(first, pages * pageSize, protection, &before);
    }

    bool AddSlots(std::size_t pages) {
        const std::size_t slot = (pages + 1) * pageSize;
        const std::size_t size = pages > largestShared ? slot : chunk;
        auto* const first =
            static_cast<std::byte*>(VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS));
        if (!first) return false;
        for (std::size_t at = 0; at + slot <= size; at += slot) free[pages].push_back(first + at);
        return true;
    }

    std::map<std::size_t, std::deque<std::byte*>> free;  // by pages: where each slot begins
};

}  // namespace host

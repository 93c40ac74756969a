// Leads the calls of a loaded program or DLL elsewhere, by its import table.
#pragma once

#include <utility>

#include "support/pe_image.h"

// Returns where the entry (see PeImage) led before. Some linkers make import tables read-only.
inline void* Redirect(void** entry, void* target) {
    DWORD protection = 0;
    VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &protection);
    void* const before = std::exchange(*entry, target);
    VirtualProtect(entry, sizeof *entry, protection, &protection);
    return before;
}

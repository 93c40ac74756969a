// A memory device context with a bitmap selected into it, for as long as the object lives.
#pragma once

#include "zorvic/types.h"

namespace zorvic {

class MemoryDc {
public:
    // Stays empty when GDI refuses.
    explicit MemoryDc(HBITMAP bitmap) : dc(bitmap ? CreateCompatibleDC(nullptr) : nullptr) {
        if (dc) previousObject = SelectObject(dc, bitmap);
    }
    ~MemoryDc() {
        if (!dc) return;
        SelectObject(dc, previousObject);
        DeleteDC(dc);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Get() const { return dc; }

private:
    HDC dc;
    HGDIOBJ previousObject = nullptr;
};

}  // namespace zorvic

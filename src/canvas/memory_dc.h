// A memory device context, and the bitmap that is selected into it.
#pragma once

#include "zorvic/types.h"

namespace zorvic {

class MemoryDc {
public:
    MemoryDc() : dc(CreateCompatibleDC(nullptr)) {}
    ~MemoryDc() {
        if (!dc) return;
        Deselect();
        DeleteDC(dc);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Get() const { return dc; }  // null when GDI refuses

    // Selects the bitmap, once. False when GDI refuses, as it does while another device context has it.
    bool Select(HBITMAP bitmap) {
        if (!previousObject && bitmap) previousObject = SelectObject(dc, bitmap);
        return previousObject != nullptr;
    }
    // What is drawn then does not reach the bitmap.
    void Deselect() {
        if (previousObject) SelectObject(dc, previousObject);
        previousObject = nullptr;
    }

private:
    HDC dc;
    HGDIOBJ previousObject = nullptr;
};

}  // namespace zorvic

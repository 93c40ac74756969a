// One call with a NULL handle for every export (or a refused one, for those without handles), and its stated result.
#pragma once

#include <span>

#include "support/host.h"

// What calls need besides the handle that is NULL.
struct Partners {
    host::OwnedCanvas canvas{CreateCanvas(8, 8, nullptr)};
    host::OwnedBitmap bitmap{CreateMemBitmap(8, 8)};
    host::OwnedTexture texture{CreateTexture(8, 8)};
    RECT rect{0, 0, 8, 8};
    SIZE size{};
    POINT point{};
    DWORD word = 0;
    BYTE byte = 0;
    BITMAP image{};
    BitmapLockInfo lock{};
    TextureMode mode{};
    TextureDrawParams params{};
    HDC dc = GetCanvasHandle(canvas.get());
};

struct NullCase {
    const char* name;
    std::intptr_t (*call)(Partners& with);
    std::intptr_t wanted;
};

std::span<const NullCase> NullCases();

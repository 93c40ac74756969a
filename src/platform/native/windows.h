// The few Windows records that the pixel engine needs, laid out as on Windows, for builds on other systems.
// Only targets without the platform's own header have this folder on their include path.
#pragma once

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using LPVOID = void*;

struct RECT {
    LONG left, top, right, bottom;
};

struct POINT {
    LONG x, y;
};

struct SIZE {
    LONG cx, cy;
};

struct BITMAP {
    LONG bmType, bmWidth, bmHeight, bmWidthBytes;
    WORD bmPlanes, bmBitsPixel;
    LPVOID bmBits;
};

#define DECLARE_HANDLE(name) \
    struct name##__ {        \
        int unused;          \
    };                       \
    using name = name##__*

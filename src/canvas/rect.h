// Arithmetic on rectangles with any coordinates. Offsets wrap around, so that nothing overflows and moving there and
// back is exact; extents have 64 bits, because the difference of two coordinates may need 33.
#pragma once

#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

constexpr LONG WrapAdd(LONG a, LONG b) { return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b)); }
constexpr LONG WrapSubtract(LONG a, LONG b) { return static_cast<LONG>(static_cast<DWORD>(a) - static_cast<DWORD>(b)); }

constexpr POINT operator+(POINT a, POINT b) { return {WrapAdd(a.x, b.x), WrapAdd(a.y, b.y)}; }
constexpr POINT operator-(POINT a, POINT b) { return {WrapSubtract(a.x, b.x), WrapSubtract(a.y, b.y)}; }

constexpr RECT Offset(const RECT& rect, POINT by) {
    return {WrapAdd(rect.left, by.x), WrapAdd(rect.top, by.y), WrapAdd(rect.right, by.x), WrapAdd(rect.bottom, by.y)};
}

constexpr std::int64_t WidthOf(const RECT& rect) { return std::int64_t{rect.right} - rect.left; }
constexpr std::int64_t HeightOf(const RECT& rect) { return std::int64_t{rect.bottom} - rect.top; }

}  // namespace zorvic

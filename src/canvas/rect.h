// Arithmetic on rectangles with any coordinates. Offsets wrap around, so that nothing overflows and moving there and
// back is exact; extents have 64 bits, because the difference of two coordinates may need 33.
#pragma once

#include <algorithm>
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

constexpr bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

constexpr bool IsEmpty(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

// What two rectangles have in common: all zero when that is nothing.
constexpr RECT Intersection(const RECT& a, const RECT& b) {
    const RECT common{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                      std::min(a.bottom, b.bottom)};
    return IsEmpty(common) ? RECT{} : common;
}

// The smallest rectangle around two, of which empty ones do not count.
constexpr RECT Union(const RECT& a, const RECT& b) {
    if (IsEmpty(a)) return b;
    if (IsEmpty(b)) return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

constexpr std::int64_t WidthOf(const RECT& rect) { return std::int64_t{rect.right} - rect.left; }
constexpr std::int64_t HeightOf(const RECT& rect) { return std::int64_t{rect.bottom} - rect.top; }

}  // namespace zorvic

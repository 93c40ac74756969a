// Points, boxes and pixel rectangles, and the bridge between doubles and pixel numbers.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace zorvic::vek {

struct Point {
    double x = 0;
    double y = 0;
    friend Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
    friend Point operator*(Point a, double k) { return {a.x * k, a.y * k}; }
    friend bool operator==(Point a, Point b) { return a.x == b.x && a.y == b.y; }
};

// No coordinates are so large that their squares overflow, as std::hypot() is slow to prevent.
inline double Distance(Point a, Point b) { return std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y)); }
inline Point Middle(Point a, Point b) { return (a + b) * 0.5; }
inline Point Mix(Point a, Point b, double t) { return a + (b - a) * t; }

template <class... Number>
bool AllFinite(Number... number) {
    return (std::isfinite(number) && ...);
}

// Pixels [left, right) x [top, bottom).
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool Empty() const { return left >= right || top >= bottom; }
    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    friend bool operator==(const Rect&, const Rect&) = default;
};

inline Rect Intersect(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

// Extent of points; empty at first.
struct Box {
    double left = std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();
    bool Empty() const { return left > right; }
    void Add(Point p) {
        left = std::min(left, p.x);
        top = std::min(top, p.y);
        right = std::max(right, p.x);
        bottom = std::max(bottom, p.y);
    }
    bool Contains(Point p) const { return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom; }
    bool Contains(const Box& b) const {
        return b.left >= left && b.right <= right && b.top >= top && b.bottom <= bottom;
    }
    bool Meets(const Box& b) const { return left <= b.right && right >= b.left && top <= b.bottom && bottom >= b.top; }
    Box Moved(Point by) const { return {left + by.x, top + by.y, right + by.x, bottom + by.y}; }
    Box Grown(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

// Pixel numbers stay far inside int, so that their differences do too.
inline constexpr double farthestPixel = 1 << 29;
inline int ToPixel(double whole) { return static_cast<int>(std::clamp(whole, -farthestPixel, farthestPixel)); }

inline constexpr Rect unbounded{-(1 << 29), -(1 << 29), 1 << 29, 1 << 29};

// The pixel edge that a coordinate falls on when only whole pixels are painted: of two neighbours, a pixel centre
// exactly on an edge belongs to the shape on its left or above.
inline double PixelEdge(double coordinate) { return std::floor(coordinate + 0.5); }

// All pixels that a box touches.
inline Rect PixelsOf(const Box& box) {
    return {ToPixel(std::floor(box.left)), ToPixel(std::floor(box.top)), ToPixel(std::ceil(box.right)),
            ToPixel(std::ceil(box.bottom))};
}

inline Box BoxOf(const Rect& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

}  // namespace zorvic::vek

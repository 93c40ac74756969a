// What every exported function does first: turn a handle into its object, and let no exception in or out.
#pragma once

#include <memory>

#include "canvas.h"
#include "gradient.h"
#include "path.h"
#include "platform/own_floats.h"
#include "vek/vekgraphic.h"

namespace zorvic::vek {

inline Canvas* ObjectOf(VekCanvas handle) { return reinterpret_cast<Canvas*>(handle); }
inline Image* ObjectOf(VekBitmap handle) { return reinterpret_cast<Image*>(handle); }
inline Path* ObjectOf(VekPath handle) { return reinterpret_cast<Path*>(handle); }
// Shared with the canvases that it is set on.
inline std::shared_ptr<Gradient>* ObjectOf(VekGradient handle) {
    return reinterpret_cast<std::shared_ptr<Gradient>*>(handle);
}

// Calls call(object) and gives its bool, or true when it has none, as 1 or 0; 0 for a 0 handle and on any failure.
template <class Handle, class Call>
int With(Handle handle, Call call) noexcept {
    if (!handle) return 0;
    const OwnFloats floats;
    try {
        auto& object = *ObjectOf(handle);
        if constexpr (std::is_void_v<decltype(call(object))>) {
            call(object);
            return 1;
        } else {
            return call(object) ? 1 : 0;
        }
    } catch (...) {
        return 0;
    }
}

// Gives make()'s owning pointer away as a handle; 0 on any failure.
template <class Handle, class Make>
Handle NewHandle(Make make) noexcept {
    const OwnFloats floats;
    try {
        return reinterpret_cast<Handle>(make().release());
    } catch (...) {
        return nullptr;
    }
}

inline Point PointOf(float x, float y) { return {static_cast<double>(x), static_cast<double>(y)}; }
// Opposite corners of the box that a call describes.
struct Corners {
    Point a;
    Point b;
};
inline Corners CornersOf(float x, float y, float width, float height) {
    return {PointOf(x, y), PointOf(x, y) + PointOf(width, height)};
}
inline Corners AroundCircle(float cx, float cy, float radius) {
    const double r = std::max(static_cast<double>(radius), 0.0);
    return {PointOf(cx, cy) - Point{r, r}, PointOf(cx, cy) + Point{r, r}};
}

inline Box BoxOf(const RECT& rect) {
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

}  // namespace zorvic::vek

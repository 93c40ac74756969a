// What the vector pages share: owning paths and gradients, and shapes that show a style well.
#pragma once

#include <functional>

#include "pages.h"

struct DeletePathOrGradient {
    void operator()(HGPATH path) const { PathDestroy(path); }
    void operator()(HGGRADIENT gradient) const { GradientDestroy(gradient); }
};
using Path = std::unique_ptr<std::remove_pointer_t<HGPATH>, DeletePathOrGradient>;
using Gradient = std::unique_ptr<std::remove_pointer_t<HGGRADIENT>, DeletePathOrGradient>;

// A five-pointed star that crosses itself.
inline Path Star(float cx, float cy, float radius) {
    constexpr float corners[5][2] = {
        {0, -1}, {0.588F, 0.809F}, {-0.951F, -0.309F}, {0.951F, -0.309F}, {-0.588F, 0.809F}};
    Path path(PathCreate());
    PathMoveTo(path.get(), cx + corners[0][0] * radius, cy + corners[0][1] * radius);
    for (int i = 1; i < 5; ++i) PathLineTo(path.get(), cx + corners[i][0] * radius, cy + corners[i][1] * radius);
    PathClose(path.get());
    return path;
}

// From warm to cold.
inline Gradient WithStops(HGGRADIENT created) {
    GradientAddColorStop(created, 0, 0xFFFFD040);
    GradientAddColorStop(created, 0.5F, 0xFFE0402C);
    GradientAddColorStop(created, 1, 0xFF2040E0);
    return Gradient(created);
}

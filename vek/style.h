// The style of a canvas as vekCanvasSave keeps it, and the dashes that it stands for.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "vek/vekgraphic.h"

namespace zorvic::vek {

class Gradient;

enum class DrawStyle { fill, stroke, gradient };
enum class Cap { butt, round, square };
enum class Join { miter, round, bevel };

// In the order of the interface.
enum class Blend {
    sourceOver,
    source,
    destinationOver,
    clear,
    sourceIn,
    destinationIn,
    sourceOut,
    destinationOut,
    sourceAtop,
    destinationAtop,
    exclusiveOr,
    plus,
    multiply,
    screen,
    overlay,
    darken,
    lighten,
    colorDodge,
    colorBurn,
    hardLight,
    softLight,
    difference,
    exclusion,
    hue,
    saturation,
    color,
    luminosity
};
static_assert(static_cast<int>(Blend::luminosity) == VEK_BLEND_LUMINOSITY);

// Lengths on and off by turns; empty is a solid line.
using Dashes = std::vector<double>;

struct Style {
    DrawStyle draw = DrawStyle::fill;
    std::uint32_t color = 0xFF000000;  // straight ARGB
    bool smooth = true;
    float strokeWidth = 1;
    Cap cap = Cap::butt;
    Join join = Join::miter;
    int dashStyle = VEK_DASH_SOLID;
    std::shared_ptr<const Dashes> dashPattern;  // pixels; wins over dashStyle
    std::shared_ptr<Gradient> gradient;
    Blend blend = Blend::sourceOver;
    int value = 255;  // opacity of every draw
};

// The dashes in pixels.
inline Dashes DashesOf(const Style& style) {
    if (style.dashPattern) return *style.dashPattern;
    constexpr double dash = 3, dot = 1, gap = 1;  // stroke widths
    Dashes dashes;
    switch (style.dashStyle) {
        case VEK_DASH_DASH:
            dashes = {dash, gap};
            break;
        case VEK_DASH_DOT:
            dashes = {dot, gap};
            break;
        case VEK_DASH_DASH_DOT:
            dashes = {dash, gap, dot, gap};
            break;
        case VEK_DASH_DASH_DOT_DOT:
            dashes = {dash, gap, dot, gap, dot, gap};
            break;
        default:
            break;
    }
    for (double& length : dashes) length *= static_cast<double>(style.strokeWidth);
    return dashes;
}

}  // namespace zorvic::vek

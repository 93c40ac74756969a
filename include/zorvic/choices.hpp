// Zorvic for C++20: the interface's choices as types of their own. Values and meanings are those of the constants in
// zorvic.h.
#pragma once

#include "zorvic/zorvic.h"

namespace zorvic {

enum class Operation : DWORD {
    copy = ZORVIC_OP_COPY,
    sourceOver = ZORVIC_OP_SOURCE_OVER,
    colorKey = ZORVIC_OP_COLOR_KEY,
    multiply = ZORVIC_OP_MULTIPLY,
    bitwiseOr = ZORVIC_OP_OR,
    grayWash = ZORVIC_OP_GRAY_WASH,
    destinationOver = ZORVIC_OP_DESTINATION_OVER
};

enum class Filter : DWORD {
    nearest = ZORVIC_FILTER_NEAREST,
    bilinear = ZORVIC_FILTER_BILINEAR,
    bicubic = ZORVIC_FILTER_BICUBIC,
    area = ZORVIC_FILTER_AREA
};

enum class StretchKernel : DWORD {
    cubicConvolution = ZORVIC_KERNEL_CUBIC_CONVOLUTION,
    bSpline = ZORVIC_KERNEL_B_SPLINE
};

enum class Layout : LONG {
    stretch = ZORVIC_LAYOUT_STRETCH,
    nineGrid = ZORVIC_LAYOUT_NINE_GRID,
    tile = ZORVIC_LAYOUT_TILE,
    center = ZORVIC_LAYOUT_CENTER,
    nineGridFilled = ZORVIC_LAYOUT_NINE_GRID_FILLED,
    topTile = ZORVIC_LAYOUT_TOP_TILE,
    uniform = ZORVIC_LAYOUT_UNIFORM
};

enum class Tiles : DWORD { plain = 0, scaled = ZORVIC_TILE_SCALED };

enum class Transform {
    rotate90 = ZORVIC_TRANSFORM_ROTATE_90,
    rotate180 = ZORVIC_TRANSFORM_ROTATE_180,
    rotate270 = ZORVIC_TRANSFORM_ROTATE_270,
    flipVertical = ZORVIC_TRANSFORM_FLIP_VERTICAL,
    flipHorizontal = ZORVIC_TRANSFORM_FLIP_HORIZONTAL,
    transpose = ZORVIC_TRANSFORM_TRANSPOSE,
    antiTranspose = ZORVIC_TRANSFORM_ANTI_TRANSPOSE
};

enum class MirrorAxis {
    vertical = ZORVIC_MIRROR_VERTICAL,
    horizontal = ZORVIC_MIRROR_HORIZONTAL,
    both = ZORVIC_MIRROR_BOTH
};

enum class Shuffle { alphaToGray = ZORVIC_SHUFFLE_ALPHA_TO_GRAY, colorToAlpha = ZORVIC_SHUFFLE_COLOR_TO_ALPHA };

enum class GradualDirection : DWORD {
    topToBottom = ZORVIC_GRADUAL_TOP_TO_BOTTOM,
    leftToRight = ZORVIC_GRADUAL_LEFT_TO_RIGHT
};

enum class DrawStyle { fill = ZORVIC_DRAW_FILL, stroke = ZORVIC_DRAW_STROKE, gradient = ZORVIC_DRAW_GRADIENT };

enum class BlendMode {
    sourceOver = ZORVIC_BLEND_SOURCE_OVER,
    source = ZORVIC_BLEND_SOURCE,
    destinationOver = ZORVIC_BLEND_DESTINATION_OVER,
    clear = ZORVIC_BLEND_CLEAR,
    sourceIn = ZORVIC_BLEND_SOURCE_IN,
    destinationIn = ZORVIC_BLEND_DESTINATION_IN,
    sourceOut = ZORVIC_BLEND_SOURCE_OUT,
    destinationOut = ZORVIC_BLEND_DESTINATION_OUT,
    sourceAtop = ZORVIC_BLEND_SOURCE_ATOP,
    destinationAtop = ZORVIC_BLEND_DESTINATION_ATOP,
    exclusiveOr = ZORVIC_BLEND_XOR,
    plus = ZORVIC_BLEND_PLUS,
    multiply = ZORVIC_BLEND_MULTIPLY,
    screen = ZORVIC_BLEND_SCREEN,
    overlay = ZORVIC_BLEND_OVERLAY,
    darken = ZORVIC_BLEND_DARKEN,
    lighten = ZORVIC_BLEND_LIGHTEN,
    colorDodge = ZORVIC_BLEND_COLOR_DODGE,
    colorBurn = ZORVIC_BLEND_COLOR_BURN,
    hardLight = ZORVIC_BLEND_HARD_LIGHT,
    softLight = ZORVIC_BLEND_SOFT_LIGHT,
    difference = ZORVIC_BLEND_DIFFERENCE,
    exclusion = ZORVIC_BLEND_EXCLUSION,
    hue = ZORVIC_BLEND_HUE,
    saturation = ZORVIC_BLEND_SATURATION,
    color = ZORVIC_BLEND_COLOR,
    luminosity = ZORVIC_BLEND_LUMINOSITY
};

enum class StrokeCap { butt = ZORVIC_CAP_BUTT, round = ZORVIC_CAP_ROUND, square = ZORVIC_CAP_SQUARE };

enum class StrokeJoin { miter = ZORVIC_JOIN_MITER, round = ZORVIC_JOIN_ROUND, bevel = ZORVIC_JOIN_BEVEL };

enum class DashStyle : BYTE {
    solid = ZORVIC_DASH_SOLID,
    dash = ZORVIC_DASH_DASH,
    dot = ZORVIC_DASH_DOT,
    dashDot = ZORVIC_DASH_DASH_DOT,
    dashDotDot = ZORVIC_DASH_DASH_DOT_DOT
};

}  // namespace zorvic

// The choices behind the settings, each with its name for people and its name in C++.
#pragma once

#include "document/settings.h"

template <class T>
struct Choice {
    T value;
    const wchar_t* name;
    const char* code;
};

inline constexpr Choice<zorvic::Operation> operations[]{
    {zorvic::Operation::copy, L"Copy", "copy"},
    {zorvic::Operation::sourceOver, L"Source over", "sourceOver"},
    {zorvic::Operation::colorKey, L"Colour key", "colorKey"},
    {zorvic::Operation::multiply, L"Multiply", "multiply"},
    {zorvic::Operation::destinationOver, L"Destination over", "destinationOver"},
};

inline constexpr Choice<zorvic::Filter> filters[]{
    {zorvic::Filter::nearest, L"Nearest", "nearest"},
    {zorvic::Filter::bilinear, L"Bilinear", "bilinear"},
    {zorvic::Filter::bicubic, L"Bicubic", "bicubic"},
    {zorvic::Filter::area, L"Area", "area"},
};

inline constexpr Choice<zorvic::StretchKernel> kernels[]{
    {zorvic::StretchKernel::bSpline, L"B-spline (smooth)", "bSpline"},
    {zorvic::StretchKernel::cubicConvolution, L"Cubic convolution (sharp)", "cubicConvolution"},
};

inline constexpr Choice<Ground> grounds[]{
    {Ground::clear, L"Transparent", "0"},
    {Ground::white, L"White", "0xFFFFFFFF"},
    {Ground::black, L"Black", "0xFF000000"},
    {Ground::bars, L"Colour bars", ""},
};

inline constexpr Choice<zorvic::Layout> layouts[]{
    {zorvic::Layout::stretch, L"Stretch", "stretch"},
    {zorvic::Layout::nineGrid, L"Nine-grid", "nineGrid"},
    {zorvic::Layout::nineGridFilled, L"Nine-grid, flat centre", "nineGridFilled"},
    {zorvic::Layout::tile, L"Tile", "tile"},
    {zorvic::Layout::topTile, L"Tile the top", "topTile"},
    {zorvic::Layout::center, L"Centre", "center"},
    {zorvic::Layout::uniform, L"Uniform (crop)", "uniform"},
};

inline constexpr Choice<int> transforms[]{
    {0, L"None", ""},
    {ZORVIC_TRANSFORM_ROTATE_90, L"Rotate 90\u00B0", "rotate90"},
    {ZORVIC_TRANSFORM_ROTATE_180, L"Rotate 180\u00B0", "rotate180"},
    {ZORVIC_TRANSFORM_ROTATE_270, L"Rotate 270\u00B0", "rotate270"},
    {ZORVIC_TRANSFORM_FLIP_VERTICAL, L"Flip top to bottom", "flipVertical"},
    {ZORVIC_TRANSFORM_FLIP_HORIZONTAL, L"Flip left to right", "flipHorizontal"},
    {ZORVIC_TRANSFORM_TRANSPOSE, L"Transpose", "transpose"},
    {ZORVIC_TRANSFORM_ANTI_TRANSPOSE, L"Anti-transpose", "antiTranspose"},
};

inline constexpr Choice<Effect> effects[]{
    {Effect::none, L"None", ""},
    {Effect::gray, L"Grey", ""},
    {Effect::invert, L"Invert", ""},
    {Effect::blur, L"Blur 3 x 3", ""},
    {Effect::boxBlur, L"Box blur", ""},
    {Effect::colorize, L"Colorize", ""},
    {Effect::light, L"Glow", ""},
    {Effect::dark, L"Soften for a shadow", ""},
    {Effect::alphaToGray, L"Alpha to grey", ""},
    {Effect::colorToAlpha, L"Colour to alpha", ""},
};

template <class T, std::size_t n>
const Choice<T>& ChoiceOf(const Choice<T> (&choices)[n], T value) {
    for (const Choice<T>& choice : choices)
        if (choice.value == value) return choice;
    return choices[0];
}

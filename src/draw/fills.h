// Solid fills of a rectangle of a canvas.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

// Each colour channel becomes (channel x (alpha + 1)) >> 8.
constexpr DWORD Premultiply(DWORD color) {
    const DWORD alpha = color >> 24;
    const DWORD redBlue = ((color & 0xFF00FF) * (alpha + 1)) >> 8 & 0xFF00FF;
    const DWORD green = ((color & 0x00FF00) * (alpha + 1)) >> 8 & 0x00FF00;
    return alpha << 24 | redBlue | green;
}

// Fills with a premultiplied colour by the mode's operation. Colours that change nothing return 1 before the canvas is
// looked at; then a null canvas returns 0. Everything else returns 1.
int FillColor(Canvas* canvas, DWORD color, const RECT* rect, DWORD mode);

}  // namespace zorvic

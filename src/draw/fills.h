// Solid fills of a rectangle of a canvas.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

// Every byte x factor >> 8, for factors 1..256.
constexpr DWORD ScaleBytes(DWORD color, DWORD factor) {
    const DWORD redBlue = (color & 0x00FF00FF) * factor >> 8 & 0x00FF00FF;
    const DWORD alphaGreen = (color >> 8 & 0x00FF00FF) * factor & 0xFF00FF00;
    return alphaGreen | redBlue;
}

// Each colour channel becomes (channel x (alpha + 1)) >> 8.
constexpr DWORD Premultiply(DWORD color) {
    return (color & 0xFF000000) | (ScaleBytes(color, (color >> 24) + 1) & 0x00FFFFFF);
}

// Fills with a premultiplied colour by the mode's operation. Colours that change nothing return 1 before the canvas is
// looked at; then a null canvas returns 0. Everything else returns 1.
int FillColor(Canvas* canvas, DWORD color, const RECT* rect, DWORD mode);

// The same clipped to what is locked of a canvas.
void FillColor(const CanvasLock& target, DWORD color, const RECT& rect, DWORD mode);

}  // namespace zorvic

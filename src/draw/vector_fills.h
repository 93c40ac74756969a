// Anti-aliased fills and gradients through the vector backend.
#pragma once

#include "canvas/vector_canvas.h"

namespace zorvic {

// Colours are straight ARGB. All return the backend's result, 0 without a surface.
int FillRectangle(Canvas& canvas, const RECT& rect, DWORD color);
int FillRoundRect(Canvas& canvas, const RECT& rect, POINT corner, DWORD color);

// The rectangle as the backend takes it: a corner and extents, here with the extents changed by `grow` pixels.
int DrawVectorRectangle(VekCanvas canvas, const RECT& rect, float grow = 0);

enum class GradientDirection : DWORD { topToBottom = 1, leftToRight = 2 };

// A gradient between two colours; other directions, and colours that are equal once premultiplied, fill with the first.
int FillGradient(Canvas* canvas, DWORD from, DWORD to, const RECT* rect, GradientDirection direction);

}  // namespace zorvic

// Shapes that need more than a call of the backend: those with a rectangle, and those drawn as temporary paths.
#pragma once

#include "canvas/vector_canvas.h"

namespace zorvic {

// The backend gets a copy of the rectangle that is aligned to 16 bytes, wherever the host's lies.
int DrawRoundRect(VekCanvas canvas, const RECT& rect, float rx, float ry);
int DrawColor(VekCanvas canvas, DWORD color, const RECT& rect);

// A closed polygon; its first point is read even when count is 0.
int DrawPolygon(VekCanvas canvas, unsigned count, const POINT* points);

// One cubic curve, open.
int DrawBezier(VekCanvas canvas, POINT p0, POINT p1, POINT p2, POINT p3);

}  // namespace zorvic

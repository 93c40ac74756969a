// Shapes that are drawn as temporary paths.
#pragma once

#include "canvas/vector_canvas.h"

namespace zorvic {

// A closed polygon; its first point is read even when count is 0.
int DrawPolygon(VekCanvas canvas, unsigned count, const POINT* points);

// One cubic curve, open.
int DrawBezier(VekCanvas canvas, POINT p0, POINT p1, POINT p2, POINT p3);

}  // namespace zorvic

// A rectangle that GDI draws.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

// Draws nothing when the canvas has no device context. Of edges that lie far outside the clip GDI gets nearer ones.
void DrawGdiRectangle(Canvas& canvas, const RECT& rect, HGDIOBJ pen, HGDIOBJ brush);

}  // namespace zorvic

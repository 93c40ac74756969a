// Outlines of rectangles: by GDI where the pixels have no alpha to lose, else by the library's own loops or the backend.
#pragma once

#include "canvas/vector_canvas.h"

namespace zorvic {

// Null pen and brush: black outline, no inside. On a canvas with alpha only the pen's colour counts, one pixel wide.
int DrawRectangleOutline(Canvas& canvas, const RECT& rect, HPEN pen, HBRUSH brush);

// A stroke that runs through the last pixel column and row inside the rectangle.
int StrokeRectangle(Canvas& canvas, const RECT& rect, DWORD color, int width);

int StrokeRoundRect(Canvas& canvas, const RECT& rect, POINT corner, DWORD color, int width);

// Colour, width and dashes are the pen's; a null pen leaves the canvas's style as it is.
int DrawRoundRectWithPen(Canvas& canvas, const RECT& rect, POINT corner, HPEN pen);

// Every other pixel of a one-pixel frame.
int DrawFocusFrame(Canvas& canvas, const RECT& rect, DWORD color);

}  // namespace zorvic

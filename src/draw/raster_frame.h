// The one-pixel frame that the library draws itself.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

enum class SpanStyle { solid, dotted };  // dotted: the second pixel of a side and every other one after it

// color: premultiplied. A translucent frame blends its corners twice, on purpose: they belong to a row and a column.
// Returns 0 when the pixels cannot be locked, else 1.
int DrawRasterFrame(Canvas& canvas, const RECT& rect, DWORD color, SpanStyle style);

}  // namespace zorvic

// Handing a shape to Cairo.
#pragma once

#include <cairo.h>

#include "shape.h"

namespace zorvic::vek {

// Fills or strokes with the source and operator that are set. The origin is the target's first pixel.
void Trace(const Shape& shape, cairo_t* context, Point origin);

}  // namespace zorvic::vek

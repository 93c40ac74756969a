// A bitmap drawn at its own size in a colour.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

// src: bitmap pixels, or null for all of them. Returns 1, whatever was visible or could be locked.
int DrawModulation(Canvas& canvas, POINT corner, const Bitmap& bitmap, const RECT* src, DWORD color);

}  // namespace zorvic

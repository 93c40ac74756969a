// The nine-grid: corners keep their size, edges are stretched one way, the centre both ways or filled with one colour.
#pragma once

#include "canvas/canvas.h"
#include "surface/texture.h"

namespace zorvic {

// slice: texture pixels, or null for all of them. Returns 0 for a slice that is empty or leaves the texture, else 1.
int DrawTexture9Grid(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                     bool fillCenter, const TextureDrawParams& params);

}  // namespace zorvic

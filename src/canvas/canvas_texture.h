// From canvases to textures. Both live here, so that surfaces need not know canvases.
#pragma once

#include "canvas/canvas.h"
#include "surface/texture.h"

namespace zorvic {

// A texture that borrows the canvas's pixels; null without a surface. The caller's.
Texture* TextureOfCanvas(const Canvas& canvas);

// A texture with the canvas's surface; what is left of the canvas dies here. Unless the canvas's operation is
// source-over, every pixel becomes opaque. Null when memory is short. The caller's.
Texture* CanvasIntoTexture(std::unique_ptr<Canvas> canvas);

}  // namespace zorvic

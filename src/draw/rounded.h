// Textures with rounded or elliptic corners.
#pragma once

#include "canvas/canvas.h"
#include "surface/texture.h"

namespace zorvic {

// Whether a plain stretch is to be cut: asked for, or by a radius that is not 0.
bool WantsRounding(const TextureDrawParams& params);

// The whole texture, drawn source-over and cut to a shape that has the wanted radii on the destination. Returns 1.
int DrawRoundedTexture(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params);

}  // namespace zorvic

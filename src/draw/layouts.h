// Textures laid out in a rectangle of a canvas: fitted, cropped or tiled; the nine-grid stands in nine_grid.h. Every
// piece is a bitmap draw of its own, with the texture's operation word and the sampling filter and opacity of params.
// Results are those of the exports of the same names.
#pragma once

#include "canvas/canvas.h"
#include "draw/geometry/layouts.h"
#include "surface/texture.h"

namespace zorvic {

// Draws the texture's current slice by the texture's layout.
int DrawTexture(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params);

// slice: texture pixels, or null for all of them.
int DrawTextureCenter(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice,
                      const TextureDrawParams& params);
int DrawTextureUniform(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT& margins, bool center,
                       const TextureDrawParams& params);
int DrawTextureTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, DWORD flags,
                    const TextureDrawParams& params);
int DrawTextureTopTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                       const TextureDrawParams& params);

void DrawPiece(const CanvasLock& target, const Piece& piece, const Texture& texture, const TextureDrawParams& params);

}  // namespace zorvic

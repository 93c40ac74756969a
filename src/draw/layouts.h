// Textures laid out in a rectangle of a canvas: fitted, cropped or tiled; the nine-grid stands in nine_grid.h. Every
// piece is a bitmap draw of its own, with the texture's operation word and the sampling filter and opacity of params.
// Results are those of the exports of the same names.
#pragma once

#include <optional>

#include "canvas/canvas.h"
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

// What a slice shows of a texture, its edges in order; nothing if it is empty or leaves the texture.
std::optional<RECT> ResolveSourceRect(const Texture& texture, const RECT* slice);

void DrawPiece(const CanvasLock& target, const RECT& dst, const Texture& texture, const RECT& src,
               const TextureDrawParams& params);

}  // namespace zorvic

// Drawing a part of a bitmap into a rectangle of a canvas: the one routine behind every bitmap and texture draw.
#pragma once

#include "canvas/canvas.h"
#include "surface/texture.h"

namespace zorvic {

// Stretches src (bitmap pixels) over dst (logical pixels) by the bitmap's operation word, clipped to what is locked of a
// canvas. The visible part has the pixels of the unclipped draw.
void DrawBitmapRect(const CanvasLock& target, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                    BYTE alpha);

// The same with a lock of its own. Returns 1, whatever was visible or could be locked.
int DrawBitmapRect(Canvas& canvas, const RECT& dst, const Bitmap& bitmap, const RECT& src, DWORD filterMode,
                   BYTE alpha);

// The whole bitmap. dst null: at its own size, at (0, 0).
int DrawWholeBitmap(Canvas& canvas, const RECT* dst, const Bitmap& bitmap, DWORD filterMode, BYTE alpha);

// The texture's current slice, stretched. Returns 0 when no slice is current.
int DrawTextureSlice(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params);

}  // namespace zorvic

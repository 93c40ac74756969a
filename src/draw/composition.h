// Canvases composed with canvases and colours, moved, and brought to a device context. Results are those of the exports
// of the same names.
#pragma once

#include "canvas/canvas.h"

namespace zorvic {

int MixCanvas(Canvas& dst, const RECT& dstRect, Canvas& src, const RECT& srcRect, DWORD value);
int MixCanvasWithColor(Canvas& canvas, const RECT& rect, DWORD color, DWORD value);
int BlendCanvas(Canvas& dst, const RECT& dstRect, Canvas& src, const RECT& srcRect, BYTE alpha);
int CanvasScroll(Canvas& canvas, int dx, int dy);
int GdiTransCanvas(HDC target, const RECT& dst, Canvas& canvas, const RECT& src, BYTE alpha);

}  // namespace zorvic

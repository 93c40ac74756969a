// Exports that draw bitmaps and textures, and the setting of the bicubic filter.
#include <bit>

#include "draw/bitmaps.h"
#include "draw/layouts.h"
#include "platform/own_floats.h"
#include "raster/lookup_tables.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;

int SetStretchKernelMode(DWORD mode) { return zorvic::SetStretchKernelMode(mode); }
DWORD GetStretchKernelMode(void) { return zorvic::StretchKernelMode; }

int DrawBitmap(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, DWORD filter) {
    return DrawBitmapEx(canvas, dst, bitmap, filter, 255);
}

int DrawBitmapEx(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, DWORD filter, BYTE alpha) {
    if (!canvas || !bitmap) return 0;
    return zorvic::DrawWholeBitmap(*FromHandle(canvas), dst, *FromHandle(bitmap), filter, alpha);
}

int DrawBitmapEx2(HGCANVAS canvas, const RECT* dst, HGBITMAP bitmap, const RECT* src, DWORD filter, BYTE alpha) {
    if (!src) return DrawBitmapEx(canvas, dst, bitmap, filter, alpha);
    if (!canvas || !bitmap) return 0;
    if (!dst) return 1;
    return zorvic::DrawBitmapRect(*FromHandle(canvas), *dst, *FromHandle(bitmap), *src, filter, alpha);
}

int DrawTexture(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter) {
    return DrawTextureEx2(canvas, dst, texture, filter, 255, 1, 1);
}

int DrawTextureEx(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter, BYTE alpha, DWORD tileScale,
                  int doubleScale) {
    return DrawTextureEx2(canvas, dst, texture, filter, alpha, std::bit_cast<float>(tileScale), doubleScale ? 2 : 1);
}

int DrawTextureEx2(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, DWORD filter, BYTE alpha, float tileScale,
                   double scale) {
    TextureDrawParams params{};
    params.filterMode = filter;
    params.alpha = alpha;
    params.tileScale = tileScale;
    params.scale = scale;
    return DrawTextureEx3(canvas, dst, texture, &params, nullptr);
}

int DrawTextureEx3(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const TextureDrawParams* params, void*) {
    if (!canvas || !texture || !params) return 0;
    if (!dst) return 1;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTexture(*FromHandle(canvas), *dst, *FromHandle(texture), *params);
}

// Exports that draw a texture by a given layout. Their exported names are decorated, see the export lists.
#include "draw/layouts.h"

#include "draw/nine_grid.h"
#include "platform/own_floats.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;

namespace {

TextureDrawParams Params(DWORD filter, BYTE alpha, float tileScale = 1, double scale = 1) {
    TextureDrawParams params{};
    params.filterMode = filter;
    params.alpha = alpha;
    params.tileScale = tileScale;
    params.scale = scale;
    return params;
}

}  // namespace

int DrawTextureCenter(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice, DWORD filter,
                      BYTE alpha) {
    if (!canvas || !texture) return 0;
    if (!dst) return 1;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTextureCenter(*FromHandle(canvas), *dst, *FromHandle(texture), slice, Params(filter, alpha));
}

int DrawTextureUniform(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* margins, DWORD filter,
                       BYTE alpha, bool center) {
    if (!canvas || !texture) return 0;
    if (!dst || !margins) return 1;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTextureUniform(*FromHandle(canvas), *dst, *FromHandle(texture), *margins, center,
                                      Params(filter, alpha));
}

int DrawTextureTile(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice, DWORD filter, BYTE alpha,
                    DWORD flags, float scale) {
    if (!canvas || !texture || !dst) return 0;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTextureTile(*FromHandle(canvas), *dst, *FromHandle(texture), slice, flags,
                                   Params(filter, alpha, scale));
}

int DrawTextureTopTile(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice, const RECT* margins,
                       DWORD filter, BYTE alpha) {
    if (!canvas || !texture || !dst || !margins) return 0;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTextureTopTile(*FromHandle(canvas), *dst, *FromHandle(texture), slice, *margins,
                                      Params(filter, alpha));
}

// The edge flags ask for a limit that every margin has anyway.
int DrawTexture9Grid(HGCANVAS canvas, const RECT* dst, HGTEXTURE texture, const RECT* slice, const RECT* margins,
                     DWORD filter, int centerFill, BYTE alpha, DWORD, float destinationScale, double sourceScale) {
    if (!canvas || !texture) return 0;
    if (!dst || !margins) return 1;
    const zorvic::OwnFloats floats;
    return zorvic::DrawTexture9Grid(*FromHandle(canvas), *dst, *FromHandle(texture), slice, *margins, centerFill != 0,
                                    Params(filter, alpha, destinationScale, sourceScale));
}

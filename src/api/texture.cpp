// Exports that only textures have. Operations that they share with bitmaps are aliases in the export lists.
#include "surface/texture.h"

#include "canvas/canvas.h"
#include "canvas/canvas_texture.h"
#include "zorvic/zorvic.h"

using zorvic::FromHandle;
using zorvic::Texture;
using zorvic::ToHandle;

HGTEXTURE ZORVIC_CALL CreateTexture(int width, int height) { return CreateTextureEx(width, height, 32, 0); }

HGTEXTURE ZORVIC_CALL CreateTextureEx(int width, int height, int bitsPixel, int colorCount) {
    using zorvic::StoreKind;
    return ToHandle(zorvic::MakeSurface<Texture>(width, height, bitsPixel, colorCount, StoreKind::memory).release());
}

HGTEXTURE ZORVIC_CALL GetTexture(HGCANVAS canvas) {
    return canvas ? ToHandle(zorvic::TextureOfCanvas(*FromHandle(canvas))) : nullptr;
}

HGTEXTURE ZORVIC_CALL BitmapToTexture(HGBITMAP bitmap) {
    if (!bitmap || !FromHandle(bitmap)->isHosts) return nullptr;
    return ToHandle(zorvic::IntoTexture(std::unique_ptr<zorvic::Bitmap>(FromHandle(bitmap))).release());
}

HGTEXTURE ZORVIC_CALL CanvasToTexture(HGCANVAS canvas) {
    if (!canvas) return nullptr;
    return ToHandle(zorvic::CanvasIntoTexture(std::unique_ptr<zorvic::Canvas>(FromHandle(canvas))));
}

int ZORVIC_CALL GetTextureSize(HGTEXTURE texture, SIZE* size) {
    if (!texture || !size) return 0;
    *size = FromHandle(texture)->ImageSize();
    return 1;
}

int ZORVIC_CALL SetTextureMode(HGTEXTURE texture, const TextureMode* mode) {
    if (!texture || !mode) return 0;
    FromHandle(texture)->mode = *mode;
    return 1;
}

int ZORVIC_CALL GetTextureMode(HGTEXTURE texture, TextureMode* mode) {
    if (!texture || !mode) return 0;
    *mode = FromHandle(texture)->mode;
    return 1;
}

int ZORVIC_CALL SetTextureSlice(HGTEXTURE texture, unsigned int count, const RECT* rects) {
    if (!texture || !rects || !FromHandle(texture)->SetSlices(rects, count)) return 0;
    return static_cast<int>(count);
}

int ZORVIC_CALL SetTextureCurSlice(HGTEXTURE texture, int index) {
    return texture ? FromHandle(texture)->SelectSlice(index) : -1;
}

int ZORVIC_CALL GetTextureCurSlice(HGTEXTURE texture, RECT* slice) {
    if (!texture || !slice) return 0;
    *slice = FromHandle(texture)->SliceOrAll();
    return 1;
}

int ZORVIC_CALL GetTextureSliceCount(HGTEXTURE texture) {
    return texture ? static_cast<int>(FromHandle(texture)->SliceCount()) : -1;
}

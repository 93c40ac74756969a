// Exports that change the pixels of bitmaps and textures, and the region of a texture's pixels. Names that stand for
// the same function are aliases in the export lists.
#include "effects/apply.h"
#include "effects/blur.h"
#include "effects/pixels/colorize.h"
#include "effects/pixels/tone.h"
#include "effects/region.h"
#include "platform/own_floats.h"
#include "zorvic/zorvic.h"

using zorvic::ApplyEffect;
using zorvic::ApplyEffectAndTell;
using zorvic::FromHandle;
using zorvic::SoftEffect;

namespace {

// Whatever takes a texture here takes a bitmap as well.
zorvic::Bitmap& SurfaceOf(HGTEXTURE texture) { return *FromHandle(reinterpret_cast<HGBITMAP>(texture)); }

}  // namespace

int ZORVIC_CALL GrayBitmap(HGBITMAP bitmap) {
    return bitmap ? ApplyEffect(*FromHandle(bitmap), nullptr, zorvic::GrayImage) : 0;
}

int ZORVIC_CALL GrayTexture(HGTEXTURE texture) {
    return texture ? ApplyEffectAndTell(SurfaceOf(texture), zorvic::GrayImage) : 0;
}

int ZORVIC_CALL InvertBitmap(HGBITMAP bitmap) {
    return bitmap ? ApplyEffect(*FromHandle(bitmap), nullptr, zorvic::InvertImage) : 0;
}

int ZORVIC_CALL NormalizeBitmap(HGBITMAP bitmap) {
    return bitmap ? ApplyEffect(*FromHandle(bitmap), nullptr, zorvic::PremultiplyImage) : 0;
}

int ZORVIC_CALL NormalizeBitmap2(BitmapLockInfo* image) {
    if (!image) return 0;
    zorvic::PremultiplyImage(*image);
    return 1;
}

int ZORVIC_CALL ShuffleBitmap(HGBITMAP bitmap, int mode) { return ShuffleBitmapEx(bitmap, nullptr, mode); }

int ZORVIC_CALL ShuffleBitmapEx(HGBITMAP bitmap, const RECT* area, int mode) {
    if (!bitmap) return 0;
    return ApplyEffect(*FromHandle(bitmap), area, zorvic::ShuffleImage, static_cast<zorvic::Shuffle>(mode));
}

int ZORVIC_CALL TranslateTexture(HGTEXTURE texture, DWORD from, DWORD to) {
    return texture ? ApplyEffect(SurfaceOf(texture), nullptr, zorvic::ReplaceColor, from, to) : 0;
}

int ZORVIC_CALL ColorizeTexture(HGTEXTURE texture, float hue, float saturation, float lightness) {
    const zorvic::OwnFloats floats;
    const zorvic::HslAmounts amounts{hue, saturation, lightness};
    if (amounts.IsNothing()) return 1;  // even without a texture
    return texture ? ApplyEffectAndTell(SurfaceOf(texture), zorvic::ColorizeImage, amounts) : 0;
}

int ZORVIC_CALL BlurBitmap(HGBITMAP dst, HGBITMAP src) {
    if (!dst || !src) return 0;
    zorvic::BlurBitmap(*FromHandle(dst), *FromHandle(src));
    return 1;
}

int ZORVIC_CALL LightBitmap(HGBITMAP bitmap) {
    if (!bitmap) return 0;
    zorvic::Soften(*FromHandle(bitmap), SoftEffect::light);
    return 1;
}

int ZORVIC_CALL LightTexture(HGTEXTURE texture) {
    if (!texture) return 0;
    zorvic::Soften(SurfaceOf(texture), SoftEffect::light);
    return 1;
}

int ZORVIC_CALL DarkBitmap(HGBITMAP bitmap) {
    if (!bitmap) return 0;
    zorvic::Soften(*FromHandle(bitmap), SoftEffect::dark);
    return 1;
}

HRGN ZORVIC_CALL CreateTextureRgn(HGTEXTURE texture, const RECT* area) {
    return texture ? zorvic::MakeRegion(SurfaceOf(texture), area) : nullptr;
}

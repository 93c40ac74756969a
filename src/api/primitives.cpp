// Exports that run pixel primitives on images which the caller describes.
#include "pixel/described_images.h"
#include "zorvic/zorvic.h"

int ZORVIC_CALL CopyBitmap_IPP(const BITMAP* src, BITMAP* dst, const RECT* area) {
    return src && dst && zorvic::CopyImage(*src, *dst, area);
}

int ZORVIC_CALL Mirror(BITMAP* image, int axis) { return image && zorvic::MirrorImage(*image, axis); }

int ZORVIC_CALL MirrorEx(const BITMAP* src, BITMAP* dst, int axis) {
    return src && dst && zorvic::MirrorImage(*src, *dst, axis);
}

int ZORVIC_CALL AlphaBlend_IPP(const BITMAP* src, BITMAP* dst) { return src && dst && zorvic::BlendImage(*src, *dst); }

int ZORVIC_CALL SetColor_IPP(BITMAP* image, DWORD color, int keepAlpha) {
    return image && zorvic::SetImageColor(*image, color, keepAlpha != 0);
}

int ZORVIC_CALL ARGBOrBitmap_IPP(const BITMAP* src, BITMAP* dst, DWORD value) {
    return src && dst && zorvic::OrImage(*src, *dst, value);
}

int ZORVIC_CALL ARGBAndBitmap_IPP(const BITMAP* src, BITMAP* dst, DWORD value) {
    return src && dst && zorvic::AndImage(*src, *dst, value);
}

int ZORVIC_CALL BlurBitmapData(int width, int height, int stride, void* bits, WORD bitsPixel, int box) {
    return zorvic::BlurImage({0, width, height, stride, 0, bitsPixel, bits}, box);
}

// Zorvic for C++20: pixels in the host's memory, which the host describes. zorvic.h says what each function does.
#pragma once

#include "zorvic/choices.hpp"

namespace zorvic {

inline bool CopyPixels(const BITMAP& src, BITMAP& dst, const RECT* area = nullptr) {
    return ::CopyBitmap_IPP(&src, &dst, area) != 0;
}
inline bool MirrorPixels(BITMAP& image, MirrorAxis axis) { return ::Mirror(&image, static_cast<int>(axis)) != 0; }
inline bool MirrorPixels(const BITMAP& src, BITMAP& dst, MirrorAxis axis) {
    return ::MirrorEx(&src, &dst, static_cast<int>(axis)) != 0;
}
inline bool BlendPixels(const BITMAP& src, BITMAP& dst) { return ::AlphaBlend_IPP(&src, &dst) != 0; }
inline bool FillPixels(BITMAP& image, DWORD color, bool keepAlpha = false) {
    return ::SetColor_IPP(&image, color, keepAlpha) != 0;
}
inline bool OrPixels(const BITMAP& src, BITMAP& dst, DWORD value) { return ::ARGBOrBitmap_IPP(&src, &dst, value) != 0; }
inline bool AndPixels(const BITMAP& src, BITMAP& dst, DWORD value) {
    return ::ARGBAndBitmap_IPP(&src, &dst, value) != 0;
}
inline bool BlurPixels(BITMAP& image, int box) {
    return ::BlurBitmapData(image.bmWidth, image.bmHeight, image.bmWidthBytes, image.bmBits, image.bmBitsPixel, box) !=
           0;
}
inline bool NormalizePixels(BitmapLockInfo& image) { return ::NormalizeBitmap2(&image) != 0; }

}  // namespace zorvic

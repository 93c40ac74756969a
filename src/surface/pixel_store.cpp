// What both pixel stores share: descriptions of an image and of an area of it.
#include "surface/pixel_store.h"

namespace zorvic {

BitmapLockInfo ToLockInfo(const BITMAP& image, std::uint16_t colorCount, DWORD* palette) {
    return {image.bmType,
            image.bmWidth,
            image.bmHeight,
            image.bmWidthBytes,
            image.bmPlanes,
            image.bmBitsPixel,
            image.bmBits,
            colorCount,
            0,
            palette};
}

bool CutToArea(BITMAP& image, const RECT& area) {
    if (area.left < 0 || area.top < 0 || area.right > image.bmWidth || area.bottom > image.bmHeight) return false;
    if (area.left >= area.right || area.top >= area.bottom) return false;
    image.bmWidth = area.right - area.left;
    image.bmHeight = area.bottom - area.top;
    image.bmBits = static_cast<std::byte*>(image.bmBits) + static_cast<std::ptrdiff_t>(area.top) * image.bmWidthBytes +
                   static_cast<std::ptrdiff_t>(area.left) * (image.bmBitsPixel / 8);
    return true;
}

}  // namespace zorvic

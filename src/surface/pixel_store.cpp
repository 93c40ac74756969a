// What both pixel stores share.
#include "surface/pixel_store.h"

namespace zorvic {

bool PixelStore::Lock(BITMAP* out, const RECT* area) const {
    BitmapLockInfo image;
    if (!LockEx(&image, area)) return false;
    *out = {image.bmType,   image.bmWidth,     image.bmHeight, image.bmWidthBytes,
            image.bmPlanes, image.bmBitsPixel, image.bmBits};
    return true;
}

}  // namespace zorvic

// Pixels in a GDI DIB section, always 32 bits and top-down.
#include "surface/pixel_store.h"

namespace zorvic {

bool DibPixelStore::Create(BITMAP* description, std::uint16_t) {
    Destroy();
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = description->bmWidth;
    info.bmiHeader.biHeight = -description->bmHeight;  // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage =
        static_cast<DWORD>(description->bmWidth) * static_cast<DWORD>(description->bmHeight) * 4;
    handle = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, nullptr, nullptr, 0);
    if (!handle) return false;
    *description = Describe();
    return true;
}

void DibPixelStore::Destroy() {
    if (handle) DeleteObject(handle);
    handle = nullptr;
}

BITMAP DibPixelStore::Describe() const {
    BITMAP image{};
    if (handle) GetObjectW(handle, sizeof image, &image);
    return image;
}

unsigned DibPixelStore::GetWidth() const { return static_cast<unsigned>(Describe().bmWidth); }
unsigned DibPixelStore::GetHeight() const { return static_cast<unsigned>(Describe().bmHeight); }
std::uint8_t DibPixelStore::GetBitsPixel() const { return static_cast<std::uint8_t>(Describe().bmBitsPixel); }

bool DibPixelStore::LockEx(BitmapLockInfo* out, const RECT* area) const {
    const BITMAP image = Describe();
    return image.bmBits && DescribeArea(out, image, area);
}

}  // namespace zorvic

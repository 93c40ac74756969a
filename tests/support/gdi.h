// GDI's side of a host: bitmaps of any depth and row order with a device context, and their pixels as GDI shows them.
#pragma once

#include "support/host.h"

namespace host {

// A GDI bitmap in a memory device context of its own.
class GdiBitmap {
public:
    enum class RowOrder { topDown, bottomUp };

    static GdiBitmap Dib(int width, int height, int bitsPixel = 32, RowOrder order = RowOrder::topDown) {
        const BITMAPINFO info = Description(width, order == RowOrder::topDown ? -height : height, bitsPixel);
        return GdiBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, nullptr, nullptr, 0), width, height);
    }
    // A device-dependent bitmap: its pixels have no address.
    static GdiBitmap Compatible(int width, int height) {
        const HDC screen = GetDC(nullptr);
        const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
        ReleaseDC(nullptr, screen);
        return GdiBitmap(bitmap, width, height);
    }
    ~GdiBitmap() {
        SelectObject(dc, previousObject);
        DeleteDC(dc);
        DeleteObject(handle);
    }
    GdiBitmap(const GdiBitmap&) = delete;
    GdiBitmap& operator=(const GdiBitmap&) = delete;

    HDC Dc() const { return dc; }
    HBITMAP Handle() const { return handle; }
    int Width() const { return width; }
    int Height() const { return height; }

    // The pixels as a top-down 32-bit picture; what the bitmap's depth cannot hold is lost, alpha first.
    template <class Picture>
    void Fill(Picture picture) const {
        Transfer(SetDIBits, MakeBitmap(width, height, picture));
    }
    // A copy of them: Shows(gdiBitmap.Shown().get(), picture).
    OwnedBitmap Shown() const {
        OwnedBitmap copy = MakeBitmap(width, height);
        Transfer(GetDIBits, copy);
        return copy;
    }

private:
    GdiBitmap(HBITMAP bitmap, int bitmapWidth, int bitmapHeight)
        : handle(bitmap), dc(CreateCompatibleDC(nullptr)), width(bitmapWidth), height(bitmapHeight) {
        previousObject = SelectObject(dc, handle);
        EXPECT_NE(previousObject, nullptr) << "no GDI bitmap";
    }

    static BITMAPINFO Description(int width, int height, int bitsPixel) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = static_cast<WORD>(bitsPixel);
        return info;
    }

    // GDI transfers the pixels of bitmaps that no device context has selected.
    void Transfer(auto function, const OwnedBitmap& copy) const {
        BITMAPINFO info = Description(width, -height, 32);
        void* const bits = Pixels(copy.get())->bmBits;
        SelectObject(dc, previousObject);
        EXPECT_EQ(function(dc, handle, 0, static_cast<UINT>(height), bits, &info, DIB_RGB_COLORS), height);
        SelectObject(dc, handle);
    }

    HBITMAP handle;
    HDC dc;
    HGDIOBJ previousObject = nullptr;
    int width, height;
};

// Makes the device context's clip region the sum of rectangles in device pixels.
inline void ClipTo(HDC dc, std::initializer_list<RECT> parts) {
    const HRGN region = CreateRectRgn(0, 0, 0, 0);
    for (const RECT& part : parts) {
        const HRGN added = CreateRectRgnIndirect(&part);
        CombineRgn(region, region, added, RGN_OR);
        DeleteObject(added);
    }
    ExtSelectClipRgn(dc, region, RGN_COPY);
    DeleteObject(region);
}

}  // namespace host

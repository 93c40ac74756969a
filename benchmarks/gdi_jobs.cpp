// The same work by GDI, where it has a call for it, on images of its own with the same pixels.
#include <algorithm>
#include <stdexcept>

#include "contenders.h"

namespace bench {

namespace {

// A 32-bit DIB section, selected into a device context.
class Dib {
public:
    explicit Dib(const BitmapLockInfo& image) : dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, image.bmWidth, -image.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        if (!bitmap) throw std::runtime_error("GDI: no DIB section");
        previous = SelectObject(dc, bitmap);
        std::copy_n(PixelsOf(image), PixelCount(image), static_cast<DWORD*>(bits));
        SetStretchBltMode(dc, COLORONCOLOR);
    }
    ~Dib() {
        SelectObject(dc, previous);
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
    Dib(const Dib&) = delete;
    Dib& operator=(const Dib&) = delete;

    HDC Dc() const { return dc; }

private:
    HDC dc;
    HBITMAP bitmap;
    HGDIOBJ previous;
};

Job Stretch(const Surfaces& images, bool mirrorsX = false, bool mirrorsY = false) {
    return [to = std::make_shared<Dib>(images.canvasPixels), from = std::make_shared<Dib>(images.source),
            area = images.area, size = SizeOf(images.source), mirrorsX, mirrorsY] {
        StretchBlt(to->Dc(), area.left, area.top, area.right - area.left, area.bottom - area.top, from->Dc(),
                   mirrorsX ? size.cx - 1 : 0, mirrorsY ? size.cy - 1 : 0, mirrorsX ? -size.cx : size.cx,
                   mirrorsY ? -size.cy : size.cy, SRCCOPY);
    };
}

Job Blend(const Surfaces& images, BYTE alpha) {
    return [to = std::make_shared<Dib>(images.canvasPixels), from = std::make_shared<Dib>(images.source),
            area = images.area, size = SizeOf(images.source), alpha] {
        AlphaBlend(to->Dc(), area.left, area.top, area.right - area.left, area.bottom - area.top, from->Dc(), 0, 0,
                   size.cx, size.cy, {AC_SRC_OVER, 0, alpha, AC_SRC_ALPHA});
    };
}

}  // namespace

Job GdiJob(const Row& row, const Surfaces& images) {
    const bool nearest = row.filter == ZORVIC_FILTER_NEAREST;
    if (row.work == Work::fill && row.operation == ZORVIC_OP_COPY) {
        const COLORREF color = RGB(row.color >> 16 & 0xFF, row.color >> 8 & 0xFF, row.color & 0xFF);
        const std::shared_ptr<void> brush(CreateSolidBrush(color), DeleteObject);
        return [to = std::make_shared<Dib>(images.canvasPixels), area = images.area, brush] {
            FillRect(to->Dc(), &area, static_cast<HBRUSH>(brush.get()));
        };
    }
    if (row.work == Work::mirror) return Stretch(images, row.argument != 0, row.argument != 1);
    if (row.work != Work::draw || !nearest) return {};
    if (row.operation == ZORVIC_OP_COPY) return Stretch(images);
    if (row.operation == ZORVIC_OP_SOURCE_OVER) return Blend(images, row.alpha);
    return {};
}

}  // namespace bench

// Pixels of an area of a canvas: the surface's own; on a host's device context those of the selected DIB section, or a
// copy that is written back at the end.
#include "canvas/canvas.h"

namespace zorvic {

bool CanvasLock::LockDc() {
    if (!canvas.MakeDc()) return false;
    const DcAccess access = DescribeDcPixels();
    return access == DcAccess::direct || (access == DcAccess::copy && CopyFromDc());
}

CanvasLock::DcAccess CanvasLock::DescribeDcPixels() {
    const HDC dc = canvas.hostDc;
    RECT clipBox{};
    const int regionType = GetClipBox(dc, &clipBox);
    BITMAP image{};
    GetObjectW(GetCurrentObject(dc, OBJ_BITMAP), sizeof image, &image);
    // Kernels write 32-bit pixels without a look at the clip.
    if (regionType == COMPLEXREGION || !image.bmBits || image.bmBitsPixel != 32 || Intersection(clipBox, area) != area)
        return DcAccess::copy;

    POINT viewportOrg{};
    POINT windowOrg{};
    GetViewportOrgEx(dc, &viewportOrg);
    GetWindowOrgEx(dc, &windowOrg);
    const RECT device = Offset(area, viewportOrg - windowOrg);
    if (!DescribeArea(&info, image, &device)) return DcAccess::outside;
    return DcShows(image, device) ? DcAccess::direct : DcAccess::copy;
}

// GDI describes a bottom-up DIB section exactly as a top-down one, so look: a pixel that is changed in memory must
// change where the area says it is. The middle row of a bitmap would be the same either way round.
bool CanvasLock::DcShows(const BITMAP& image, const RECT& device) const {
    const bool isMiddle = image.bmHeight - 1 - device.top == device.top;
    const LONG row = isMiddle ? device.bottom - 1 : device.top;
    const LONG y = isMiddle ? area.bottom - 1 : area.top;
    auto& pixel = reinterpret_cast<DWORD*>(static_cast<std::byte*>(image.bmBits) +
                                           static_cast<std::ptrdiff_t>(row) * image.bmWidthBytes)[device.left];
    const COLORREF before = GetPixel(canvas.hostDc, area.left, y);
    pixel ^= 0x00FFFFFF;
    const COLORREF after = GetPixel(canvas.hostDc, area.left, y);
    pixel ^= 0x00FFFFFF;
    return before != after;
}

bool CanvasLock::CopyFromDc() {
    // The limit of every surface; the differences below fit 32 bits with it, too.
    if (WidthOf(area) > maxExtent || HeightOf(area) > maxExtent) return false;
    // A gigabyte: what lies outside the device context costs as much as what lies inside.
    if (WidthOf(area) * HeightOf(area) > 1 << 28) return false;
    BITMAP description{};
    description.bmWidth = area.right - area.left;
    description.bmHeight = area.bottom - area.top;
    if (!copy.emplace().Create(&description, 0)) return false;
    MemoryDc memoryDc;
    if (!memoryDc.Select(copy->Handle())) return false;
    BitBlt(memoryDc.Get(), 0, 0, description.bmWidth, description.bmHeight, canvas.hostDc, area.left, area.top,
           SRCCOPY);
    GdiFlush();
    return copy->LockEx(&info, nullptr);
}

void CanvasLock::WriteBack() const {
    BITMAPINFO header{};
    header.bmiHeader.biSize = sizeof header.bmiHeader;
    header.bmiHeader.biWidth = info.bmWidth;
    header.bmiHeader.biHeight = -info.bmHeight;  // top-down
    header.bmiHeader.biPlanes = 1;
    header.bmiHeader.biBitCount = 32;
    const auto width = static_cast<DWORD>(info.bmWidth);
    const auto height = static_cast<DWORD>(info.bmHeight);
    SetDIBitsToDevice(canvas.hostDc, area.left, area.top, width, height, 0, 0, 0, height, info.bmBits, &header,
                      DIB_RGB_COLORS);
}

}  // namespace zorvic

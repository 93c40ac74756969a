// Canvases: making them, origins, clip, operation word and device context.
#include "canvas/canvas.h"

#include <algorithm>
#include <new>

#include "raster/kernel_table.h"

namespace zorvic {

namespace {

// GDI's regions have coordinates of 28 bits.
LONG ToRegion(LONG coordinate) { return std::clamp<LONG>(coordinate, -0x7FFFFFF, 0x7FFFFFF); }

// Replaces the clip region by a rectangle in device pixels; false when GDI refuses.
bool SelectClip(HDC dc, const RECT& device) {
    const HRGN region =
        CreateRectRgn(ToRegion(device.left), ToRegion(device.top), ToRegion(device.right), ToRegion(device.bottom));
    if (!region) return false;  // without a region GDI would end all clipping
    const bool selected = ExtSelectClipRgn(dc, region, RGN_COPY) != ERROR;
    DeleteObject(region);
    return selected;
}

}  // namespace

std::unique_ptr<Canvas> Canvas::Create(int width, int height, StoreKind kind, const Canvas* reference) {
    std::unique_ptr<Canvas> canvas(new (std::nothrow) Canvas);
    if (!canvas) return nullptr;
    canvas->surface = MakeSurface<Bitmap>(width, height, 32, 0, kind);
    if (!canvas->surface) return nullptr;
    canvas->surface->isHosts = false;
    canvas->clip = {0, 0, width, height};
    if (kind == StoreKind::system) canvas->MakeDc();
    if (const SurfaceLock pixels(*canvas->surface); pixels) KernelTable.At(slots::fillCopy)(*pixels, 0);
    if (reference) canvas->SetFilter(reference->filter);
    return canvas;
}

std::unique_ptr<Canvas> Canvas::FromDc(HDC hostDc) {
    if (!hostDc) return nullptr;
    std::unique_ptr<Canvas> canvas(new (std::nothrow) Canvas);
    if (!canvas) return nullptr;
    canvas->hostDc = hostDc;
    canvas->window = WindowFromDC(hostDc);
    GetViewportOrgEx(hostDc, &canvas->viewportOrg);
    GetWindowOrgEx(hostDc, &canvas->windowOrg);
    return canvas;
}

HDC Canvas::MakeDc() {
    if (Dc()) return Dc();
    const HDC dc = memoryDc.emplace(surface->ToSystem()).Get();
    if (!dc || !SelectClip(dc, clip)) {
        memoryDc.reset();
        return nullptr;
    }
    SetViewportOrgEx(dc, viewportOrg.x, viewportOrg.y, nullptr);
    SetWindowOrgEx(dc, windowOrg.x, windowOrg.y, nullptr);
    BindVectorCanvas();
    return dc;
}

int Canvas::SetViewportOrg(POINT origin, POINT* previous) {
    if (!Dc() && previous) *previous = viewportOrg;
    viewportOrg = origin;
    return Dc() ? SetViewportOrgEx(Dc(), origin.x, origin.y, previous) : 1;
}

int Canvas::SetWindowOrg(POINT origin, POINT* previous) {
    if (!Dc() && previous) *previous = windowOrg;
    windowOrg = origin;
    return Dc() ? SetWindowOrgEx(Dc(), origin.x, origin.y, previous) : 1;
}

bool Canvas::SetClip(const RECT& logical) {
    const RECT device = ToDevice(logical);
    if (Dc() && !SelectClip(Dc(), device)) return false;
    if (!surface) return true;
    const SIZE size = surface->Size();
    clip = Intersection(device, {0, 0, size.cx, size.cy});
    return true;
}

bool Canvas::IntersectClip(const RECT& logical) {
    if (Dc() && IntersectClipRect(Dc(), logical.left, logical.top, logical.right, logical.bottom) == ERROR)
        return false;
    clip = Intersection(clip, ToDevice(logical));
    return true;
}

RECT Canvas::ClipBox() const {
    if (!Dc()) return ToLogical(clip);
    RECT box{};
    GetClipBox(Dc(), &box);
    return box;
}

bool Canvas::SetFilter(DWORD word) {
    if (!surface) return false;
    filter = word;
    surface->filter = word;
    return true;
}

}  // namespace zorvic

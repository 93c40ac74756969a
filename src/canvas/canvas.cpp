// Canvases: making them, origins, clip, operation word and device context.
#include "canvas/canvas.h"

#include <algorithm>
#include <new>

#include "raster/kernel_table.h"

namespace zorvic {

namespace {

// GDI's regions have coordinates of 28 bits.
RECT ToRegion(const RECT& rect) {
    const auto limit = [](LONG coordinate) { return std::clamp<LONG>(coordinate, -0x7FFFFFF, 0x7FFFFFF); };
    return {limit(rect.left), limit(rect.top), limit(rect.right), limit(rect.bottom)};
}

// Replaces the clip region by a rectangle in device pixels; false when GDI refuses.
bool SelectClip(HDC dc, const RECT& device) {
    const RECT rect = ToRegion(device);
    const HRGN region = CreateRectRgn(rect.left, rect.top, rect.right, rect.bottom);
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
    const bool made = Dc() ? HandOverClip() : MakeMemoryDc();
    return made ? Dc() : nullptr;
}

// The pixels move last, when all else is there.
bool Canvas::MakeMemoryDc() {
    const HDC dc = memoryDc.emplace().Get();
    if (!dc || !SelectClip(dc, clip) || !memoryDc->Select(surface->ToSystem())) {
        memoryDc.reset();
        return false;
    }
    SetViewportOrgEx(dc, viewportOrg.x, viewportOrg.y, nullptr);
    SetWindowOrgEx(dc, windowOrg.x, windowOrg.y, nullptr);
    BindVectorCanvas();
    return true;
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

void Canvas::SetClip(const RECT& logical) {
    clip = ToDevice(logical);
    if (surface) {
        const SIZE size = surface->Size();
        clip = Intersection(clip, {0, 0, size.cx, size.cy});
    }
    if (!Dc()) return;
    refusedClip = RGN_COPY;
    HandOverClip();
}

void Canvas::IntersectClip(const RECT& logical) {
    const RECT device = ToDevice(logical);
    clip = surface || refusedClip != 0 ? Intersection(clip, device) : device;
    if (!Dc() || (refusedClip == 0 && IntersectDcClip(device))) return;
    if (refusedClip == 0) refusedClip = surface ? RGN_COPY : RGN_AND;
    HandOverClip();
}

bool Canvas::IntersectDcClip(const RECT& device) const {
    const RECT rect = ToLogical(ToRegion(device));
    return IntersectClipRect(Dc(), rect.left, rect.top, rect.right, rect.bottom) != ERROR;
}

bool Canvas::HandOverClip() {
    if (refusedClip == 0) return true;
    const bool taken = refusedClip == RGN_COPY ? SelectClip(Dc(), clip) : IntersectDcClip(clip);
    if (taken && (!memoryDc || memoryDc->Select(surface->ToSystem()))) {
        refusedClip = 0;
        return true;
    }
    // What a host draws on the device context that it was given must not reach pixels outside the clip.
    if (memoryDc) memoryDc->Deselect();
    return false;
}

RECT Canvas::ClipBox() const {
    const RECT asked = ToLogical(clip);
    if (!Dc() || refusedClip == RGN_COPY) return asked;
    RECT box{};
    GetClipBox(Dc(), &box);
    return refusedClip == RGN_AND ? Intersection(box, asked) : box;
}

bool Canvas::SetFilter(DWORD word) {
    if (!surface) return false;
    filter = word;
    surface->filter = word;
    return true;
}

}  // namespace zorvic

// The object behind HGCANVAS: a surface of its own or a host's device context, two origins and a clip.
// Pixel access of both kinds goes through CanvasLock.
#pragma once

#include <memory>
#include <optional>

#include "canvas/memory_dc.h"
#include "canvas/rect.h"
#include "raster/image.h"
#include "surface/bitmap.h"
#include "vek/vekgraphic.h"

namespace zorvic {

struct VectorCanvasDeleter {
    void operator()(VekCanvas canvas) const;
};

class Canvas {
public:
    // A canvas on a new, transparent surface; null when it cannot be made. reference: whose operation word is taken
    // over.
    static std::unique_ptr<Canvas> Create(int width, int height, StoreKind kind, const Canvas* reference);
    // A canvas on the host's device context.
    static std::unique_ptr<Canvas> FromDc(HDC hostDc);

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // The device context for drawing: the host's, or the surface's own, made on the first call. Null when GDI refuses it,
    // the surface's conversion or the clip.
    HDC MakeDc();

    // Sets an origin. Returns 1, or the device context's result once there is one.
    int SetViewportOrg(POINT origin, POINT* previous);
    int SetWindowOrg(POINT origin, POINT* previous);
    POINT ViewportOrg() const { return viewportOrg; }
    POINT WindowOrg() const { return windowOrg; }

    RECT ToDevice(const RECT& logical) const { return Offset(logical, viewportOrg - windowOrg); }
    RECT ToLogical(const RECT& device) const { return Offset(device, windowOrg - viewportOrg); }

    // When GDI refuses the clip, nothing is drawn through the device context until it takes it.
    void SetClip(const RECT& logical);
    void IntersectClip(const RECT& logical);
    // The clip in logical pixels, as the host sees it: the clip box of a device context that has taken the clip.
    RECT ClipBox() const;
    // What drawing is clipped to, in logical pixels: the clip, or the clip box of a host's device context.
    RECT VisibleRect() const { return surface ? ToLogical(clip) : ClipBox(); }
    // What of a rectangle drawing can reach.
    RECT VisiblePart(const RECT& logical) const { return Intersection(VisibleRect(), logical); }

    // The operation word: mirrors the surface's. False without a surface.
    bool SetFilter(DWORD word);
    DWORD Filter() const { return filter; }

    // Null for a canvas on a host's device context.
    Bitmap* Surface() const { return surface.get(); }
    // Takes the surface out; the canvas is then only good for deletion.
    std::unique_ptr<Bitmap> TakeSurface() { return std::move(surface); }

    // The backend's canvas, bound to the surface's present pixels; made on the first call. Null without a surface, and
    // when pixels to which it was bound have been lost.
    VekCanvas VectorCanvas();

    HWND window = nullptr;  // the host's
    DWORD bkColor = 0;      // the host's

private:
    friend class CanvasLock;
    Canvas() = default;

    // Binds the backend's canvas, if there is one, to the surface's pixels, if they moved. False when it is bound to
    // pixels that are gone.
    bool BindVectorCanvas();

    HDC Dc() const { return memoryDc ? memoryDc->Get() : hostDc; }  // null until there is one

    bool MakeMemoryDc();
    // Cuts the device context's clip to a rectangle in device pixels; false when GDI refuses.
    bool IntersectDcClip(const RECT& device) const;
    // Gives the device context the clip that it has not taken yet; false when GDI refuses.
    bool HandOverClip();

    HDC hostDc = nullptr;
    POINT viewportOrg{};
    POINT windowOrg{};
    RECT clip{};  // surface pixels; on a host's device context, device pixels of the clip that GDI refuses
    // How the device context must still take the clip that GDI refuses: RGN_COPY, RGN_AND, or 0 when it has taken it.
    int refusedClip = 0;
    DWORD filter = 0;
    std::unique_ptr<Bitmap> surface;
    std::optional<MemoryDc> memoryDc;  // after the surface, whose bitmap it lets go of first
    std::unique_ptr<VekCanvas__, VectorCanvasDeleter> vectorCanvas;
    const void* vectorPixels = nullptr;  // what it is bound to
};

inline Canvas* FromHandle(HGCANVAS handle) { return reinterpret_cast<Canvas*>(handle); }
inline HGCANVAS ToHandle(const Canvas* canvas) { return reinterpret_cast<HGCANVAS>(const_cast<Canvas*>(canvas)); }

// Pixels of an area of a canvas, given in logical pixels. What is written is brought back with the scope's end.
// Several locks of one canvas may be held; what they write is brought back in the reverse order of locking. On a device
// context a lock costs many draws: what draws in pieces locks once around all of them.
class CanvasLock {
public:
    enum class Use { write, read };

    CanvasLock(Canvas& lockedCanvas, const RECT& logicalArea, Use lockUse = Use::write)
        : canvas(lockedCanvas),
          area(logicalArea),
          use(lockUse),
          locked(!IsEmpty(area) && (canvas.surface ? LockSurface() : LockDc())) {}
    ~CanvasLock() {
        if (!locked) return;
        if (copy && use == Use::write) WriteBack();
        if (canvas.surface) canvas.surface->Unlock();
    }
    CanvasLock(const CanvasLock&) = delete;
    CanvasLock& operator=(const CanvasLock&) = delete;

    explicit operator bool() const { return locked; }
    // Always 32 bits per pixel, rows top-down, no palette.
    const BitmapLockInfo& operator*() const { return info; }
    const BitmapLockInfo* operator->() const { return &info; }

    const RECT& Area() const { return area; }
    // The pixels of a part, in logical pixels, which lies inside the area.
    BitmapLockInfo PartAt(const RECT& part) const {
        return PartOf(info, part.left - area.left, part.top - area.top, part.right - part.left, part.bottom - part.top);
    }

private:
    enum class DcAccess { direct, copy, outside };

    bool LockSurface() {
        const RECT device = canvas.ToDevice(area);
        return canvas.surface->LockEx(&info, &device);
    }
    bool LockDc();
    DcAccess DescribeDcPixels();
    bool DcShows(const BITMAP& image, const RECT& device) const;
    bool CopyFromDc();
    void WriteBack() const;

    Canvas& canvas;
    const RECT area;
    const Use use;
    BitmapLockInfo info;
    std::optional<DibPixelStore> copy;  // of the area of a device context whose own pixels cannot be reached
    bool locked;
};

}  // namespace zorvic

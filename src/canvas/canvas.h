// The object behind HGCANVAS: a surface of its own or a host's device context, two origins and a clip.
// Pixel access of both kinds goes through CanvasLock.
#pragma once

#include <memory>

#include "surface/bitmap.h"
#include "surface/pixel_store.h"

namespace zorvic {

class Canvas {
public:
    // A canvas on a new, transparent surface; null when it cannot be made. reference: whose operation word is taken
    // over.
    static std::unique_ptr<Canvas> Create(int width, int height, StoreKind kind, const Canvas* reference);
    // A canvas on the host's device context.
    static std::unique_ptr<Canvas> FromDc(HDC hostDc);

    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas();

    // The device context: the host's, or the surface's own, made on the first call. Null when GDI refuses.
    HDC MakeDc();

    int SetViewportOrg(POINT origin, POINT* previous);
    int SetWindowOrg(POINT origin, POINT* previous);
    POINT ViewportOrg() const { return viewportOrg; }
    POINT WindowOrg() const { return windowOrg; }

    RECT ToDevice(RECT logical) const;
    RECT ToLogical(RECT device) const;

    void SetClip(const RECT& logical);
    void IntersectClip(const RECT& logical);
    // The visible rectangle in logical pixels: the clip, or the device context's clip box once there is one.
    RECT VisibleRect() const;

    // The operation word: mirrors the surface's. False without a surface.
    bool SetFilter(DWORD word);
    DWORD Filter() const { return filter; }

    Bitmap* Surface() const { return surface.get(); }
    // Takes the surface out, for CanvasToTexture; the canvas is then only good for deletion.
    std::unique_ptr<Bitmap> TakeSurface();

    HWND window = nullptr;  // the host's
    DWORD bkColor = 0;      // the host's

private:
    friend class CanvasLock;
    Canvas() = default;

    bool LockBits(BITMAP* out, const RECT& logicalArea);
    void UnlockBits();
    // ... device-context access: see canvas_access.cpp

    bool fromDc = false;
    HDC dc = nullptr;
    HGDIOBJ previousObject = nullptr;
    POINT viewportOrg{};
    POINT windowOrg{};
    DWORD filter = 0;
    std::unique_ptr<Bitmap> surface;
    RECT clip{};  // surface pixels

    RECT dcAccessRect{};
    HDC dcAccessDc = nullptr;
    DibPixelStore dcTempStore;
    BITMAP dcBitmap{};
};

inline Canvas* FromHandle(HGCANVAS handle) { return reinterpret_cast<Canvas*>(handle); }
inline HGCANVAS ToHandle(const Canvas* canvas) { return reinterpret_cast<HGCANVAS>(const_cast<Canvas*>(canvas)); }

// Pixels of an area of a canvas, given in logical pixels, for reading and writing; written back with the scope's end.
class CanvasLock {
public:
    CanvasLock(Canvas& lockedCanvas, const RECT& logicalArea);
    ~CanvasLock();
    CanvasLock(const CanvasLock&) = delete;
    CanvasLock& operator=(const CanvasLock&) = delete;

    explicit operator bool() const { return locked; }
    const BitmapLockInfo& operator*() const { return info; }
    const BitmapLockInfo* operator->() const { return &info; }

private:
    Canvas& canvas;
    BitmapLockInfo info{};
    bool locked;
};

}  // namespace zorvic

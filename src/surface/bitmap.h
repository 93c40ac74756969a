// The object behind HGBITMAP: an operation word and a pixel store, owned or borrowed.
#pragma once

#include <memory>
#include <new>

#include "surface/pixel_store.h"

class ResourceManager;

namespace zorvic {

inline constexpr int maxExtent = 32767;  // pixels; larger extents overflow 16.16 steps

class Bitmap {
public:
    Bitmap() = default;
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    virtual ~Bitmap();

    // Replaces what the bitmap holds by new pixels; on failure it holds none.
    bool Create(int width, int height, int bitsPixel, int colorCount, StoreKind newKind);

    // Refers to another bitmap's store, taking it over or borrowing it; fails when the other has no pixels.
    bool Attach(const Bitmap* other, bool borrow);
    // Releases the store (pixels die with their last owner) and resets the operation word.
    void Detach();
    // Gives up the store without telling anybody: what is left is an empty bitmap. For stores that were taken over.
    void Forget();

    bool Lock(BITMAP* out, const RECT* area) const { return store && store->Lock(out, area); }
    bool LockEx(BitmapLockInfo* out, const RECT* area) const { return store && store->LockEx(out, area); }
    void Unlock() const {
        if (store) store->Unlock();
    }

    SIZE Size() const;  // 0 x 0 without a store
    std::uint8_t BitsPixel() const;
    std::uint16_t ColorCount() const;
    StoreKind Kind() const { return kind; }
    bool HasStore() const { return store != nullptr; }

    // The DIB section's handle; turns a memory store into a system store first. Null when that is not possible; then a
    // host's bitmap has lost its pixels, a canvas's surface has not.
    HBITMAP ToSystem();

    DWORD filter = 0;  // the operation word
    // Whether the host may delete it. False for the surface of a canvas, although GetBitmap hands it out, and while the
    // resource manager is being told that the bitmap ends.
    bool isHosts = true;

private:
    void ReleaseStore();
    // Makes a store's pixels and copies this bitmap's into them.
    bool CopyInto(DibPixelStore& dib) const;

    // Shared, so that a texture that borrows a canvas's pixels keeps the old ones when the canvas converts its surface.
    std::shared_ptr<PixelStore> store;
    StoreKind kind = StoreKind::memory;
    bool ownsStore = true;
};

// A new bitmap or texture; null for a bad size or depth, or when memory is short.
template <class Surface>
std::unique_ptr<Surface> MakeSurface(int width, int height, int bitsPixel, int colorCount, StoreKind kind) {
    std::unique_ptr<Surface> surface(new (std::nothrow) Surface);
    if (surface && !surface->Create(width, height, bitsPixel, colorCount, kind)) surface.reset();
    return surface;
}

// Copies pixels, palette and operation word; see CopyBitmap in the public header.
void CopyPixels(Bitmap& dst, const RECT* dstArea, const Bitmap& src, const RECT* srcArea);
// Copies the palette of one locked surface to another with as many entries; the grey ramp stays as it is.
void CopyPalette(const BitmapLockInfo& dst, const BitmapLockInfo& src);

// The host's process-wide object, told of pixels that go or change; may be null.
extern ResourceManager* RegisteredManager;
void NotifyChange(Bitmap& bitmap, DWORD value);

inline Bitmap* FromHandle(HGBITMAP handle) { return reinterpret_cast<Bitmap*>(handle); }
inline HGBITMAP ToHandle(const Bitmap* bitmap) { return reinterpret_cast<HGBITMAP>(const_cast<Bitmap*>(bitmap)); }

// A lock that ends with its scope.
class SurfaceLock {
public:
    explicit SurfaceLock(const Bitmap& lockedBitmap, const RECT* area = nullptr)
        : bitmap(lockedBitmap), locked(lockedBitmap.LockEx(&info, area)) {}
    ~SurfaceLock() {
        if (locked) bitmap.Unlock();
    }
    SurfaceLock(const SurfaceLock&) = delete;
    SurfaceLock& operator=(const SurfaceLock&) = delete;

    explicit operator bool() const { return locked; }
    const BitmapLockInfo& operator*() const { return info; }
    const BitmapLockInfo* operator->() const { return &info; }

private:
    const Bitmap& bitmap;
    BitmapLockInfo info;
    bool locked;
};

}  // namespace zorvic

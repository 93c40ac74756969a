// What every host of the library writes once: owning handles, pixel access for the length of a scope, rectangles.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <type_traits>

#include "zorvic/zorvic.h"

struct DeleteHandle {
    void operator()(HGBITMAP bitmap) const { DeleteBitmap(bitmap); }
    void operator()(HGTEXTURE texture) const { DeleteTexture(texture); }
    void operator()(HGCANVAS canvas) const { DeleteCanvas(canvas); }
};

// Handles are pointers to opaque records, so that unique_ptr can own them.
template <class Handle>
class Owned : public std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle> {
public:
    explicit Owned(Handle handle) : std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle>(handle) {
        if (!handle) throw std::runtime_error("out of memory for a picture");
    }
    // An owner is passed to the library as its handle.
    operator Handle() const { return this->get(); }  // NOLINT(google-explicit-constructor)
};
using Bitmap = Owned<HGBITMAP>;
using Texture = Owned<HGTEXTURE>;
using Canvas = Owned<HGCANVAS>;

inline HGBITMAP AsBitmap(HGTEXTURE texture) { return reinterpret_cast<HGBITMAP>(texture); }

inline RECT Box(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }
inline RECT Inset(RECT rect, int by) { return {rect.left + by, rect.top + by, rect.right - by, rect.bottom - by}; }
inline int Width(const RECT& rect) { return rect.right - rect.left; }
inline int Height(const RECT& rect) { return rect.bottom - rect.top; }

inline SIZE SizeOf(HGBITMAP bitmap) {
    SIZE size{};
    GetBitmapSize(bitmap, &size);
    return size;
}
inline RECT AreaOf(HGBITMAP bitmap) { return {0, 0, SizeOf(bitmap).cx, SizeOf(bitmap).cy}; }
inline RECT AreaOf(HGCANVAS canvas) { return AreaOf(GetBitmap(canvas)); }

// The pixels of a bitmap for the length of a scope.
class Pixels {
public:
    explicit Pixels(HGBITMAP locked) : bitmap(locked) { LockBitmapBitsEx(bitmap, &info, nullptr); }
    ~Pixels() { UnlockBitmapBits(bitmap, 0, 1); }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    int Width() const { return info.bmWidth; }
    int Height() const { return info.bmHeight; }
    BYTE* Row(int y) const { return static_cast<BYTE*>(info.bmBits) + y * info.bmWidthBytes; }
    DWORD* Palette() const { return info.palette; }
    // A pixel of a 32-bit bitmap.
    DWORD& At(int x, int y) const { return reinterpret_cast<DWORD*>(Row(y))[x]; }
    // The low bytes of the value become a pixel of 8, 24 or 32 bits.
    void Set(int x, int y, DWORD value) const {
        const int bytes = info.bmBitsPixel / 8;
        for (int i = 0; i < bytes; ++i) Row(y)[x * bytes + i] = static_cast<BYTE>(value >> 8 * i);
    }

private:
    HGBITMAP bitmap;
    BitmapLockInfo info{};
};

// Channels of a pixel; straight or premultiplied is the caller's business.
struct Color {
    int r, g, b, a;
    static Color From(DWORD argb) {
        return {int(argb >> 16 & 255), int(argb >> 8 & 255), int(argb & 255), int(argb >> 24)};
    }
    DWORD Argb() const { return DWORD(a) << 24 | DWORD(r) << 16 | DWORD(g) << 8 | DWORD(b); }
};

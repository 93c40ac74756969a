// What a host program of the DLL does all the time: owning handles, reading and writing pixels, filling surfaces
// with a pattern, and comparing a surface with a picture given as a function.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <iomanip>
#include <memory>
#include <vector>

#include "zorvic/zorvic.h"

namespace host {

// Handles are pointers to opaque records, so that unique_ptr can own them.
struct DeleteHandle {
    void operator()(HGBITMAP bitmap) const { DeleteBitmap(bitmap); }
    void operator()(HGTEXTURE texture) const { DeleteTexture(texture); }
    void operator()(HGCANVAS canvas) const { DeleteCanvas(canvas); }
};
template <class Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle>;
using OwnedBitmap = Owned<HGBITMAP>;
using OwnedTexture = Owned<HGTEXTURE>;
using OwnedCanvas = Owned<HGCANVAS>;

// The DLL, whichever of the two this program was linked with.
inline HMODULE LoadedDll() {
    HMODULE dll = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(CreateCanvas), &dll);
    return dll;
}

// Textures are bitmaps.
inline HGBITMAP AsBitmap(HGBITMAP bitmap) { return bitmap; }
inline HGBITMAP AsBitmap(HGTEXTURE texture) { return reinterpret_cast<HGBITMAP>(texture); }
inline HGBITMAP AsBitmap(HGCANVAS canvas) { return GetBitmap(canvas); }

// The operation word of a surface, or the canvas's own.
template <class Handle>
DWORD FilterOf(Handle handle) {
    DWORD filter = 0;
    if constexpr (std::is_same_v<Handle, HGCANVAS>)
        EXPECT_EQ(GetCanvasFilter(handle, &filter), 1);
    else
        EXPECT_EQ(GetBitmapFilter(AsBitmap(handle), &filter), 1);
    return filter;
}

// A lock for the length of a test; pixels are read and written as numbers of the surface's depth.
class Pixels {
public:
    template <class Handle>
    explicit Pixels(Handle surface, const RECT* area = nullptr) : bitmap(AsBitmap(surface)) {
        locked = LockBitmapBitsEx(bitmap, &info, area) != 0;
        EXPECT_TRUE(locked) << "cannot lock";
    }
    ~Pixels() {
        if (locked) UnlockBitmapBits(bitmap, 0, 0);
    }
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;

    const BitmapLockInfo* operator->() const { return &info; }
    int Width() const { return locked ? info.bmWidth : 0; }
    int Height() const { return locked ? info.bmHeight : 0; }

    DWORD Get(int x, int y) const {
        DWORD value = 0;
        for (int i = BytesPerPixel(); i-- > 0;) value = value << 8 | At(x, y)[i];
        return value;
    }
    // The pixel widened to 32 bits.
    DWORD Color(int x, int y) const {
        const DWORD value = Get(x, y);
        if (info.bmBitsPixel == 8) return info.palette[value];
        return info.bmBitsPixel == 24 ? 0xFF000000 | value : value;
    }
    void Set(int x, int y, DWORD value) {
        for (int i = 0; i < BytesPerPixel(); ++i) At(x, y)[i] = static_cast<BYTE>(value >> 8 * i);
    }
    template <class Picture>
    void Fill(Picture picture) {
        for (int y = 0; y < Height(); ++y)
            for (int x = 0; x < Width(); ++x) Set(x, y, picture(x, y));
    }

private:
    int BytesPerPixel() const { return info.bmBitsPixel / 8; }
    BYTE* At(int x, int y) const {
        return static_cast<BYTE*>(info.bmBits) + static_cast<std::ptrdiff_t>(y) * info.bmWidthBytes +
               static_cast<std::ptrdiff_t>(x) * BytesPerPixel();
    }

    HGBITMAP bitmap;
    BitmapLockInfo info{};
    bool locked;
};

// A picture without repetition: neighbours, rows and seeds all differ, and so do the four bytes of a pixel.
struct Pattern {
    std::uint32_t seed = 1;
    DWORD operator()(int x, int y) const {
        std::uint32_t word =
            seed * 0x9E3779B9U + static_cast<std::uint32_t>(y) * 0x85EBCA6BU + static_cast<std::uint32_t>(x);
        word = (word ^ word >> 16) * 0x7FEB352DU;
        word = (word ^ word >> 15) * 0x846CA68BU;
        return word ^ word >> 16;
    }
};

// The pattern as a valid premultiplied pixel: no channel above its alpha; alphas 0 and 255 are frequent.
struct PremultipliedPattern {
    std::uint32_t seed = 1;
    DWORD operator()(int x, int y) const {
        const DWORD word = Pattern{seed}(x, y);
        const DWORD alpha = (word & 3) == 0 ? 0 : (word & 3) == 1 ? 255 : word >> 24;
        const auto channel = [&](unsigned shift) { return ((word >> shift) & 0xFF) * alpha / 255 << shift; };
        return alpha << 24 | channel(16) | channel(8) | channel(0);
    }
};

template <class Picture, class Handle>
void Fill(Handle surface, Picture picture) {
    Pixels(surface).Fill(picture);
}

inline OwnedBitmap MakeBitmap(int width, int height, int bitsPixel = 32, int colorCount = 0) {
    OwnedBitmap bitmap(CreateMemBitmapEx(width, height, bitsPixel, colorCount));
    EXPECT_TRUE(bitmap) << "cannot create " << width << " x " << height << " x " << bitsPixel;
    return bitmap;
}

template <class Picture>
OwnedBitmap MakeBitmap(int width, int height, Picture picture) {
    OwnedBitmap bitmap = MakeBitmap(width, height);
    Fill(bitmap.get(), picture);
    return bitmap;
}

template <class Picture>
OwnedCanvas MakeCanvas(int width, int height, Picture picture, DWORD filter = ZORVIC_OP_COPY) {
    OwnedCanvas canvas(CreateCanvas(width, height, nullptr));
    Fill(canvas.get(), picture);
    SetCanvasFilter(canvas.get(), filter);
    return canvas;
}

// One pixel's value everywhere.
struct Plain {
    DWORD pixel = 0;
    DWORD operator()(int, int) const { return pixel; }
};

// What a surface shows now, as a picture for later comparisons.
struct Snapshot {
    template <class Handle>
    explicit Snapshot(Handle surface) {
        const Pixels pixels(surface);
        width = pixels.Width();
        for (int y = 0; y < pixels.Height(); ++y)
            for (int x = 0; x < width; ++x) words.push_back(pixels.Get(x, y));
    }
    DWORD operator()(int x, int y) const { return words[static_cast<std::size_t>(y * width + x)]; }

    int width = 0;
    std::vector<DWORD> words;
};

// Compares all pixels of a surface with a picture(x, y); a failure tells the first one that differs and their number.
template <class Handle, class Picture>
testing::AssertionResult Shows(Handle surface, Picture picture) {
    const Pixels pixels(surface);
    auto failure = testing::AssertionFailure();
    if (pixels.Width() == 0) return failure << "no pixels";
    int different = 0;
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const DWORD got = pixels.Get(x, y);
            const DWORD wanted = picture(x, y);
            if (got == wanted || different++ > 0) continue;
            // One message: manipulators end with it.
            failure << (testing::Message() << "at (" << x << ", " << y << ") got " << std::hex << std::setfill('0')
                                           << std::setw(8) << got << ", wanted " << std::setw(8) << wanted);
        }
    if (different == 0) return testing::AssertionSuccess();
    return failure << "; " << different << " of " << pixels.Width() * pixels.Height() << " pixels differ";
}

inline bool Inside(const RECT& rect, int x, int y) {
    return x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
}

// Whether an area is not empty and lies in a surface.
inline bool LiesIn(const RECT& area, LONG width, LONG height) {
    return area.left >= 0 && area.left < area.right && area.right <= width && area.top >= 0 && area.top < area.bottom &&
           area.bottom <= height;
}

// For failure messages.
inline std::string ToText(const RECT& rect) {
    return "{" + std::to_string(rect.left) + ", " + std::to_string(rect.top) + ", " + std::to_string(rect.right) +
           ", " + std::to_string(rect.bottom) + "}";
}

}  // namespace host

inline bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
inline bool operator==(const POINT& a, const POINT& b) { return a.x == b.x && a.y == b.y; }

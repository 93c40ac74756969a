// Zorvic for C++20: bitmaps, textures, and locks on their pixels. zorvic.h says what each function does.
#pragma once

#include <cstddef>
#include <span>

#include "zorvic/choices.hpp"
#include "zorvic/handles.hpp"

namespace zorvic {

class Bitmap;
class Texture;

// The pixels of a surface, from Lock to the end of the scope. It must not outlive the surface or its conversion. False
// when the surface cannot be locked; it has no rows then.
class PixelLock {
public:
    // Locks an area in surface pixels; nullptr, all of the surface.
    explicit PixelLock(HGBITMAP surface, const RECT* area = nullptr)
        : bitmap(::LockBitmapBitsEx(surface, &info, area) ? surface : nullptr) {}
    // Takes over the other's lock.
    PixelLock(PixelLock&& other) noexcept
        : info(std::exchange(other.info, {})),
          bitmap(std::exchange(other.bitmap, nullptr)),
          changeValue(other.changeValue),
          changed(other.changed) {}
    // Ends its lock and takes over the other's.
    PixelLock& operator=(PixelLock&& other) noexcept {
        Unlock();
        info = std::exchange(other.info, {});
        bitmap = std::exchange(other.bitmap, nullptr);
        changeValue = other.changeValue;
        changed = other.changed;
        return *this;
    }
    // Ends the lock.
    ~PixelLock() { Unlock(); }

    // Whether the pixels are locked.
    explicit operator bool() const { return bitmap != nullptr; }
    // Pixels in a row of the area.
    int Width() const { return info.bmWidth; }
    // Rows of the area.
    int Height() const { return info.bmHeight; }
    // 8, 24 or 32.
    int BitsPixel() const { return info.bmBitsPixel; }
    // The record that the lock filled in.
    const BitmapLockInfo& Info() const { return info; }

    // Row y, 0 the uppermost, of as many pixels as the area is wide: DWORD for 32 bits, RGBTriple for 24, BYTE for 8.
    // Empty for pixels of another size and outside the area.
    template <class Pixel = DWORD>
    std::span<Pixel> Row(int y) const {
        if (sizeof(Pixel) * 8 != info.bmBitsPixel || y < 0 || y >= info.bmHeight) return {};
        std::byte* row = static_cast<std::byte*>(info.bmBits) + static_cast<std::ptrdiff_t>(y) * info.bmWidthBytes;
        return {static_cast<Pixel*>(static_cast<void*>(row)), static_cast<std::size_t>(info.bmWidth)};
    }
    // Read-only where the surface has no palette of its own.
    std::span<DWORD> Palette() const { return {info.palette, info.colorCount}; }

    // At the end of the lock the resource manager will be told that the pixels changed.
    void TellChange(DWORD value = 0) {
        changeValue = value;
        changed = 1;
    }
    // Ends the lock before the end of the scope.
    void Unlock() {
        if (bitmap) ::UnlockBitmapBits(bitmap, changeValue, changed);
        bitmap = nullptr;
        info = {};
    }

private:
    BitmapLockInfo info{};
    HGBITMAP bitmap;
    DWORD changeValue = 0;
    int changed = 0;
};

// A bitmap that somebody else owns, with everything that can be done to a bitmap.
class BitmapRef : public HandleRef<HGBITMAP> {
public:
    using HandleRef::HandleRef;

    SIZE Size() const {
        SIZE size{};
        ::GetBitmapSize(handle, &size);
        return size;
    }
    BYTE BitsPixel() const {
        BYTE bits = 0;
        ::GetBitmapBitsPixel(handle, &bits);
        return bits;
    }
    HBITMAP GdiHandle() const { return ::GetBitmapHandle(handle); }
    // The pixels of an area, for as long as the lock lives.
    [[nodiscard]] PixelLock Lock(const RECT* area = nullptr) const { return PixelLock(handle, area); }

    // The colour key, 0xRRGGBB, belongs to Operation::colorKey.
    bool SetOperation(Operation operation, DWORD colorKey = 0) const {
        return ::SetBitmapFilter(handle, static_cast<DWORD>(operation) | colorKey) != 0;
    }
    DWORD OperationWord() const {
        DWORD word = 0;
        ::GetBitmapFilter(handle, &word);
        return word;
    }

    bool CopyFrom(BitmapRef src, const RECT* dstArea = nullptr, const RECT* srcArea = nullptr) const {
        return ::CopyBitmap(handle, dstArea, src.handle, srcArea) != 0;
    }
    // A new bitmap in another size.
    [[nodiscard]] Bitmap Resized(int width, int height, Filter filter = Filter::bilinear) const;
    // A new bitmap, turned or mirrored.
    [[nodiscard]] Bitmap Transformed(Transform transform) const;
    // The region is the caller's to delete.
    [[nodiscard]] HRGN CreateRgn(const RECT* area = nullptr) const {
        return ::CreateTextureRgn(reinterpret_cast<HGTEXTURE>(handle), area);
    }

    bool Gray() const { return ::GrayBitmap(handle) != 0; }
    bool Invert() const { return ::InvertBitmap(handle) != 0; }
    bool Normalize() const { return ::NormalizeBitmap(handle) != 0; }
    bool ShuffleChannels(Shuffle mode, const RECT* area = nullptr) const {
        return ::ShuffleBitmapEx(handle, area, static_cast<int>(mode)) != 0;
    }
    bool BlurFrom(BitmapRef src) const { return ::BlurBitmap(handle, src.handle) != 0; }
    bool Light() const { return ::LightBitmap(handle) != 0; }
    bool Dark() const { return ::DarkBitmap(handle) != 0; }

protected:
    static void Delete(HGBITMAP bitmap) { ::DeleteBitmap(bitmap); }
};

// A bitmap of one's own.
class Bitmap : public Owned<BitmapRef> {
public:
    using Owned::Owned;
    static Bitmap Create(int width, int height) { return Bitmap(::CreateMemBitmap(width, height)); }
    static Bitmap Create(int width, int height, int bitsPixel, int colorCount = 0) {
        return Bitmap(::CreateMemBitmapEx(width, height, bitsPixel, colorCount));
    }
    static Bitmap CreateSystem(int width, int height) { return Bitmap(::CreateSystemBitmap(width, height)); }
};

// A texture can do what a bitmap can, and is drawn as one where a bitmap is asked for.
class TextureRef : public BitmapRef {
public:
    // The handle's type in zorvic.h.
    using Handle = HGTEXTURE;
    // Empty.
    TextureRef() = default;
    // Names a texture without owning it.
    TextureRef(HGTEXTURE borrowed) : BitmapRef(reinterpret_cast<HGBITMAP>(borrowed)) {}

    // The handle for the functions of zorvic.h. It stays where it is.
    HGTEXTURE Get() const { return reinterpret_cast<HGTEXTURE>(handle); }

    // Of the current slice, or of the surface when there are no slices; Size() is always the surface's.
    SIZE ImageSize() const {
        SIZE size{};
        ::GetTextureSize(Get(), &size);
        return size;
    }
    bool SetMode(const TextureMode& mode) const { return ::SetTextureMode(Get(), &mode) != 0; }
    // The layout record from its parts.
    bool SetLayout(Layout layout, const RECT& margins = {}, DWORD argument = 0) const {
        return SetMode({static_cast<LONG>(layout), argument, margins});
    }
    TextureMode Mode() const {
        TextureMode mode{};
        ::GetTextureMode(Get(), &mode);
        return mode;
    }

    int SetSlices(std::span<const RECT> slices) const {
        return ::SetTextureSlice(Get(), static_cast<unsigned>(slices.size()), slices.data());
    }
    int SelectSlice(int index) const { return ::SetTextureCurSlice(Get(), index); }
    int SliceCount() const { return ::GetTextureSliceCount(Get()); }
    RECT CurrentSlice() const {
        RECT slice{};
        ::GetTextureCurSlice(Get(), &slice);
        return slice;
    }

    // A new texture in another size.
    [[nodiscard]] Texture Resized(int width, int height, Filter filter = Filter::bilinear) const;
    // A new texture, turned or mirrored.
    [[nodiscard]] Texture Transformed(Transform transform) const;

    bool Gray() const { return ::GrayTexture(Get()) != 0; }
    bool Light() const { return ::LightTexture(Get()) != 0; }
    bool TranslateColor(DWORD from, DWORD to) const { return ::TranslateTexture(Get(), from, to) != 0; }
    bool Colorize(float hue, float saturation, float lightness) const {
        return ::ColorizeTexture(Get(), hue, saturation, lightness) != 0;
    }

protected:
    static void Delete(HGTEXTURE texture) { ::DeleteTexture(texture); }
};

// A texture of one's own.
class Texture : public Owned<TextureRef> {
public:
    using Owned::Owned;
    static Texture Create(int width, int height, int bitsPixel = 32, int colorCount = 0) {
        return Texture(::CreateTextureEx(width, height, bitsPixel, colorCount));
    }
};

inline Bitmap BitmapRef::Resized(int width, int height, Filter filter) const {
    return Bitmap(::ResizeBitmap(handle, width, height, static_cast<int>(filter)));
}
inline Bitmap BitmapRef::Transformed(Transform transform) const {
    return Bitmap(::TransformBitmap(handle, static_cast<int>(transform)));
}
inline Texture TextureRef::Resized(int width, int height, Filter filter) const {
    return Texture(::ResizeTexture(Get(), width, height, static_cast<int>(filter)));
}
inline Texture TextureRef::Transformed(Transform transform) const {
    return Texture(::TransformTexture(Get(), static_cast<int>(transform)));
}

// The pixels move; the bitmap is used up.
[[nodiscard]] inline Texture ToTexture(Bitmap&& bitmap) { return Texture(::BitmapToTexture(bitmap.Release())); }

}  // namespace zorvic

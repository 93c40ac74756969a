// Where a bitmap's pixels live: the interface of the two pixel stores and the stores themselves.
// Nothing is cached here that a lock could get wrong: a lock only computes a description of the pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "zorvic/types.h"

namespace zorvic {

// Describes a whole surface, or an area of it; false, and out stays as it is, unless the area is non-empty and inside.
// palette: null, or colorCount words. Inline, and every field is written once: this is most of what a lock costs.
inline bool DescribeArea(BitmapLockInfo* out, const BITMAP& whole, const RECT* area, std::uint16_t colorCount = 0,
                         DWORD* palette = nullptr) {
    RECT part{0, 0, whole.bmWidth, whole.bmHeight};
    if (area) {
        if (area->left < 0 || area->top < 0 || area->right > part.right || area->bottom > part.bottom) return false;
        if (area->left >= area->right || area->top >= area->bottom) return false;
        part = *area;
    }
    auto* const first = static_cast<std::byte*>(whole.bmBits) +
                        static_cast<std::ptrdiff_t>(part.top) * whole.bmWidthBytes +
                        static_cast<std::ptrdiff_t>(part.left) * (whole.bmBitsPixel / 8);
    *out = {0,
            part.right - part.left,
            part.bottom - part.top,
            whole.bmWidthBytes,
            1,
            whole.bmBitsPixel,
            first,
            colorCount,
            0,
            palette};
    return true;
}

enum class StoreKind : std::uint8_t { memory = 0, system = 1 };

class PixelStore {
public:
    virtual ~PixelStore() = default;

    // Allocates pixels for the description's width x height at its depth and writes the stride into it (the system
    // store refills all of it). colorCount: palette entries wanted, for depths up to 8.
    virtual bool Create(BITMAP* description, std::uint16_t colorCount) = 0;
    virtual void Destroy() = 0;
    virtual bool IsEmpty() const = 0;
    virtual unsigned GetWidth() const = 0;
    virtual unsigned GetHeight() const = 0;
    virtual std::uint8_t GetBitsPixel() const = 0;
    virtual std::uint16_t GetColorCount() const = 0;

    // Describes the whole surface, or the area, which must be non-empty and inside.
    virtual bool Lock(BITMAP* out, const RECT* area) const;  // without the palette
    virtual bool LockEx(BitmapLockInfo* out, const RECT* area) const = 0;
    virtual void Unlock() {}
};

// One heap block: the palette first, then the rows, padded to 32 bits, then slack (see Create).
class MemoryPixelStore final : public PixelStore {
public:
    bool Create(BITMAP* description, std::uint16_t wantedColors) override;
    void Destroy() override;
    bool IsEmpty() const override { return block == nullptr; }
    unsigned GetWidth() const override { return width; }
    unsigned GetHeight() const override { return height; }
    std::uint8_t GetBitsPixel() const override { return static_cast<std::uint8_t>(bitsPixel); }
    std::uint16_t GetColorCount() const override { return colorCount; }
    bool LockEx(BitmapLockInfo* out, const RECT* area) const override;

private:
    std::uint16_t width = 0;
    std::uint16_t height = 0;
    std::uint16_t bitsPixel = 0;
    std::uint16_t colorCount = 0;
    std::unique_ptr<std::byte[]> block;
};

// A top-down 32-bit GDI DIB section; size, stride and pixels are asked of GDI every time.
class DibPixelStore final : public PixelStore {
public:
    DibPixelStore() = default;
    DibPixelStore(const DibPixelStore&) = delete;
    DibPixelStore& operator=(const DibPixelStore&) = delete;
    ~DibPixelStore() override { Destroy(); }

    bool Create(BITMAP* description, std::uint16_t colorCount) override;
    void Destroy() override;
    bool IsEmpty() const override { return handle == nullptr; }
    unsigned GetWidth() const override;
    unsigned GetHeight() const override;
    std::uint8_t GetBitsPixel() const override;
    std::uint16_t GetColorCount() const override { return 0; }
    bool LockEx(BitmapLockInfo* out, const RECT* area) const override;

    HBITMAP Handle() const { return handle; }

private:
    BITMAP Describe() const;  // all zero without pixels

    HBITMAP handle = nullptr;
};

}  // namespace zorvic

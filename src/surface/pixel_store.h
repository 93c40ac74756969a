// Where a bitmap's pixels live: the interface of the two pixel stores and the stores themselves.
// Nothing is cached here that a lock could get wrong: a lock only computes a description of the pixels.
#pragma once

#include <cstdint>
#include <memory>

#include "zorvic/types.h"

namespace zorvic {

// A locked image without a palette, or with one.
BitmapLockInfo ToLockInfo(const BITMAP& image, std::uint16_t colorCount = 0, DWORD* palette = nullptr);

// Cuts the description of a whole surface down to an area of it; false unless the area is non-empty and inside.
bool CutToArea(BITMAP& image, const RECT& area);

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
    virtual bool Lock(BITMAP* out, const RECT* area) const = 0;
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
    bool Lock(BITMAP* out, const RECT* area) const override;
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
    bool Lock(BITMAP* out, const RECT* area) const override;
    bool LockEx(BitmapLockInfo* out, const RECT* area) const override;

    HBITMAP Handle() const { return handle; }

private:
    BITMAP Describe() const;  // all zero without pixels

    HBITMAP handle = nullptr;
};

}  // namespace zorvic

// Pixels in one heap block of any depth, with an optional palette in front of them.
#include <algorithm>
#include <new>

#include "raster/image.h"
#include "raster/lookup_tables.h"
#include "surface/pixel_store.h"

namespace zorvic {

namespace {

constexpr std::int64_t StrideOf(std::int64_t width, int bitsPixel) {
    return ((width * bitsPixel + 31) >> 3) & ~std::int64_t{3};
}

// Kernels look up any index byte whatever the palette's length, and read depths that they do not know as 32-bit words:
// the slack behind the last row keeps both inside the block.
constexpr std::int64_t BlockBytes(std::int64_t width, std::int64_t height, int bitsPixel, int colorCount) {
    const std::int64_t stride = StrideOf(width, bitsPixel);
    const std::int64_t lastRow = std::max(stride, width * BytesPerPixel(DepthOf(bitsPixel)));
    const std::int64_t bytes = colorCount * std::int64_t{sizeof(DWORD)} + (height - 1) * stride + lastRow;
    return colorCount == 0 ? bytes : std::max(bytes, std::int64_t{256 * sizeof(DWORD)});
}

}  // namespace

bool MemoryPixelStore::Create(BITMAP* description, std::uint16_t wantedColors) {
    Destroy();
    const int depth = description->bmBitsPixel;
    const int colors = depth > 8 ? 0 : std::min<int>(1 << depth, wantedColors);
    const std::int64_t bytes = BlockBytes(description->bmWidth, description->bmHeight, depth, colors);
    if (bytes > PTRDIFF_MAX) return false;
    block.reset(new (std::nothrow) std::byte[static_cast<std::size_t>(bytes)]);
    if (!block) return false;
    width = static_cast<std::uint16_t>(description->bmWidth);
    height = static_cast<std::uint16_t>(description->bmHeight);
    bitsPixel = static_cast<std::uint16_t>(depth);
    colorCount = static_cast<std::uint16_t>(colors);
    description->bmWidthBytes = static_cast<LONG>(StrideOf(width, depth));
    return true;
}

void MemoryPixelStore::Destroy() {
    block.reset();
    width = height = bitsPixel = colorCount = 0;
}

bool MemoryPixelStore::Lock(BITMAP* out, const RECT* area) const {
    if (IsEmpty() || bitsPixel < 8) return false;
    BITMAP image{};
    image.bmWidth = width;
    image.bmHeight = height;
    image.bmWidthBytes = static_cast<LONG>(StrideOf(width, bitsPixel));
    image.bmPlanes = 1;
    image.bmBitsPixel = bitsPixel;
    image.bmBits = block.get() + colorCount * sizeof(DWORD);
    if (area && !CutToArea(image, *area)) return false;
    *out = image;
    return true;
}

bool MemoryPixelStore::LockEx(BitmapLockInfo* out, const RECT* area) const {
    BITMAP image;
    if (!Lock(&image, area)) return false;
    if (bitsPixel > 8) {
        *out = ToLockInfo(image);
    } else if (colorCount == 0) {
        // Nobody writes through it: see CopyPixels.
        *out =
            ToLockInfo(image, static_cast<std::uint16_t>(GreyPalette.size()), const_cast<DWORD*>(GreyPalette.data()));
    } else {
        *out = ToLockInfo(image, colorCount, reinterpret_cast<DWORD*>(block.get()));
    }
    return true;
}

}  // namespace zorvic

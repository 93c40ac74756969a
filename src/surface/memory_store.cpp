// Pixels in one heap block of any depth, with an optional palette in front of them.
#include <algorithm>
#include <new>

#include "raster/image.h"
#include "raster/lookup_tables.h"
#include "surface/pixel_store.h"

namespace zorvic {

namespace {

constexpr LONG StrideOf(LONG width, int bitsPixel) { return ((width * bitsPixel + 31) >> 3) & ~3; }

// Kernels look up any index byte whatever the palette's length, and read depths that they do not know as 32-bit words:
// the slack behind the last row keeps both inside the block.
constexpr std::int64_t BlockBytes(LONG width, LONG height, int bitsPixel, int colorCount) {
    const std::int64_t stride = StrideOf(width, bitsPixel);
    const std::int64_t lastRow = std::max<std::int64_t>(stride, width * BytesPerPixel(DepthOf(bitsPixel)));
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
    description->bmWidthBytes = StrideOf(width, depth);
    return true;
}

void MemoryPixelStore::Destroy() {
    block.reset();
    width = height = bitsPixel = colorCount = 0;
}

bool MemoryPixelStore::LockEx(BitmapLockInfo* out, const RECT* area) const {
    if (IsEmpty() || bitsPixel < 8) return false;
    std::byte* const bits = block.get() + colorCount * sizeof(DWORD);
    const BITMAP whole{0, width, height, StrideOf(width, bitsPixel), 1, bitsPixel, bits};
    std::uint16_t colors = colorCount;
    DWORD* palette = nullptr;
    if (colors != 0) {
        palette = reinterpret_cast<DWORD*>(block.get());
    } else if (bitsPixel == 8) {
        colors = static_cast<std::uint16_t>(GreyPalette.size());
        palette = const_cast<DWORD*>(GreyPalette.data());  // nobody writes through it: see CopyPixels
    }
    return DescribeArea(out, whole, area, colors, palette);
}

}  // namespace zorvic

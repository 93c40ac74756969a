#include "support/fenced_image.h"

#include <sanitizer/asan_interface.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "raster/image.h"
#include "support/fenced_memory.h"

namespace zorvic {

namespace {

constexpr std::uint32_t gapWord = 0xA5C3A5C3;

}  // namespace

std::span<std::byte> TakeFenced(Fence fence, std::size_t bytes, bool fenceBehind) {
    static const FencedBlocks blocks(4, fencedBytes);
    if (bytes > fencedBytes) Fail("%zu bytes do not fit between the fences", bytes);
    std::byte* const all = blocks.Block(static_cast<std::size_t>(fence));
    std::byte* const first = fenceBehind ? all + fencedBytes - bytes : all;
    ASAN_POISON_MEMORY_REGION(all, fencedBytes);
    ASAN_UNPOISON_MEMORY_REGION(first, bytes);
    return {first, bytes};
}

SIZE ReadSize(Input& input) {
    const int width = input.Extent(), height = input.Extent();
    int fitting = height;
    while (!FitsFence(width, fitting)) fitting = (fitting + 1) / 2;
    return {width, fitting};
}

Lie Lie::From(Input& input) {
    const int how = input.Byte();
    Lie lie;
    lie.fenceBehind = (how & 1) == 0;
    lie.gap = (how & 2) != 0 ? input.Below(40) : 0;
    lie.offset = how >> 2 & 15;
    if ((how & 64) != 0) lie.colors = 1 + input.Below(256);
    return lie;
}

FencedImage::FencedImage(Fence fence, int width, int height, int bitsPixel, const Lie& imageLie, Random& random)
    : lie(imageLie) {
    const bool hasPalette = bitsPixel == 8;
    const int pixelBytes = BytesPerPixel(DepthOf(bitsPixel));
    const int step = width * pixelBytes + lie.gap;
    if (!hasPalette) lie.colors = 0;
    if (hasPalette) lie.offset = 4 * lie.colors;
    auto wanted = static_cast<std::size_t>(lie.offset + std::max(height - 1, 0) * step + width * pixelBytes);
    // As a surface's block: any index finds a word, and words are aligned.
    if (hasPalette) wanted = std::max<std::size_t>((wanted + 3) / 4 * 4, 1024);
    bytes = TakeFenced(fence, wanted, lie.fenceBehind);

    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::byte>(gapWord >> 8 * (i % 4));
    std::byte* const rows = bytes.data() + lie.offset;
    for (int y = 0; y < height; ++y) {
        std::byte* const row = rows + std::ptrdiff_t{y} * step;
        for (int x = 0; x < width; ++x) {
            const std::uint32_t pixel = hasPalette ? random.Word() : random.Pixel();
            std::memcpy(row + std::ptrdiff_t{x} * pixelBytes, &pixel, static_cast<std::size_t>(pixelBytes));
        }
    }
    auto* const palette = hasPalette ? reinterpret_cast<DWORD*>(bytes.data()) : nullptr;
    for (int i = 0; i < lie.colors; ++i) palette[i] = random.Pixel();
    info = {0, width, height, step, 1, static_cast<WORD>(bitsPixel), rows, static_cast<WORD>(lie.colors), 0, palette};
}

FencedImage::FencedImage(Fence fence, const FencedImage& other)
    : info(other.info), lie(other.lie), bytes(TakeFenced(fence, other.bytes.size(), other.lie.fenceBehind)) {
    std::ranges::copy(other.bytes, bytes.begin());
    info.bmBits = bytes.data() + lie.offset;
    if (info.palette) info.palette = reinterpret_cast<DWORD*>(bytes.data());
}

std::size_t FencedImage::PixelBytes() const {
    return static_cast<std::size_t>(info.bmWidth * BytesPerPixel(DepthOf(info.bmBitsPixel)));
}

void FencedImage::CheckGaps(const char* where) const {
    const auto isGap = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i)
            if (bytes[i] != static_cast<std::byte>(gapWord >> 8 * (i % 4)))
                Fail("%s: byte %td from the first pixel of a %d x %d image was written", where,
                     static_cast<std::ptrdiff_t>(i) - lie.offset, info.bmWidth, info.bmHeight);
    };
    std::size_t end = info.palette ? bytes.size() : 0;
    if (!info.palette) isGap(0, static_cast<std::size_t>(lie.offset));
    for (int y = 0; y < info.bmHeight; ++y) {
        const auto start = static_cast<std::size_t>(lie.offset + y * info.bmWidthBytes);
        if (y > 0) isGap(end, start);
        end = start + PixelBytes();
    }
    isGap(end, bytes.size());
}

void CheckSame(const FencedImage& got, const FencedImage& wanted, const char* where) {
    const auto [a, b] = std::ranges::mismatch(got.Bytes(), wanted.Bytes());
    if (a == got.Bytes().end()) return;
    const BitmapLockInfo& info = got.Info();
    const std::ptrdiff_t offset = &*a - static_cast<std::byte*>(info.bmBits);
    Fail("%s: byte %td (row %td, byte %td of it) of a %d x %d image of %d bits is %02x instead of %02x", where, offset,
         offset / std::max<std::ptrdiff_t>(info.bmWidthBytes, 1),
         offset % std::max<std::ptrdiff_t>(info.bmWidthBytes, 1), info.bmWidth, info.bmHeight, info.bmBitsPixel,
         std::to_integer<unsigned>(*a), std::to_integer<unsigned>(*b));
}

}  // namespace zorvic

// From records to regions that lie inside the memory that the records describe.
#include "pixel/described_images.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>

#include "pixel/box_filter.h"
#include "pixel/primitives.h"

namespace zorvic {

namespace {

constexpr int fourBytes = 4;

SIZE SizeOf(const BITMAP& image) { return {image.bmWidth, image.bmHeight}; }
bool SameSize(const BITMAP& a, const BITMAP& b) { return a.bmWidth == b.bmWidth && a.bmHeight == b.bmHeight; }
SourcePixels SourceOf(const BITMAP& image) { return {image.bmBits, image.bmWidthBytes}; }
TargetPixels TargetOf(const BITMAP& image) { return {image.bmBits, image.bmWidthBytes}; }

// A record without a depth counts as one of 32 bits.
std::int64_t PixelRowBytes(const BITMAP& image) {
    return std::int64_t{image.bmWidth} * (image.bmBitsPixel == 0 ? 32 : image.bmBitsPixel) / 8;
}

// What a job touches: count rows from row first on, bytes of each from offset on.
struct Touched {
    std::int64_t first, count, offset, bytes;
};

// Sums of products of 32-bit numbers and small ones: 64 bits hold them.
// rowPixels: the bytes of a row's pixels as the job takes them. A record whose rows are longer than its step is none.
bool LiesInside(const Touched& touched, const BITMAP& image, std::int64_t rowPixels) {
    const std::int64_t step = image.bmWidthBytes, pixelRow = PixelRowBytes(image);
    if (step != 0 && std::abs(step) < pixelRow) return false;
    // Without a step no memory ends a job that goes on beyond the image's rows.
    if (step == 0 && (touched.first < 0 || touched.first + touched.count > image.bmHeight)) return false;
    const std::int64_t lastRow = step == 0 ? pixelRow : std::min(std::abs(step), rowPixels);
    const std::int64_t one = touched.first * step, other = (touched.first + touched.count - 1) * step;
    const std::int64_t toLastRow = (image.bmHeight - std::int64_t{1}) * step;
    return image.bmWidth > 0 && image.bmHeight > 0 &&
           std::min(one, other) + touched.offset >= std::min<std::int64_t>(toLastRow, 0) &&
           std::max(one, other) + touched.offset + touched.bytes <= std::max<std::int64_t>(toLastRow, 0) + lastRow &&
           std::abs(toLastRow) + lastRow <= PTRDIFF_MAX;
}

// All of a region of four-byte pixels that starts at the image's bits.
bool Holds(const BITMAP& image, SIZE size) {
    const std::int64_t rowPixels = std::max(PixelRowBytes(image), std::int64_t{fourBytes} * image.bmWidth);
    return LiesInside({0, size.cy, 0, std::int64_t{fourBytes} * size.cx}, image, rowPixels);
}

// The whole image as one run of four-byte pixels. Its step may be anything, unless the depth is below 32 as well.
bool HoldsPacked(const BITMAP& image) {
    const std::int64_t rowBytes =
        std::max<std::int64_t>(std::abs(std::int64_t{image.bmWidthBytes}), PixelRowBytes(image));
    const std::int64_t packedRowBytes = std::int64_t{fourBytes} * image.bmWidth;
    return packedRowBytes <= rowBytes && image.bmHeight <= PTRDIFF_MAX / std::max<std::int64_t>(packedRowBytes, 1);
}

using ValuePrimitive = Status (*)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);

bool RunPacked(ValuePrimitive primitive, const BITMAP& src, const BITMAP& dst, DWORD value) {
    if (!SameSize(src, dst)) return false;
    const auto step = static_cast<std::ptrdiff_t>(std::int64_t{fourBytes} * src.bmWidth);
    if (HoldsPacked(src) && HoldsPacked(dst))
        primitive({src.bmBits, step}, {dst.bmBits, step}, SizeOf(src), static_cast<std::uint32_t>(value));
    return true;
}

// Null when memory is short.
std::unique_ptr<std::byte[]> Allocate(std::size_t bytes) {
    return std::unique_ptr<std::byte[]>(new (std::nothrow) std::byte[bytes]);
}

}  // namespace

bool CopyImage(const BITMAP& src, const BITMAP& dst, const RECT* area) {
    if (src.bmBitsPixel != 24 && src.bmBitsPixel != 32) return false;
    const int bytesPerPixel = src.bmBitsPixel / 8;
    const RECT part = area ? *area : RECT{0, 0, src.bmWidth, src.bmHeight};
    if (src.bmWidth < part.right || src.bmHeight < part.bottom) return false;

    const std::int64_t width = std::int64_t{part.right} - part.left, height = std::int64_t{part.bottom} - part.top;
    if (width < 1 || height < 1 || !src.bmBits || !dst.bmBits) return false;
    const auto offset = [&](const BITMAP& image) { return std::int64_t{image.bmBitsPixel} * part.left / 4; };
    const auto holds = [&](const BITMAP& image) {
        return LiesInside({part.top, height, offset(image), width * bytesPerPixel}, image, PixelRowBytes(image));
    };
    if (!holds(src) || !holds(dst)) return false;

    const auto start = [&](const BITMAP& image) {
        return static_cast<std::byte*>(image.bmBits) +
               static_cast<std::ptrdiff_t>(std::int64_t{part.top} * image.bmWidthBytes + offset(image));
    };
    const SIZE size{static_cast<LONG>(width), static_cast<LONG>(height)};
    return CopyPixels({start(src), src.bmWidthBytes}, {start(dst), dst.bmWidthBytes}, size, bytesPerPixel) ==
           Status::success;
}

bool MirrorImage(const BITMAP& image, int axis) { return MirrorImage(image, image, axis); }

bool MirrorImage(const BITMAP& src, const BITMAP& dst, int axis) {
    if (!SameSize(src, dst) || !Holds(src, SizeOf(src)) || !Holds(dst, SizeOf(dst))) return false;
    return MirrorPixels(SourceOf(src), TargetOf(dst), SizeOf(src), axis) == Status::success;
}

bool BlendImage(const BITMAP& src, const BITMAP& dst) {
    if (!Holds(src, SizeOf(src)) || !Holds(dst, SizeOf(src))) return false;
    return BlendPixels(SourceOf(src), TargetOf(dst), SizeOf(src)) == Status::success;
}

bool SetImageColor(const BITMAP& image, DWORD color, bool keepsAlpha) {
    if (!Holds(image, SizeOf(image))) return false;
    const auto primitive = keepsAlpha ? SetPixelColors : SetPixels;
    return primitive(TargetOf(image), SizeOf(image), static_cast<std::uint32_t>(color)) == Status::success;
}

bool OrImage(const BITMAP& src, const BITMAP& dst, DWORD value) { return RunPacked(OrPixels, src, dst, value); }
bool AndImage(const BITMAP& src, const BITMAP& dst, DWORD value) { return RunPacked(AndPixels, src, dst, value); }

bool BlurImage(const BITMAP& image, int box) {
    const int channels = image.bmBitsPixel / 8;
    const SIZE size = SizeOf(image);
    std::size_t bufferBytes;
    if (BoxFilterBufferSize(size, box, std::max(channels, 1), &bufferBytes) != Status::success) return false;
    if (!image.bmBits || (image.bmBitsPixel != 24 && image.bmBitsPixel != 32)) return true;

    // Rows that overlap or run upwards have no second image of height x step bytes.
    const std::int64_t imageBytes = std::int64_t{size.cy} * image.bmWidthBytes;
    if (image.bmWidthBytes < std::int64_t{size.cx} * channels || imageBytes > PTRDIFF_MAX) return true;
    const auto buffer = Allocate(bufferBytes), between = Allocate(static_cast<std::size_t>(imageBytes));
    if (!buffer || !between) return true;

    const TargetPixels temporary{between.get(), image.bmWidthBytes};
    Status status = BoxFilter(SourceOf(image), temporary, size, box, channels, buffer.get());
    if (status == Status::success) status = BoxFilter(temporary, TargetOf(image), size, box, channels, buffer.get());
    return status == Status::success;
}

}  // namespace zorvic

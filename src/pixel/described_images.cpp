// The primitives on images that callers describe: which rows of which images each of them goes through.
#include "pixel/described_images.h"

#include <algorithm>
#include <memory>
#include <new>

#include "pixel/box_filter.h"
#include "pixel/primitives.h"
#include "pixel/record_rows.h"

namespace zorvic {

namespace {

constexpr int fourBytes = 4;

SIZE SizeOf(const BITMAP& image) { return {image.bmWidth, image.bmHeight}; }
bool SameSize(const BITMAP& a, const BITMAP& b) { return a.bmWidth == b.bmWidth && a.bmHeight == b.bmHeight; }
SourcePixels SourceOf(const BITMAP& image) { return {image.bmBits, image.bmWidthBytes}; }
TargetPixels TargetOf(const BITMAP& image) { return {image.bmBits, image.bmWidthBytes}; }

template <class... Image>
bool HaveBits(SIZE size, const Image&... images) {
    return CheckRegion(size, images.bmBits...) == Status::success;
}

Job WholeOf(const BITMAP& image) { return {{0, image.bmHeight}, image.bmWidth, fourBytes}; }

using ValuePrimitive = Status (*)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);

bool RunPacked(ValuePrimitive primitive, const BITMAP& src, const BITMAP& dst, DWORD value) {
    if (!SameSize(src, dst)) return false;
    const Job oneRow{{0, 1}, std::int64_t{src.bmWidth} * src.bmHeight, fourBytes};
    if (HaveBits(SizeOf(src), src, dst))
        RunInside(oneRow, RecordRows::Packed(src), RecordRows::Packed(dst),
                  [=](SourcePixels from, TargetPixels to, SIZE size) {
                      primitive(from, to, size, static_cast<std::uint32_t>(value));
                  });
    return true;
}

// Null when memory is short.
std::unique_ptr<std::byte[]> Allocate(std::size_t bytes) {
    return std::unique_ptr<std::byte[]>(new (std::nothrow) std::byte[bytes]);
}

}  // namespace

bool CopyImage(const BITMAP& src, const BITMAP& dst, const RECT* area) {
    if (src.bmBitsPixel != 24 && src.bmBitsPixel != 32) return false;
    const RECT part = area ? *area : RECT{0, 0, src.bmWidth, src.bmHeight};
    if (src.bmWidth < part.right || src.bmHeight < part.bottom) return false;
    if (part.right <= part.left || part.bottom <= part.top || !src.bmBits || !dst.bmBits) return false;

    const auto offset = [&](const BITMAP& image) { return std::int64_t{image.bmBitsPixel} * part.left / 4; };
    const RecordRows from(src, MemoryOf(src), offset(src)), to = RecordRows::Target(dst, offset(dst));
    Job job{{part.top, part.bottom}, std::int64_t{part.right} - part.left, src.bmBitsPixel / 8};
    job.lastRowFirst = CopiesLastRowFirst(from.Row(part.top), to.Row(part.top), job.pixels * job.bytesPerPixel);
    RunInside(job, from, to,
              [&](SourcePixels s, TargetPixels d, SIZE size) { CopyPixels(s, d, size, job.bytesPerPixel); });
    return true;
}

bool MirrorImage(const BITMAP& image, int axis) { return MirrorImage(image, image, axis); }

bool MirrorImage(const BITMAP& src, const BITMAP& dst, int axis) {
    if (axis < 0 || axis > 2 || !SameSize(src, dst) || !HaveBits(SizeOf(src), src, dst)) return false;
    const bool mirrorsRows = axis != 1, mirrorsPixels = axis != 0;
    const int height = src.bmHeight;
    Job job = WholeOf(src);
    job.reversesRows = mirrorsPixels;
    if (src.bmBits != dst.bmBits || src.bmWidthBytes != dst.bmWidthBytes) {
        const RecordRows from(src, MemoryOf(src)), to(dst, MemoryOf(dst));
        RunInside(job, mirrorsRows ? from.Flipped(height) : from, to, [&](SourcePixels s, TargetPixels d, SIZE size) {
            mirrorsPixels ? ReversePixels(s, d, size) : CopyPixels(s, d, size, fourBytes);
        });
        return true;
    }
    // In place the upper rows change places with the lower ones. A row between them is reversed by itself.
    const RecordRows rows(dst, Common(MemoryOf(src), MemoryOf(dst)));
    if (mirrorsRows) {
        job.rows = {0, height / 2};
        RunInside(job, rows.Flipped(height), rows, mirrorsPixels ? ExchangeReversedPixels : ExchangePixels);
        job.rows = {height / 2, height - height / 2};
    }
    if (mirrorsPixels) RunInside(job, rows, rows, ReversePixels);
    return true;
}

bool BlendImage(const BITMAP& src, const BITMAP& dst) {
    if (!HaveBits(SizeOf(src), src, dst)) return false;
    RunInside(WholeOf(src), RecordRows(src, MemoryOf(src)), RecordRows::Target(dst), BlendPixels);
    return true;
}

bool SetImageColor(const BITMAP& image, DWORD color, bool keepsAlpha) {
    if (!HaveBits(SizeOf(image), image)) return false;
    const auto primitive = keepsAlpha ? SetPixelColors : SetPixels;
    const RecordRows rows(image, MemoryOf(image));
    RunInside(WholeOf(image), rows, rows, [=](SourcePixels, TargetPixels dst, SIZE size) {
        primitive(dst, size, static_cast<std::uint32_t>(color));
    });
    return true;
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

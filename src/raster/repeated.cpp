// Strips of copies, and the draws from them.
#include "raster/repeated.h"

#include <algorithm>
#include <new>

#include "raster/kernel_table.h"
#include "raster/request.h"
#include "raster/selectors.h"

namespace zorvic {

namespace {

constexpr std::int64_t smallWidth = 64;      // below, drawing copies one by one costs much more than their pixels
constexpr std::int64_t stripWidth = 1024;    // from here on, a call costs little beside its pixels
constexpr std::int64_t maxPixels = 1 << 26;  // a quarter of a gigabyte; beyond, copies are drawn one by one

struct Bytes {
    std::uintptr_t first, end;
};

Bytes BytesOf(const BitmapLockInfo& image) {
    const auto first = reinterpret_cast<std::uintptr_t>(image.bmBits);
    const auto last = static_cast<std::uintptr_t>(static_cast<std::ptrdiff_t>(image.bmHeight - 1) * image.bmWidthBytes);
    return {first, first + last + static_cast<std::uintptr_t>(image.bmWidth) * sizeof(std::uint32_t)};
}

// Then a copy may show what another one has drawn.
bool Overlap(const BitmapLockInfo& a, const BitmapLockInfo& b) {
    const Bytes one = BytesOf(a), other = BytesOf(b);
    return one.first < other.end && other.first < one.end;
}

bool IsSameImage(const BitmapLockInfo& a, const BitmapLockInfo& b) {
    return a.bmBits == b.bmBits && a.bmWidth == b.bmWidth && a.bmHeight == b.bmHeight;
}

}  // namespace

void Repeated::Draw(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src) {
    if (IsEmpty(dst) || IsEmpty(src)) return;
    const std::int64_t first = placement.left / placement.width;
    const std::int64_t copies = (placement.left + dst.bmWidth - 1) / placement.width - first + 1;
    const bool hasStrip = IsWorthAStrip(placement, copies, src) && FillStrip(placement, dst.bmHeight, copies, src);
    const std::int64_t step = hasStrip ? strip.bmWidth : placement.width;
    // Steps start with a copy; the first and the last one may be visible in part.
    for (std::int64_t start = first * placement.width - placement.left; start < dst.bmWidth; start += step) {
        const std::int64_t left = std::max<std::int64_t>(start, 0);
        const std::int64_t right = std::min<std::int64_t>(start + step, dst.bmWidth);
        const BitmapLockInfo part =
            PartOf(dst, static_cast<int>(left), 0, static_cast<int>(right - left), dst.bmHeight);
        const Placement inCopy{left - start, placement.top, placement.width, placement.height};
        if (!hasStrip) {
            DrawCopy(part, inCopy, src);
            continue;
        }
        const BitmapLockInfo samples = PartOf(strip, static_cast<int>(left - start),
                                              static_cast<int>(placement.top - copy.top), part.bmWidth, part.bmHeight);
        SelectSampledKernel(part, samples, placement, src, operationWord, filterMode, alpha);
    }
}

bool Repeated::IsWorthAStrip(const Placement& placement, std::int64_t copies, const BitmapLockInfo& src) const {
    const bool isReduction =
        FilterOf(filterMode) == Filter::area && (src.bmWidth > placement.width || src.bmHeight > placement.height);
    return (placement.width < smallWidth || isReduction) && (copies > 2 || isReduction) && !Overlap(all, src);
}

bool Repeated::FillStrip(const Placement& placement, int rows, std::int64_t copies, const BitmapLockInfo& src) {
    const bool isThere = pixels && IsSameImage(source, src) && copy.width == placement.width &&
                         copy.height == placement.height && copy.top <= placement.top &&
                         copy.top + strip.bmHeight >= placement.top + rows;
    if (isThere) return true;
    const std::int64_t width = placement.width * std::clamp<std::int64_t>(stripWidth / placement.width, 1, copies);
    if (width * rows > maxPixels) return false;
    const auto needed = static_cast<std::size_t>(width * rows);
    if (needed > room) {
        pixels.reset(new (std::nothrow) std::uint32_t[needed]);
        room = pixels ? needed : 0;
        if (!pixels) return false;
    }
    strip = {0, static_cast<LONG>(width), rows, static_cast<LONG>(width * 4), 1, 32, pixels.get(), 0, 0, nullptr};
    source = src;
    copy = {0, placement.top, placement.width, placement.height};
    const auto columns = [&](int from, int count) { return PartOf(strip, from, 0, count, rows); };
    int there = static_cast<int>(placement.width);
    SelectSamplingKernel(columns(0, there), copy, src, operationWord, filterMode, alpha);
    for (int added; there < strip.bmWidth; there += added) {
        added = std::min(there, static_cast<int>(strip.bmWidth) - there);
        KernelTable.At(slots::copySameSize, SourceDepth::argb32)(columns(there, added), columns(0, added));
    }
    return true;
}

void Repeated::DrawCopy(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src) const {
    if (dst.bmWidth == placement.width && dst.bmHeight == placement.height)
        SelectStretchKernel(dst, src, operationWord, filterMode, alpha);
    else
        SelectPlacedKernel(dst, placement, src, operationWord, filterMode, alpha);
}

}  // namespace zorvic

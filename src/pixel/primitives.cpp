// Checks of arguments, the choice of a form, and the rows of copies and mirrors.
#include "pixel/primitives.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>

#include "pixel/primitive_set.h"

namespace zorvic {

namespace {

constinit std::atomic<Level> levelInUse{Level::unresolved};

template <class Primitive, class... Args>
Status RunOnPair(Primitive PrimitiveSet::*primitive, SourcePixels src, TargetPixels dst, SIZE size, Args... args) {
    const Status status = CheckRegion(size, src.first, dst.first);
    if (status == Status::success) (Primitives().*primitive)(src, dst, size, args...);
    return status;
}

template <class Primitive>
Status RunWithColor(Primitive PrimitiveSet::*primitive, TargetPixels dst, SIZE size, std::uint32_t color) {
    const Status status = CheckRegion(size, dst.first);
    if (status == Status::success) (Primitives().*primitive)(dst, size, color);
    return status;
}

const std::byte* RowOf(SourcePixels pixels, int y) {
    return static_cast<const std::byte*>(pixels.first) + y * pixels.step;
}
std::byte* RowOf(TargetPixels pixels, int y) { return static_cast<std::byte*>(pixels.first) + y * pixels.step; }

// Calls exchange(row of a, row of b, pixels).
template <class Exchange>
Status ExchangeRows(Exchange PrimitiveSet::*exchange, TargetPixels a, TargetPixels b, SIZE size) {
    const Status status = CheckRegion(size, a.first, b.first);
    if (status != Status::success) return status;
    const auto run = Primitives().*exchange;
    for (int y = 0; y < size.cy; ++y) run(RowOf(a, y), RowOf(b, y), size.cx);
    return status;
}

}  // namespace

const PrimitiveSet& Primitives() {
    return AtCurrentLevel(genericPrimitives, sse2Primitives, avx2Primitives, avx512Primitives);
}

Level CurrentLevel() {
    Level level = levelInUse.load(std::memory_order_relaxed);
    if (level == Level::unresolved) level = LimitLevel(widestLevel);
    return level;
}

Level LimitLevel(Level widest) {
    static const Level best = BestLevel();  // asking takes microseconds on virtual machines
    const Level level = std::min(best, widest);
    levelInUse.store(level, std::memory_order_relaxed);
    return level;
}

Status InitPrimitives() {
    CurrentLevel();
    return Status::success;
}

bool CopiesLastRowFirst(SourcePixels src, TargetPixels dst, std::int64_t rowBytes) {
    const bool moves = src.step == dst.step && std::abs(std::int64_t{dst.step}) >= rowBytes;
    const bool ahead = reinterpret_cast<std::uintptr_t>(dst.first) > reinterpret_cast<std::uintptr_t>(src.first);
    return moves && ahead == (dst.step > 0);
}

Status CopyPixels(SourcePixels src, TargetPixels dst, SIZE size, int bytesPerPixel) {
    const Status status = CheckRegion(size, src.first, dst.first);
    if (status != Status::success) return status;
    const auto copy = Primitives().copy;
    const std::size_t rowBytes = static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(bytesPerPixel);
    const std::uint64_t allBytes = std::uint64_t{rowBytes} * static_cast<unsigned>(size.cy);
    const auto packed = static_cast<std::ptrdiff_t>(rowBytes);
    if (src.step == packed && dst.step == packed && allBytes <= PTRDIFF_MAX) {
        copy(src.first, dst.first, static_cast<std::size_t>(allBytes));
        return status;
    }
    const bool lastFirst = CopiesLastRowFirst(src, dst, packed);
    for (int i = 0; i < size.cy; ++i) {
        const int y = lastFirst ? size.cy - 1 - i : i;
        copy(RowOf(src, y), RowOf(dst, y), rowBytes);
    }
    return status;
}

Status SetPixels(TargetPixels dst, SIZE size, std::uint32_t color) {
    return RunWithColor(&PrimitiveSet::set, dst, size, color);
}

Status SetPixelColors(TargetPixels dst, SIZE size, std::uint32_t color) {
    return RunWithColor(&PrimitiveSet::setColors, dst, size, color);
}

Status BlendPixels(SourcePixels src, TargetPixels dst, SIZE size) {
    return RunOnPair(&PrimitiveSet::blend, src, dst, size);
}

Status ComposePixels(SourcePixels src, TargetPixels dst, SIZE size) {
    return RunOnPair(&PrimitiveSet::compose, src, dst, size);
}

Status ComposePixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint8_t opacity) {
    return RunOnPair(&PrimitiveSet::composeAlpha, src, dst, size, opacity);
}

Status ComposeColor(std::uint32_t color, TargetPixels dst, SIZE size) {
    return RunWithColor(&PrimitiveSet::composeColor, dst, size, color);
}

Status OrPixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value) {
    return RunOnPair(&PrimitiveSet::bitOr, src, dst, size, value);
}

Status AndPixels(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value) {
    return RunOnPair(&PrimitiveSet::bitAnd, src, dst, size, value);
}

Status TransposePixels(SourcePixels src, TargetPixels dst, SIZE size) {
    return RunOnPair(&PrimitiveSet::transpose, src, dst, size);
}

Status ReversePixels(SourcePixels src, TargetPixels dst, SIZE size) {
    const Status status = CheckRegion(size, src.first, dst.first);
    if (status != Status::success) return status;
    const PrimitiveSet& primitives = Primitives();
    const bool inPlace = src.first == dst.first && src.step == dst.step;
    const int half = size.cx / 2;
    for (int y = 0; y < size.cy; ++y) {
        std::byte* const row = RowOf(dst, y);
        if (inPlace) {
            primitives.exchangeReversed(row, row + std::ptrdiff_t{4} * (size.cx - half), half);
        } else {
            primitives.copyReversed(RowOf(src, y), row, size.cx);
        }
    }
    return status;
}

Status ExchangePixels(TargetPixels a, TargetPixels b, SIZE size) {
    return ExchangeRows(&PrimitiveSet::exchange, a, b, size);
}

Status ExchangeReversedPixels(TargetPixels a, TargetPixels b, SIZE size) {
    return ExchangeRows(&PrimitiveSet::exchangeReversed, a, b, size);
}

}  // namespace zorvic

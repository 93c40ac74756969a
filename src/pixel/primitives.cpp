// Checks of arguments, the choice of a form, and the rows of copies and mirrors.
#include "pixel/primitives.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>

#include "pixel/primitive_set.h"

namespace zorvic {

namespace {

constinit std::atomic<Level> levelInUse{Level::unresolved};

template <class... Pointer>
Status CheckRegion(SIZE size, Pointer... pointers) {
    if ((!pointers || ...)) return Status::nullPointer;
    return size.cx < 1 || size.cy < 1 ? Status::badSize : Status::success;
}

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

void MirrorInPlace(TargetPixels image, SIZE size, bool mirrorsRows, bool mirrorsPixels) {
    const PrimitiveSet& primitives = Primitives();
    const auto reverse = [&](int y) {
        const int half = size.cx / 2;
        std::byte* const row = RowOf(image, y);
        primitives.exchangeReversed(row, row + std::ptrdiff_t{4} * (size.cx - half), half);
    };
    if (!mirrorsRows) {
        for (int y = 0; y < size.cy; ++y) reverse(y);
        return;
    }
    const auto exchange = mirrorsPixels ? primitives.exchangeReversed : primitives.exchange;
    for (int y = 0; y < size.cy / 2; ++y) exchange(RowOf(image, y), RowOf(image, size.cy - 1 - y), size.cx);
    if (mirrorsPixels && size.cy % 2 != 0) reverse(size.cy / 2);
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
    // Rows that would be overwritten before their turn go first.
    const bool moves = src.step == dst.step && static_cast<std::size_t>(std::abs(dst.step)) >= rowBytes;
    const bool ahead = reinterpret_cast<std::uintptr_t>(dst.first) > reinterpret_cast<std::uintptr_t>(src.first);
    const bool lastFirst = moves && ahead == (dst.step > 0);
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

Status MirrorPixels(SourcePixels src, TargetPixels dst, SIZE size, int axis) {
    Status status = CheckRegion(size, src.first, dst.first);
    if (status == Status::success && (axis < 0 || axis > 2)) status = Status::badAxis;
    if (status != Status::success) return status;

    const bool mirrorsRows = axis != 1, mirrorsPixels = axis != 0;
    if (src.first == dst.first && src.step == dst.step) {
        MirrorInPlace(dst, size, mirrorsRows, mirrorsPixels);
        return status;
    }
    const PrimitiveSet& primitives = Primitives();
    for (int y = 0; y < size.cy; ++y) {
        const std::byte* const from = RowOf(src, y);
        std::byte* const to = RowOf(dst, mirrorsRows ? size.cy - 1 - y : y);
        if (mirrorsPixels) {
            primitives.copyReversed(from, to, size.cx);
        } else {
            primitives.copy(from, to, static_cast<std::size_t>(size.cx) * 4);
        }
    }
    return status;
}

}  // namespace zorvic

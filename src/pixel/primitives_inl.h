// Every primitive once, for any form. Only the files that instantiate a form include this; see pixel/forms/form.h.
#pragma once

#include "pixel/box_rows.h"
#include "pixel/forms/baseline.h"
#include "pixel/ops/compose.h"
#include "pixel/primitive_set.h"
#include "pixel/spans_inl.h"

namespace zorvic {
namespace {

struct KeepAlpha {
    template <Form V>
    V operator()(V dst, V src) const {
        return WithAlphaOf(src, dst);
    }
};

struct RoundedOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return AddSaturated(src, ScaleRounded(dst, AlphaWeight(InvertBytes(src))));
    }
};

struct OrValue {
    std::uint32_t value;
    template <Form V>
    V operator()(V, V src) const {
        return src | V::Broadcast(value);
    }
};

struct AndValue {
    std::uint32_t value;
    template <Form V>
    V operator()(V, V src) const {
        return src & V::Broadcast(value);
    }
};

// Pixels may start at any byte.
inline std::uint32_t* Words(void* row) { return static_cast<std::uint32_t*>(row); }
inline const std::uint32_t* Words(const void* row) { return static_cast<const std::uint32_t*>(row); }

// Packed rows are one long row.
inline bool IsPacked(std::ptrdiff_t step, SIZE size) { return step == 4 * static_cast<std::int64_t>(size.cx); }
inline SIZE AsOneRow(SIZE size) {
    const std::int64_t pixels = static_cast<std::int64_t>(size.cx) * size.cy;
    return pixels > INT32_MAX ? size : SIZE{static_cast<LONG>(pixels), 1};
}

template <Form V, class Op>
void RunOnImage(SourcePixels src, TargetPixels dst, SIZE size, const Op& op) {
    [[maybe_unused]] const typename V::Guard guard;
    if (IsPacked(src.step, size) && IsPacked(dst.step, size)) size = AsOneRow(size);
    const auto* from = static_cast<const std::byte*>(src.first);
    auto* to = static_cast<std::byte*>(dst.first);
    for (int y = 0; y < size.cy; ++y, from += src.step, to += dst.step) {
        // Vectors must not read pixels that an earlier one of the span writes.
        const auto ahead = reinterpret_cast<std::uintptr_t>(to) - reinterpret_cast<std::uintptr_t>(from);
        if (ahead - 1 < std::uintptr_t{4} * static_cast<std::uintptr_t>(size.cx) - 1) {
            ApplySpan<Baseline>(op, Words(to), Words(from), size.cx);
        } else {
            ApplySpan<V>(op, Words(to), Words(from), size.cx);
        }
    }
}

template <Form V, class Op>
void RunOnImage(SolidColor color, TargetPixels dst, SIZE size, const Op& op) {
    [[maybe_unused]] const typename V::Guard guard;
    if (IsPacked(dst.step, size)) size = AsOneRow(size);
    auto* to = static_cast<std::byte*>(dst.first);
    for (int y = 0; y < size.cy; ++y, to += dst.step) ApplySpan<V>(op, Words(to), color, size.cx);
}

template <Form V>
void CopyBytes(const std::byte* src, std::byte* dst, std::size_t bytes) {
    // Vectors go forward.
    const auto ahead = reinterpret_cast<std::uintptr_t>(dst) - reinterpret_cast<std::uintptr_t>(src);
    if (ahead < bytes) {
        std::memmove(dst, src, bytes);
        return;
    }
    [[maybe_unused]] const typename V::Guard guard;
    const std::size_t words = bytes / 4;
    ApplySpan<V>(Copy{}, Words(dst), Words(src), static_cast<int>(words));
    for (std::size_t i = 4 * words; i < bytes; ++i) dst[i] = src[i];
}

// Tiles as wide as a cache line of the source, and not so high that the target's rows push each other out of the cache.
// The last four columns, and the last rows, may overlap those before them.
template <Form V>
void Transpose(SourcePixels src, TargetPixels dst, SIZE size) {
    [[maybe_unused]] const typename V::Guard guard;
    constexpr int tileWidth = 16, tileHeight = 32;
    const auto* const from = static_cast<const std::byte*>(src.first);
    auto* const to = static_cast<std::byte*>(dst.first);
    if (size.cx < 4 || size.cy < V::lanes) {
        for (std::ptrdiff_t y = 0; y < size.cy; ++y)
            for (std::ptrdiff_t x = 0; x < size.cx; ++x)
                Baseline::Load(Words(from + y * src.step) + x).Store(Words(to + x * dst.step) + y);
        return;
    }
    const auto moveColumns = [&](std::ptrdiff_t x, std::ptrdiff_t y) {
        V columns[4];
        V::LoadColumns(from + y * src.step + 4 * x, src.step, columns);
        for (int i = 0; i < 4; ++i) columns[i].Store(Words(to + (x + i) * dst.step) + y);
    };
    const int lastX = size.cx - 4, lastY = size.cy - V::lanes;
    for (int top = 0; top < size.cy; top += tileHeight)
        for (int left = 0; left < size.cx; left += tileWidth)
            for (int y = top; y < size.cy && y < top + tileHeight; y += V::lanes)
                for (int x = left; x < size.cx && x < left + tileWidth; x += 4)
                    moveColumns(x < lastX ? x : lastX, y < lastY ? y : lastY);
}

// What remains behind the last whole vector is mirrored by the same function in vectors of one pixel.
template <Form V>
void CopyReversed(const std::uint32_t* src, std::uint32_t* dst, int n) {
    for (; n >= V::lanes; n -= V::lanes, src += V::lanes) Reversed(V::Load(src)).Store(dst + n - V::lanes);
    if constexpr (V::lanes > 1) CopyReversed<Baseline>(src, dst, n);
}

template <Form V>
void Exchange(std::uint32_t* a, std::uint32_t* b, int n) {
    for (; n >= V::lanes; n -= V::lanes, a += V::lanes, b += V::lanes) {
        const V ofA = V::Load(a), ofB = V::Load(b);
        ofB.Store(a);
        ofA.Store(b);
    }
    if constexpr (V::lanes > 1) Exchange<Baseline>(a, b, n);
}

template <Form V>
void ExchangeReversed(std::uint32_t* a, std::uint32_t* b, int n) {
    for (; n >= V::lanes; n -= V::lanes, a += V::lanes) {
        std::uint32_t* const mirrored = b + n - V::lanes;
        const V ofA = V::Load(a), ofB = V::Load(mirrored);
        Reversed(ofB).Store(a);
        Reversed(ofA).Store(mirrored);
    }
    if constexpr (V::lanes > 1) ExchangeReversed<Baseline>(a, b, n);
}

template <Form V>
consteval PrimitiveSet MakePrimitives() {
    return {
        .set = [](TargetPixels dst, SIZE size,
                  std::uint32_t color) { RunOnImage<V>(SolidColor{color}, dst, size, Copy{}); },
        .setColors = [](TargetPixels dst, SIZE size,
                        std::uint32_t color) { RunOnImage<V>(SolidColor{color}, dst, size, KeepAlpha{}); },
        .blend = [](SourcePixels src, TargetPixels dst, SIZE size) { RunOnImage<V>(src, dst, size, RoundedOver{}); },
        .compose = [](SourcePixels src, TargetPixels dst, SIZE size) { RunOnImage<V>(src, dst, size, SourceOver{}); },
        .composeAlpha = [](SourcePixels src, TargetPixels dst, SIZE size,
                           std::uint8_t opacity) { RunOnImage<V>(src, dst, size, ConstantAlpha(opacity)); },
        .composeColor = [](TargetPixels dst, SIZE size,
                           std::uint32_t color) { RunOnImage<V>(SolidColor{color}, dst, size, SourceOver{}); },
        .bitOr = [](SourcePixels src, TargetPixels dst, SIZE size,
                    std::uint32_t value) { RunOnImage<V>(src, dst, size, OrValue{value}); },
        .bitAnd = [](SourcePixels src, TargetPixels dst, SIZE size,
                     std::uint32_t value) { RunOnImage<V>(src, dst, size, AndValue{value}); },
        .copy =
            [](const void* src, void* dst, std::size_t bytes) {
                CopyBytes<V>(static_cast<const std::byte*>(src), static_cast<std::byte*>(dst), bytes);
            },
        .transpose = Transpose<typename V::ColumnForm>,
        .slideColumns =
            [](std::uint32_t* columns, const std::uint32_t* entering, const std::uint32_t* leaving, int n) {
                [[maybe_unused]] const typename V::Guard guard;
                SlideColumns<typename V::Sums>(columns, entering, leaving, n);
            },
        .boxMeans =
            [](const std::uint32_t* columns, int box, const std::uint32_t* start, SumDivider divider,
               std::uint32_t* out, int n) {
                [[maybe_unused]] const typename V::Guard guard;
                BoxMeans<typename V::Sums>(columns, box, start, divider, out, n);
            },
        .copyReversed = [](const void* src, void* dst, int n) { CopyReversed<V>(Words(src), Words(dst), n); },
        .exchange = [](void* a, void* b, int n) { Exchange<V>(Words(a), Words(b), n); },
        .exchangeReversed = [](void* a, void* b, int n) { ExchangeReversed<V>(Words(a), Words(b), n); },
    };
}

}  // namespace
}  // namespace zorvic

// The loop that joins row source, operation and form, and the table of all kernels of one form.
//
// Only files that instantiate kernels include this. Everything it compiles stands in unnamed namespaces, because the
// linker keeps one copy of a shared inline function, of std:: ones too, and might keep the one with wider
// instructions.
#pragma once

#include <concepts>
#include <type_traits>

#include "pixel/spans_inl.h"
#include "raster/kernel_set.h"
#include "raster/ops/channels.h"
#include "raster/ops/compose.h"
#include "raster/ops/mix.h"
#include "raster/rows/area.h"
#include "raster/rows/area_long.h"
#include "raster/rows/bicubic.h"
#include "raster/rows/bicubic_plain.h"
#include "raster/rows/bilinear.h"
#include "raster/rows/nearest.h"
#include "raster/rows/solid.h"
#include "raster/rows/unscaled.h"

namespace zorvic {
namespace {

inline std::uint32_t* RowOf(const BitmapLockInfo& dst, int y) {
    return reinterpret_cast<std::uint32_t*>(static_cast<std::byte*>(dst.bmBits) +
                                            static_cast<std::ptrdiff_t>(y) * dst.bmWidthBytes);
}

// The loop for samples that are there already: one run of pixels where rows follow one another without a gap.
template <Form V, class Source, class Operation>
[[gnu::flatten]] void RunRowByRow(const BitmapLockInfo& dst, const Source& rows, const Operation& op) {
    const std::int64_t pixels = static_cast<std::int64_t>(dst.bmWidth) * dst.bmHeight;
    if (dst.bmHeight > 0 && dst.bmWidthBytes == std::int64_t{4} * dst.bmWidth && rows.IsOneRun(dst.bmWidth) &&
        pixels <= INT32_MAX)
        return ApplySpan<V>(op, RowOf(dst, 0), rows.Fetch(0, 0, 0, nullptr), static_cast<int>(pixels));
    for (int y = 0; y < dst.bmHeight; ++y) ApplySpan<V>(op, RowOf(dst, y), rows.Fetch(y, 0, 0, nullptr), dst.bmWidth);
}

// The loop for samples that have to be made, block by block of a few columns: what a source prepares for a block serves
// all of its rows. A copy has its samples made in place.
template <Form V, class Source, class Operation>
void RunInBlocks(const BitmapLockInfo& dst, Source& rows, const Operation& op) {
    alignas(64) std::uint32_t scratch[Source::blockWidth];
    for (int x = 0; x < dst.bmWidth; x += Source::blockWidth) {
        const int n = dst.bmWidth - x < Source::blockWidth ? dst.bmWidth - x : Source::blockWidth;
        if constexpr (Source::preparesColumns) rows.PrepareColumns(x, n);
        for (int y = 0; y < dst.bmHeight; ++y) {
            std::uint32_t* const out = RowOf(dst, y) + x;
            if constexpr (std::same_as<Operation, Copy>) {
                const std::uint32_t* const samples = rows.Fetch(y, x, n, out);
                if (samples != out) ApplySpan<V>(op, out, samples, n);
            } else {
                ApplySpan<V>(op, out, rows.Fetch(y, x, n, scratch), n);
            }
        }
    }
}

template <Form V, class Source, class Operation>
int RunKernel(const BitmapLockInfo& dst, Source rows, const Operation& op) {
    [[maybe_unused]] const typename V::Guard guard;
    if constexpr (Source::needsScratch) {
        RunInBlocks<V>(dst, rows, op);
    } else {
        RunRowByRow<V>(dst, rows, op);
    }
    return 1;
}

// Runs an operation on the row source of that name.
template <Form V, WeightEncoding weights, Rows rows, SourceDepth depth, class Operation>
int RunRows(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src, const Operation& op) {
    if constexpr (rows == Rows::unscaled) {
        return RunKernel<V>(dst, UnscaledRows<depth>(src, placement), op);
    } else if constexpr (rows == Rows::nearest) {
        return RunKernel<V>(dst, NearestRows<V, depth>(src, placement), op);
    } else if constexpr (rows == Rows::bilinear) {
        // The steps drift by a unit per pixel; at the source's own size that must not show.
        if (src.bmWidth == placement.width && src.bmHeight == placement.height)
            return RunRows<V, weights, Rows::unscaled, depth>(dst, placement, src, op);
        return RunKernel<V>(dst, BilinearRows<V, depth>(src, placement), op);
    } else if constexpr (rows == Rows::bicubic) {
        if constexpr (weights == WeightEncoding::plain256) {
            return RunKernel<V>(dst, PlainBicubicRows<depth>(src, placement), op);
        } else {
            return RunKernel<V>(dst, BicubicRows<V, depth>(src, placement), op);
        }
    } else {
        if (src.bmWidth < placement.width || src.bmHeight < placement.height)
            return RunRows<V, weights, Rows::bicubic, depth>(dst, placement, src, op);
        if (src.bmWidth <= 16 * placement.width && src.bmHeight <= 16 * placement.height)
            return RunKernel<V>(dst, AreaRows<typename V::Boxes, depth>(src, placement), op);
        return RunKernel<V>(dst, LongAreaRows<depth>(src, placement), op);
    }
}

// A kernel's entry point: turns the argument list into a row source and an operation.
template <Form V, WeightEncoding weights, Rows rows, Op op, SourceDepth depth, class Kernel>
struct Entry;

template <Form V, WeightEncoding weights, Rows rows, Op op, SourceDepth depth, class... Args>
struct Entry<V, weights, rows, op, depth, int (*)(const BitmapLockInfo&, const BitmapLockInfo&, Args...)> {
    static int Run(const BitmapLockInfo& dst, const BitmapLockInfo& src, Args... args) {
        const typename OperatorOn<op, rows>::Type operation(args...);
        return RunRows<V, weights, rows, depth>(dst, WholeOf(dst), src, operation);
    }
};

template <Form V, WeightEncoding weights, Rows rows, Op op, SourceDepth depth, class... Args>
struct Entry<V, weights, rows, op, depth,
             int (*)(const BitmapLockInfo&, const Placement&, const BitmapLockInfo&, Args...)> {
    static int Run(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src, Args... args) {
        const typename OperatorOn<op, rows>::Type operation(args...);
        return RunRows<V, weights, rows, depth>(dst, placement, src, operation);
    }
};

template <Form V, WeightEncoding weights, Op op, SourceDepth depth, std::same_as<std::uint32_t>... Args>
struct Entry<V, weights, Rows::solid, op, depth, int (*)(const BitmapLockInfo&, std::uint32_t, Args...)> {
    static int Run(const BitmapLockInfo& dst, std::uint32_t color, Args... args) {
        return RunKernel<V>(dst, SolidRows(color), typename Operator<op>::Type(args...));
    }
};

template <Form V, WeightEncoding weights, Op op, SourceDepth depth>
struct Entry<V, weights, Rows::solid, op, depth, InPlace> {
    static int Run(const BitmapLockInfo& dst) { return RunKernel<V>(dst, SolidRows(0), typename Operator<op>::Type()); }
};

template <Form V, WeightEncoding weights, auto slot, SourceDepth depth, class Kernel>
constexpr void AddKernel(KernelSet& set, Slot<Kernel> target) {
    set.Put(target, Entry<V, weights, slot.rows, slot.op, depth, Kernel>::Run);
}

template <Form V, WeightEncoding weights, auto slot, class Kernel>
constexpr void AddKernels(KernelSet& set, Slot<Kernel> single) {
    AddKernel<V, weights, slot, SourceDepth::argb32>(set, single);
}

template <Form V, WeightEncoding weights, auto slot, class Kernel>
constexpr void AddKernels(KernelSet& set, Group<Kernel> group) {
    AddKernel<V, weights, slot, SourceDepth::palette8>(set, group[SourceDepth::palette8]);
    AddKernel<V, weights, slot, SourceDepth::rgb24>(set, group[SourceDepth::rgb24]);
    AddKernel<V, weights, slot, SourceDepth::argb32>(set, group[SourceDepth::argb32]);
}

// Every slot's kernel in one form, its bicubic ones for one encoding of the filter weights.
template <Form V, WeightEncoding weights>
consteval KernelSet MakeKernels() {
    KernelSet set;
    [&]<std::size_t... i>(std::index_sequence<i...>) {
        (AddKernels<V, weights, std::get<i>(slots::all)>(set, std::get<i>(slots::all)), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<decltype(slots::all)>>());
    return set;
}

}  // namespace
}  // namespace zorvic

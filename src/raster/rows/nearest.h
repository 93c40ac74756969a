// Nearest sample in 16.16 fixed point, anchored at the top left: column i shows source column i x step >> 16, the step
// being the truncated quotient of the extents. No half-pixel offset; the truncation drifts toward the left and top.
#pragma once

#include "raster/rows/columns.h"

namespace zorvic {
namespace {

template <Form V, SourceDepth depth>
class NearestRows {
public:
    static constexpr int blockWidth = 1024;
    static constexpr bool preparesColumns = true, needsScratch = true;

    NearestRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepX((static_cast<std::int64_t>(source.bmWidth) << 16) / placement.width),
          stepY((static_cast<std::int64_t>(source.bmHeight) << 16) / placement.height),
          left(placement.left),
          top(placement.top) {}

    void PrepareColumns(int x, int n) {
        // A device context's pixels may be more than 32 bits can count in 16.16.
        std::int64_t position = (left + x) * stepX;
        for (int i = 0; i < n; ++i, position += stepX) columns.Set(i, static_cast<int>(position >> 16));
        columns.Prepare(n, src.bmWidth, 0, stepX);
        fetchedRow = -1;
    }

    // A row that shows the same source row as the last one is that one.
    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const std::int64_t sourceRow = (top + y) * stepY >> 16;
        if (sourceRow == fetchedRow) return fetched;
        fetchedRow = sourceRow;
        fetched = out;
        const std::byte* const row = SourceRow(src, static_cast<std::ptrdiff_t>(sourceRow));
        if constexpr (depth == SourceDepth::argb32) {
            typename Columns<V, blockWidth>::RowCopy copy;
            const auto* const pixels = columns.Readable(reinterpret_cast<const std::uint32_t*>(row), copy);
            WithReach<V>(columns.ReachOfAll(), [&]<Reach reach>() {
                StoreVectors<V>(out, n, [&](int k) { return columns.template Pick<reach>(pixels, k); });
            });
        } else {
            for (int i = 0; i < n; ++i) StorePixel(out + i, ReadPixel<depth>(src, row, columns[i]));
        }
        return out;
    }

private:
    const BitmapLockInfo& src;
    std::int64_t stepX, stepY;
    std::int64_t left, top;
    Columns<V, blockWidth> columns;
    std::int64_t fetchedRow = -1;
    const std::uint32_t* fetched = nullptr;
};

}  // namespace
}  // namespace zorvic

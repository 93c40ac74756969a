// Two taps each way, weighted by the position's 8-bit fractions; edge pixels repeat outward. The four weights sum to
// 256 and the sum of the products is truncated.
//
// With c = tx x ty >> 8 the weights are 256 - tx - ty + c, tx - c, ty - c and c. Sorted by source row, with d the
// difference right - left of a row's taps, the sum is
//     (256 x left0 + tx x d0) + ty x (left1 - left0) + c x (d1 - d0),
// and what concerns one row is made once for all destination rows between it and its neighbours.
#pragma once

#include "raster/rows/columns.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

template <Form V, SourceDepth depth>
class BilinearRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = true, needsScratch = true;

    BilinearRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top) {}

    void PrepareColumns(int x, int n) {
        columnCount = n;
        taps.Clear();
        const auto column = [&](int i) { return stepsX.At(x + i).pixel; };
        left.Prepare(n, src.bmWidth, [&](int i) { return ClampIndex(column(i), src.bmWidth); });
        right.Prepare(n, src.bmWidth, [&](int i) { return ClampIndex(column(i) + 1, src.bmWidth); });
        for (int i = 0; i < n; ++i) fraction[i] = static_cast<std::uint32_t>(stepsX.At(x + i).fraction);
        for (int i = n; i % V::lanes != 0; ++i) fraction[i] = 0;
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Position at = stepsY.At(y);
        const Taps& upper = TapsOfRow(ClampIndex(at.pixel, src.bmHeight));
        const Taps& lower = TapsOfRow(ClampIndex(at.pixel + 1, src.bmHeight));
        const typename V::Weight ty = V::Uniform(at.fraction);
        StoreVectors<V>(out, n, [&](int i) {
            const int k = i / V::lanes;
            const typename V::Weight both = V::ScaleWeight(V::LoadWeights(fraction + i), ty);
            return HighBytes(upper.mixed[k] + (lower.left[k] - upper.left[k]) * ty +
                             (lower.difference[k] - upper.difference[k]) * both);
        });
        return out;
    }

private:
    struct Taps {
        typename V::Wide mixed[chunk / V::lanes];
        typename V::Wide left[chunk / V::lanes];
        typename V::Wide difference[chunk / V::lanes];
    };

    const Taps& TapsOfRow(int sourceRow) {
        return taps.Get(sourceRow, [&](Taps& row) {
            const std::byte* const bytes = SourceRow(src, sourceRow);
            if constexpr (depth == SourceDepth::argb32) {
                const auto* const pixels = reinterpret_cast<const std::uint32_t*>(bytes);
                WithReach<V>(Wider(left.ReachOfAll(), right.ReachOfAll()), [&]<Reach reach>() {
                    for (int i = 0; i < columnCount; i += V::lanes)
                        Mix(row, i, left.template Pick<reach>(pixels, i), right.template Pick<reach>(pixels, i));
                });
            } else {
                for (int i = 0; i < columnCount; i += V::lanes) {
                    std::uint32_t leftPixels[V::lanes], rightPixels[V::lanes];
                    for (int lane = 0; lane < V::lanes; ++lane) {
                        leftPixels[lane] = ReadPixel<depth>(src, bytes, left[i + lane]);
                        rightPixels[lane] = ReadPixel<depth>(src, bytes, right[i + lane]);
                    }
                    Mix(row, i, V::Load(leftPixels), V::Load(rightPixels));
                }
            }
        });
    }

    void Mix(Taps& row, int i, V leftTaps, V rightTaps) const {
        const int k = i / V::lanes;
        const typename V::Wide wide = Widened(leftTaps), difference = Widened(rightTaps) - wide;
        row.left[k] = wide;
        row.difference[k] = difference;
        row.mixed[k] = Times256(wide) + difference * V::LoadWeights(fraction + i);
    }

    const BitmapLockInfo& src;
    CenteredSteps stepsX, stepsY;
    int columnCount = 0;
    Columns<V, blockWidth> left, right;
    alignas(64) std::uint32_t fraction[chunk];
    RowRing<Taps, 2> taps;
};

}  // namespace
}  // namespace zorvic

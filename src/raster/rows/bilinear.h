// Two taps each way, weighted by the position's 8-bit fractions; edge pixels repeat outward. The four weights sum to
// 256 and the sum of the products is truncated.
//
// With c = tx x ty >> 8 the weights are 256 - tx - ty + c, tx - c, ty - c and c. Enlargements sort the sum by source row:
// with d the difference right - left of a row's taps it is
//     (256 x left0 + tx x d0) + ty x (left1 - left0) + c x (d1 - d0),
// and what concerns one row is made once for all destination rows between it and its neighbours.
#pragma once

#include "raster/rows/columns.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

// The halves of a block's vectors, for forms that mix them.
template <class V>
struct BlockHalves {};
template <MixesHalves V>
struct BlockHalves<V> {
    typename V::PairHalf of[chunk / V::lanes][2];
};

template <Form V, SourceDepth depth>
class BilinearRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = true, needsScratch = true;

    BilinearRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          readsPairs(depth == SourceDepth::argb32 && source.bmWidth > 1),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top),
          keepsRows(stepsY.Step() < rowsPayBelow) {}

    void PrepareColumns(int x, int n) {
        vectorCount = (n + V::lanes - 1) / V::lanes;
        rows.Clear();
        // A pair beyond an edge is the one at the edge, of which it shows one pixel.
        const int lastPair = src.bmWidth > 1 ? src.bmWidth - 2 : 0;
        alignas(64) std::uint32_t fractions[chunk];
        int i = 0;
        stepsX.ForEach(x, n, [&](Position at) {
            columns.Set(i, ClampIndex(at.pixel, lastPair + 1));
            fractions[i++] = static_cast<std::uint32_t>(at.pixel < 0 ? 0 : at.pixel > lastPair ? 256 : at.fraction);
        });
        for (; i % V::lanes != 0; ++i) fractions[i] = 0;
        columns.Prepare(n, src.bmWidth, 1, stepsX.Step());
        for (int k = 0; k < vectorCount; ++k) tx[k] = V::LoadWeights(fractions + k * V::lanes);
        if constexpr (MixesHalves<V>) PrepareHalves(fractions);
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Position at = stepsY.At(y);
        const int upper = ClampIndex(at.pixel, src.bmHeight), lower = ClampIndex(at.pixel + 1, src.bmHeight);
        const typename V::Weight ty = V::Uniform(at.fraction);
        if (depth != SourceDepth::argb32 || keepsRows || !readsPairs) {
            const Row &u = TapsOfRow(upper), &l = TapsOfRow(lower);
            StoreVectors<V>(out, n, [&](int k) { return Mix(u.taps[k], l.taps[k], tx[k], ty); });
        } else {
            RowCopy upperCopy, lowerCopy;
            const std::uint32_t* const u = columns.Readable(Pixels(upper), upperCopy);
            const std::uint32_t* const l = columns.Readable(Pixels(lower), lowerCopy);
            if constexpr (MixesHalves<V>)
                if (mixesHalves) {
                    const auto* const pairs = halves.of;
                    StoreVectors<V>(out, n, [=](int k) { return MixHalves(pairs[k], u, l, ty); });
                    return out;
                }
            WithReach<V>(columns.ReachOfAll(), [&]<Reach reach>() {
                StoreVectors<V>(out, n,
                                [&](int k) { return Mix(PairsAt<reach>(u, k), PairsAt<reach>(l, k), tx[k], ty); });
            });
        }
        return out;
    }

private:
    // Below this step rows are used often enough to be kept.
    static constexpr std::int64_t rowsPayBelow = 0x10000;

    using RowCopy = typename Columns<V, blockWidth>::RowCopy;

    struct Pairs {
        V left, right;
    };

    // What one vector of columns takes from one source row.
    struct Taps {
        typename V::Wide mixed, left, difference;
    };

    struct Row {
        Taps taps[chunk / V::lanes];
    };

    // Windows of half a vector hold its pairs up to a step of two pixels.
    void PrepareHalves(const std::uint32_t* fractions) {
        constexpr int half = V::lanes / 2;
        mixesHalves = readsPairs && !keepsRows && stepsX.Step() < 2 << 16;
        if (!mixesHalves) return;
        const int lastStart = src.bmWidth > V::lanes ? src.bmWidth - V::lanes : 0;
        for (int i = 0; i < vectorCount * V::lanes; i += half) {
            int places[std::size_t{half}];
            for (int k = 0; k < half; ++k) places[k] = columns[i + k];
            halves.of[i / V::lanes][i / half % 2] = V::MakeHalf(places, fractions + i, lastStart);
        }
    }

    const std::uint32_t* Pixels(int sourceRow) const {
        return reinterpret_cast<const std::uint32_t*>(SourceRow(src, sourceRow));
    }

    template <Reach reach>
    Pairs PairsAt(const std::uint32_t* row, int k) const {
        Pairs pairs;
        columns.template PickPairs<reach>(row, k, pairs.left, pairs.right);
        return pairs;
    }

    Pairs ReadPairs(const std::byte* row, int k) const {
        std::uint32_t left[V::lanes], right[V::lanes];
        for (int i = 0; i < V::lanes; ++i) {
            const int column = columns[k * V::lanes + i];
            left[i] = ReadPixel<depth>(src, row, column);
            right[i] = ReadPixel<depth>(src, row, ClampIndex(column + 1, src.bmWidth));
        }
        return {V::Load(left), V::Load(right)};
    }

    static Taps TapsOf(const Pairs& pairs, typename V::Weight t) {
        const typename V::Wide left = Widened(pairs.left), difference = Widened(pairs.right) - left;
        return {Times256(left) + difference * t, left, difference};
    }

    static V Mix(const Pairs& upper, const Pairs& lower, typename V::Weight t, typename V::Weight ty) {
        const typename V::Weight c = V::ScaleWeight(t, ty), below = ty - c;
        return HighBytes(Widened(upper.left) * (V::Uniform(256) - t - below) + Widened(upper.right) * (t - c) +
                         Widened(lower.left) * below + Widened(lower.right) * c);
    }

    static V Mix(const Taps& upper, const Taps& lower, typename V::Weight t, typename V::Weight ty) {
        return HighBytes(upper.mixed + (lower.left - upper.left) * ty +
                         (lower.difference - upper.difference) * V::ScaleWeight(t, ty));
    }

    const Row& TapsOfRow(int sourceRow) {
        return rows.Get(sourceRow, [&](Row& row) {
            if (depth == SourceDepth::argb32 && readsPairs) {
                RowCopy copy;
                const std::uint32_t* const pixels = columns.Readable(Pixels(sourceRow), copy);
                WithReach<V>(columns.ReachOfAll(), [&]<Reach reach>() {
                    for (int k = 0; k < vectorCount; ++k) row.taps[k] = TapsOf(PairsAt<reach>(pixels, k), tx[k]);
                });
            } else {
                for (int k = 0; k < vectorCount; ++k)
                    row.taps[k] = TapsOf(ReadPairs(SourceRow(src, sourceRow), k), tx[k]);
            }
        });
    }

    const BitmapLockInfo& src;
    bool readsPairs;  // else each tap is read by itself
    CenteredSteps stepsX, stepsY;
    bool keepsRows;
    int vectorCount = 0;
    Columns<V, blockWidth> columns;
    typename V::Weight tx[chunk / V::lanes];
    RowRing<Row, 2> rows;
    bool mixesHalves = false;
    BlockHalves<V> halves;
};

}  // namespace
}  // namespace zorvic

// Four taps each way, weighted by the current filter kernel at the position's 8-bit fraction; edge pixels repeat
// outward. The horizontal sums of a source row are made once and serve every destination row that needs them; see
// pixel/forms/taps.h for their arithmetic.
#pragma once

#include "raster/lookup_tables.h"
#include "raster/rows/columns.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

template <Form V, SourceDepth depth>
class BicubicRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = true, needsScratch = true;

    BicubicRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          readsRows(depth == SourceDepth::argb32 && source.bmWidth >= 4),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top) {}

    void PrepareColumns(int x, int n) {
        groupCount = (n + 3) / 4;
        sums.Clear();
        int i = 0;
        stepsX.ForEach(x, 4 * groupCount, [&](Position at) { PrepareColumn(i++, at); });
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Position at = stepsY.At(y);
        const RowWeights ofTap = WeightsAt(at.fraction);
        // By places in the ring: a row that repeats at an edge has the weights of all its taps.
        RowWeights weights{};
        for (int k = 0; k < 4; ++k) {
            std::int16_t& weight = weights.weight[PlaceOfSums(ClampIndex(at.pixel - 1 + k, src.bmHeight))];
            weight = static_cast<std::int16_t>(weight + ofTap.weight[k]);
        }
        const std::int16_t* const first = sums.Rows()->numbers;
        StoreVectors<V>(out, n, [=](int k) { return V::template MixSums<4 * chunk>(first, k * V::lanes, weights); });
        return out;
    }

private:
    struct RowSums {
        alignas(64) std::int16_t numbers[4 * chunk];
    };

    static RowWeights WeightsAt(int t) {
        const int distance[4] = {256 + t, t, 256 - t, 512 - t};
        RowWeights weights;
        for (int k = 0; k < 4; ++k)
            weights.weight[k] = static_cast<std::int16_t>(StretchFilterWeights[static_cast<std::size_t>(distance[k])]);
        return weights;
    }

    void PrepareColumn(int i, Position at) {
        const RowWeights weights = WeightsAt(at.fraction);
        std::int16_t ofPixel[4] = {};
        int first = 4 * i;
        if (depth == SourceDepth::argb32 && readsRows) {
            // Taps outside the row give their weights to the edge pixel.
            first = ClampIndex(at.pixel - 1, src.bmWidth - 3);
            for (int k = 0; k < 4; ++k) {
                std::int16_t& weight = ofPixel[ClampIndex(at.pixel - 1 + k, src.bmWidth) - first];
                weight = static_cast<std::int16_t>(weight + weights.weight[k]);
            }
        } else {
            for (int k = 0; k < 4; ++k) {
                tapColumns[4 * i + k] = ClampIndex(at.pixel - 1 + k, src.bmWidth);
                ofPixel[k] = weights.weight[k];
            }
        }
        taps[i / 4].Set(i % 4, first, ofPixel);
    }

    std::size_t PlaceOfSums(int sourceRow) {
        return sums.PlaceOf(sourceRow, [&](RowSums& row) {
            const std::byte* const bytes = SourceRow(src, sourceRow);
            const auto* pixels = reinterpret_cast<const std::uint32_t*>(bytes);
            std::uint32_t tapPixels[4 * chunk];
            if (!readsRows) {
                for (int i = 0; i < 16 * groupCount; ++i) tapPixels[i] = ReadPixel<depth>(src, bytes, tapColumns[i]);
                pixels = tapPixels;
            }
            for (int group = 0; group < groupCount; ++group) V::SumTaps(pixels, taps[group], row.numbers + 16 * group);
        });
    }

    const BitmapLockInfo& src;
    bool readsRows;  // else each column's taps are gathered
    CenteredSteps stepsX, stepsY;
    int groupCount = 0;
    TapGroup taps[chunk / 4];
    int tapColumns[4 * chunk];
    RowRing<RowSums, 4> sums;
};

}  // namespace
}  // namespace zorvic

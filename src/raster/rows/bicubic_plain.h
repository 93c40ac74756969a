// Bicubic samples from weights scaled by 256, for processors without packed arithmetic: exact sums, truncated once at
// the end. See bicubic.h for all others.
#pragma once

#include "raster/lookup_tables.h"
#include "raster/rows/pixel.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

template <SourceDepth depth>
class PlainBicubicRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = true, needsScratch = true;

    PlainBicubicRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top) {}

    void PrepareColumns(int x, int n) {
        columnCount = n;
        sums.Clear();
        for (int i = 0; i < n; ++i) columns[i] = TapsAt(stepsX.At(x + i), src.bmWidth);
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Taps line = TapsAt(stepsY.At(y), src.bmHeight);
        const RowSums* rows[4];
        for (int k = 0; k < 4; ++k) rows[k] = &SumsOfRow(line.index[k]);
        for (int i = 0; i < n; ++i) {
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < 4; ++channel) {
                int total = 0;
                for (int k = 0; k < 4; ++k) total += rows[k]->channels[i][channel] * line.weight[k];
                pixel |= static_cast<std::uint32_t>(ClampTable[static_cast<std::size_t>((total >> 16) + 256)])
                         << (8 * channel);
            }
            StorePixel(out + i, pixel);
        }
        return out;
    }

private:
    struct Taps {
        int index[4];
        int weight[4];
    };

    struct RowSums {
        std::int32_t channels[chunk][4];
    };

    static Taps TapsAt(Position at, int extent) {
        const int t = at.fraction;
        const int distance[4] = {256 + t, t, 256 - t, 512 - t};
        Taps taps;
        for (int k = 0; k < 4; ++k) {
            taps.index[k] = ClampIndex(at.pixel - 1 + k, extent);
            taps.weight[k] = StretchFilterWeights[static_cast<std::size_t>(distance[k])];
        }
        return taps;
    }

    const RowSums& SumsOfRow(int sourceRow) {
        return sums.Get(sourceRow, [&](RowSums& row) {
            const std::byte* pixels = SourceRow(src, sourceRow);
            for (int i = 0; i < columnCount; ++i) {
                int total[4] = {};
                for (int k = 0; k < 4; ++k) {
                    const std::uint32_t pixel = ReadPixel<depth>(src, pixels, columns[i].index[k]);
                    for (int channel = 0; channel < 4; ++channel)
                        total[channel] += static_cast<int>(pixel >> (8 * channel) & 0xFF) * columns[i].weight[k];
                }
                for (int channel = 0; channel < 4; ++channel) row.channels[i][channel] = total[channel];
            }
        });
    }

    const BitmapLockInfo& src;
    CenteredSteps stepsX, stepsY;
    int columnCount = 0;
    Taps columns[chunk];
    RowRing<RowSums, 4> sums;
};

}  // namespace
}  // namespace zorvic

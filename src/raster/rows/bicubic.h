// Four taps each way, weighted by the current filter kernel at the position's 8-bit fraction; edge pixels repeat
// outward. The horizontal sum of a source row is made once and serves every destination row that needs it.
#pragma once

#include "raster/lookup_tables.h"
#include "raster/rows/pixel.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

// The arithmetic of the two weight encodings. A sum keeps its channel as a fixed-point number.
template <WeightEncoding encoding>
struct BicubicSums;

// Exact horizontal sums with 8 fraction bits, truncated once at the end.
template <>
struct BicubicSums<WeightEncoding::plain256> {
    using Sum = std::int32_t;

    static int Weight(std::int32_t entry) { return entry; }
    static Sum Horizontal(int sum) { return sum; }
    static std::uint8_t Vertical(int total) { return ClampTable[static_cast<std::size_t>((total >> 16) + 256)]; }
};

// Horizontal sums rounded to 6 fraction bits, which is what 16-bit lanes hold; rounded to nearest at the end.
template <>
struct BicubicSums<WeightEncoding::packed16384> {
    using Sum = std::int16_t;

    static int Weight(std::int32_t entry) { return static_cast<std::int16_t>(entry & 0xFFFF); }
    static Sum Horizontal(int sum) { return static_cast<Sum>((sum + (1 << 7)) >> 8); }
    static std::uint8_t Vertical(int total) {
        const int value = (total + (1 << 19)) >> 20;
        return static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
    }
};

template <WeightEncoding encoding, SourceDepth depth>
class BicubicRows {
public:
    static constexpr bool preparesColumns = true;

    BicubicRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top) {}

    void PrepareColumns(int x, int n) {
        columnCount = n;
        sums.Clear();
        for (int i = 0; i < n; ++i) columns[i] = TapsAt(stepsX.At(x + i), src.bmWidth);
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* scratch) {
        const Taps line = TapsAt(stepsY.At(y), src.bmHeight);
        const RowSums* rows[4];
        for (int k = 0; k < 4; ++k) rows[k] = &SumsOfRow(line.index[k]);
        for (int i = 0; i < n; ++i) {
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < 4; ++channel) {
                int total = 0;
                for (int k = 0; k < 4; ++k) total += rows[k]->channels[i][channel] * line.weight[k];
                pixel |= static_cast<std::uint32_t>(Sums::Vertical(total)) << (8 * channel);
            }
            scratch[i] = pixel;
        }
        return scratch;
    }

private:
    using Sums = BicubicSums<encoding>;

    struct Taps {
        int index[4];
        int weight[4];
    };

    struct RowSums {
        typename Sums::Sum channels[chunk][4];
    };

    static Taps TapsAt(Position at, int extent) {
        const int t = at.fraction;
        const int distance[4] = {256 + t, t, 256 - t, 512 - t};
        Taps taps;
        for (int k = 0; k < 4; ++k) {
            taps.index[k] = ClampIndex(at.pixel - 1 + k, extent);
            taps.weight[k] = Sums::Weight(StretchFilterWeights[static_cast<std::size_t>(distance[k])]);
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
                for (int channel = 0; channel < 4; ++channel)
                    row.channels[i][channel] = Sums::Horizontal(total[channel]);
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

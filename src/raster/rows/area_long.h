// Area reduction by more than 16 times: any reduction of 32767 pixels. See area.h for the others.
#pragma once

#include "raster/rows/coverage.h"
#include "raster/rows/pixel.h"
#include "raster/rows/row_ring.h"

namespace zorvic {
namespace {

// Any reduction of 32767 pixels: a row's sum has 39 bits, a box's 70, kept in two limbs of 20 and 64 bits.
struct LongSpan {
    using RowSum = std::uint64_t;

    static constexpr int lowBits = 20;
    static constexpr std::uint64_t lowMask = (1U << lowBits) - 1;

    class Mean {
    public:
        explicit Mean(std::uint64_t boxArea) : area(boxArea), reciprocal(1.0 / static_cast<double>(boxArea)) {}

        std::uint32_t Of(std::uint64_t high, std::uint64_t low) const {
            const double total = static_cast<double>(high) * (lowMask + 1) + static_cast<double>(low);
            auto mean = static_cast<std::uint32_t>(total * reciprocal);
            if (!Fits(mean, high, low)) --mean;
            if (Fits(mean + 1, high, low)) ++mean;
            return mean;
        }

    private:
        // mean x area <= total
        bool Fits(std::uint32_t mean, std::uint64_t high, std::uint64_t low) const {
            const std::uint64_t lowProduct = mean * (area & lowMask);
            const std::uint64_t highProduct = mean * (area >> lowBits) + (lowProduct >> lowBits);
            return highProduct < high || (highProduct == high && (lowProduct & lowMask) <= low);
        }

        std::uint64_t area;
        double reciprocal;
    };

    struct Total {
        std::uint64_t high, low;
        void Add(RowSum row, std::uint32_t weight) {
            high += (row >> lowBits) * weight;
            low += (row & lowMask) * weight;
        }
        std::uint32_t Over(const Mean& mean) const { return mean.Of(high + (low >> lowBits), low & lowMask); }
    };
};

template <SourceDepth depth>
class LongAreaRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = true, needsScratch = true;

    LongAreaRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepX(CoverageStep(source.bmWidth, placement.width)),
          stepY(CoverageStep(source.bmHeight, placement.height)),
          left(placement.left),
          top(placement.top),
          mean(static_cast<std::uint64_t>(stepX * stepY)) {}

    void PrepareColumns(int x, int n) {
        columnCount = n;
        sums.Clear();
        for (int i = 0; i < n; ++i) columns[i] = CoverageAt(left + x + i, stepX);
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Coverage lines = CoverageAt(top + y, stepY);
        for (int i = 0; i < n; ++i)
            for (auto& total : totals[i]) total = {};
        for (int sourceRow = lines.first; sourceRow <= lines.last; ++sourceRow) {
            const RowSums& row = SumsOfRow(sourceRow);
            const std::uint32_t weight = lines.WeightOf(sourceRow);
            for (int i = 0; i < n; ++i)
                for (int channel = 0; channel < 4; ++channel) totals[i][channel].Add(row.channels[i][channel], weight);
        }
        for (int i = 0; i < n; ++i) {
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < 4; ++channel) pixel |= totals[i][channel].Over(mean) << (8 * channel);
            StorePixel(out + i, pixel);
        }
        return out;
    }

private:
    struct RowSums {
        LongSpan::RowSum channels[chunk][4];
    };

    // A row that two destination rows share is summed once.
    const RowSums& SumsOfRow(int sourceRow) {
        return sums.Get(sourceRow, [&](RowSums& row) {
            const std::byte* pixels = SourceRow(src, sourceRow);
            for (int i = 0; i < columnCount; ++i) {
                const Coverage& column = columns[i];
                LongSpan::RowSum sum[4] = {};
                for (int x = column.first; x <= column.last; ++x) {
                    const std::uint32_t pixel = ReadPixel<depth>(src, pixels, x);
                    const LongSpan::RowSum weight = column.WeightOf(x);
                    for (int channel = 0; channel < 4; ++channel)
                        sum[channel] += (pixel >> (8 * channel) & 0xFF) * weight;
                }
                for (int channel = 0; channel < 4; ++channel) row.channels[i][channel] = sum[channel];
            }
        });
    }

    const BitmapLockInfo& src;
    std::int64_t stepX, stepY;
    std::int64_t left, top;
    LongSpan::Mean mean;
    int columnCount = 0;
    Coverage columns[chunk];
    RowRing<RowSums, 1> sums;
    LongSpan::Total totals[chunk][4];
};

}  // namespace
}  // namespace zorvic

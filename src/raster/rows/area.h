// Area reduction by at most 16 times: a destination pixel is the mean of the source box that it covers in 16.16
// coordinates, by coverage and per channel, truncated. For sources at least as large as the draw in both directions.
// The rows of a box are summed for every column first; see pixel/forms/boxes.h for the arithmetic.
#pragma once

#include "pixel/forms/boxes.h"
#include "raster/rows/coverage.h"
#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

template <Boxes B, SourceDepth depth>
class AreaRows {
public:
    static constexpr int blockWidth = 512;
    static constexpr bool preparesColumns = true, needsScratch = true;

    AreaRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepX(CoverageStep(source.bmWidth, placement.width)),
          stepY(CoverageStep(source.bmHeight, placement.height)),
          narrowest(static_cast<int>(stepX >> 16)),
          left(placement.left),
          top(placement.top),
          boxesAtOnce(static_cast<int>((std::int64_t{longestSpan} << 16) / stepX)) {
        // An exact total times this is never too small and at most 2^-42 too large. So it reaches a whole number only
        // where the quotient does: others lie at least 1 / area >= 2^-40 below the next.
        constexpr double upwards = 1 + 1 / 4503599627370496.0;  // a unit in the last place
        reciprocal = 1 / (static_cast<double>(stepX) * static_cast<double>(stepY)) * upwards;
        PrepareWholeMean();
    }

    void PrepareColumns(int x, int n) {
        for (int i = 0; i <= n; ++i) {
            const std::int64_t at = (left + x + i) * stepX;
            edges[i] = {static_cast<int>(at >> 16), 0, static_cast<std::uint32_t>(at & 0xFFFF)};
        }
        for (int i = 0; i < n; ++i)
            edges[i].extraColumn = edges[i + 1].column - edges[i].column > narrowest ? 0xFFFFFFFF : 0;
    }

    const std::uint32_t* Fetch(int y, int, int n, std::uint32_t* out) {
        const Coverage lines = CoverageAt(top + y, stepY);
        for (int i = 0; i < n; i += boxesAtOnce) {
            const int count = n - i < boxesAtOnce ? n - i : boxesAtOnce;
            FetchBoxes(lines, edges + i, count, out + i);
        }
        return out;
    }

private:
    // Columns that are summed at once, and room for those that boxes share and the rest of a vector. Rows that are copied
    // have fewer, since a box has up to 17 of them.
    static constexpr int longestSpan = depth == SourceDepth::argb32 ? 2048 : 256;
    static constexpr int room = 2 + B::lanes;
    static constexpr std::size_t sumCount = 4 * (longestSpan + room);

    // Exact while the excess of the factor comes to less than 1 / n for the largest sum.
    void PrepareWholeMean() {
        if (((stepX | stepY) & 0xFFFF) != 0) return;
        const int n = narrowest * static_cast<int>(stepY >> 16);
        int shift = 0;
        while (2 << shift < n) ++shift;
        const int power = 65536 << shift, factor = (power + n - 1) / n, excess = factor * n - power;
        isWhole = n > 1 && n <= 257 && 255LL * n * excess < power;
        wholeMean = {narrowest, factor, shift};
    }

    void FetchBoxes(const Coverage& lines, const BoxEdge* boxes, int n, std::uint32_t* out) {
        const BoxEdge& end = boxes[n];
        const int first = boxes[0].column, behind = end.column + (end.fraction > 0 ? 1 : 0);
        ColumnSpan span{behind - first, src.bmWidth - B::lanes - first};
        BoxRows rows{SourceRow(src, lines.first) + std::ptrdiff_t{4} * first, src.bmWidthBytes,
                     lines.last - lines.first + 1, lines.firstWeight, lines.lastWeight};
        if (depth != SourceDepth::argb32 || (B::lanes > 1 && span.lastVector < 0)) {
            for (int i = 0; i < rows.count; ++i)
                for (int x = 0; x < span.count; ++x)
                    copies[i][x] = ReadPixel<depth>(src, SourceRow(src, lines.first + i), first + x);
            rows.first = reinterpret_cast<const std::byte*>(copies);
            rows.stride = sizeof copies[0];
            span.lastVector = span.count;
        }
        if (isWhole) {
            B::SumWholeRows(rows, span, wholeMean, wholeSums);
            B::WholeMeans(wholeSums, wholeMean, n, out);
        } else {
            B::SumRows(rows, span, sums);
            // A box that ends with the source asks for nothing of the column behind it.
            for (int i = 0; i < 4; ++i) sums[4 * span.count + i] = 0;
            B::Means(sums, {boxes, narrowest, reciprocal}, n, out);
        }
    }

    const BitmapLockInfo& src;
    std::int64_t stepX, stepY;
    int narrowest;  // columns that start in every box
    std::int64_t left, top;
    int boxesAtOnce;
    double reciprocal;
    bool isWhole = false;  // no box has a part of a pixel, and there is a mean by a factor
    WholeMean wholeMean{};
    BoxEdge edges[blockWidth + 1];
    alignas(64) std::uint32_t sums[sumCount];
    alignas(64) std::uint16_t wholeSums[sumCount];
    // Pixels of other depths, and of the end of a row that is shorter than a vector.
    alignas(64) std::uint32_t copies[17][depth == SourceDepth::argb32 ? 2 * B::lanes : longestSpan + room];
};

}  // namespace
}  // namespace zorvic

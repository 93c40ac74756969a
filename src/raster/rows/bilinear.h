// Two taps each way, weighted by the position's 8-bit fractions; edge pixels repeat outward. The four weights sum to
// 256 and the sum of the products is truncated.
#pragma once

#include "raster/forms/form.h"
#include "raster/rows/pixel.h"
#include "raster/rows/row_ring.h"
#include "raster/rows/steps.h"

namespace zorvic {
namespace {

template <Form V, SourceDepth depth>
class BilinearRows {
public:
    static constexpr bool preparesColumns = true;

    BilinearRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepsX(source.bmWidth, placement.width, placement.left),
          stepsY(source.bmHeight, placement.height, placement.top) {}

    void PrepareColumns(int x, int n) {
        columnCount = (n + V::lanes - 1) / V::lanes * V::lanes;  // whole vectors; positions beyond the end are clamped
        taps.Clear();
        for (int i = 0; i < columnCount; ++i) {
            const Position at = stepsX.At(x + i);
            left[i] = ClampIndex(at.pixel, src.bmWidth);
            right[i] = ClampIndex(at.pixel + 1, src.bmWidth);
            fraction[i] = static_cast<std::uint32_t>(at.fraction);
        }
    }

    const std::uint32_t* Fetch(int y, int, int, std::uint32_t* scratch) {
        const Position at = stepsY.At(y);
        const Taps& upper = TapsOfRow(ClampIndex(at.pixel, src.bmHeight));
        const Taps& lower = TapsOfRow(ClampIndex(at.pixel + 1, src.bmHeight));
        const typename V::Weight ty = V::Uniform(at.fraction);
        for (int i = 0; i < columnCount; i += V::lanes)
            MixTaps(V::Load(upper.left + i), V::Load(upper.right + i), V::Load(lower.left + i),
                    V::Load(lower.right + i), V::LoadWeights(fraction + i), ty)
                .Store(scratch + i);
        return scratch;
    }

private:
    // The two taps of every column in one source row, widened.
    struct Taps {
        std::uint32_t left[chunk];
        std::uint32_t right[chunk];
    };

    const Taps& TapsOfRow(int sourceRow) {
        return taps.Get(sourceRow, [&](Taps& row) {
            const std::byte* pixels = SourceRow(src, sourceRow);
            for (int i = 0; i < columnCount; ++i) {
                row.left[i] = ReadPixel<depth>(src, pixels, left[i]);
                row.right[i] = ReadPixel<depth>(src, pixels, right[i]);
            }
        });
    }

    const BitmapLockInfo& src;
    CenteredSteps stepsX, stepsY;
    int columnCount = 0;
    int left[chunk], right[chunk];
    std::uint32_t fraction[chunk];
    RowRing<Taps, 2> taps;
};

}  // namespace
}  // namespace zorvic

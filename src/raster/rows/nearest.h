// Nearest sample in 16.16 fixed point, anchored at the top left: column i shows source column i x step >> 16, the step
// being the truncated quotient of the extents. No half-pixel offset; the truncation drifts toward the left and top.
#pragma once

#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

template <SourceDepth depth>
class NearestRows {
public:
    static constexpr bool preparesColumns = false;

    NearestRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source),
          stepX((static_cast<std::int64_t>(source.bmWidth) << 16) / placement.width),
          stepY((static_cast<std::int64_t>(source.bmHeight) << 16) / placement.height),
          left(placement.left),
          top(placement.top) {}

    const std::uint32_t* Fetch(int y, int x, int n, std::uint32_t* scratch) const {
        const std::byte* row = SourceRow(src, static_cast<std::ptrdiff_t>((top + y) * stepY >> 16));
        // The position stays below the source's width, so 32 bits hold it.
        auto position = static_cast<std::uint32_t>((left + x) * stepX);
        const auto step = static_cast<std::uint32_t>(stepX);
        for (int i = 0; i < n; ++i, position += step)
            scratch[i] = ReadPixel<depth>(src, row, static_cast<std::ptrdiff_t>(position >> 16));
        return scratch;
    }

private:
    const BitmapLockInfo& src;
    std::int64_t stepX, stepY;
    std::int64_t left, top;
};

}  // namespace
}  // namespace zorvic

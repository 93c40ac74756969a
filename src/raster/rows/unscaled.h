// The source at its own size; a 32-bit source is its own row of samples.
#pragma once

#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

template <SourceDepth depth>
class UnscaledRows {
public:
    static constexpr bool preparesColumns = false;

    UnscaledRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source), left(static_cast<int>(placement.left)), top(static_cast<int>(placement.top)) {}

    const std::uint32_t* Fetch(int y, int x, int n, std::uint32_t* scratch) const {
        const std::byte* row = SourceRow(src, top + y);
        if constexpr (depth == SourceDepth::argb32) {
            return reinterpret_cast<const std::uint32_t*>(row) + left + x;
        } else {
            for (int i = 0; i < n; ++i) scratch[i] = ReadPixel<depth>(src, row, left + x + i);
            return scratch;
        }
    }

private:
    const BitmapLockInfo& src;
    int left, top;
};

}  // namespace
}  // namespace zorvic

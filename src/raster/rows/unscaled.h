// The source at its own size; a 32-bit source is its own row of samples.
#pragma once

#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

template <SourceDepth depth>
class UnscaledRows {
public:
    static constexpr int blockWidth = chunk;
    static constexpr bool preparesColumns = false, needsScratch = depth != SourceDepth::argb32;

    UnscaledRows(const BitmapLockInfo& source, const Placement& placement)
        : src(source), left(static_cast<int>(placement.left)), top(static_cast<int>(placement.top)) {}

    // Whether rows of n pixels follow one another without a gap.
    bool IsOneRun(int n) const { return src.bmWidthBytes == std::int64_t{BytesPerPixel(depth)} * n; }

    const std::uint32_t* Fetch(int y, int x, int n, std::uint32_t* out) const {
        const std::byte* row = SourceRow(src, top + y);
        if constexpr (depth == SourceDepth::argb32) {
            return reinterpret_cast<const std::uint32_t*>(row) + left + x;
        } else {
            for (int i = 0; i < n; ++i) StorePixel(out + i, ReadPixel<depth>(src, row, left + x + i));
            return out;
        }
    }

private:
    const BitmapLockInfo& src;
    int left, top;
};

}  // namespace
}  // namespace zorvic

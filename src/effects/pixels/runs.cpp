// The search for runs, for each depth.
#include "effects/pixels/runs.h"

#include "raster/rows/pixel.h"

namespace zorvic {

namespace {

template <SourceDepth depth>
Run Find(const BitmapLockInfo& image, int y, int x, std::uint32_t key) {
    const std::byte* row = SourceRow(image, y);
    const auto isKey = [&](int column) { return ReadPixel<depth>(image, row, column) == key; };
    while (x < image.bmWidth && isKey(x)) ++x;
    Run run{x, x};
    while (run.end < image.bmWidth && !isKey(run.end)) ++run.end;
    return run;
}

}  // namespace

Run NextRun(const BitmapLockInfo& image, int y, int x, std::uint32_t key) {
    switch (DepthOf(image.bmBitsPixel)) {
        case SourceDepth::palette8:
            return Find<SourceDepth::palette8>(image, y, x, key);
        case SourceDepth::rgb24:
            return Find<SourceDepth::rgb24>(image, y, x, key);
        case SourceDepth::argb32:
            break;
    }
    return Find<SourceDepth::argb32>(image, y, x, key);
}

}  // namespace zorvic

// The search for runs: every run is one, none is left out, and it comes to an end.
#include "effects/pixels/runs.h"

#include <algorithm>

#include "raster/rows/pixel.h"
#include "support/fenced_image.h"

namespace zorvic {

namespace {

std::uint32_t PixelOf(const BitmapLockInfo& image, int x, int y) {
    const std::byte* const row = SourceRow(image, y);
    if (image.bmBitsPixel == 8) return ReadPixel<SourceDepth::palette8>(image, row, x);
    if (image.bmBitsPixel == 24) return ReadPixel<SourceDepth::rgb24>(image, row, x);
    return ReadPixel<SourceDepth::argb32>(image, row, x);
}

}  // namespace

void RunInput(Input& input) {
    constexpr int depths[] = {8, 24, 32};
    const int bitsPixel = input.Pick(depths);
    Random random = input.Seed();
    const SIZE size = ReadSize(input);
    const int width = size.cx, height = std::min(size.cy, LONG{4});
    const FencedImage image(Fence::source, width, height, bitsPixel, Lie::From(input), random);
    const BitmapLockInfo& info = image.Info();
    const std::uint32_t keys[] = {0, 0xFF000000, PixelOf(info, 0, 0), PixelOf(info, width - 1, 0)};
    const std::uint32_t key = input.Pick(keys);

    for (int y = 0; y < info.bmHeight; ++y) {
        int x = input.Below(65536) % (width + 1);
        while (true) {
            const Run run = NextRun(info, y, x, key);
            if (run.first < x || run.end < run.first || run.end > width)
                Fail("a run from %d to %d after column %d of %d", run.first, run.end, x, width);
            for (int i = x; i < run.end; ++i)
                if ((PixelOf(info, i, y) == key) != (i < run.first))
                    Fail("column %d, run from %d to %d", i, run.first, run.end);
            if (run.end < width && PixelOf(info, run.end, y) != key) Fail("a run ends early, at %d", run.end);
            if (run.first == run.end) {
                if (run.end != width) Fail("the search ends early, at %d of %d", run.end, width);
                break;
            }
            x = run.end;
        }
    }
}

}  // namespace zorvic

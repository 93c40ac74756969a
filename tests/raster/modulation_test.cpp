// Drawing in a colour from palettes and 24-bit pixels: as from the same pixels in 32 bits, at every level.
#include "raster/modulation.h"

#include "kernels/model.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

class Modulation : public AtLevel {};

TEST_P(Modulation, KnowsEveryDepth) {
    Random random(1);
    for (const int depth : {8, 24})
        for (const int width : {5, 37})
            for (const std::uint32_t color : {0xFF20C0F0U, 0x80FF0013U}) {
                const Image src(random, width, 3, depth);
                Image widened(width, 3, 32, {4});
                widened.Fill([&](int x, int y) { return SourceColor(src.Info(), x, y); });
                Image got(random, width, 3, 32, {4}), wanted = got;
                ModulateImage(got.Info(), src.Info(), color);
                ModulateImage(wanted.Info(), widened.Info(), color);
                EXPECT_TRUE(SameBytes(got, wanted))
                    << depth << " bits, " << width << " wide, color " << std::hex << color;
            }
}

INSTANTIATE_TEST_SUITE_P(, Modulation, testing::ValuesIn(Levels()), LevelName);

}  // namespace
}  // namespace zorvic

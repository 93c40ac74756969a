// Images wider than any surface, as device contexts have them: positions in 16.16 fixed point need more than 32 bits.
#include <numeric>

#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

TEST(WideImages, ShowTheirLastColumnsInEveryFilter) {
    std::vector<std::uint32_t> wanted(50);
    std::iota(wanted.begin(), wanted.end(), 0xFF000000);
    for (const int step : {656, 1310, 1311, 2000})  // 32800 to 100000 columns
        for (const int bits : {8, 24, 32})
            for (const bool down : {false, true})
                for (const std::uint32_t filter : {0U, 1U, 4U, 5U}) {
                    // Stripes as wide as what one drawn pixel shows.
                    Image src(down ? 1 : 50 * step, down ? 50 * step : 1, bits);
                    std::iota(src.Palette().begin(), src.Palette().end(), 0xFF000000);
                    src.Fill([&](int x, int y) { return 0xFF000000 | static_cast<std::uint32_t>((x + y) / step); });
                    const Image dst(down ? 1 : 50, down ? 50 : 1);
                    SelectResizeKernel(dst.Info(), src.Info(), filter);
                    ASSERT_EQ(dst.Pixels(), wanted) << step << " to 1, " << bits << " bits, filter " << filter;
                }
}

}  // namespace
}  // namespace zorvic

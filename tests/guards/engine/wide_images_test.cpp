// Images wider than any surface, as device contexts have them: positions in 16.16 fixed point need more than 32 bits.
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

TEST(WideImages, ShowTheirLastColumnsInEveryFilter) {
    constexpr int drawn = 50;
    for (const int step : {656, 1310, 1311, 2000})  // 32800 to 100000 columns
        for (const int bits : {8, 24, 32})
            for (const bool down : {false, true})
                for (const std::uint32_t filter : {0U, 1U, 4U, 5U}) {
                    // Stripes as wide as what one drawn pixel shows.
                    Image src(down ? 1 : drawn * step, down ? drawn * step : 1, bits);
                    for (std::size_t i = 0; i < src.Palette().size(); ++i)
                        src.Palette()[i] = 0xFF000000 | static_cast<DWORD>(i);
                    src.Fill([&](int x, int y) { return 0xFF000000 | static_cast<std::uint32_t>((x + y) / step); });
                    Image dst(down ? 1 : drawn, down ? drawn : 1);
                    SelectResizeKernel(dst.Info(), src.Info(), filter);
                    Image wanted = dst;
                    wanted.Fill([](int x, int y) { return 0xFF000000 | static_cast<std::uint32_t>(x + y); });
                    ASSERT_TRUE(SameBytes(dst, wanted)) << step << " to 1, " << bits << " bits, filter " << filter;
                }
}

}  // namespace
}  // namespace zorvic

// A clipped draw is a crop of the whole draw, for every operation, filter and source depth.
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

struct Request {
    std::uint32_t operationWord, filterMode;
    std::uint8_t alpha;
};

std::vector<Request> Requests() {
    std::vector<Request> requests;
    for (const std::uint32_t operationWord : {0x00000000U, 0x01000000U, 0x02000000U, 0x03000000U, 0x06000000U})
        for (const std::uint32_t filterMode : {0U, 1U, 4U, 5U})
            for (const int alpha : {255, 100})
                requests.push_back({operationWord, filterMode, static_cast<std::uint8_t>(alpha)});
    return requests;
}

// Source and whole draw; factors that no power of two divides, one axis enlarged and the other reduced, same size.
struct Sizes {
    int sourceWidth, sourceHeight, width, height;
};
constexpr Sizes allSizes[] = {{7, 5, 19, 13}, {64, 31, 17, 9},  {9, 40, 31, 11},  {300, 3, 257, 7}, {1, 1, 40, 3},
                              {3, 2, 600, 5}, {23, 11, 23, 11}, {23, 11, 23, 12}, {400, 3, 10, 120}};

TEST(PlacedDraw, IsACropOfTheWholeDraw) {
    Random random(3);
    for (const int bitsPixel : {8, 24, 32})
        for (const Sizes& sizes : allSizes)
            for (const Request& request : Requests()) {
                const auto [operationWord, filterMode, alpha] = request;
                const Image source(random, sizes.sourceWidth, sizes.sourceHeight, bitsPixel);
                const Image before(random, sizes.width, sizes.height, 32, {4, 0});
                Image whole = before;
                ASSERT_EQ(SelectStretchKernel(whole.Info(), source.Info(), operationWord, filterMode, alpha), 1);
                for (int clip = 0; clip < 4; ++clip) {
                    const int left = random.Below(sizes.width), top = random.Below(sizes.height);
                    const int width = 1 + random.Below(sizes.width - left);
                    const int height = 1 + random.Below(sizes.height - top);
                    Image part = before, wanted = before;
                    for (int y = top; y < top + height; ++y)
                        for (int x = left; x < left + width; ++x) wanted.Set(x, y, whole.At(x, y));
                    ASSERT_EQ(SelectPlacedKernel(PartOf(part.Info(), left, top, width, height),
                                                 {left, top, sizes.width, sizes.height}, source.Info(), operationWord,
                                                 filterMode, alpha),
                              1);
                    ASSERT_TRUE(SameBytes(part, wanted))
                        << bitsPixel << " bits, " << sizes.sourceWidth << " x " << sizes.sourceHeight << " as "
                        << sizes.width << " x " << sizes.height << ", clip " << left << ", " << top << ", " << width
                        << " x " << height << std::hex << ", operation " << operationWord << ", filter " << filterMode
                        << ", opacity " << int{alpha};
                }
            }
}

}  // namespace
}  // namespace zorvic

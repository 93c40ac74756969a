// What every request draws, against the slow model. Other fills are tested through the DLL.
#include "raster/selectors.h"

#include <optional>

#include "kernels/model.h"
#include "support/image.h"

namespace zorvic {
namespace {

// What a draw does, with the alpha where it has any; nothing when there is nothing to be drawn.
std::optional<SlotMeaning> MeaningOfDraw(std::uint32_t operation, std::uint32_t filterMode, int alpha, int bitsPixel,
                                         bool sameSize) {
    const auto meaning = [=](Rows rows, Op op) { return SlotMeaning{sameSize ? Rows::unscaled : rows, op}; };
    const Rows smooth = filterMode == 0 ? Rows::nearest : filterMode == 4 ? Rows::bicubic : Rows::bilinear;
    if (operation == 3) return meaning(Rows::bilinear, Op::multiply);
    if (operation == 6) return meaning(Rows::bilinear, Op::destinationOver);
    if (alpha == 0) return {};
    if (alpha < 255) return meaning(smooth, Op::constantAlpha);
    if (operation == 1) return meaning(smooth, Op::sourceOver);
    if (operation != 2) return meaning(filterMode == 5 ? Rows::area : smooth, Op::copy);
    // Smooth filters of a keyed source blend instead, but for 24 bits.
    const bool isKeyed = sameSize || filterMode == 0 || bitsPixel == 24;
    return isKeyed ? meaning(Rows::nearest, Op::colorKey) : meaning(smooth, Op::sourceOver);
}

constexpr std::uint32_t key = 0x00123456;

// With many pixels of the key's color, transparent and opaque.
Image KeyedSource(Random& random, int width, int height, int bitsPixel) {
    Image source(random, width, height, bitsPixel);
    const std::uint32_t keyPixels[] = {key, key | 0xFF000000};
    for (std::uint32_t i = 0; i < source.Palette().size() && i < 2; ++i) source.Palette()[i] = keyPixels[i];
    for (std::uint32_t i = 0; i < 60; ++i)
        source.Set(random.Below(width), random.Below(height), bitsPixel == 8 ? i % 2 : keyPixels[i % 2]);
    return source;
}

// Scaled draws reduce, so that every filter has other pixels.
TEST(Selectors, DrawWhatIsAsked) {
    constexpr std::uint8_t alphas[] = {0, 1, 127, 254, 255};
    constexpr int depths[] = {8, 24, 32, 32};
    Random random(11);
    for (const std::uint32_t operation : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 128U, 255U})
        for (const std::uint32_t filterMode : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 0xFFFFFFFFU})
            for (const std::uint8_t alpha : alphas)
                for (int i = 0; i < 16; ++i) {
                    const int bits = depths[i % 4];
                    const bool sameSize = i / 4 % 2 == 0, placed = i >= 8;
                    const Image source = KeyedSource(random, sameSize ? 21 : 67, sameSize ? 13 : 30, bits);
                    BitmapLockInfo src = source.Info();
                    if (i % 4 == 3) src.bmBitsPixel = 16;  // other depths are read as 32 bits
                    const Image dst(random, placed ? 11 : 21, placed ? 7 : 13), wanted = dst;
                    const Placement placement = placed ? Placement{4, 2, 21, 13} : WholeOf(dst.Info());
                    const auto meaning = MeaningOfDraw(operation, filterMode, alpha, bits, sameSize);
                    const std::uint32_t keyPixel = bits == 24 ? key | 0xFF000000 : key, word = operation << 24 | key;
                    if (meaning)
                        DrawByModel(*meaning, {wanted.Info(), placement, source.Info(), 0,
                                               meaning->op == Op::colorKey ? keyPixel : alpha});
                    EXPECT_EQ(placed ? SelectPlacedKernel(dst.Info(), placement, src, word, filterMode, alpha)
                                     : SelectStretchKernel(dst.Info(), src, word, filterMode, alpha),
                              1);
                    ASSERT_TRUE(SameBytes(dst, wanted))
                        << "operation " << operation << ", filter " << filterMode << ", opacity " << int{alpha} << ", "
                        << src.bmBitsPixel << " bits" << (sameSize ? ", same size" : "") << (placed ? ", placed" : "");
                }
}

TEST(Selectors, FillNothingWithWhite) {
    for (const Operation operation : {Operation::multiply, Operation::bitOr})
        EXPECT_FALSE(ChooseFillKernel(0xFFFFFFFF, operation));
}

TEST(Selectors, DrawNothingForEmptyImages) {
    Random random(5);
    const Image dst(random, 4, 3), src(random, 9, 9), before = dst;
    for (const auto& [width, height] : {std::pair{0, 3}, {4, -3}, {-4, 3}})
        for (const bool emptySource : {false, true}) {
            BitmapLockInfo to = dst.Info(), from = src.Info(), &empty = emptySource ? from : to;
            empty.bmWidth = width;
            empty.bmHeight = height;
            for (const std::uint32_t operationWord : {0U, 0x03000000U, 0x06000000U}) {
                EXPECT_EQ(SelectStretchKernel(to, from, operationWord, 0, 255), 1);
                EXPECT_EQ(SelectPlacedKernel(to, {1, 1, 8, 8}, from, operationWord, 0, 255), 1);
                EXPECT_EQ(SelectFillKernel(empty, 0x80402010, operationWord), 1);
            }
            EXPECT_EQ(SelectResizeKernel(to, from, 0), 1);
        }
    EXPECT_TRUE(SameBytes(dst, before));
}

}  // namespace
}  // namespace zorvic

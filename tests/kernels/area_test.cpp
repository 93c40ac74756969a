// Area reduction in every form against the slow model, where random draws seldom come: whole steps, reductions around
// the limits of each arithmetic, long rows, and boxes whose mean only just misses a whole number.
#include "kernels/slot_calls.h"
#include "support/image.h"

namespace zorvic {
namespace {

using Parameter = std::tuple<NamedKernels, SlotCall>;

class AreaKernels : public testing::TestWithParam<Parameter> {
protected:
    // The whole draw or, for placed slots, most of it.
    static void Check(const Image& src, int width, int height) {
        const auto& [set, slot] = GetParam();
        Placement placement{0, 0, width, height};
        if (slot.takesPlacement) {
            placement.left = width / 3;
            placement.top = height / 2;
        }
        Image dst(width - static_cast<int>(placement.left), height - static_cast<int>(placement.top), 32, {5, 3});
        const Image wanted = dst;
        DrawByModel(slot.slot, {wanted.Info(), placement, src.Info(), 0, 0});
        ASSERT_EQ(slot.run(*set.kernels, {dst.Info(), placement, src.Info(), 0, 0}), 1);
        ASSERT_TRUE(SameBytes(dst, wanted))
            << src.Info().bmWidth << " x " << src.Info().bmHeight << " to " << width << " x " << height;
    }

    static int BitsPixel() { return std::get<SlotCall>(GetParam()).bitsPixel; }
};

TEST_P(AreaKernels, ReduceByWholeSteps) {
    Random random(1);
    for (int across = 1; across <= 17; ++across)
        for (const int down : {1, 2, 3, 4, 5, 8, 15, 16, 17})
            for (const int width : {1, 3, 17}) {
                const Image src(random, across * width, down * 2, BitsPixel(), {random.Below(9), random.Below(2)});
                ASSERT_NO_FATAL_FAILURE(Check(src, width, 2));
            }
}

TEST_P(AreaKernels, ReduceLongRowsInParts) {
    Random random(2);
    for (const auto& [sourceWidth, width] :
         {std::pair{4113, 300}, {4800, 300}, {2048, 512}, {2111, 1025}, {1100, 1030}})
        for (const auto& [sourceHeight, height] : {std::pair{3, 2}, {33, 2}, {4, 2}, {16, 1}})
            ASSERT_NO_FATAL_FAILURE(
                Check(Image(random, sourceWidth, sourceHeight, BitsPixel(), {3, 1}), width, height));
}

TEST_P(AreaKernels, ReduceAroundTheLimitsOfTheirArithmetic) {
    Random random(3);
    for (const auto& [sourceExtent, extent] :
         {std::pair{255, 16}, {256, 16}, {257, 16}, {159, 10}, {161, 10}, {70, 69}})
        for (const auto& [otherSource, other] : {std::pair{63, 4}, {64, 4}, {65, 4}, {11, 9}, {5, 5}}) {
            ASSERT_NO_FATAL_FAILURE(Check(Image(random, sourceExtent, otherSource, BitsPixel()), extent, other));
            ASSERT_NO_FATAL_FAILURE(Check(Image(random, otherSource, sourceExtent, BitsPixel()), other, extent));
        }
}

// Flat images stay flat, and one byte less in a single source pixel takes one from the mean.
TEST_P(AreaKernels, TruncateNearWholeNumbers) {
    Random random(4);
    for (int i = 0; i < 300; ++i) {
        const int width = 1 + random.Below(12), height = 1 + random.Below(4);
        const int sourceWidth = width + random.Below(20 * width), sourceHeight = height + random.Below(20 * height);
        const std::uint32_t pixel = i % 4 == 0 ? 0xFFFFFFFF : random.Word() | 0x01010101;
        Image src(sourceWidth, sourceHeight, BitsPixel());
        for (DWORD& entry : src.Palette()) entry = pixel;
        if (BitsPixel() == 8) src.Palette()[1] = pixel - 0x01010101;
        src.Fill([&](int, int) { return BitsPixel() == 8 ? 0 : pixel; });
        ASSERT_NO_FATAL_FAILURE(Check(src, width, height));
        for (int n = width * height; n > 0; --n)
            src.Set(random.Below(sourceWidth), random.Below(sourceHeight), BitsPixel() == 8 ? 1 : pixel - 0x01010101);
        ASSERT_NO_FATAL_FAILURE(Check(src, width, height));
    }
}

std::vector<Parameter> AreaCalls() {
    std::vector<Parameter> calls = AllKernelCalls();
    std::erase_if(calls, [](const Parameter& p) { return std::get<SlotCall>(p).rows != Rows::area; });
    return calls;
}

std::string NameOf(const testing::TestParamInfo<Parameter>& info) {
    return std::string(std::get<NamedKernels>(info.param).name) + "_slot" +
           std::to_string(std::get<SlotCall>(info.param).slot);
}

INSTANTIATE_TEST_SUITE_P(, AreaKernels, testing::ValuesIn(AreaCalls()), NameOf);

}  // namespace
}  // namespace zorvic

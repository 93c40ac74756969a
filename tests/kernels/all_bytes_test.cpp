// Operations on all combinations of the three bytes that decide: every slot that shows its source as it is, and what has
// no slot. The effects' are tested with them.
#include "kernels/all_bytes.h"

#include "kernels/slot_calls.h"
#include "raster/lookup_tables.h"
#include "raster/modulation.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

Third ThirdOf(Op op) {
    if (op == Op::sourceOver) return Third::sourceAlpha;
    if (op == Op::destinationOver) return Third::destinationAlpha;
    if (op == Op::grayWash) return Third::destinationRed;
    const bool hasArgument = op == Op::constantAlpha || op == Op::opaqueAlpha || op == Op::colorKey ||
                             op == Op::crossFade || op == Op::mixColor;
    return hasArgument ? Third::argument : Third::unused;
}

// Samples of the source as it is: at its own size, from one color, or filtered without a weight for neighbours.
bool ShowsItsSource(const SlotCall& slot) {
    return slot.bitsPixel == 32 && !slot.takesPlacement &&
           (slot.rows == Rows::unscaled || slot.rows == Rows::solid ||
            (slot.rows == Rows::bicubic && slot.op != Op::copy));
}

void CheckSlot(const SlotCall& slot) {
    const auto argument = [&](std::uint32_t z) { return slot.op == Op::colorKey ? InAllChannels(z) : z; };
    std::vector<Drawing> forms;
    for (const NamedKernels& set : kernelSets) {
        if (set.form > BestLevel() || !IsInSet(set, slot) || (!set.packedWeights && slot.rows == Rows::bicubic))
            continue;
        forms.push_back({set.name, [&](const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t z) {
                             LimitLevel(set.form);
                             // A color for each row.
                             const int height = slot.rows == Rows::solid ? 1 : 256;
                             for (int y = 0; y < 256; y += height)
                                 slot.run(*set.kernels, {PartOf(dst, 0, y, 256, height), WholeOf(dst), src,
                                                         ReadPixelBytes(src, 0, y), argument(z)});
                         }});
    }
    CheckAllBytes(ThirdOf(slot.op), forms, [&](std::uint32_t d, std::uint32_t s, std::uint32_t z) {
        return ResultByModel(slot, d, s, argument(z));
    });
}

TEST(AllBytes, OfEverySlotThatShowsItsSource) {
    SetStretchKernelMode(0);
    for (const SlotCall& slot : AllSlotCalls()) {
        SCOPED_TRACE(slot.slot);
        if (ShowsItsSource(slot)) CheckSlot(slot);
    }
    SetStretchKernelMode(1);
    LimitLevel(widestLevel);
}

TEST(AllBytes, DrawnInAColor) {
    const auto check = [](Third third, std::uint32_t (*color)(std::uint32_t z)) {
        CheckAllBytes(
            third,
            [=](const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t z) {
                ModulateImage(dst, src, color(z));
            },
            [=](std::uint32_t d, std::uint32_t s, std::uint32_t z) { return host::SlowInColor(s, d, color(z)); });
    };
    check(Third::argument, [](std::uint32_t z) { return WithAlpha(InAllChannels(z), 255); });
    check(Third::argument, [](std::uint32_t z) { return InAllChannels(z); });
    check(Third::sourceRed, [](std::uint32_t) { return 0xFFFF8040; });
}

TEST(AllBytes, BlendedAndRounded) {
    CheckAllBytes(
        Third::sourceAlpha,
        [](const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t) {
            BlendPixels({src.bmBits, src.bmWidthBytes}, {dst.bmBits, dst.bmWidthBytes}, {256, 256});
        },
        [](std::uint32_t d, std::uint32_t s, std::uint32_t) { return host::SlowBlend(s, d); });
}

// With every rest of a vector, and rows that do not follow one another.
TEST(DrawingInAColor, KnowsEveryDepth) {
    constexpr int depths[] = {8, 24, 32};
    Random random(1);
    for (const Level level : Levels())
        for (int i = 0; i < 192; ++i)
            for (const std::uint32_t color : {0xFF20C0F0U, 0x80FF0013U}) {
                const int width = 1 + i / 3, depth = depths[i % 3];
                const Image src(random, width, 3, depth);
                Image got(random, width, 3, 32, {random.Below(2) * random.Below(9)}), wanted = got;
                wanted.Fill([&](int x, int y) {
                    return host::SlowInColor(SourceColor(src.Info(), x, y), got.At(x, y), color);
                });
                LimitLevel(level);
                ModulateImage(got.Info(), src.Info(), color);
                EXPECT_TRUE(SameBytes(got, wanted)) << depth << " bits, color " << std::hex << color;
            }
    LimitLevel(widestLevel);
}

}  // namespace
}  // namespace zorvic

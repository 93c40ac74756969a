// Every slot of every kernel set against the slow model: all widths to 70 and around a fetched chunk, rows at odd
// distances and addresses, guard bytes, and an inaccessible page behind source and destination.
#include <iomanip>
#include <sstream>

#include "kernels/slot_calls.h"
#include "raster/kernel_table.h"
#include "support/image.h"

namespace zorvic {
namespace {

using Parameter = std::tuple<NamedKernels, SlotCall>;

class EverySlot : public testing::TestWithParam<Parameter> {
protected:
    EverySlot() {
        CpuFeatures features;
        features.cpuHasMMX = std::get<NamedKernels>(GetParam()).packedWeights;
        FillTables(features);
        LimitLevel(std::get<NamedKernels>(GetParam()).form);
    }
    ~EverySlot() override {
        InitKernelTable();
        LimitLevel(widestLevel);
    }

    const KernelSet& Kernels() const { return *std::get<NamedKernels>(GetParam()).kernels; }
    const SlotCall& Slot() const { return std::get<SlotCall>(GetParam()); }

    // Runs the job on the image and compares with the model's drawing on a copy of it.
    void Check(Image& dst, Placement placement, const Image& src, std::uint32_t color, std::uint32_t argument) {
        const Image wanted = dst;
        DrawByModel(Slot().slot, {wanted.Info(), placement, src.Info(), color, argument});
        ASSERT_EQ(Slot().run(Kernels(), {dst.Info(), placement, src.Info(), color, argument}), 1);
        ASSERT_TRUE(SameBytes(dst, wanted))
            << "source " << src.Info().bmWidth << " x " << src.Info().bmHeight << ", extent " << placement.width
            << " x " << placement.height << " from " << placement.left << ", " << placement.top << std::hex
            << ", color " << color << ", argument " << argument;
    }

    void CheckRandomJob(Random& random, int width) {
        const auto margins = [&] { return Margins{random.Below(9), random.Below(2) * random.Below(40)}; };
        Image dst(random, width, 1 + random.Below(4), 32, margins());
        Placement placement = WholeOf(dst.Info());
        if (Slot().takesPlacement) {
            placement.left = random.Below(50);
            placement.top = random.Below(50);
            placement.width += placement.left + 1 + random.Below(50);
            placement.height += placement.top + random.Below(50);
        }
        const auto scaled = [&](std::int64_t extent) { return 1 + random.Below(3 * static_cast<int>(extent)); };
        const Image src(random, Slot().IsScaled() ? scaled(placement.width) : width,
                        Slot().IsScaled() ? scaled(placement.height) : dst.Info().bmHeight, Slot().bitsPixel,
                        margins());
        // Keys that the source has, and both ends of opacities and amounts, are frequent.
        const std::uint32_t ends[] = {width > 0 ? SourceColor(src.Info(), 0, 0) : 0, 0x5A5A5A00, 0xFF, random.Word()};
        Check(dst, placement, src, random.Pixel(), ends[random.Below(4)]);
    }
};

TEST_P(EverySlot, DrawsWhatTheModelDraws) {
    Random random(Slot().slot);
    for (int width = Slot().IsScaled() && !Slot().takesPlacement ? 1 : 0; width <= 70; ++width)
        ASSERT_NO_FATAL_FAILURE(CheckRandomJob(random, width));
    for (const int width : {255, 256, 257, 511, 512, 513}) ASSERT_NO_FATAL_FAILURE(CheckRandomJob(random, width));
}

// Column x has the byte x in each channel of the destination, row y the byte y in the source (or in a fill's color),
// turned a little from channel to channel.
TEST_P(EverySlot, DrawsEveryPairOfBytes) {
    const auto pixel = [](int byte) { return static_cast<std::uint32_t>(byte) * 0x01010101U ^ 0x80330F00U; };
    Image src(256, 256, Slot().bitsPixel);
    src.Fill([&](int, int y) { return Slot().bitsPixel == 8 ? static_cast<std::uint32_t>(y) : pixel(y); });
    for (std::size_t i = 0; i < src.Palette().size(); ++i) src.Palette()[i] = pixel(static_cast<int>(i));
    const std::uint32_t argument = SourceColor(src.Info(), 0, 77);

    const bool solid = Slot().rows == Rows::solid;
    for (int byte = 0; byte < (solid ? 256 : 1); ++byte) {
        Image dst(256, solid ? 1 : 256);
        dst.Fill([&](int x, int) { return pixel(x); });
        ASSERT_NO_FATAL_FAILURE(Check(dst, WholeOf(dst.Info()), src, pixel(byte), argument));
    }
}

TEST_P(EverySlot, LeavesEmptyDestinationsAlone) {
    Random random(1);
    Image dst(random, 5, 3), src(random, 5, 3, Slot().bitsPixel);
    const Image before = dst;
    Job job{dst.Info(), {0, 0, 9, 9}, src.Info(), 0x12345678, 77};
    for (const int height : {-3, 0}) {
        if (height == 0 && Slot().IsScaled() && !Slot().takesPlacement) continue;  // it divides by its height
        job.dst.bmHeight = height;
        EXPECT_EQ(Slot().run(Kernels(), job), 1);
        EXPECT_TRUE(SameBytes(dst, before)) << height;
    }
}

std::string NameOf(const testing::TestParamInfo<Parameter>& info) {
    std::ostringstream name;
    name << std::get<NamedKernels>(info.param).name << "_slot" << std::setfill('0') << std::setw(3)
         << std::get<SlotCall>(info.param).slot;
    return name.str();
}

INSTANTIATE_TEST_SUITE_P(, EverySlot, testing::ValuesIn(AllKernelCalls()), NameOf);

}  // namespace
}  // namespace zorvic

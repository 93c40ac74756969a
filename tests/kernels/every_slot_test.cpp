// The slow model against pixels worked by hand, and kernels against the model by zvcheck's numbered cases; zvcheck compares
// the other forms with these.
#include "checker.h"
#include "support/image.h"

namespace zorvic {
namespace {

TEST(Model, LiteralPixels) {
    constexpr struct {
        const char* name;
        int slot;
        std::uint32_t sample, before, after, argument = 0;
    } cases[] = {
        // x scaled by k is x * k >> 8, never rounded.
        {"copy", 8, 0x00ABCDEF, 0x12345678, 0x00ABCDEF},
        {"over", 98, 0x80404040, 0xFFFFFFFF, 0xFFBFBFBF},  // 255 * 128 >> 8 = 127
        {"over, not premultiplied: the words are added", 98, 0x80FFFFFF, 0x80808080, 0xC140403F},
        {"over, overshot: each channel stops", 94, 0x80FFFFFF, 0x80808080, 0xC0FFFFFF},
        {"over, opaque", 59, 0xFF123456, 0x87654321, 0xFF123456},
        {"over, transparent", 59, 0x00000000, 0x87654321, 0x87654321},
        {"opacity", 52, 0xFFFFFFFF, 0xFF000000, 0xFF808080, 128},
        {"opacity 1", 52, 0xFFFFFFFF, 0x00000000, 0x01010101, 1},
        {"opacity 254 of opaque leaves a trace", 52, 0xFFFFFFFF, 0xFF000000, 0xFFFEFEFE, 254},
        {"a source without alpha counts as opaque", 16, 0x00FFFFFF, 0xFF000000, 0xFF808080, 128},
        {"key", 87, 0x00123456, 0x87654321, 0x87654321, 0x00123456},
        {"opaque pixel of the key's color", 87, 0xFF123456, 0x87654321, 0xFF123456, 0x00123456},
        {"multiply", 49, 0x80808080, 0xFFFFFFFF, 0x80808080},  // 129 * 255 >> 8 = 128
        {"multiply by 255 and 0", 62, 0xFFFF0000, 0x81828384, 0x81820000},
        {"or", 68, 0x0F010000, 0xA0FE00C0, 0xAFFF00C0},
        // (16 + 64 + 64) >> 2 = 36 by 128 is 18, plus half of each color.
        {"gray wash", 63, 0x80FFFFFF, 0x80402010, 0x8032221A},
        // 255 >> 2 = 63 by 255 is 62; 255 + 62 keeps its low byte.
        {"gray wash of a color above its alpha", 63, 0xFF000000, 0x00FF0000, 0x003D3E3E},
        {"destination-over", 34, 0xFF102030, 0x80404040, 0xFF485058},
        {"destination-over an opaque pixel", 75, 0xFF102030, 0xFF404040, 0xFF404040},
        // k = 128: 255 and 255; (255 + 1) / 2; (1 + 254) / 2 = 127.5; 128. Two truncated halves can lose one more.
        {"cross-fade", 60, 0xFFFF0180, 0xFF01FE80, 0xFF807F80, 127},
        {"mix color", 15, 0xFFFF0180, 0xFF01FE80, 0xFE7F7F80, 127},
        {"cross-fade by 0, of the low byte", 60, 0xFFFF0180, 0xFF01FE80, 0xFF01FE80, 0xABCDEF00},
        {"mix color by all", 15, 0xFFFF0180, 0xFF01FE80, 0xFFFF0180, 255},
        {"make opaque", 61, 0x00000000, 0x12345678, 0xFF345678},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ResultByModel(MeaningOf(c.slot), c.before, c.sample, c.argument), c.after) << c.name;
}

class EverySlot : public testing::TestWithParam<Subject> {
protected:
    EverySlot() {
        if (!GetParam().packedWeights) FillTables({});
    }
    ~EverySlot() override { InitKernelTable(); }
};

TEST_P(EverySlot, DrawsWhatTheModelDraws) {
    const auto& [slot, packedWeights] = GetParam();
    CaseImages images;
    ImageBytes got;
    // All widths, in all filter modes, and some of the longest rows and columns.
    for (int i = 0; i < 220; ++i) {
        const int number = i < 215 ? i : 4 * longestEvery * (i - 214) - 1;
        const Job job = MakeCase(slot, number, images);
        images.dst.Put(images.dstBytes);
        ASSERT_EQ(slot.run(packedWeights ? packedKernels : baselineKernels, job), 1);
        images.dst.Get(got);
        images.dst.Put(images.dstBytes);
        DrawByModel(MeaningOf(slot.slot), job);
        ASSERT_EQ(images.dst.DifferenceOf(got), "") << "case " << number << ": " << DescriptionOf(job);
    }
}

std::string NameOf(const testing::TestParamInfo<Subject>& info) {
    return (info.param.packedWeights ? "packed_slot" : "plain_slot") + std::to_string(info.param.slot.slot);
}
INSTANTIATE_TEST_SUITE_P(, EverySlot, testing::ValuesIn(AllSubjects()), NameOf);

// Of the length at which the processor's own loop takes over.
TEST(Kernels, FillLongRows) {
    for (const auto& [set, slot] : AllKernelCalls()) {
        if (slot.rows != Rows::solid || slot.op != Op::copy) continue;
        Image dst(9000, 1), wanted(9000, 1);
        wanted.Fill([](int, int) { return 0x12345678; });
        EXPECT_EQ(slot.run(*set.kernels, {dst.Info(), {}, {}, 0x12345678, 0}), 1);
        EXPECT_TRUE(SameBytes(dst, wanted)) << set.name;
    }
}

TEST(Kernels, LeaveEmptyDestinationsAlone) {
    Random random(1);
    for (const auto& [set, slot] : AllKernelCalls()) {
        Image dst(random, 5, 3), src(random, 5, 3, slot.bitsPixel);
        const Image before = dst;
        Job job{dst.Info(), {0, 0, 9, 9}, src.Info(), 0x12345678, 77};
        for (const int height : {-3, 0}) {
            if (height == 0 && slot.IsScaled() && !slot.takesPlacement) continue;  // it divides by its height
            job.dst.bmHeight = height;
            EXPECT_EQ(slot.run(*set.kernels, job), 1);
            EXPECT_TRUE(SameBytes(dst, before)) << set.name << ", slot " << slot.slot;
        }
    }
}

}  // namespace
}  // namespace zorvic

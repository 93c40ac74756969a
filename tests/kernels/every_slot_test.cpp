// The slow model against pixels worked by hand, and kernels against the model by zvcheck's numbered cases; zvcheck compares
// the other forms with these.
#include "checker.h"
#include "raster/lookup_tables.h"
#include "support/image.h"

namespace zorvic {
namespace {

using enum Rows;
using enum Op;

TEST(Model, LiteralPixels) {
    constexpr struct {
        const char* name;
        SlotMeaning slot;
        std::uint32_t sample, before, after, argument = 0;
    } cases[] = {
        // x scaled by k is x * k >> 8, never rounded.
        {"over", {unscaled, sourceOver}, 0x80404040, 0xFFFFFFFF, 0xFFBFBFBF},  // 255 * 128 >> 8 = 127
        {"over, not premultiplied: the words are added", {unscaled, sourceOver}, 0x80FFFFFF, 0x80808080, 0xC140403F},
        {"over, overshot: each channel stops", {bicubic, sourceOver}, 0x80FFFFFF, 0x80808080, 0xC0FFFFFF},
        {"opacity", {unscaled, constantAlpha}, 0xFFFFFFFF, 0xFF000000, 0xFF808080, 128},
        {"opacity 254 of opaque leaves a trace", {unscaled, constantAlpha}, 0xFFFFFFFF, 0xFF000000, 0xFFFEFEFE, 254},
        {"a source without alpha counts as opaque", {unscaled, opaqueAlpha}, 0x00FFFFFF, 0xFF000000, 0xFF808080, 128},
        {"key", {unscaled, colorKey}, 0x00123456, 0x87654321, 0x87654321, 0x00123456},
        {"opaque pixel of the key's color", {unscaled, colorKey}, 0xFF123456, 0x87654321, 0xFF123456, 0x00123456},
        {"multiply", {unscaled, multiply}, 0x80808080, 0xFFFFFFFF, 0x80808080},  // 129 * 255 >> 8 = 128
        // (16 + 64 + 64) >> 2 = 36 by 128 is 18, plus half of each color.
        {"gray wash", {solid, grayWash}, 0x80FFFFFF, 0x80402010, 0x8032221A},
        // 255 >> 2 = 63 by 255 is 62; 255 + 62 keeps its low byte.
        {"gray wash of a color above its alpha", {solid, grayWash}, 0xFF000000, 0x00FF0000, 0x003D3E3E},
        {"destination-over", {unscaled, destinationOver}, 0xFF102030, 0x80404040, 0xFF485058},
        // k = 128: 255 and 255; (255 + 1) / 2; (1 + 254) / 2 = 127.5; 128. Two truncated halves can lose one more.
        {"cross-fade", {unscaled, crossFade}, 0xFFFF0180, 0xFF01FE80, 0xFF807F80, 127},
        {"mix color", {solid, mixColor}, 0xFFFF0180, 0xFF01FE80, 0xFE7F7F80, 127},
        {"cross-fade by 0, of the low byte", {unscaled, crossFade}, 0xFFFF0180, 0xFF01FE80, 0xFF01FE80, 0xABCDEF00},
    };
    for (const auto& c : cases) EXPECT_EQ(ResultByModel(c.slot, c.before, c.sample, c.argument), c.after) << c.name;
}

void CheckAgainstModel(const Subject& subject) {
    const auto& [slot, packedWeights] = subject;
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
        DrawByModel(slot, job);
        ASSERT_EQ(images.dst.DifferenceOf(got), "") << "case " << number << ": " << DescriptionOf(job);
    }
}

TEST(EverySlot, DrawsWhatTheModelDraws) {
    for (const Subject& subject : AllSubjects()) {
        SCOPED_TRACE(testing::Message() << "slot " << subject.slot.slot << (subject.packedWeights ? "" : ", plain"));
        if (!subject.packedWeights) FillTables({});
        CheckAgainstModel(subject);
    }
    SetStretchKernelMode(1);
    InitKernelTable();
}

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
        job.dst.bmHeight = slot.IsScaled() && !slot.takesPlacement ? -3 : 0;  // these divide by it
        EXPECT_EQ(slot.run(*set.kernels, job), 1);
        EXPECT_TRUE(SameBytes(dst, before)) << set.name << ", slot " << slot.slot;
    }
}

}  // namespace
}  // namespace zorvic

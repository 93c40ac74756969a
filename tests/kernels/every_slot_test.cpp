// Kernels against the slow model, by zvcheck's numbered cases; zvcheck compares the other forms with these.
#include "checker.h"
#include "support/image.h"

namespace zorvic {
namespace {

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
        DrawByModel(slot.slot, job);
        ASSERT_EQ(images.dst.DifferenceOf(got), "") << "case " << number << ": " << DescriptionOf(job);
    }
}

std::string NameOf(const testing::TestParamInfo<Subject>& info) {
    return (info.param.packedWeights ? "packed_slot" : "plain_slot") + std::to_string(info.param.slot.slot);
}
INSTANTIATE_TEST_SUITE_P(, EverySlot, testing::ValuesIn(AllSubjects()), NameOf);

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

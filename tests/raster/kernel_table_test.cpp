// Which stage fills each slot of any processor's table, and what stands in the table of this one.
#include "raster/kernel_table.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "kernels/slot_calls.h"
#include "raster/lookup_tables.h"

namespace zorvic {
namespace {

// The slots that differ from the others: the stages that offer a kernel for them, the last one winning.
struct Offer {
    int slot;
    std::vector<Stage> stages;
};
const Offer offers[] = {
    {8, {Stage::baseline, Stage::mmx, Stage::sse, Stage::sse2}},
    {9, {Stage::baseline, Stage::sse2}},
    {10, {Stage::baseline, Stage::sse2}},
    {11, {Stage::baseline, Stage::sse2}},
    {16, {Stage::baseline, Stage::sse}},
    {20, {Stage::baseline, Stage::sse2}},
    {21, {Stage::baseline, Stage::sse2}},
    {22, {Stage::baseline, Stage::sse2}},
    {52, {Stage::baseline, Stage::mmx, Stage::primitives}},
    {59, {Stage::baseline, Stage::mmx, Stage::primitives}},
    {61, {Stage::baseline}},
    {63, {Stage::baseline}},
    {67, {Stage::baseline, Stage::sse}},
    {68, {Stage::baseline, Stage::mmx, Stage::sse}},
    {91, {Stage::baseline, Stage::mmx, Stage::sse, Stage::primitives}},
    {98, {Stage::baseline, Stage::mmx, Stage::primitives}},
};

TEST(KernelTable, EverySlotOfEveryProcessor) {
    for (int combination = 0; combination < 16; ++combination) {
        const CpuFeatures features{true, (combination & 1) != 0, (combination & 2) != 0, (combination & 4) != 0};
        const bool primitiveLayer = combination & 8;
        const bool available[] = {true, features.cpuHasMMX, features.cpuHasSSE, features.cpuHasSSE2, primitiveLayer};
        int count[5] = {};
        for (int slot = 0; slot < slotCount; ++slot) {
            const auto* offer = std::ranges::find(offers, slot, &Offer::slot);
            Stage wanted = Stage::baseline;
            for (const Stage stage :
                 offer == std::end(offers) ? std::vector{Stage::baseline, Stage::mmx} : offer->stages)
                if (available[static_cast<int>(stage)]) wanted = stage;
            const Stage got = StageOfSlot(slot, features, primitiveLayer);
            EXPECT_EQ(got, wanted) << "slot " << slot << ", combination " << combination;
            ++count[static_cast<int>(got)];
        }
        constexpr int slotsOfOneStage[] = {98, 5, 7, 4};
        for (int stage = 0; stage < 4; ++stage)
            if (combination == 1 << stage) {
                EXPECT_EQ(count[stage + 1], slotsOfOneStage[stage]);
            }
    }
}

TEST(KernelTable, IsReadyWhenTheProgramStarts) {
    EXPECT_TRUE(ProcessorFeatures.cpuFeaturesKnown);
    EXPECT_EQ(StretchFilterWeights[0], ProcessorFeatures.cpuHasMMX ? 0x2AAB2AAB : 171);
    EXPECT_EQ(ClampTable == MakeClampTable(), !ProcessorFeatures.cpuHasMMX) << "packed instructions saturate";
    const KernelSet made = MakeKernelTable(ProcessorFeatures);
    std::apply(
        [&](auto... entry) {
            const auto check = [&](auto slot) {
                EXPECT_NE(KernelTable.At(slot), nullptr) << slot.index;
                EXPECT_EQ(KernelTable.At(slot), made.At(slot)) << slot.index;
            };
            const auto checkAll = [&](auto group) {
                if constexpr (group.count == 1) {
                    check(group);
                } else {
                    for (const int bitsPixel : {8, 24, 32}) check(group[DepthOf(bitsPixel)]);
                }
            };
            (checkAll(entry), ...);
        },
        slots::all);
}

}  // namespace
}  // namespace zorvic

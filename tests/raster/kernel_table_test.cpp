// Which stage fills each slot of any processor's table, and what stands in the table of this one.
#include "raster/kernel_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "raster/lookup_tables.h"

namespace zorvic {
namespace {

// The slots unlike the others: which stages beside the baseline offer a kernel for them, the last one winning.
// m MMX, s SSE, S SSE2, p primitive layer.
struct Offer {
    int slot;
    std::string stages;
};
const Offer offers[] = {{8, "msS"}, {9, "S"},   {10, "S"}, {11, "S"}, {16, "s"}, {20, "S"},  {21, "S"},   {22, "S"},
                        {52, "mp"}, {59, "mp"}, {61, ""},  {63, ""},  {67, "s"}, {68, "ms"}, {91, "msp"}, {98, "mp"}};

TEST(KernelTable, EverySlotOfEveryProcessor) {
    const std::string letters = "msSp";
    for (std::size_t combination = 0; combination < 16; ++combination) {
        const auto has = [&](std::size_t stage) { return (combination >> stage & 1) != 0; };
        int count[5] = {};
        for (int slot = 0; slot < slotCount; ++slot) {
            const auto* offer = std::ranges::find(offers, slot, &Offer::slot);
            int wanted = 0;
            for (const char letter : offer == std::end(offers) ? "m" : offer->stages)
                if (has(letters.find(letter))) wanted = static_cast<int>(letters.find(letter)) + 1;
            const int got = static_cast<int>(StageOfSlot(slot, {true, has(0), has(1), has(2)}, has(3)));
            EXPECT_EQ(got, wanted) << "slot " << slot << ", combination " << combination;
            ++count[got];
        }
        // How many slots a stage takes when it is alone.
        constexpr int slotsOfStage[] = {98, 5, 7, 4};
        for (std::size_t stage = 0; stage < 4; ++stage)
            if (combination == 1U << stage) {
                EXPECT_EQ(count[stage + 1], slotsOfStage[stage]);
            }
    }
}

template <class Kernel>
void CheckInstalled(Slot<Kernel> slot) {
    EXPECT_NE(KernelTable.At(slot), nullptr) << slot.index;
    EXPECT_EQ(KernelTable.At(slot), MakeKernelTable(ProcessorFeatures, true).At(slot)) << slot.index;
}
template <class Kernel>
void CheckInstalled(Group<Kernel> group) {
    for (const int bitsPixel : {8, 24, 32}) CheckInstalled(group[DepthOf(bitsPixel)]);
}

TEST(KernelTable, IsReadyWhenTheProgramStarts) {
    EXPECT_TRUE(ProcessorFeatures.cpuFeaturesKnown);
    std::apply([](auto... entry) { (CheckInstalled(entry), ...); }, slots::all);
}

TEST(KernelTable, ComesWithTheTablesThatItsKernelsRead) {
    for (const bool mmx : {true, false}) {
        ClampTable = {};
        FillTables({true, mmx, false, false});
        EXPECT_EQ(StretchFilterWeights[0], mmx ? 0x2AAB2AAB : 171);
        EXPECT_EQ(ClampTable == MakeClampTable(), !mmx) << "packed instructions saturate";
    }
    InitKernelTable();
}

}  // namespace
}  // namespace zorvic

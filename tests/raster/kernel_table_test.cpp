// Which stage fills each slot of any processor's table, and the tables that come with it.
#include "raster/kernel_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "raster/lookup_tables.h"

namespace zorvic {
namespace {

// The slots unlike the others: which stages beside the baseline offer a kernel for them, the last one winning.
// m MMX, s SSE, S SSE2, r routed. The widest form stands between the last two, for all of them.
struct Offer {
    int slot;
    std::string stages;
};
const Offer offers[] = {{8, "msS"}, {9, "S"},   {10, "S"}, {11, "S"}, {16, "s"}, {20, "S"},  {21, "S"},   {22, "S"},
                        {52, "mr"}, {59, "mr"}, {61, ""},  {63, ""},  {67, "s"}, {68, "ms"}, {91, "msr"}, {98, "mr"}};

TEST(KernelTable, EverySlotOfEveryProcessor) {
    for (const auto level : {std::optional<Level>(), {Level::generic}, {Level::sse2}, {Level::avx512}})
        for (int combination = 0; combination < 8; ++combination)
            for (int slot = 0; slot < slotCount; ++slot) {
                const bool mmx = (combination & 1) != 0, sse = (combination & 2) != 0, sse2 = (combination & 4) != 0;
                const auto* const offer = std::ranges::find(offers, slot, &Offer::slot);
                const std::string stages = offer == std::end(offers) ? "m" : offer->stages;
                const auto offered = [&](char letter) { return stages.find(letter) != std::string::npos; };
                Stage wanted = Stage::baseline;
                if (mmx && offered('m')) wanted = Stage::mmx;
                if (sse && offered('s')) wanted = Stage::sse;
                if (sse2 && offered('S')) wanted = Stage::sse2;
                if (mmx && level > Level::generic) wanted = Stage::wide;
                if (level && offered('r')) wanted = Stage::routed;
                EXPECT_EQ(StageOfSlot(slot, {true, mmx, sse, sse2}, level), wanted)
                    << "slot " << slot << ", combination " << combination;
            }
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

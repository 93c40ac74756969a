// Every scenario and drawing with its first, second... allocation failing, until none fails any more: alone, or with all
// after it. Blocks lie before fences meanwhile, so that a use of what is not there, or no longer, ends the program.
#include <algorithm>

#include "failures/scenarios.h"
#include "support/allocations.h"
#include "vek/vekgraphic.h"

namespace failures {

namespace {

// Whether every channel of a pixel is on its way from one to another: outlines may be drawn in part.
bool IsBetween(DWORD pixel, DWORD from, DWORD to) {
    for (int shift = 0; shift < 32; shift += 8) {
        const auto channel = [shift](DWORD word) { return static_cast<int>(word >> shift & 0xFF); };
        const auto [low, high] = std::minmax({channel(from), channel(to)});
        if (channel(pixel) < low - 1 || channel(pixel) > high + 1) return false;
    }
    return true;
}

class AllocationFailures : public testing::Test {
protected:
    // For its first exception, and for the first that finds no memory, the C++ runtime needs some blocks for good.
    AllocationFailures() {
        for (const auto create : {+[] { return static_cast<void*>(CreateMemBitmap(1, 1)); },
                                  +[] { return static_cast<void*>(vekPathCreate()); }}) {
            allocations.FailAt(1, 2);
            EXPECT_EQ(create(), nullptr);
        }
        allocations.FailAt(0);
    }

    // Calls run with failing allocations, and check(failed) after each call and with nothing failing any more.
    template <class Run, class Check>
    void Sweep(Run run, Check check) {
        for (const int howMany : {1, Allocations::allLater}) {
            SCOPED_TRACE(howMany == 1 ? "alone" : "with all later ones");
            bool failed = true;
            for (int k = 1; failed && !HasFailure(); ++k) {
                SCOPED_TRACE("allocation " + std::to_string(k) + " fails");
                stage.Reset();
                allocations.FailAt(k, howMany);
                run();
                failed = allocations.HasFailed();
                allocations.FailAt(0);
                check(failed);
                stage.Reset();
            }
        }
    }

    Allocations allocations{true};
    Stage stage;
};

}  // namespace

TEST_F(AllocationFailures, OfScenariosLeakNothing) {
    for (const Scenario& scenario : Scenarios()) {
        if (HasFailure()) return;
        SCOPED_TRACE(scenario.name);
        const auto again = [&] {
            stage.Reset();
            EXPECT_TRUE(scenario.run(stage));
            stage.Reset();
        };
        for (int i = 0; i < 20; ++i) again();
        allocations.Restart();
        bool done = false;
        Sweep([&] { done = scenario.run(stage); },
              [&](bool failed) {
                  EXPECT_TRUE(failed || done);
                  again();
                  EXPECT_EQ(allocations.Outstanding(), "");
              });
    }
}

// What failed has drawn a part or nothing, and does well the next time.
TEST_F(AllocationFailures, OfDrawingsSpoilNoPixels) {
    const std::vector<DWORD> before = stage.Pixels();
    for (const Drawing& drawing : Drawings()) {
        for (std::size_t i = 0; i < Stage::canvasCount; ++i) {
            if (HasFailure()) return;
            SCOPED_TRACE(drawing.name + std::string(" on a canvas of kind ") + Stage::canvasNames[i]);
            int result = 0;
            const auto draw = [&] { result = drawing.draw(stage.Canvas(i), stage); };
            const auto drawn = [&] {
                stage.Reset();
                draw();
                return stage.Pixels();
            };
            const std::vector<DWORD> after = drawn();
            const int wantedResult = result;
            for (int n = 0; n < 20; ++n) drawn();
            allocations.Restart();
            Sweep(draw, [&](bool failed) {
                EXPECT_TRUE(result == wantedResult || (failed && result == 0));
                const std::vector<DWORD> got = stage.Pixels();
                for (std::size_t n = 0; n < got.size() && got.size() == before.size() && !HasFailure(); ++n)
                    EXPECT_TRUE(got[n] == after[n] || (failed && IsBetween(got[n], before[n], after[n])))
                        << "result " << result << std::hex << ", pixel " << n << ": " << before[n] << ", " << got[n]
                        << ", " << after[n];
                EXPECT_TRUE(drawn() == after) << "the next time";
                EXPECT_EQ(allocations.Outstanding(), "");
            });
        }
    }
}

}  // namespace failures

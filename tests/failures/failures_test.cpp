// Every export, and the scenarios, with the first, second... allocation failing, until none fails any more: alone, or with
// all after it. Blocks lie before fences meanwhile, so that a use of what is not there, or no longer, ends the program.
#include <algorithm>
#include <climits>

#include "calls/table.h"
#include "failures/scenarios.h"
#include "support/allocations.h"
#include "support/amount.h"
#include "vek/vekgraphic.h"

namespace failures {

using namespace calls;

namespace {

const int seeds = zorvic::Amount(4, 12);  // calls of each export

// Whether all pixels are as one or the other, or every byte on its way: outlines may be drawn in part.
bool IsBetween(const std::vector<std::byte>& got, const std::vector<std::byte>& from,
               const std::vector<std::byte>& to) {
    if (got == from || got == to) return true;
    if (got.size() != from.size() || got.size() != to.size()) return false;
    for (std::size_t i = 0; i < got.size(); ++i) {
        const auto [low, high] = std::minmax(std::to_integer<int>(from[i]), std::to_integer<int>(to[i]));
        const int byte = std::to_integer<int>(got[i]);
        if (byte < low - 1 || byte > high + 1) return false;
    }
    return true;
}

}  // namespace

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

    // run(k, howMany) checks what happens while allocations fail, and returns whether any did.
    template <class Run>
    void Sweep(Run run) {
        for (const int howMany : {1, Allocations::allLater}) {
            bool failed = true;
            // Beyond the 64th, ever fewer of them outside the soak run.
            for (int k = 1; failed && !HasFailure(); k += 1 + k / zorvic::Amount(64, INT_MAX)) {
                SCOPED_TRACE("allocation " + std::to_string(k) + " fails, " +
                             (howMany == 1 ? "alone" : "and all later"));
                EXPECT_EQ(allocations.LeftBy([&] { failed = run(k, howMany); }), "");
            }
        }
    }

    struct Outcome {
        std::vector<std::byte> before, after;
        std::uint64_t result = 0, again = 0;
        bool failed = false, halfDone = false;
    };
    // A call on a new pool whose objects are set up at random, and the same once more.
    Outcome Make(const Export& callee, int seed, int k, int howMany) {
        Outcome outcome;
        Pool pool;
        Random random(seed);
        for (int i = 0; i < 500; ++i) {
            const Export& setter = Exports()[random.Word() % Exports().size()];
            if (std::string_view(setter.name).starts_with("Set"))
                Call(setter, pool, Random(i + seed * 1000), {Absurd::nothing}).Run();
        }
        Call call(callee, pool, random, {Absurd::nothing}), again = call;
        call.before = [&] {
            outcome.before = pool.Pixels();
            allocations.FailAt(k, howMany);
        };
        call.after = [&] {
            outcome.failed = allocations.HasFailed();
            allocations.FailAt(0);
        };
        call.Run();
        outcome.result = call.result;
        outcome.after = pool.Pixels();
        again.Run();
        outcome.again = again.result;
        const std::string fault = again.Fault(pool), name = callee.name;
        // A host's bitmap whose conversion fails loses the pixels, but a canvas does not; the soft effects end with the
        // step that finds no memory, and a focus frame without a pen of its own is black.
        const bool lost = (name == "GetBitmapHandle" || name == "GetTextureHandle") &&
                          fault.find(": canvas") == fault.npos && fault.ends_with("has another size");
        outcome.halfDone = outcome.failed &&
                           (lost || name.starts_with("Light") || name.starts_with("Dark") || name == "GeoRectFocusEx");
        EXPECT_TRUE(outcome.halfDone || fault.empty()) << fault;
        return outcome;
    }

    Allocations allocations{true};
};

TEST_F(AllocationFailures, OfScenariosLeakNothing) {
    for (const Scenario& scenario : Scenarios()) {
        SCOPED_TRACE(scenario.name);
        Sweep([&](int k, int howMany) {
            allocations.FailAt(k, howMany);
            const bool done = scenario.run();
            const bool failed = allocations.HasFailed();
            allocations.FailAt(0);
            EXPECT_TRUE(failed || done);
            EXPECT_TRUE(scenario.run()) << "the next time";
            return failed;
        });
    }
}

// What failed has drawn a part or nothing, and does well the next time.
TEST_F(AllocationFailures, OfExportsSpoilNoPixels) {
    for (const Export& callee : Exports())
        for (int seed = 0; seed < seeds && !HasFailure(); ++seed) {
            SCOPED_TRACE(callee.name + std::string(", seed ") + std::to_string(seed));
            const Outcome wanted = Make(callee, seed, 0, 1);
            Sweep([&](int k, int howMany) {
                const Outcome got = Make(callee, seed, k, howMany);
                if (got.halfDone) return true;
                EXPECT_TRUE(got.result == wanted.result || (got.failed && got.result == 0)) << got.result;
                EXPECT_EQ(got.again, wanted.again) << "the next time";
                EXPECT_TRUE(got.before == wanted.before && IsBetween(got.after, wanted.before, wanted.after));
                return got.failed;
            });
        }
}

}  // namespace failures

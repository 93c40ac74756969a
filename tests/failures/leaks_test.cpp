// Calls and scenarios a great many times. Whatever stays behind is counted; in the soak run handles end at 65536, too.
#include <algorithm>

#include "calls/table.h"
#include "failures/scenarios.h"
#include "support/allocations.h"
#include "support/amount.h"

namespace failures {

using namespace calls;
using zorvic::Amount;

namespace {

// The backend has what it keeps after some of the rounds.
template <class Round>
void Cycle(const char* name, int rounds, Round round) {
    SCOPED_TRACE(name);
    Allocations allocations;
    for (int i = 0; i < rounds && !testing::Test::HasFailure(); ++i) {
        if (i == std::min(rounds / 4, 300)) allocations.Restart();
        EXPECT_TRUE(round(i)) << "round " << i;
    }
    EXPECT_EQ(allocations.Outstanding(), "");
}

// Every one of some exports so many times, in turn, on one pool after another.
void CycleOf(const char* name, int calls, bool (*isWanted)(const Export& callee)) {
    std::vector<const Export*> callees;
    for (const Export& callee : Exports())
        if (isWanted(callee)) callees.push_back(&callee);
    constexpr int callsOfPool = 100;
    Cycle(name, calls / callsOfPool, [&](int) {
        Pool pool;
        for (int i = 0; i < callsOfPool; ++i)
            for (const Export* callee : callees) Call(*callee, pool, Random(i), {Absurd::nothing}).Run();
        return pool.Check().empty();
    });
}

}  // namespace

TEST(Leaks, NothingStaysBehindAfterLongCycles) {
    for (const Scenario& scenario : Scenarios())
        Cycle(scenario.name, Amount(std::clamp(scenario.cycles / 20, 20, 1000), scenario.cycles),
              [&](int) { return scenario.run(); });
    CycleOf("exports that return handles", Amount(3000, 70000),
            [](const Export& callee) { return callee.returnsHandle; });
    CycleOf("all exports", Amount(500, 5000), [](const Export&) { return true; });
}

}  // namespace failures

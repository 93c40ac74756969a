// Scenarios and drawings a great many times. Whatever stays behind is counted, and handles end at 65536.
#include <algorithm>

#include "failures/scenarios.h"
#include "support/allocations.h"

namespace failures {

namespace {

constexpr int warmUp = 300;  // the backend has what it keeps by then

template <class Round>
void Cycle(const char* name, int cycles, Round round) {
    SCOPED_TRACE(name);
    Allocations allocations;
    for (int i = 0; i < cycles && !testing::Test::HasFailure(); ++i) {
        if (i == std::min(warmUp, cycles / 4)) allocations.Restart();
        EXPECT_TRUE(round(i)) << "round " << i;
    }
    EXPECT_EQ(allocations.Outstanding(), "");
}

}  // namespace

TEST(Leaks, NothingStaysBehindAfterLongCycles) {
    Stage stage;
    for (const Scenario& scenario : Scenarios())
        Cycle(scenario.name, scenario.cycles, [&](int) { return scenario.run(stage); });
    for (std::size_t kind = 0; kind < Stage::canvasCount; ++kind)
        Cycle(Stage::canvasNames[kind], kind == 0 ? 70000 : 33000, [&](int i) {
            const Drawing& drawing = Drawings()[static_cast<std::size_t>(i) % Drawings().size()];
            const host::OwnedCanvas canvas = stage.NewCanvas(kind);
            return canvas && drawing.draw(canvas.get(), stage) >= 0;
        });
}

}  // namespace failures

// Sixteen threads at once, each on surfaces of its own, draw what one draws alone.
#include <numeric>
#include <thread>

#include "failures/scenarios.h"

namespace failures {

namespace {

constexpr int threads = 16, rounds = 8192;

DWORD Sum(const Stage& stage) {
    const std::vector<DWORD> pixels = stage.Pixels();
    return std::accumulate(pixels.begin(), pixels.end(), DWORD{0},
                           [](DWORD sum, DWORD pixel) { return sum * 16777619 + pixel; });
}

// Every drawing on one canvas after another, and the quick scenarios in between; the sum of what is seen and returned.
DWORD Play(int seed) {
    Stage stage;
    const auto scenarios = Scenarios();
    const auto drawings = Drawings();
    DWORD sum = 0;
    for (int i = 0; i < rounds; ++i) {
        const auto n = static_cast<std::size_t>(i + seed);
        if (i % 256 == 0) {
            sum = sum * 31 + Sum(stage);
            stage.Reset();
        }
        const Scenario& scenario = scenarios[n % scenarios.size()];
        if (i % 8 == 0 && scenario.cycles >= 33000) sum += scenario.run(stage);
        drawings[n % drawings.size()].draw(stage.Canvas(n / drawings.size() % Stage::canvasCount), stage);
    }
    return sum * 31 + Sum(stage);
}

}  // namespace

TEST(Threads, DrawTheSameSideBySide) {
    DWORD wanted[threads], got[threads];
    for (int i = 0; i < threads; ++i) wanted[i] = Play(i);
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) running.emplace_back([&got, i] { got[i] = Play(i); });
    for (std::thread& each : running) each.join();
    for (int i = 0; i < threads; ++i) EXPECT_EQ(got[i], wanted[i]) << "thread " << i;
}

}  // namespace failures

// Sixteen threads at once, each on objects of its own, draw what one draws alone.
#include <thread>

#include "calls/table.h"
#include "support/allocations.h"
#include "support/amount.h"

namespace failures {

using namespace calls;

namespace {

constexpr int threads = 16;
const int rounds = zorvic::Amount(1024, 8192);

// Random calls of all exports but the two that change a setting of the whole process; the sum of what they return and of
// all pixels.
std::uint64_t Play(Pool& pool, int seed) {
    std::uint64_t sum = 0;
    for (int i = 0; i < rounds; ++i) {
        Random random(seed * rounds + i);
        const Export& callee = Exports()[random.Word() % Exports().size()];
        const std::string_view name = callee.name;
        if (name == "RegisterD2DResoureMgr" || name == "SetStretchKernelMode") continue;
        Call call(callee, pool, random, {Absurd::nothing});
        call.processor.reset();
        call.Run();
        sum = Mixed(sum, call.result);
        if (i % 256 == 0) sum = Mixed(sum, pool.Checksum());
    }
    return sum;
}

}  // namespace

TEST(Threads, DrawTheSameSideBySide) {
    const Allocations fenced(true);  // and all undefined pixels are the same
    std::uint64_t wanted[threads], got[threads];
    for (int i = 0; i < threads; ++i) {
        Pool pool;
        wanted[i] = Play(pool, i);
    }
    Pool pools[threads];
    std::vector<std::thread> running;
    for (int i = 0; i < threads; ++i) running.emplace_back([&, i] { got[i] = Play(pools[i], i); });
    for (std::thread& each : running) each.join();
    for (int i = 0; i < threads; ++i) EXPECT_EQ(got[i], wanted[i]) << "thread " << i;
}

}  // namespace failures

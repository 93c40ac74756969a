#include "calls/sequence.h"

#include <iostream>

#include "support/allocations.h"
#include "support/amount.h"

namespace calls {

namespace {

// Runs calls, under a guarding allocator, until one is at fault.
std::string FaultOf(const std::function<std::string()>& run) {
    static Allocations allocations(true);
    std::string fault;
    const std::string left = allocations.LeftBy([&] { fault = run(); });
    return fault.empty() && !left.empty() ? "not given back: " + left : fault;
}

const Call* current = nullptr;

// What asks for more works in proportion to a number that it was given. A path has up to 2^17 dashes, which may take the
// backend two allocations each; everything else needs less than a hundred.
constexpr long long mostAllocations = 1 << 18, mostBytes = 64 << 20;

std::string FaultOf(Call& call, const Pool& pool) {
    current = &call;
    const Allocations::Amounts before = Allocations::Requested();
    call.Run();
    const Allocations::Amounts after = Allocations::Requested();
    current = nullptr;
    const long long allocations = after.allocations - before.allocations, bytes = after.bytes - before.bytes;
    if (allocations > mostAllocations || bytes > mostBytes)
        return call.arguments.Text() + ": makes " + std::to_string(allocations) + " allocations, of " +
               std::to_string(bytes) + " bytes";
    return call.Fault(pool);
}

std::string Run(int seed, const Replay& replay, const Processor* state, std::uint64_t& checksum) {
    Pool pool;
    checksum = 0;
    for (int i = 0; i < callsOfSequence; ++i) {
        if (replay.only && !replay.only->contains(i)) continue;
        Random random(seed * callsOfSequence + i);
        const Export& callee = Exports()[random.Word() % Exports().size()];
        const Processor usual{random.Below(4) * 4};
        Call call(callee, pool, random, {state ? Absurd::numbers : Absurd::anything});
        call.processor = state ? *state : usual;
        if (replay.trace) call.before = [&] { std::cout << i << ": " << call.arguments.Text() << std::endl; };
        if (const std::string fault = FaultOf(call, pool); !fault.empty())
            return "call " + std::to_string(i) + ", " + fault;
        checksum = Mixed(Mixed(checksum, call.result), call.arguments.Checksum());
    }
    checksum = Mixed(checksum, pool.Checksum());
    return {};
}

}  // namespace

std::string CurrentCall() { return current ? current->arguments.Text() : ""; }

std::string FaultOfSequence(int seed, const Replay& replay) {
    std::uint64_t checksum, usual = 0;
    if (!replay.allStates) return FaultOf([&] { return Run(seed, replay, nullptr, checksum); });
    // Precision of 64, 24 and 53 bits; then invalid numbers, divisions by 0 and overflows are not masked, as by some hosts'
    // runtimes (GDI's own arithmetic cannot stand that with absurd integers); at last numbers are rounded up.
    constexpr Processor states[] = {{0}, {4, 0x007F}, {8, 0x027F}, {12, 0x0372, 0x1900}, {0, 0x0B7F, 0x5F80}};
    for (const Processor& state : states) {
        std::string fault = FaultOf([&] { return Run(seed, replay, &state, checksum); });
        if (&state == states) usual = checksum;
        if (fault.empty() && checksum != usual) fault = "other results";
        if (!fault.empty()) return fault + " (state " + std::to_string(&state - states) + ")";
    }
    return {};
}

std::string FaultOfEdges(int place) {
    const Export& callee = Exports()[static_cast<std::size_t>(place)];
    for (int parameter = 0; parameter < static_cast<int>(callee.isRect.size()); ++parameter) {
        if (!callee.isRect[static_cast<std::size_t>(parameter)]) continue;
        const std::string fault = FaultOf([&]() -> std::string {
            Pool pool;
            for (int number = 0; number < edgeRects; number += zorvic::Amount(5, 1)) {
                Random random(number);
                Call call(callee, pool, random, {Absurd::nothing, parameter, number});
                if (const std::string wrong = FaultOf(call, pool); !wrong.empty()) return wrong;
                if (number % edges == 0) pool.ChangeOperations(random);
            }
            return {};
        });
        if (!fault.empty()) return fault;
    }
    return {};
}

}  // namespace calls

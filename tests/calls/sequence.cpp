#include "calls/sequence.h"

#include <iostream>

#include "calls/stopwatch.h"
#include "calls/table.h"
#include "support/allocations.h"

namespace calls {

namespace {

std::string FaultOf(const Call& call, const Pool& pool, const Stopwatch& time) {
    if (call.broken) return std::string("changed the processor's state: ") + call.broken;
    if (!call.arguments.FencesAreIntact()) return "wrote before the host's memory";
    if (time.SaysTooLong()) return "took more than five seconds";
    return pool.Check();
}

SequenceResult RunOnce(int seed, const Replay& replay) {
    static Fences fences;
    SequenceResult result;
    Pool pool;
    Stopwatch time(5);
    for (int i = 0; i < callsOfSequence; ++i) {
        if (replay.only && !replay.only->contains(i)) continue;
        Random random(seed * callsOfSequence + i);
        const Export& callee = Exports()[random.Word() % Exports().size()];
        Call call{callee, Arguments(pool, fences, callee.name, random, {replay.absurd})};
        call.processor.stackResidue = random.Below(4) * 4;
        if (replay.processor) call.processor = *replay.processor;
        if (replay.trace) call.announce = [&](const std::string& text) { std::cout << i << ": " << text << std::endl; };
        time.Restart();
        callee.run(call);
        const std::string fault = FaultOf(call, pool, time);
        if (!fault.empty()) {
            result.fault = "call " + std::to_string(i) + ", " + call.arguments.Text() + ": " + fault;
            return result;
        }
        result.checksum = Mixed(Mixed(result.checksum, call.checksum), call.arguments.Checksum());
    }
    result.checksum = Mixed(result.checksum, pool.Checksum());
    return result;
}

}  // namespace

SequenceResult RunSequence(int seed, const Replay& replay) {
    static Allocations allocations(true);
    SequenceResult result;
    std::string left;
    // What the backend keeps for later draws it does not keep once more when they are repeated.
    for (int attempt = 0; attempt < 3 && result.fault.empty(); ++attempt) {
        allocations.Restart();
        result = RunOnce(seed, replay);
        left = allocations.Outstanding();
        if (left.empty()) return result;
    }
    if (result.fault.empty()) result.fault = "not given back: " + left;
    return result;
}

SequenceResult RunSequenceInAllStates(int seed, const Replay& replay) {
    // Precision of 64, 24 and 53 bits; then invalid numbers, divisions by 0 and overflows are not masked, as by some hosts'
    // runtimes. GDI's own arithmetic cannot stand that with absurd integers.
    constexpr Processor states[] = {{0}, {4, 0x007F}, {8, 0x027F}, {12, 0x0372, 0x1900}};
    std::optional<SequenceResult> usual;
    for (const Processor& state : states) {
        Replay inState = replay;
        inState.processor = state;
        inState.absurd = Absurd::numbers;
        SequenceResult result = RunSequence(seed, inState);
        if (!usual) usual = result;
        if (result.fault.empty() && result.checksum != usual->checksum) result.fault = "other results";
        if (result.fault.empty()) continue;
        result.fault += " (state " + std::to_string(&state - states) + ")";
        return result;
    }
    return *usual;
}

}  // namespace calls

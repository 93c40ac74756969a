// Random calls of random exports on one pool of objects.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "calls/arguments.h"
#include "calls/processor.h"

namespace calls {

inline constexpr int callsOfSequence = 200;

// What to do with a sequence besides running it.
struct Replay {
    std::optional<std::set<int>> only;  // the calls that are made; all of them
    bool trace = false;                 // whether each call is printed before it is made
    Absurd absurd = Absurd::anything;
    std::optional<Processor> processor;  // for all calls; else the stack pointer is random, and the rest as usual
};

struct SequenceResult {
    std::uint64_t checksum = 0;  // of what the calls returned and of all pixels at the end
    std::string fault;           // the first one; empty, none
};

// A call has the same arguments whatever calls are left out before it, as far as the objects allow.
SequenceResult RunSequence(int seed, const Replay& replay = {});

// The same under processors in other states, which must make no difference.
SequenceResult RunSequenceInAllStates(int seed, const Replay& replay = {});

}  // namespace calls

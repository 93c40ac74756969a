// Calls of exports on a pool of objects, one after the other: random ones of random exports, and all edge rectangles.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "calls/table.h"

namespace calls {

inline constexpr int callsOfSequence = 200;

// What to do with a sequence besides running it.
struct Replay {
    std::optional<std::set<int>> only{};  // the calls that are made; all of them
    bool trace = false;                   // whether each call is printed before it is made
    bool allStates = false;  // whether it runs under processors in several states, which make no difference
};

// Both return the first fault; empty, there is none. A call of a sequence has the same arguments whatever calls are left
// out before it, as far as the objects allow.
std::string FaultOfSequence(int seed, const Replay& replay);

// Calls an export, by its place in the table, with all combinations of edge values in each of its rectangles; everything
// else is valid.
std::string FaultOfEdges(int place);

// The one that they are making.
std::string CurrentCall();

}  // namespace calls

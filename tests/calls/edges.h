// Every parameter that is a rectangle, with edge values in all four members.
#pragma once

#include <string>

namespace calls {

// Calls an export, by its place in the table, with all combinations in each of its rectangles; everything else is valid.
// Returns the first fault; empty, none. trace: each call is printed before it is made.
std::string FaultOfEdges(int place, bool trace);

}  // namespace calls

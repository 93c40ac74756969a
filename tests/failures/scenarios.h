// What no single call of an export reaches: several calls in a row, large and dense shapes, the backend's own interface.
#pragma once

#include <span>

namespace failures {

// Makes, uses and ends objects. True: all of it worked.
struct Scenario {
    const char* name;
    bool (*run)();
    int cycles;  // in tests of leaks
};
std::span<const Scenario> Scenarios();

}  // namespace failures

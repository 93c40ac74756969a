// What hosts do, as functions for machines that repeat it under one condition or another.
#pragma once

#include <span>

#include "failures/stage.h"

namespace failures {

// Makes, uses and ends objects. True: all of it worked.
struct Scenario {
    const char* name;
    bool (*run)(Stage& stage);
    int cycles = 70000;  // in tests of leaks
};

// One call that draws on a canvas. Its result is the call's.
struct Drawing {
    const char* name;
    int (*draw)(HGCANVAS canvas, Stage& stage);
};

std::span<const Scenario> Scenarios();
std::span<const Drawing> Drawings();

}  // namespace failures

// Timing of jobs in turns, so that what disturbs the machine disturbs all of them.
#pragma once

#include <vector>

#include "contenders.h"

namespace bench {

struct Rounds {
    int count;
    double seconds;             // the least length of one
    bool restoresRuns = false;  // every run starts with what restore makes, not every turn only
};

// Seconds for one run of a job in each round; as many values as rounds, in their order.
using Times = std::vector<double>;

// One round of each job after the other. Before every turn restore runs and the job once, not timed, with nothing left
// in the vector registers of the turn before. Empty jobs have no times.
std::vector<Times> Measure(const std::vector<Job>& jobs, const Job& restore, const Rounds& rounds);

// The least time of a few short rounds.
double LeastSeconds(const Job& job);

double Median(Times times);
double Least(const Times& times);
double MedianRatio(const Times& times, const Times& others);  // of the rounds' ratios

}  // namespace bench

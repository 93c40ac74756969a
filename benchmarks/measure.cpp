// Rounds and medians.
#include "measure.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "vector_state.h"

namespace bench {

namespace {

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

// prepare, if any, runs before each run and is not timed.
double SecondsOf(const Job& job, int runs, const Job& prepare) {
    double seconds = 0;
    const auto start = Clock::now();
    for (int i = 0; i < runs; ++i) {
        if (!prepare) {
            job();
            continue;
        }
        prepare();
        const auto runStart = Clock::now();
        job();
        seconds += SecondsSince(runStart);
    }
    return prepare ? seconds : SecondsSince(start);
}

// How often a job has to run to fill a round.
int RunsFor(const Job& job, double seconds, const Job& prepare) {
    int runs = 1;
    for (;;) {
        const double taken = std::min(SecondsOf(job, runs, prepare), SecondsOf(job, runs, prepare));
        if (taken >= seconds) return runs;
        // Short times are too coarse to be trusted.
        const double wanted = taken > seconds / 50 ? std::ceil(runs * seconds * 1.05 / taken) : runs * 10.0;
        runs = static_cast<int>(std::max(wanted, runs + 1.0));
    }
}

}  // namespace

std::vector<Times> Measure(const std::vector<Job>& jobs, const Job& restore, const Rounds& rounds) {
    const Job prepare = rounds.restoresRuns ? restore : Job{};
    std::vector<int> runs;
    for (const Job& job : jobs) runs.push_back(job ? RunsFor(job, rounds.seconds, prepare) : 0);
    std::vector<Times> times(jobs.size());
    for (int round = 0; round < rounds.count; ++round)
        for (std::size_t i = 0; i < jobs.size(); ++i) {
            if (!jobs[i]) continue;
            restore();
            ForgetUpperHalves();
            jobs[i]();
            times[i].push_back(SecondsOf(jobs[i], runs[i], prepare) / runs[i]);
        }
    return times;
}

double LeastSeconds(const Job& job) {
    return Least(Measure({job}, [] {}, {5, 0.0002})[0]);
}

double Median(Times times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

double Least(const Times& times) { return *std::min_element(times.begin(), times.end()); }

double MedianRatio(const Times& times, const Times& others) {
    Times ratios;
    for (std::size_t i = 0; i < times.size(); ++i) ratios.push_back(times[i] / others[i]);
    return Median(ratios);
}

}  // namespace bench

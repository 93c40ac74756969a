// The pixels around a place in a row or column of n: before of them, the place itself and after. Outside, the ends are
// repeated; more than n repetitions on a side show nothing new.
#pragma once

#include <algorithm>
#include <cstddef>

namespace zorvic {

struct Window {
    Window(int box, int extent)
        : before(box / 2),
          after(box - 1 - box / 2),
          n(extent),
          repeatedBefore(std::min(before, n)),
          repeatedAfter(std::min(after, n)) {}

    // What leaves and what enters when the window moves from place i to the next.
    int Leaving(int i) const { return std::max(i - before, 0); }
    int Entering(int i) const { return i < n - 1 - after ? i + after + 1 : n - 1; }

    // Calls add(index, times) for all that the window around place 0 holds.
    template <class Add>
    void ForFirst(const Add& add) const {
        add(0, before + 1);
        for (int i = 1; i < std::min(after + 1, n); ++i) add(i, 1);
        if (after >= n) add(n - 1, after - n + 1);
    }

    int before, after, n, repeatedBefore, repeatedAfter;
};

}  // namespace zorvic

// The box filter along a row for boxes whose sums need 64 bits. From one box to the next the sums of large boxes change by
// less than a mean is worth, so that no mean but the first of a row takes a division.
#pragma once

#include <cstdint>

#include "pixel/box_window.h"

namespace zorvic {

// The sums of four channels divided by the area of their box, as sums that change: remainders are kept from 0 to area - 1.
template <class Sums>
class LargeBoxMeans {
public:
    using Number = typename Sums::Number;

    LargeBoxMeans(const Number sums[4], Number boxArea)
        : area(Sums::Repeat(boxArea)), largestRemainder(Sums::Repeat(boxArea - 1)) {
        Number means[4], rests[4];
        for (int c = 0; c < 4; ++c) {
            means[c] = sums[c] / boxArea;
            rests[c] = sums[c] - means[c] * boxArea;
        }
        quotients = Sums::Load(means);
        remainders = Sums::Load(rests);
    }

    // By less than the area, up or down.
    void Change(Sums difference) {
        remainders = remainders + difference;
        const Sums below = Signs(remainders);
        remainders = remainders + (below & area);
        const Sums above = Signs(largestRemainder - remainders);
        remainders = remainders - (above & area);
        quotients = quotients + below - above;
    }
    void Store(std::uint32_t* pixel) const { quotients.StorePixel(pixel); }

private:
    Sums area, largestRemainder, quotients, remainders;
};

// columns: the sums of each column's box, four channels each.
template <class Sums>
void MeansOfLargeBoxes(const typename Sums::Number* columns, const Window& window, typename Sums::Number area,
                       std::uint32_t* out) {
    using Number = typename Sums::Number;
    const auto column = [=](int x) { return columns + std::ptrdiff_t{4} * x; };
    Number first[4];
    for (int c = 0; c < 4; ++c) {
        first[c] = area / 2;
        window.ForFirst([&](int x, int times) {
            first[c] = first[c] + static_cast<Number>(static_cast<unsigned>(times)) * column(x)[c];
        });
    }
    LargeBoxMeans<Sums> means(first, area);
    for (int x = 0; x < window.n; ++x) {
        means.Store(out + x);
        means.Change(Sums::Load(column(window.Entering(x))) - Sums::Load(column(window.Leaving(x))));
    }
}

}  // namespace zorvic

// The source columns that the pixels of a block show, found once for all rows of the block.
#pragma once

#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

// How many vectors of neighbouring source pixels hold what one vector shows; 0 means look for each pixel.
enum class Reach { anywhere = 0, oneVector = 1, twoVectors = 2 };

template <Form V, std::size_t blockWidth>
class Columns {
public:
    // columnOf(i), i from 0 to n - 1, ascends. Whole vectors are prepared: the last column is repeated.
    template <class Function>
    void Prepare(int n, int sourceWidth, Function columnOf) {
        for (int i = 0; i < n; ++i) columns[i] = columnOf(i);
        for (int i = n; i % V::lanes != 0; ++i) columns[i] = columns[n - 1];
        lastWindow = sourceWidth - V::lanes;
        int span = 0;
        for (int i = 0; i < n; i += V::lanes) {
            const int width = columns[i + V::lanes - 1] - columns[i];
            if (width > span) span = width;
        }
        reach = lastWindow < 0 || span >= 2 * V::lanes ? Reach::anywhere
                : span < V::lanes                      ? Reach::oneVector
                                                       : Reach::twoVectors;
    }

    Reach ReachOfAll() const { return reach; }
    int operator[](int i) const { return columns[i]; }

    template <Reach how>
    V Pick(const std::uint32_t* row, int i) const {
        return V::template Pick<static_cast<int>(how)>(row, columns + i, lastWindow);
    }

private:
    alignas(64) int columns[blockWidth];
    int lastWindow = 0;
    Reach reach = Reach::anywhere;
};

// Calls f<how>() for a way that suits all of the columns.
template <Form V, class Function>
void WithReach(Reach how, const Function& f) {
    if constexpr (V::picksFromWindows) {
        if (how == Reach::oneVector) return f.template operator()<Reach::oneVector>();
        if (how == Reach::twoVectors) return f.template operator()<Reach::twoVectors>();
    }
    f.template operator()<Reach::anywhere>();
}

constexpr Reach Wider(Reach a, Reach b) {
    if (a == Reach::anywhere || b == Reach::anywhere) return Reach::anywhere;
    return a > b ? a : b;
}

// make(i) for the vectors of n pixels.
template <Form V, class Function>
void StoreVectors(std::uint32_t* out, int n, const Function& make) {
    int i = 0;
    for (; i <= n - V::lanes; i += V::lanes) make(i).Store(out + i);
    if (i < n) make(i).StorePart(out + i, n - i);
}

}  // namespace
}  // namespace zorvic

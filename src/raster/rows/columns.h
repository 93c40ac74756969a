// The source columns that the pixels of a block show, found once for all rows of the block.
#pragma once

#include "pixel/spans_inl.h"
#include "raster/rows/pixel.h"

namespace zorvic {
namespace {

// How many vectors of neighbouring source pixels hold what one vector shows; 0 means look for each pixel.
enum class Reach { anywhere = 0, oneVector = 1, twoVectors = 2 };

template <Form V, std::size_t blockWidth>
class Columns {
public:
    // First the column of each pixel, in ascending order and by a step of 16.16 pixels, but for the edges.
    void Set(int i, int column) { lane[i] = column; }

    // Then all n of them, for rows of sourceWidth pixels and picks that reach `beyond` pixels to the right. Whole vectors
    // are prepared: the last column is repeated.
    void Prepare(int n, int sourceWidth, int beyond, std::int64_t step) {
        for (int i = n; i % V::lanes != 0; ++i) lane[i] = lane[n - 1];
        if constexpr (V::picksFromWindows) reach = ReachOf(step);
        const int window = static_cast<int>(reach) * V::lanes;
        copiedWidth = window + beyond > sourceWidth ? sourceWidth : 0;
        // Windows end inside the row.
        const int lastStart = window == 0 || copiedWidth > 0 ? 0 : sourceWidth - window - beyond;
        for (int i = 0; i < n; i += V::lanes) {
            const int first = lane[i] < lastStart ? lane[i] : lastStart;
            start[i / V::lanes] = first;
            for (int k = 0; k < V::lanes; ++k) lane[i + k] -= first;
        }
    }

    // A row as it can be picked from: rows narrower than a window are copied.
    using RowCopy = std::uint32_t[2 * V::lanes + 1];
    const std::uint32_t* Readable(const std::uint32_t* row, RowCopy& copy) const {
        if (!V::picksFromWindows || copiedWidth == 0) return row;
        ApplySpan<V>(Copy{}, copy, row, copiedWidth);
        return copy;
    }

    Reach ReachOfAll() const { return reach; }
    int operator[](int i) const { return start[i / V::lanes] + lane[i]; }

    // The pixels of vector k.
    template <Reach how>
    V Pick(const std::uint32_t* row, int k) const {
        return V::template Pick<static_cast<int>(how)>(row + start[k], lane + k * V::lanes);
    }

    // Each of them and its right neighbour.
    template <Reach how>
    void PickPairs(const std::uint32_t* row, int k, V& left, V& right) const {
        V::template PickPairs<static_cast<int>(how)>(row + start[k], lane + k * V::lanes, left, right);
    }

private:
    static Reach ReachOf(std::int64_t step) {
        const std::int64_t widest = ((V::lanes - 1) * step >> 16) + 2;
        if (widest <= V::lanes) return Reach::oneVector;
        return widest <= 2 * V::lanes ? Reach::twoVectors : Reach::anywhere;
    }

    // Column i is lane[i] pixels behind the start of its vector's window.
    alignas(64) int lane[blockWidth];
    int start[blockWidth / V::lanes];
    int copiedWidth = 0;
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

// make(k) for the vectors of n pixels.
template <Form V, class Function>
void StoreVectors(std::uint32_t* out, int n, const Function& make) {
    // One place for make, so that it is compiled into the loop.
    for (int k = 0; n > 0; ++k, out += V::lanes, n -= V::lanes) {
        const V v = make(k);
        if (n >= V::lanes) {
            v.Store(out);
        } else {
            v.StorePart(out, n);
        }
    }
}

}  // namespace
}  // namespace zorvic

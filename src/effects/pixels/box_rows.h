// The two steps of the 3 x 3 box along a row. The last vector may overlap the one before it.
#pragma once

#include "pixel/forms/baseline.h"

namespace zorvic {
namespace {

// Columns first..end - 1, which have two neighbours.
template <Form V>
void SumInner(const std::uint32_t* row, int first, int end, std::uint32_t* sums, int plane) {
    if constexpr (V::lanes > 1)
        if (end - first < V::lanes) return SumInner<Baseline>(row, first, end, sums, plane);
    const auto sum = [=](int x) {
        const auto three = Widened(V::Load(row + x - 1)) + Widened(V::Load(row + x)) + Widened(V::Load(row + x + 1));
        StoreWide(three, sums + x, sums + plane + x);
    };
    if (first >= end) return;
    for (int x = first; x < end - V::lanes; x += V::lanes) sum(x);
    sum(end - V::lanes);
}

template <Form V>
void SumNeighbors(const std::uint32_t* row, int n, std::uint32_t* sums, int plane) {
    [[maybe_unused]] const typename V::Guard guard;
    SumInner<V>(row, 1, n - 1, sums, plane);
    const auto sumEnd = [=](int x, int left, int right) {
        const auto sum = Widened(Baseline::Load(row + left)) + Widened(Baseline::Load(row + x)) +
                         Widened(Baseline::Load(row + right));
        StoreWide(sum, sums + x, sums + plane + x);
    };
    sumEnd(0, 0, n > 1 ? 1 : 0);
    sumEnd(n - 1, n > 1 ? n - 2 : 0, n - 1);
}

template <Form V>
void MeanOfNine(const std::uint32_t* above, const std::uint32_t* here, const std::uint32_t* below, int plane,
                std::uint32_t* dst, int count) {
    if constexpr (V::lanes > 1)
        if (count < V::lanes) return MeanOfNine<Baseline>(above, here, below, plane, dst, count);
    [[maybe_unused]] const typename V::Guard guard;
    const auto mean = [=](int x) {
        const auto sum = V::LoadWide(above + x, above + plane + x) + V::LoadWide(here + x, here + plane + x) +
                         V::LoadWide(below + x, below + plane + x);
        LowBytes(HighProducts(sum, 7282)).Store(dst + x);  // a ninth: exact up to 16383
    };
    for (int x = 0; x < count - V::lanes; x += V::lanes) mean(x);
    mean(count - V::lanes);
}

}  // namespace
}  // namespace zorvic

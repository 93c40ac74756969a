// The two steps of the box filter along a row, for sums of any width.
#pragma once

#include <cstring>

#include "pixel/forms/sums.h"

namespace zorvic {
namespace {

// Moves the box of every column to the next row: n pixels.
template <ChannelSums S>
void SlideColumns(typename S::Number* columns, const std::uint32_t* entering, const std::uint32_t* leaving, int n) {
    for (int x = 0; x + S::pixels <= n; x += S::pixels, columns += 4 * S::pixels)
        (S::Load(columns) + (S::FromPixels(entering + x) - S::FromPixels(leaving + x))).Store(columns);
    if constexpr (S::pixels > 1) {
        using One = typename S::OnePixel;
        const int done = n / S::pixels * S::pixels;
        SlideColumns<One>(columns, entering + done, leaving + done, n - done);
    }
}

// The means of n boxes along a row of column sums that starts with the first box's first column. start: what each
// channel's sum has before the first column is added. Reads up to 2 x S::pixels columns behind the last box.
template <ChannelSums S>
void BoxMeans(const typename S::Number* columns, int box, const typename S::Number* start, typename S::Divider divider,
              std::uint32_t* out, int n) {
    S sums = S::Repeat(start);
    for (int i = 0; i < box; ++i) sums = sums + S::Load(columns + 4 * i);
    const typename S::Number* entering = columns + std::ptrdiff_t{4} * box;
    for (int x = 0; x < n; x += S::pixels, columns += 4 * S::pixels, entering += 4 * S::pixels) {
        const S means = Quotients(sums, divider);
        if (S::pixels == 1 || n - x >= S::pixels) {
            means.StorePixels(out + x);
        } else {
            std::uint32_t last[S::pixels];
            means.StorePixels(last);
            std::memcpy(out + x, last, sizeof *last * static_cast<std::size_t>(n - x));  // rows may start at any byte
        }
        // Every pixel's box moves on by all pixels of the vector.
        for (int i = 0; i < S::pixels; ++i) sums = sums + (S::Load(entering + 4 * i) - S::Load(columns + 4 * i));
    }
}

}  // namespace
}  // namespace zorvic

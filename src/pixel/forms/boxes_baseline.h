// Means of boxes in plain C++.
#pragma once

#include <cstring>

#include "pixel/forms/boxes.h"

namespace zorvic {
namespace {

struct BaselineBoxes {
    static constexpr int lanes = 1;

    static void SumRows(const BoxRows& rows, ColumnSpan span, std::uint32_t* sums) {
        for (int x = 0; x < span.count; ++x) {
            WholeSums between{};
            for (int i = 1; i < rows.count - 1; ++i) between.Add(Load(rows.Row(i) + 4 * x));
            const std::uint32_t first = Load(rows.Row(0) + 4 * x), last = Load(rows.Last() + 4 * x);
            for (int channel = 0; channel < 4; ++channel)
                *sums++ = between.Of(channel) * 65536 + (first >> 8 * channel & 0xFF) * rows.firstWeight +
                          (last >> 8 * channel & 0xFF) * rows.lastWeight;
        }
    }

    static void SumWholeRows(const BoxRows& rows, ColumnSpan span, const WholeMean&, std::uint16_t* sums) {
        for (int x = 0; x < span.count; ++x) {
            WholeSums whole{};
            for (int i = 0; i < rows.count; ++i) whole.Add(Load(rows.Row(i) + 4 * x));
            for (int channel = 0; channel < 4; ++channel) *sums++ = static_cast<std::uint16_t>(whole.Of(channel));
        }
    }

    static void Means(const std::uint32_t* sums, const BoxColumns& columns, int n, std::uint32_t* out) {
        for (int i = 0; i < n; ++i) {
            const std::uint32_t *const at = sums + columns.SumAt(i), *const end = sums + columns.SumAt(i + 1);
            const double before = columns.edges[i].fraction, after = columns.edges[i + 1].fraction;
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < 4; ++channel) {
                std::uint32_t started = 0;
                for (const std::uint32_t* sum = at; sum != end; sum += 4) started += sum[channel];
                const double total = started * 65536.0 - at[channel] * before + end[channel] * after;
                pixel |= static_cast<std::uint32_t>(static_cast<int>(total * columns.reciprocal)) << 8 * channel;
            }
            std::memcpy(out + i, &pixel, sizeof pixel);
        }
    }

    static void WholeMeans(const std::uint16_t* sums, const WholeMean& mean, int n, std::uint32_t* out) {
        for (int i = 0; i < n; ++i) {
            std::uint32_t pixel = 0;
            for (int channel = 0; channel < 4; ++channel) {
                std::uint32_t sum = 0;
                for (int k = 0; k < mean.boxColumns; ++k) sum += sums[4 * k + channel];
                pixel |= (sum * static_cast<std::uint32_t>(mean.factor) >> (16 + mean.shift)) << 8 * channel;
            }
            std::memcpy(out + i, &pixel, sizeof pixel);
            sums += std::ptrdiff_t{4} * mean.boxColumns;
        }
    }

private:
    // Two sums of 16 bits in each word.
    struct WholeSums {
        std::uint32_t even, odd;

        void Add(std::uint32_t pixel) {
            even += pixel & 0x00FF00FF;
            odd += pixel >> 8 & 0x00FF00FF;
        }
        std::uint32_t Of(int channel) const { return (channel % 2 == 0 ? even : odd) >> channel / 2 * 16 & 0xFFFF; }
    };

    static std::uint32_t Load(const std::byte* in) {
        std::uint32_t pixel;
        std::memcpy(&pixel, in, sizeof pixel);  // rows may start at any byte
        return pixel;
    }
};

}  // namespace
}  // namespace zorvic

#include "kernels/model.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "raster/cpu_features.h"
#include "raster/lookup_tables.h"
#include "support/pixel_bytes.h"
#include "support/slow_pixels.h"

namespace zorvic {

namespace {

using enum Rows;
using enum Op;
using namespace host;

std::uint32_t UnscaledSample(const BitmapLockInfo& src, const Placement&, std::int64_t x, std::int64_t y) {
    return SourceColor(src, x, y);
}

std::uint32_t NearestSample(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    const std::int64_t across = 65536 * std::int64_t{src.bmWidth} / whole.width;
    const std::int64_t down = 65536 * std::int64_t{src.bmHeight} / whole.height;
    return SourceColor(src, x * across / 65536, y * down / 65536);
}

std::int64_t FloorShift(std::int64_t value, int bits) {
    const std::int64_t unit = std::int64_t{1} << bits;
    return value >= 0 ? value / unit : -((-value + unit - 1) / unit);
}

// A filter's coordinate: in 1/256 of a source pixel, centres on centres, with the step's extra unit.
std::int64_t FilterPosition(std::int64_t sourceExtent, std::int64_t wholeExtent, std::int64_t position) {
    const std::int64_t step = 65536 * sourceExtent / wholeExtent + 1;
    return FloorShift(step / 2 - 32768 + position * step, 8);
}

// Channel i of the source pixel at (x, y), or of the nearest one that there is.
int Tap(const BitmapLockInfo& src, std::int64_t x, std::int64_t y, int i) {
    return Channel(SourceColor(src, std::clamp<std::int64_t>(x, 0, src.bmWidth - 1),
                               std::clamp<std::int64_t>(y, 0, src.bmHeight - 1)),
                   i);
}

std::uint32_t BilinearSample(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    if (src.bmWidth == whole.width && src.bmHeight == whole.height) return SourceColor(src, x, y);
    const std::int64_t px = FilterPosition(src.bmWidth, whole.width, x) + 256;
    const std::int64_t py = FilterPosition(src.bmHeight, whole.height, y) + 256;
    const std::int64_t n = px / 256 - 1, m = py / 256 - 1, tx = px % 256, ty = py % 256, both = tx * ty / 256;
    return FromChannels([&](int i) {
        return (Tap(src, n, m, i) * (256 - tx - ty + both) + Tap(src, n + 1, m, i) * (tx - both) +
                Tap(src, n, m + 1, i) * (ty - both) + Tap(src, n + 1, m + 1, i) * both) /
               256;
    });
}

// The weight of the tap k pixels from the one before the position.
int TapWeight(std::int64_t position, int k) {
    const std::int64_t distance = std::abs(256 * k - (position + 512) % 256);
    const std::int32_t entry = StretchFilterWeights[static_cast<std::size_t>(distance)];
    return ProcessorFeatures.cpuHasMMX ? static_cast<std::int16_t>(entry & 0xFFFF) : entry;
}

std::uint32_t BicubicSample(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    const std::int64_t px = FilterPosition(src.bmWidth, whole.width, x);
    const std::int64_t py = FilterPosition(src.bmHeight, whole.height, y);
    const std::int64_t n = FloorShift(px, 8), m = FloorShift(py, 8);
    return FromChannels([&](int i) {
        std::int64_t total = 0;
        for (int row = -1; row <= 2; ++row) {
            std::int64_t sum = 0;
            for (int column = -1; column <= 2; ++column)
                sum += std::int64_t{Tap(src, n + column, m + row, i)} * TapWeight(px, column);
            if (ProcessorFeatures.cpuHasMMX) sum = FloorShift(sum + 128, 8);
            total += sum * TapWeight(py, row);
        }
        const std::int64_t value = ProcessorFeatures.cpuHasMMX ? FloorShift(total + 524288, 20) : FloorShift(total, 16);
        return std::clamp<std::int64_t>(value, 0, 255);
    });
}

std::uint32_t AreaSample(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    if (src.bmWidth < whole.width || src.bmHeight < whole.height) return BicubicSample(src, whole, x, y);
    const std::int64_t width = 65536 * std::int64_t{src.bmWidth} / whole.width;
    const std::int64_t height = 65536 * std::int64_t{src.bmHeight} / whole.height;
    const auto overlap = [](std::int64_t pixel, std::int64_t from, std::int64_t extent) {
        return std::max<std::int64_t>(0,
                                      std::min(pixel * 65536 + 65536, from + extent) - std::max(pixel * 65536, from));
    };
    std::int64_t sums[4] = {};
    for (std::int64_t row = y * height / 65536; row * 65536 < (y + 1) * height; ++row)
        for (std::int64_t column = x * width / 65536; column * 65536 < (x + 1) * width; ++column)
            for (int i = 0; i < 4; ++i)
                sums[i] += Channel(SourceColor(src, column, row), i) * overlap(column, x * width, width) *
                           overlap(row, y * height, height);
    return FromChannels([&](int i) { return sums[i] / (width * height); });
}

// The sample for column x and row y of the whole draw, by Rows.
using Sample = std::uint32_t (*)(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y);
constexpr Sample samples[] = {nullptr, UnscaledSample, NearestSample, BilinearSample, BicubicSample, AreaSample};

DWORD Scaled(DWORD pixel, int k) {
    return FromChannels([=](int i) { return Channel(pixel, i) * k / 256; });
}

// The words are added, as 32-bit numbers. Samples that may have overshot stop at 255 in each channel.
DWORD Over(DWORD d, DWORD s, bool overshoots) {
    const DWORD rest = Scaled(d, 256 - AlphaOf(s));
    if (!overshoots) return s + rest;
    return FromChannels([=](int i) { return std::min(Channel(s, i) + Channel(rest, i), 255); });
}

}  // namespace

std::uint32_t ResultByModel(const SlotMeaning& meaning, std::uint32_t d, std::uint32_t s, std::uint32_t argument) {
    const int amount = static_cast<int>(argument % 256);
    switch (meaning.op) {
        case copy:
            return s;
        case sourceOver:
            return Over(d, s, meaning.rows == bicubic);
        case constantAlpha:
            return Over(d, Scaled(s, amount + 1), meaning.rows == bicubic);
        case opaqueAlpha:
            return SlowOpaqueAlpha(s, d, amount);
        case colorKey:
            return s == argument ? d : s;
        case multiply:
            return FromChannels([=](int i) { return (Channel(s, i) + 1) * Channel(d, i) / 256; });
        case destinationOver:
            return d + Scaled(s, 256 - AlphaOf(d));
        case bitOr:
            return d | s;
        case grayWash: {
            const int gray = SlowLuma(d) * AlphaOf(s) / 256;
            return FromChannels(
                [=](int i) { return i == 3 ? AlphaOf(d) : Channel(d, i) * (256 - AlphaOf(d)) / 256 + gray; });
        }
        case crossFade:
            return SlowCrossFade(s, d, amount);
        case mixColor:
            return SlowMixColor(s, d, amount);
        case makeOpaque:
            return d | 0xFF000000;
    }
    throw std::logic_error("no operation");
}

std::uint32_t SourceColor(const BitmapLockInfo& src, std::int64_t x, std::int64_t y) {
    const std::uint32_t pixel = ReadPixelBytes(src, x, y);
    if (src.bmBitsPixel == 8) return static_cast<std::uint32_t>(src.palette[pixel]);
    return src.bmBitsPixel == 24 ? 0xFF000000 + pixel : pixel;
}

void DrawByModel(const SlotMeaning& meaning, const Job& job) {
    for (int y = 0; y < job.dst.bmHeight; ++y)
        for (int x = 0; x < job.dst.bmWidth; ++x) {
            const std::int64_t column = job.placement.left + x, row = job.placement.top + y;
            const std::uint32_t sample =
                meaning.rows == solid ? job.color
                                      : samples[static_cast<int>(meaning.rows)](job.src, job.placement, column, row);
            WritePixelBytes(job.dst, x, y, ResultByModel(meaning, ReadPixelBytes(job.dst, x, y), sample, job.argument));
        }
}

}  // namespace zorvic

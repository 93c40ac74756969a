#include "kernels/model.h"

#include <algorithm>
#include <stdexcept>

#include "support/image.h"

namespace zorvic {

namespace {

constexpr SlotMeaning meanings[] = {
    {0, 2, Rows::nearest, Op::copy},
    {3, 5, Rows::bilinear, Op::copy},
    {6, 8, Rows::unscaled, Op::copy},
    {9, 11, Rows::area, Op::copy},
    {12, 14, Rows::bicubic, Op::copy},
    {15, 15, Rows::solid, Op::mixColor},
    {16, 16, Rows::unscaled, Op::opaqueAlpha},
    {17, 19, Rows::bilinear, Op::multiply},
    {20, 22, Rows::area, Op::copy},
    {23, 25, Rows::nearest, Op::constantAlpha},
    {26, 28, Rows::bilinear, Op::sourceOver},
    {29, 31, Rows::bicubic, Op::sourceOver},
    {32, 34, Rows::unscaled, Op::destinationOver},
    {35, 37, Rows::bilinear, Op::multiply},
    {38, 40, Rows::bilinear, Op::destinationOver},
    {41, 43, Rows::bilinear, Op::constantAlpha},
    {44, 46, Rows::bilinear, Op::destinationOver},
    {47, 49, Rows::unscaled, Op::multiply},
    {50, 52, Rows::unscaled, Op::constantAlpha},
    {53, 55, Rows::bilinear, Op::constantAlpha},
    {56, 58, Rows::nearest, Op::constantAlpha},
    {59, 59, Rows::solid, Op::sourceOver},
    {60, 60, Rows::unscaled, Op::crossFade},
    {61, 61, Rows::solid, Op::makeOpaque},
    {62, 62, Rows::solid, Op::multiply},
    {63, 63, Rows::solid, Op::grayWash},
    {64, 66, Rows::bilinear, Op::sourceOver},
    {67, 67, Rows::nearest, Op::opaqueAlpha},
    {68, 68, Rows::solid, Op::bitOr},
    {69, 71, Rows::bicubic, Op::constantAlpha},
    {72, 74, Rows::bilinear, Op::copy},
    {75, 75, Rows::solid, Op::destinationOver},
    {76, 78, Rows::nearest, Op::copy},
    {79, 81, Rows::bicubic, Op::copy},
    {82, 84, Rows::nearest, Op::colorKey},
    {85, 87, Rows::unscaled, Op::colorKey},
    {88, 90, Rows::nearest, Op::sourceOver},
    {91, 91, Rows::solid, Op::copy},
    {92, 94, Rows::bicubic, Op::sourceOver},
    {95, 95, Rows::nearest, Op::crossFade},
    {96, 98, Rows::unscaled, Op::sourceOver},
    {99, 101, Rows::nearest, Op::colorKey},
    {102, 104, Rows::bicubic, Op::constantAlpha},
    {105, 107, Rows::nearest, Op::sourceOver},
};

// A sample for column x and row y of the whole draw.
using Sampler = std::uint32_t (*)(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y);

std::uint32_t SameColumnAndRow(const BitmapLockInfo& src, const Placement&, std::int64_t x, std::int64_t y) {
    return SourceColor(src, x, y);
}

std::int64_t Stepped(std::int64_t sourceExtent, std::int64_t wholeExtent, std::int64_t position) {
    const std::int64_t step = 65536 * sourceExtent / wholeExtent;
    return position * step / 65536;
}

std::uint32_t NearestSample(const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    return SourceColor(src, Stepped(src.bmWidth, whole.width, x), Stepped(src.bmHeight, whole.height, y));
}

Sampler SamplerOf(Rows rows) {
    switch (rows) {
        case Rows::unscaled:
            return SameColumnAndRow;
        case Rows::nearest:
        case Rows::bilinear:
        case Rows::bicubic:
        case Rows::area:
            return NearestSample;
        case Rows::solid:
            break;
    }
    throw std::logic_error("no sampler");
}

enum { blue, green, red, alpha };

struct Channels {
    std::uint32_t of[4];
};

Channels Split(std::uint32_t word) { return {{word % 256, word / 256 % 256, word / 65536 % 256, word / 16777216}}; }

// Each channel keeps its low eight bits.
std::uint32_t Join(const Channels& c) {
    return c.of[alpha] % 256 * 16777216 + c.of[red] % 256 * 65536 + c.of[green] % 256 * 256 + c.of[blue] % 256;
}

template <class Formula>
Channels EachChannel(Formula formula) {
    return {{formula(blue), formula(green), formula(red), formula(alpha)}};
}

Channels Scaled(const Channels& c, std::uint32_t k) {
    return EachChannel([&](int i) { return c.of[i] * k / 256; });
}

// The words are added, as 32-bit numbers.
std::uint32_t Over(const Channels& d, const Channels& s) { return Join(s) + Join(Scaled(d, 256 - s.of[alpha])); }

std::uint32_t Mixed(Op op, std::uint32_t dst, std::uint32_t src, std::uint32_t amount) {
    if (amount == 0) return dst;
    if (amount == 255) return src;
    const std::uint32_t k = amount + 1;
    const Channels d = Split(dst), s = Split(src);
    if (op == Op::crossFade) return Join(EachChannel([&](int i) { return (s.of[i] * k + d.of[i] * (256 - k)) / 256; }));
    return Join(EachChannel([&](int i) { return d.of[i] * (256 - k) / 256 + s.of[i] * k / 256; }));
}

std::uint32_t Result(Op op, std::uint32_t dst, std::uint32_t src, std::uint32_t argument) {
    const Channels d = Split(dst), s = Split(src);
    switch (op) {
        case Op::copy:
            return src;
        case Op::sourceOver:
            return Over(d, s);
        case Op::constantAlpha:
            return Over(d, Scaled(s, argument % 256 + 1));
        case Op::opaqueAlpha:
            return Over(d, Scaled({{s.of[blue], s.of[green], s.of[red], 255}}, argument % 256 + 1));
        case Op::colorKey:
            return src == argument ? dst : src;
        case Op::multiply:
            return Join(EachChannel([&](int i) { return (s.of[i] + 1) * d.of[i] / 256; }));
        case Op::destinationOver:
            return dst + Join(Scaled(s, 256 - d.of[alpha]));
        case Op::bitOr:
            return dst | src;
        case Op::grayWash: {
            const std::uint32_t g = (d.of[blue] + 2 * d.of[green] + d.of[red]) / 4 * s.of[alpha] / 256;
            Channels washed = EachChannel([&](int i) { return d.of[i] * (256 - d.of[alpha]) / 256 + g; });
            washed.of[alpha] = d.of[alpha];
            return Join(washed);
        }
        case Op::crossFade:
        case Op::mixColor:
            return Mixed(op, dst, src, argument % 256);
        case Op::makeOpaque:
            return Join({{d.of[blue], d.of[green], d.of[red], 255}});
    }
    throw std::logic_error("no operation");
}

}  // namespace

SlotMeaning MeaningOf(int slot) {
    return *std::ranges::find_if(meanings, [&](const SlotMeaning& m) { return m.first <= slot && slot <= m.last; });
}

std::uint32_t SourceColor(const BitmapLockInfo& src, std::int64_t x, std::int64_t y) {
    const std::uint32_t pixel = ReadPixelBytes(src, x, y);
    if (src.bmBitsPixel == 8) return static_cast<std::uint32_t>(src.palette[pixel]);
    return src.bmBitsPixel == 24 ? 0xFF000000 + pixel : pixel;
}

void DrawByModel(int slot, const Job& job) {
    const SlotMeaning meaning = MeaningOf(slot);
    const bool solid = meaning.rows == Rows::solid;
    for (int y = 0; y < job.dst.bmHeight; ++y)
        for (int x = 0; x < job.dst.bmWidth; ++x) {
            const std::int64_t column = job.placement.left + x, row = job.placement.top + y;
            const std::uint32_t sample =
                solid ? job.color : SamplerOf(meaning.rows)(job.src, job.placement, column, row);
            WritePixelBytes(job.dst, x, y, Result(meaning.op, ReadPixelBytes(job.dst, x, y), sample, job.argument));
        }
}

}  // namespace zorvic

#include "kernels/model.h"

#include <algorithm>
#include <stdexcept>

#include "support/image.h"

namespace zorvic {

namespace {

using enum Rows;
using enum Op;

// clang-format off
constexpr SlotMeaning meanings[] = {  // by columns
    {  0,   2, nearest, copy},             { 41,  43, bilinear, constantAlpha},   { 72,  74, bilinear, copy},
    {  3,   5, bilinear, copy},            { 44,  46, bilinear, destinationOver}, { 75,  75, solid, destinationOver},
    {  6,   8, unscaled, copy},            { 47,  49, unscaled, multiply},        { 76,  78, nearest, copy},
    {  9,  11, area, copy},                { 50,  52, unscaled, constantAlpha},   { 79,  81, bicubic, copy},
    { 12,  14, bicubic, copy},             { 53,  55, bilinear, constantAlpha},   { 82,  84, nearest, colorKey},
    { 15,  15, solid, mixColor},           { 56,  58, nearest, constantAlpha},    { 85,  87, unscaled, colorKey},
    { 16,  16, unscaled, opaqueAlpha},     { 59,  59, solid, sourceOver},         { 88,  90, nearest, sourceOver},
    { 17,  19, bilinear, multiply},        { 60,  60, unscaled, crossFade},       { 91,  91, solid, copy},
    { 20,  22, area, copy},                { 61,  61, solid, makeOpaque},         { 92,  94, bicubic, sourceOver},
    { 23,  25, nearest, constantAlpha},    { 62,  62, solid, multiply},           { 95,  95, nearest, crossFade},
    { 26,  28, bilinear, sourceOver},      { 63,  63, solid, grayWash},           { 96,  98, unscaled, sourceOver},
    { 29,  31, bicubic, sourceOver},       { 64,  66, bilinear, sourceOver},      { 99, 101, nearest, colorKey},
    { 32,  34, unscaled, destinationOver}, { 67,  67, nearest, opaqueAlpha},      {102, 104, bicubic, constantAlpha},
    { 35,  37, bilinear, multiply},        { 68,  68, solid, bitOr},              {105, 107, nearest, sourceOver},
    { 38,  40, bilinear, destinationOver}, { 69,  71, bicubic, constantAlpha},
};
// clang-format on

std::int64_t Stepped(std::int64_t sourceExtent, std::int64_t wholeExtent, std::int64_t position) {
    const std::int64_t step = 65536 * sourceExtent / wholeExtent;
    return position * step / 65536;
}

// The sample for column x and row y of the whole draw.
std::uint32_t Sample(Rows rows, const BitmapLockInfo& src, const Placement& whole, std::int64_t x, std::int64_t y) {
    switch (rows) {
        case unscaled:
            return SourceColor(src, x, y);
        case nearest:
        case bilinear:
        case bicubic:
        case area:
            return SourceColor(src, Stepped(src.bmWidth, whole.width, x), Stepped(src.bmHeight, whole.height, y));
        case solid:
            break;
    }
    throw std::logic_error("no sample");
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
    if (op == crossFade) return Join(EachChannel([&](int i) { return (s.of[i] * k + d.of[i] * (256 - k)) / 256; }));
    return Join(EachChannel([&](int i) { return d.of[i] * (256 - k) / 256 + s.of[i] * k / 256; }));
}

std::uint32_t Result(Op op, std::uint32_t dst, std::uint32_t src, std::uint32_t argument) {
    const Channels d = Split(dst), s = Split(src);
    switch (op) {
        case copy:
            return src;
        case sourceOver:
            return Over(d, s);
        case constantAlpha:
            return Over(d, Scaled(s, argument % 256 + 1));
        case opaqueAlpha:
            return Over(d, Scaled({{s.of[blue], s.of[green], s.of[red], 255}}, argument % 256 + 1));
        case colorKey:
            return src == argument ? dst : src;
        case multiply:
            return Join(EachChannel([&](int i) { return (s.of[i] + 1) * d.of[i] / 256; }));
        case destinationOver:
            return dst + Join(Scaled(s, 256 - d.of[alpha]));
        case bitOr:
            return dst | src;
        case grayWash: {
            const std::uint32_t g = (d.of[blue] + 2 * d.of[green] + d.of[red]) / 4 * s.of[alpha] / 256;
            Channels washed = EachChannel([&](int i) { return d.of[i] * (256 - d.of[alpha]) / 256 + g; });
            washed.of[alpha] = d.of[alpha];
            return Join(washed);
        }
        case crossFade:
        case mixColor:
            return Mixed(op, dst, src, argument % 256);
        case makeOpaque:
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
    for (int y = 0; y < job.dst.bmHeight; ++y)
        for (int x = 0; x < job.dst.bmWidth; ++x) {
            const std::int64_t column = job.placement.left + x, row = job.placement.top + y;
            const std::uint32_t sample =
                meaning.rows == solid ? job.color : Sample(meaning.rows, job.src, job.placement, column, row);
            WritePixelBytes(job.dst, x, y, Result(meaning.op, ReadPixelBytes(job.dst, x, y), sample, job.argument));
        }
}

}  // namespace zorvic

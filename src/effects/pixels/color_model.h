// RGB and HSL, each component a byte, packed in words 0xAARRGGBB and 0xAAHHSSLL; alpha passes through. RGB to HSL is in
// integers, HSL to RGB in single precision: a round trip may change a colour a little.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zorvic {

// Entry d is the largest multiplier m for which (n + 1) x m >> 32 is n / d, for every n below 2^24.
inline constexpr auto Reciprocals = [] {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t d = 1; d < 256; ++d) table[d] = 0xFFFFFFFF / d;
    return table;
}();

// n / d, truncated, for d in 1..255.
inline int Quotient(int n, int d) {
    const std::uint64_t next = static_cast<std::uint32_t>(n + 1);
    return static_cast<int>(next * Reciprocals[static_cast<std::size_t>(d)] >> 32);
}

// Hue covers the circle with 0..255: 0 red, 85 green, 170 blue; greys have saturation 0 and hue 170.
inline std::uint32_t ToAhsl(std::uint32_t argb) {
    const auto channel = [=](int shift) { return static_cast<int>(argb >> shift & 0xFF); };
    const int red = channel(16), green = channel(8), blue = channel(0);
    const int larger = red > green ? red : green, smaller = red > green ? green : red;
    const int max = larger > blue ? larger : blue, min = smaller < blue ? smaller : blue;
    const int sum = max + min, delta = max - min;
    const auto lightness = static_cast<std::uint32_t>((sum + 1) / 2);
    if (delta == 0) return (argb & 0xFF000000) | 170U << 16 | lightness;

    const int range = sum < 255 ? sum : 510 - sum;
    const auto saturation = static_cast<std::uint32_t>(Quotient(delta * 255 + range / 2, range));
    // From the hue of the largest channel toward one of the others; 42 is a sixth of the circle.
    const bool nearRed = max == red, nearGreen = max == green;
    const int base = nearRed ? 0 : nearGreen ? 85 : 170;
    const int less = nearRed ? blue : nearGreen ? red : green, more = nearRed ? green : nearGreen ? blue : red;
    const auto distance = [=](int other) { return Quotient((max - other) * 42 + delta / 2, delta); };
    const int hue = base + distance(less) - distance(more);
    // Left of red it wraps at 256, not at 255.
    return (argb & 0xFF000000) | (static_cast<std::uint32_t>(hue) & 0xFF) << 16 | saturation << 8 | lightness;
}

// At any hue one channel has the high value of a colour, one the low value, and one lies on the ramp between them.
struct HueSector {
    float rise;  // along the ramp, 0..60 degrees
    std::uint8_t highShift, rampShift, lowShift;
};

constexpr HueSector MakeHueSector(int hue) {
    const float degrees = static_cast<float>(hue * 360) / 255;
    HueSector sector{};
    int high = 0, ramps = 0, lows = 0;
    for (int channel = 0; channel < 3; ++channel) {  // red, green, blue
        const auto shift = static_cast<std::uint8_t>(16 - 8 * channel);
        float t = degrees + static_cast<float>(120 - 120 * channel);
        if (t > 360) {
            t -= 360;
        } else if (t < 0) {
            t += 360;
        }
        if (t >= 60 && t < 180) {
            ++high;
            sector.highShift = shift;
        } else if (t < 240) {
            ++ramps;
            sector.rise = t < 60 ? t : 240 - t;
            sector.rampShift = shift;
        } else if (lows++ == 0) {
            sector.lowShift = shift;
        } else {
            sector.rampShift = shift;  // exactly on an edge: the foot of a ramp
        }
    }
    if (high != 1 || ramps + lows != 2 || ramps > 1) throw "a sector has one channel of each kind";
    return sector;
}

inline constexpr auto HueSectors = [] {
    std::array<HueSector, 256> table{};
    for (int hue = 0; hue < 256; ++hue) table[static_cast<std::size_t>(hue)] = MakeHueSector(hue);
    return table;
}();

// Entry i is i / 255.
inline constexpr auto UnitFractions = [] {
    std::array<float, 256> table{};
    for (std::size_t i = 0; i < 256; ++i) table[i] = static_cast<float>(i) / 255;
    return table;
}();

// Channels are truncated, not rounded.
inline std::uint32_t ToArgb(std::uint32_t ahsl) {
    const HueSector& sector = HueSectors[ahsl >> 16 & 0xFF];
    const float s = UnitFractions[ahsl >> 8 & 0xFF], l = UnitFractions[ahsl & 0xFF];
    const float high = l <= 0.5F ? (s + 1) * l : l + s - l * s;
    const float low = l + l - high;
    const float ramp = (high - low) * sector.rise / 60 + low;
    const auto byte = [](float value) { return static_cast<std::uint32_t>(static_cast<int>(value * 255)) & 0xFF; };
    return (ahsl & 0xFF000000) | byte(high) << sector.highShift | byte(ramp) << sector.rampShift |
           byte(low) << sector.lowShift;
}

}  // namespace zorvic

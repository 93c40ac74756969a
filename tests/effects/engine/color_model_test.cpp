// RGB and HSL: every colour both ways against other forms of the rules, worked figures, and the colorize rule.
#include <algorithm>
#include <cmath>
#include <limits>

#include "effects/pixels/color_model.h"
#include "effects/pixels/colorize.h"
#include "kernels/all_bytes.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

using namespace host;

int Rounded(double value) { return static_cast<int>(std::floor(value + 0.5)); }

// The forward rule as real fractions, rounded half up.
DWORD HslByFractions(DWORD argb) {
    const int c[3] = {Channel(argb, 2), Channel(argb, 1), Channel(argb, 0)};
    const auto max = std::ranges::max_element(c) - c;  // a tie goes to the first
    const int next = c[(max + 1) % 3], last = c[(max + 2) % 3];
    const double min = std::min(next, last), delta = c[max] - min, sum = c[max] + min;
    int hue = 170, saturation = 0;
    if (delta > 0) {
        saturation = Rounded(255 * delta / (sum < 255 ? sum : 510 - sum));
        hue = static_cast<int>(85 * max);
        hue += Rounded(42 * (c[max] - last) / delta) - Rounded(42 * (c[max] - next) / delta);
    }
    const int components[4] = {Rounded(sum / 2), saturation, hue, AlphaOf(argb)};
    return FromChannels([&](int i) { return components[i]; });
}

// The reverse rule channel by channel.
DWORD RgbByAngles(DWORD ahsl) {
    const float h = static_cast<float>(Channel(ahsl, 2)) * 360 / 255, s = static_cast<float>(Channel(ahsl, 1)) / 255,
                l = static_cast<float>(Channel(ahsl, 0)) / 255;
    const float q = l <= 0.5F ? (s + 1) * l : l + s - l * s, p = l + l - q;
    return FromChannels([=](int i) {
        if (i == 3) return AlphaOf(ahsl);
        float t = h + static_cast<float>(120 * i - 120);
        if (t > 360) t -= 360;
        if (t < 0) t += 360;
        const float ramp = (q - p) * (t < 60 ? t : 240 - t) / 60 + p, lower = t < 240 ? ramp : p;
        const float v = t >= 60 && t < 180 ? q : lower;
        return static_cast<int>((s == 0 ? l : v) * 255);
    });
}

// Turned and scaled one component at a time; each keeps its low byte.
DWORD Colorized(DWORD argb, const HslAmounts& by) {
    const DWORD ahsl = HslByFractions(argb);
    const auto scaled = [=](int i, float amount) {
        const int byte = Channel(ahsl, i), room = amount < 0 ? byte : 255 - byte;
        return (byte + static_cast<int>(static_cast<float>(room) * amount + (amount < 0 ? -0.5 : 0.5))) & 255;
    };
    const int turned = Channel(ahsl, 2) + static_cast<int>(by.hue * 127.5F + 0.5);
    const int components[4] = {scaled(0, by.lightness), std::max(scaled(1, by.saturation), 1), turned, AlphaOf(argb)};
    return RgbByAngles(FromChannels([&](int i) { return components[i]; }));
}

TEST(ColorModel, ConvertsEveryColorBothWays) {
    for (std::uint32_t color = 0; color < 1 << 24; ++color) {
        const std::uint32_t word = color << 24 | color;
        // Not asserted one by one, which would take most of the time.
        if (ToAhsl(word) != HslByFractions(word) || ToArgb(word) != RgbByAngles(word))
            FAIL() << std::hex << word << ": to HSL " << ToAhsl(word) << ", to RGB " << ToArgb(word);
    }
}

TEST(ColorModel, ConvertsWorkedFigures) {
    EXPECT_EQ(ToAhsl(0x80FF0A00), 0x8002FF80U);
    EXPECT_EQ(ToAhsl(0x01FF000A), 0x01FEFF80U) << "left of red";
    EXPECT_EQ(ToAhsl(0x00C8C800), 0x002AFF64U) << "a tie: the red one counts";
    EXPECT_EQ(ToArgb(0x7F12003C), 0x7F3C3C3CU) << "without saturation any hue is grey";
    // 240 degrees: red stands at 360, the low end; 1 + l - l is a little below 1.
    EXPECT_EQ(ToArgb(0xFFAAFF80), 0xFF0101FEU);
}

TEST(Colorize, OfEveryColor) {
    for (const HslAmounts& by : {HslAmounts{0.33F, -0.5F, 0.9F}, {-0.9F, 0.2F, -0.1F}, {0.5F, 2, -2}})
        CheckAllBytes(
            Third::destinationRed,
            [&](const BitmapLockInfo& image, const BitmapLockInfo&, std::uint32_t) { ColorizeImage(image, by); },
            [&](std::uint32_t p, std::uint32_t, std::uint32_t) {
                const DWORD wanted = Colorized(p, by);
                return ColorizeArgb(p, by) == wanted ? wanted : ~wanted;
            });
}

TEST(Colorize, AdjustsBytes) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    constexpr struct {
        std::uint32_t ahsl;
        HslAmounts amounts;
        std::uint32_t wanted;
    } cases[] = {
        {0x12340078, {0.0000009F, -0.0000009F, 0.0000009F}, 0x12340078},
        {0xFF0A0020, {0, 0, 0.000002F}, 0xFF0A0120},  // no saturation is 0
        {0x00C8FF40, {-1, 0, 0}, 0x0049FF40},         // -127.5 + 0.5
        {0x0000FF40, {-0.1F, 0, 0}, 0x00F4FF40},      // -12.75 + 0.5
        {0x80106440, {0, -0.5F, 0}, 0x80103240},      // 100: -50.5
        {0x8010FF40, {0, -1.0005F, 0}, 0x80100140},   // 255: -255.6
        {0x801064C8, {0, 0, -2}, 0x80106438},         // 200 - 400
        // What does not fit a number of 32 bits has its low byte 0.
        {0x80106440, {nan, nan, nan}, 0x80106440},
        {0x80106440, {inf, -inf, 1e10F}, 0x80106440},
    };
    for (const auto& c : cases) EXPECT_EQ(ColorizeAhsl(c.ahsl, c.amounts), c.wanted) << "case " << &c - cases;
    EXPECT_EQ(ColorizeArgb(0x40123457, {0, 0.0000009F, 0}), 0x40123457U);
}

}  // namespace
}  // namespace zorvic

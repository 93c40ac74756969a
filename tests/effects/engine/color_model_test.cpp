// RGB and HSL: every colour both ways against other forms of the rules, worked figures, and the colorize rule.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "effects/pixels/color_model.h"
#include "effects/pixels/colorize.h"

namespace zorvic {
namespace {

constexpr std::uint32_t allColors = 1 << 24;

std::uint32_t Rounded(double value) { return static_cast<std::uint32_t>(std::floor(value + 0.5)); }

// The forward rule as real fractions, rounded half up.
std::uint32_t HslByFractions(std::uint32_t rgb) {
    const int c[3] = {static_cast<int>(rgb >> 16), static_cast<int>(rgb >> 8 & 255), static_cast<int>(rgb & 255)};
    int max = 0;
    for (int i = 1; i < 3; ++i)
        if (c[i] > c[max]) max = i;  // a tie goes to the first
    const int next = c[(max + 1) % 3], last = c[(max + 2) % 3], min = next < last ? next : last;
    const double delta = c[max] - min, sum = c[max] + min;
    const std::uint32_t lightness = Rounded(sum / 2);
    if (c[max] == min) return 0xAA0000 | lightness;
    const std::uint32_t saturation = Rounded(255 * delta / (sum < 255 ? sum : 510 - sum));
    const std::uint32_t hue = static_cast<std::uint32_t>(85 * max) + Rounded(42 * (c[max] - last) / delta) -
                              Rounded(42 * (c[max] - next) / delta);
    return (hue & 255) << 16 | saturation << 8 | lightness;
}

// The reverse rule channel by channel.
std::uint32_t ChannelByAngle(float t, float p, float q) {
    if (t > 360) {
        t -= 360;
    } else if (t < 0) {
        t += 360;
    }
    float v = p;
    if (t < 60) {
        v = (q - p) * t / 60 + p;
    } else if (t < 180) {
        v = q;
    } else if (t < 240) {
        v = (q - p) * (240 - t) / 60 + p;
    }
    return static_cast<std::uint32_t>(v * 255);
}

std::uint32_t RgbByAngles(std::uint32_t hsl) {
    const float h = static_cast<float>(hsl >> 16) * 360 / 255, s = static_cast<float>(hsl >> 8 & 255) / 255,
                l = static_cast<float>(hsl & 255) / 255;
    if (s == 0) return static_cast<std::uint32_t>(l * 255) * 0x010101;
    const float q = l <= 0.5F ? (s + 1) * l : l + s - l * s, p = l + l - q;
    return ChannelByAngle(h + 120, p, q) << 16 | ChannelByAngle(h, p, q) << 8 | ChannelByAngle(h - 120, p, q);
}

TEST(ColorModel, ConvertsEveryColorBothWays) {
    for (std::uint32_t color = 0; color < allColors; ++color) {
        const std::uint32_t alpha = color << 24, ahsl = ToAhsl(alpha | color), argb = ToArgb(alpha | color);
        // Not asserted one by one, which would take most of the time.
        if (ahsl != (alpha | HslByFractions(color)) || argb != (alpha | RgbByAngles(color)))
            FAIL() << std::hex << color << ": to HSL " << ahsl << ", to RGB " << argb;
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

TEST(Colorize, AdjustsBytes) {
    constexpr float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    struct Case {
        std::uint32_t ahsl;
        HslAmounts amounts;
        std::uint32_t wanted;
    };
    const Case cases[] = {
        {0x12345678, {0, 0, 0}, 0x12345678},
        {0xFF0A0020, {0.0000009F, -0.0000009F, 0.0000009F}, 0xFF0A0020},
        {0xFF0A0020, {0, 0, 0.000002F}, 0xFF0A0120},  // no saturation is 0
        // hue
        {0x000AFF40, {1, 0, 0}, 0x008AFF40},
        {0x00C8FF40, {-1, 0, 0}, 0x0049FF40},     // -127.5 + 0.5
        {0x0000FF40, {-0.1F, 0, 0}, 0x00F4FF40},  // -12.75 + 0.5
        {0x00FAFF40, {0.1F, 0, 0}, 0x0007FF40},
        // saturation
        {0x80106440, {0, -0.5F, 0}, 0x80103240},  // 100: -50.5
        {0x80106440, {0, -1, 0}, 0x80100140},
        {0x80106440, {0, -0.9995F, 0}, 0x80100140},
        {0x8010FF40, {0, -1.0005F, 0}, 0x80100140},
        // lightness
        {0x80106440, {0, 0, 1}, 0x801064FF},
        {0x801064FF, {0, 0, -1}, 0x80106400},
        {0x801064C8, {0, 0, -2}, 0x80106438},  // 200 - 400
        // What does not fit a number of 32 bits has its low byte 0.
        {0x80106440, {nan, nan, nan}, 0x80106440},
        {0x80106440, {inf, -inf, inf}, 0x80106440},
        {0x80106440, {-1e20F, 1e10F, -1e38F}, 0x80106440},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ColorizeAhsl(c.ahsl, c.amounts), c.wanted) << "case " << &c - cases;
        const std::uint32_t argb =
            c.amounts.IsNothing() ? 0x40123457 : ToArgb(ColorizeAhsl(ToAhsl(0x40123457), c.amounts));
        EXPECT_EQ(ColorizeArgb(0x40123457, c.amounts), argb) << "case " << &c - cases;
    }
}

}  // namespace
}  // namespace zorvic

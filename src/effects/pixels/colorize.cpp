// The colorize rule. An image pays for it once per byte value, not once per pixel.
#include "effects/pixels/colorize.h"

#include <array>
#include <limits>

#include "effects/pixels/color_model.h"
#include "effects/pixels/effect_set.h"
#include "effects/pixels/map_colors.h"

namespace zorvic {

namespace {

// Toward zero; what does not fit, and what is no number, gives what the processor gives.
std::uint32_t Truncate(double value) {
    using Limits = std::numeric_limits<int>;
    if (!(value > Limits::min() - 1.0 && value < Limits::max() + 1.0)) return 0x80000000;
    return static_cast<std::uint32_t>(static_cast<int>(value));
}

// Half a step is added whatever the sign: negative turns are not the mirror image of positive ones.
std::uint32_t TurnHue(std::uint32_t hue, float amount) { return (hue + Truncate(amount * 255 * 0.5F + 0.5)) & 0xFF; }

std::uint32_t ScaleLightness(std::uint32_t lightness, float amount) {
    const auto byte = static_cast<float>(lightness);
    if (amount >= 0) return (lightness + Truncate((255 - byte) * amount + 0.5)) & 0xFF;
    return (lightness + Truncate(byte * amount - 0.5)) & 0xFF;
}

std::uint32_t ScaleSaturation(std::uint32_t saturation, float amount) {
    const std::uint32_t scaled = ScaleLightness(saturation, amount);
    return scaled == 0 ? 1 : scaled;
}

std::uint32_t Adjust(std::uint32_t ahsl, const HslAmounts& amounts) {
    return (ahsl & 0xFF000000) | TurnHue(ahsl >> 16 & 0xFF, amounts.hue) << 16 |
           ScaleSaturation(ahsl >> 8 & 0xFF, amounts.saturation) << 8 | ScaleLightness(ahsl & 0xFF, amounts.lightness);
}

ColorizeTables MakeTables(const HslAmounts& amounts) {
    ColorizeTables tables;
    std::array<std::uint32_t, 256> adjusted;
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        adjusted[byte] = Adjust(byte * 0x010101, amounts);
        tables.saturation[byte] = UnitFractions[adjusted[byte] >> 8 & 0xFF];
        tables.lightness[byte] = UnitFractions[adjusted[byte] & 0xFF];
    }
    const auto place = [](int shift) { return static_cast<float>(1 << shift); };
    for (int i = 0; i < ColorizeTables::hues; ++i) {
        const auto hue = static_cast<std::size_t>(i - ColorizeTables::hueOffset) & 0xFF;
        const HueSector& sector = HueSectors[adjusted[hue] >> 16 & 0xFF];
        tables.rise[i] = sector.rise;
        tables.highPlace[i] = place(sector.highShift);
        tables.rampPlace[i] = place(sector.rampShift);
    }
    return tables;
}

constexpr bool IsNearZero(double amount) { return amount > -0.000001 && amount < 0.000001; }

}  // namespace

bool HslAmounts::IsNothing() const { return IsNearZero(hue) && IsNearZero(saturation) && IsNearZero(lightness); }

std::uint32_t ColorizeAhsl(std::uint32_t ahsl, const HslAmounts& amounts) {
    return amounts.IsNothing() ? ahsl : Adjust(ahsl, amounts);
}

std::uint32_t ColorizeArgb(std::uint32_t argb, const HslAmounts& amounts) {
    return amounts.IsNothing() ? argb : ToArgb(Adjust(ToAhsl(argb), amounts));
}

void ColorizeImage(const BitmapLockInfo& image, const HslAmounts& amounts) {
    const ColorizeTables tables = MakeTables(amounts);
    const auto colorize = Effects().colorize;
    MapColors<Depths::all>(image, [&](std::uint32_t* pixels, int n) { colorize(pixels, n, tables); });
}

}  // namespace zorvic

// Colorize of a pixel in single precision, to the bit what the colour model's integers and the reverse rule give.
//
// Quotients of integers below 2^24 are truncated from (n + 0.5) / d: the half keeps them further from a whole number than
// the division errs. Channels go to their places by products with 1, 256 and 65536, whose sums are exact.
#pragma once

#include "effects/pixels/effect_set.h"
#include "pixel/forms/reals.h"

namespace zorvic {
namespace {

struct Colorize {
    const ColorizeTables& tables;

    template <Form V>
    V operator()(V, V pixel) const {
        using Reals = typename V::Reals;
        static_assert(RealNumbers<Reals>);
        const auto number = [](float value) { return Reals::Repeat(value); };
        const Reals red = Reals::Byte(pixel, 16), green = Reals::Byte(pixel, 8), blue = Reals::Byte(pixel, 0);
        const Reals max = Larger(Larger(red, green), blue), min = Smaller(Smaller(red, green), blue);
        const Reals sum = max + min, delta = max - min, half = number(0.5F);

        const Reals range = Larger(Smaller(sum, number(510) - sum), number(1));
        const Reals saturation = (delta * number(255) + Whole(range * half) + half) / range;

        const Reals unit = number(1) / Larger(delta, number(1)), rounding = Whole(delta * half) + half;
        const auto distance = [&](Reals other) { return Whole(((max - other) * number(42) + rounding) * unit); };
        const Reals ofRed = distance(red), ofGreen = distance(green), ofBlue = distance(blue);
        const Reals notRed = SelectEqual(max, green, number(85) + ofRed - ofBlue, number(170) + ofGreen - ofRed);
        const Reals ofMax = SelectEqual(max, red, ofBlue - ofGreen, notRed);
        const Reals hue = SelectEqual(delta, number(0), number(170), ofMax) + number(ColorizeTables::hueOffset);

        const Reals s = Reals::Lookup(tables.saturation, saturation);
        const Reals l = Reals::Lookup(tables.lightness, (sum + number(1)) * half);
        const Reals high = SelectAtMost(l, half, (s + number(1)) * l, l + s - l * s);
        const Reals low = l + l - high;
        const Reals ramp = (high - low) * Reals::Lookup(tables.rise, hue) / number(60) + low;

        const auto byte = [&](Reals value) { return Whole(value * number(255)); };
        const Reals highPlace = Reals::Lookup(tables.highPlace, hue), rampPlace = Reals::Lookup(tables.rampPlace, hue);
        const Reals lowPlace = number(0x010101) - highPlace - rampPlace;
        const Reals color = byte(high) * highPlace + byte(ramp) * rampPlace + byte(low) * lowPlace;
        return color.Words() | (pixel & V::Broadcast(0xFF000000));
    }
};

}  // namespace
}  // namespace zorvic

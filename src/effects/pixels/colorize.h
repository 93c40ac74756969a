// Turning the hue and scaling the saturation and lightness, of one colour or of an image.
#pragma once

#include <cstdint>

#include "zorvic/types.h"

namespace zorvic {

// Useful from -1 to 1. A hue of 1 is half the circle; a saturation or lightness of 1 or -1 goes to the end of its scale.
// Larger amounts wrap modulo 256.
struct HslAmounts {
    float hue, saturation, lightness;

    bool IsNothing() const;  // all of them within a millionth of 0: the colour stays, bit for bit
};

// The colour words are 0xAAHHSSLL and 0xAARRGGBB; alpha stays. The saturation never becomes 0, so that a hue stays
// one.
std::uint32_t ColorizeAhsl(std::uint32_t ahsl, const HslAmounts& amounts);
std::uint32_t ColorizeArgb(std::uint32_t argb, const HslAmounts& amounts);

// ColorizeArgb of every pixel, without looking whether the amounts are nothing. 8 (palette), 24 and 32 bits.
void ColorizeImage(const BitmapLockInfo& image, const HslAmounts& amounts);

}  // namespace zorvic

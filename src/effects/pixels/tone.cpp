// The depths that each tone effect knows.
#include "effects/pixels/tone.h"

#include "effects/pixels/effect_set.h"
#include "effects/pixels/map_colors.h"

namespace zorvic {

void GrayImage(const BitmapLockInfo& image) { MapColors<Depths::all>(image, Effects().gray); }

void InvertImage(const BitmapLockInfo& image) { MapColors<Depths::argb32>(image, Effects().invert); }

void PremultiplyImage(const BitmapLockInfo& image) {
    MapColors<Depths::argb32AndPalette>(image, Effects().premultiply);
}

void ShuffleImage(const BitmapLockInfo& image, Shuffle mode) {
    switch (mode) {
        case Shuffle::alphaToGray:
            return MapColors<Depths::argb32>(image, Effects().alphaToGray);
        case Shuffle::colorToAlpha:
            return MapColors<Depths::argb32>(image, Effects().colorToAlpha);
    }
}

void ReplaceColor(const BitmapLockInfo& image, std::uint32_t from, std::uint32_t to) {
    if (image.bmBitsPixel == 24) from |= 0xFF000000;
    const auto replace = Effects().replaceColor;
    MapColors<Depths::all>(image, [=](std::uint32_t* pixels, int n) { replace(pixels, n, from, to); });
}

void WhitenImage(const BitmapLockInfo& image) { MapColors<Depths::argb32>(image, Effects().whiten); }

}  // namespace zorvic

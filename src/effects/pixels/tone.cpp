// The formulas of the single-pixel effects.
#include "effects/pixels/tone.h"

#include <algorithm>

#include "effects/pixels/map_colors.h"

namespace zorvic {

namespace {

constexpr std::uint32_t alphaMask = 0xFF000000;
constexpr std::uint32_t colorMask = 0x00FFFFFF;

// Signed, because SSE2 compares nothing else.
constexpr int Blue(std::uint32_t pixel) { return static_cast<int>(pixel & 0xFF); }
constexpr int Green(std::uint32_t pixel) { return static_cast<int>(pixel >> 8 & 0xFF); }
constexpr int Red(std::uint32_t pixel) { return static_cast<int>(pixel >> 16 & 0xFF); }

constexpr std::uint32_t Gray(std::uint32_t pixel) {
    const auto gray = static_cast<std::uint32_t>((Blue(pixel) + 2 * Green(pixel) + Red(pixel)) >> 2);
    return (pixel & alphaMask) | gray << 16 | gray << 8 | gray;
}

constexpr std::uint32_t AlphaToGray(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24;
    return (pixel & alphaMask) | alpha << 16 | alpha << 8 | alpha;
}

// a - c = ~(~a + c) in every byte; blue and red, then green, each with a byte to carry into.
constexpr std::uint32_t Invert(std::uint32_t pixel) {
    const std::uint32_t inverse = ~AlphaToGray(pixel);
    const std::uint32_t blueRed = (inverse & 0x00FF00FF) + (pixel & 0x00FF00FF);
    const std::uint32_t green = (inverse & 0x0000FF00) + (pixel & 0x0000FF00);
    return (pixel & alphaMask) | (~blueRed & 0x00FF00FF) | (~green & 0x0000FF00);
}

constexpr std::uint32_t Premultiply(std::uint32_t pixel) {
    const std::uint32_t factor = (pixel >> 24) + 1;
    const std::uint32_t blueRed = (pixel & 0x00FF00FF) * factor >> 8;
    const std::uint32_t green = (pixel & 0x0000FF00) * factor >> 8;
    return (pixel & alphaMask) | (blueRed & 0x00FF00FF) | (green & 0x0000FF00);
}

constexpr std::uint32_t ColorToAlpha(std::uint32_t pixel) {
    const int largest = std::max(std::max(Blue(pixel), Green(pixel)), Red(pixel));
    return (pixel & colorMask) | static_cast<std::uint32_t>(largest) << 24;
}

constexpr std::uint32_t Whiten(std::uint32_t pixel) { return (pixel & alphaMask) == 0 ? pixel : 0xFFFFFFFF; }

}  // namespace

void GrayImage(const BitmapLockInfo& image) {
    MapColors<Depths::all>(image, [](auto pixel) { return Gray(pixel); });
}

void InvertImage(const BitmapLockInfo& image) {
    MapColors<Depths::argb32>(image, [](auto pixel) { return Invert(pixel); });
}

void PremultiplyImage(const BitmapLockInfo& image) {
    MapColors<Depths::argb32AndPalette>(image, [](auto pixel) { return Premultiply(pixel); });
}

void ShuffleImage(const BitmapLockInfo& image, Shuffle mode) {
    switch (mode) {
        case Shuffle::alphaToGray:
            return MapColors<Depths::argb32>(image, [](auto pixel) { return AlphaToGray(pixel); });
        case Shuffle::colorToAlpha:
            return MapColors<Depths::argb32>(image, [](auto pixel) { return ColorToAlpha(pixel); });
    }
}

void ReplaceColor(const BitmapLockInfo& image, std::uint32_t from, std::uint32_t to) {
    if (image.bmBitsPixel == 24) from |= alphaMask;
    MapColors<Depths::all>(image, [=](auto pixel) { return pixel == from ? to : pixel; });
}

void WhitenImage(const BitmapLockInfo& image) {
    MapColors<Depths::argb32>(image, [](auto pixel) { return Whiten(pixel); });
}

}  // namespace zorvic

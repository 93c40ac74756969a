// Loops over whole pixels. Two channels share a word, 16 bits each.
#include "pixels.h"

namespace zorvic::vek {

namespace {

constexpr std::uint32_t lowBytes = 0x00FF00FF;

// Both 16-bit lanes divided by 255 to the nearest.
std::uint32_t DivideLanesBy255(std::uint32_t lanes) {
    lanes += 0x00800080;
    return (lanes + (lanes >> 8 & lowBytes)) >> 8 & lowBytes;
}

// Every byte times k / 255.
std::uint32_t Scale(std::uint32_t pixel, std::uint32_t k) {
    return DivideLanesBy255((pixel & lowBytes) * k) | DivideLanesBy255((pixel >> 8 & lowBytes) * k) << 8;
}

// a + (b - a) * k / 255 for every byte, rounded once.
std::uint32_t MixOne(std::uint32_t a, std::uint32_t b, std::uint32_t k) {
    const std::uint32_t low = (a & lowBytes) * (255 - k) + (b & lowBytes) * k;
    const std::uint32_t high = (a >> 8 & lowBytes) * (255 - k) + (b >> 8 & lowBytes) * k;
    return DivideLanesBy255(low) | DivideLanesBy255(high) << 8;
}

}  // namespace

std::uint32_t Premultiply(std::uint32_t color, int opacity) {
    const std::uint32_t alpha = DivideBy255((color >> 24) * static_cast<std::uint32_t>(opacity));
    return Scale(color | 0xFF000000, alpha);
}

bool FillPixels(Image& image, const Rect& rect, Blend blend, std::uint32_t premultiplied, int opacity) {
    const std::uint32_t inverse = 255 - (premultiplied >> 24);
    const bool replaces = blend == Blend::source || blend == Blend::clear;
    if (blend != Blend::sourceOver && !(replaces && opacity == 255)) return false;
    const std::uint32_t pixel = blend == Blend::clear ? 0 : premultiplied;
    if (blend == Blend::sourceOver && pixel == 0) return true;
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::uint32_t* row = image.At(rect.left, y);
        if (replaces || inverse == 0) {
            std::fill_n(row, rect.Width(), pixel);
        } else {
            for (int i = 0; i < rect.Width(); ++i) row[i] = pixel + Scale(row[i], inverse);
        }
    }
    return true;
}

void CopyPixels(Image& to, const Image& from, const Rect& rect) {
    for (int y = rect.top; y < rect.bottom; ++y) std::copy_n(from.At(rect.left, y), rect.Width(), to.At(rect.left, y));
}

void MixPixels(Image& composed, const Image& original, const Rect& rect, int opacity) {
    if (opacity == 255) return;
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::uint32_t* row = composed.At(rect.left, y);
        const std::uint32_t* old = original.At(rect.left, y);
        for (int i = 0; i < rect.Width(); ++i) row[i] = MixOne(old[i], row[i], static_cast<std::uint32_t>(opacity));
    }
}

}  // namespace zorvic::vek

// Seeded numbers and pixels: the same on every platform, so that a failure can be repeated.
#pragma once

#include <cstdint>

namespace zorvic {

class Random {
public:
    explicit Random(int seed) : state(static_cast<std::uint64_t>(seed)) {}

    // SplitMix64 (G. Steele et al., "Fast splittable pseudorandom number generators", 2014).
    std::uint32_t Word() {
        std::uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return static_cast<std::uint32_t>(z >> 32);
    }

    // 0 to n - 1.
    int Below(int n) { return static_cast<int>(Word() % static_cast<std::uint32_t>(n)); }

    // Half of the pixels are transparent or opaque; the others are premultiplied or, as hosts err, not.
    std::uint32_t Pixel() {
        const std::uint32_t word = Word();
        const int kind = Below(8);
        if (kind == 0) return 0;
        if (kind == 1) return 0xFFFFFFFF;
        if (kind == 2) return word | 0xFF000000;
        if (kind == 3) return word & 0x00FFFFFF;
        return kind < 6 ? word : Premultiplied(word);
    }

private:
    static std::uint32_t Premultiplied(std::uint32_t word) {
        const std::uint32_t alpha = word >> 24;
        std::uint32_t pixel = alpha;
        for (int shift = 16; shift >= 0; shift -= 8) pixel = pixel << 8 | (word >> shift & 0xFF) * alpha / 255;
        return pixel;
    }

    std::uint64_t state;
};

}  // namespace zorvic

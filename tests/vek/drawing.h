// What the tests of vekgraphic.dll share: a canvas with pixels of its own, owning handles, sums and checks over pixels.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "vek/vekgraphic.h"

namespace vek_test {

using Pixel = std::uint32_t;

inline int Channel(Pixel pixel, int shift) { return static_cast<int>(pixel >> shift & 0xFF); }

struct DeleteHandle {
    void operator()(VekCanvas canvas) const { vekCanvasDestroy(canvas); }
    void operator()(VekBitmap bitmap) const { vekBitmapDestroy(bitmap); }
    void operator()(VekPath path) const { vekPathDestroy(path); }
    void operator()(VekGradient gradient) const { vekGradientDestroy(gradient); }
};
template <class Handle>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, DeleteHandle>;
using OwnedBitmap = Owned<VekBitmap>;
using OwnedPath = Owned<VekPath>;
using OwnedGradient = Owned<VekGradient>;

inline OwnedPath MakePath() { return OwnedPath(vekPathCreate()); }

struct Pixels {
    int width;
    int height;
    std::vector<Pixel> words;

    Pixels(int w, int h, Pixel fill = 0)
        : width(w), height(h), words(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), fill) {}
    Pixel& At(int x, int y) { return words[static_cast<std::size_t>(y * width + x)]; }
    Pixel At(int x, int y) const { return words[static_cast<std::size_t>(y * width + x)]; }
    OwnedBitmap Wrap() { return OwnedBitmap(vekBitmapCreateFromData(words.data(), width, height, width * 4)); }

    // Alpha of all pixels, in pixels: the area of what was drawn in an opaque colour.
    double Area() const {
        double sum = 0;
        for (const Pixel pixel : words) sum += Channel(pixel, 24);
        return sum / 255;
    }
};

// Pixels with a canvas on them; converts to the canvas handle.
struct Drawing : Pixels {
    explicit Drawing(int w = 200, int h = 200, Pixel fill = 0) : Pixels(w, h, fill), canvas(vekCanvasCreate()) {
        EXPECT_EQ(vekCanvasSetBitmap(canvas.get(), Wrap().get()), 1);
    }
    operator VekCanvas() const { return canvas.get(); }

    Owned<VekCanvas> canvas;
};

// All pixels with colours of any alpha, premultiplied.
inline void FillWithNoise(Pixels& pixels, unsigned seed) {
    std::mt19937 random(seed);
    for (Pixel& pixel : pixels.words) {
        const Pixel word = random();
        const Pixel alpha = word >> 24 < 64 ? 0 : word >> 24 < 128 ? 255 : word >> 24;
        const auto channel = [&](int shift) { return (word >> shift & 0xFF) * alpha / 255 << shift; };
        pixel = alpha << 24 | channel(16) | channel(8) | channel(0);
    }
}

// No colour above its alpha.
inline testing::AssertionResult IsPremultiplied(const Pixels& pixels) {
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x) {
            const Pixel pixel = pixels.At(x, y);
            for (const int shift : {0, 8, 16})
                if (Channel(pixel, shift) > Channel(pixel, 24))
                    return testing::AssertionFailure()
                           << std::hex << pixel << std::dec << " at (" << x << ", " << y << ")";
        }
    return testing::AssertionSuccess();
}

// All four channels within a distance.
inline testing::AssertionResult IsNear(Pixel got, Pixel wanted, int distance) {
    for (const int shift : {0, 8, 16, 24})
        if (std::abs(Channel(got, shift) - Channel(wanted, shift)) > distance)
            return testing::AssertionFailure() << std::hex << "got " << got << ", wanted " << wanted;
    return testing::AssertionSuccess();
}

}  // namespace vek_test

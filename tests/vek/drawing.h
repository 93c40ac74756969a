// What the tests of vekgraphic.dll share: a canvas with pixels of its own, owning handles, and calls as text: "width 10
// cap 1  line 40 60 120 90" makes three calls.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <span>
#include <string>
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

struct Pixels {
    int width;
    int height;
    std::vector<Pixel> words;

    Pixels(int w, int h, Pixel fill = 0)
        : width(w), height(h), words(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), fill) {}
    Pixel& At(int x, int y) { return words[static_cast<std::size_t>(y * width + x)]; }
    Pixel At(int x, int y) const { return words[static_cast<std::size_t>(y * width + x)]; }
    Owned<VekBitmap> Wrap() {
        return Owned<VekBitmap>(vekBitmapCreateFromData(words.data(), width, height, width * 4));
    }

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
        const Pixel word = random(), alpha = word % 4 == 0 ? 0 : word % 4 == 1 ? 255 : word >> 24;
        pixel = alpha << 24;
        for (const int shift : {0, 8, 16}) pixel |= (word >> shift & 0xFF) * alpha / 255 << shift;
    }
}

// All four channels within a distance.
inline testing::AssertionResult IsNear(Pixel got, Pixel wanted, int distance) {
    for (const int shift : {0, 8, 16, 24})
        if (std::abs(Channel(got, shift) - Channel(wanted, shift)) > distance)
            return testing::AssertionFailure() << std::hex << "got " << got << ", wanted " << wanted;
    return testing::AssertionSuccess();
}

// What calls work on: a canvas, and what the calls before made.
struct Pen {
    explicit Pen(VekCanvas c) : canvas(c) { FillWithNoise(picture, 11); }
    operator VekCanvas() const { return canvas; }
    operator VekPath() const { return path.get(); }
    operator VekGradient() const { return gradient.get(); }
    operator VekBitmap() const { return bitmap.get(); }

    // The argument for a parameter of this type: an object, memory, the colour or the next number.
    template <class T>
    T Argument(const float*& numbers) {
        if constexpr (std::is_same_v<T, const RECT*>)
            for (LONG& side : memory) side = static_cast<LONG>(*numbers++);
        if constexpr (std::is_convertible_v<Pen&, T>)
            return *this;
        else if constexpr (std::is_pointer_v<T>)
            return reinterpret_cast<T>(memory);
        else if constexpr (std::is_same_v<T, DWORD>)
            return color;
        else
            return static_cast<T>(*numbers++);
    }

    VekCanvas canvas;
    Owned<VekPath> path{vekPathCreate()};
    Owned<VekGradient> gradient;
    Pixels picture{9, 8};
    Owned<VekBitmap> bitmap = picture.Wrap();
    LONG memory[4] = {9, 9, 9, 9};
    DWORD color = 0xFF000000;  // set by a word #AARRGGBB
};

struct NumberCall {
    std::string name;
    std::size_t count;   // of numbers, at least
    std::size_t floats;  // the first of them
    std::function<int(Pen&, std::span<const float>)> call;
};
const std::vector<NumberCall>& NumberCalls();

// Makes the calls; 1 when all of them returned 1.
int Draw(Pen& pen, const std::string& text);

inline int Draw(VekCanvas canvas, const std::string& text) {
    Pen pen(canvas);
    return Draw(pen, text);
}

// Two texts give the same pixels, from nothing.
testing::AssertionResult AreTheSame(const std::string& one, const std::string& other);

}  // namespace vek_test

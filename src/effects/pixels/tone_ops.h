// What the tone effects make of a pixel. The first operand, the pixel in the target, is the same one.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

struct Gray {
    template <Form V>
    V operator()(V, V pixel) const {
        return WithAlphaOf(Luma(pixel), pixel);
    }
};

// a - c = ~(~a + c) in every byte.
struct InvertInAlpha {
    template <Form V>
    V operator()(V, V pixel) const {
        return WithAlphaOf(InvertBytes(AddBytes(InvertBytes(AlphaBytes(pixel)), pixel)), pixel);
    }
};

struct Premultiply {
    template <Form V>
    V operator()(V, V pixel) const {
        return WithAlphaOf(Scale(pixel, AlphaPlusOne(pixel)), pixel);
    }
};

struct AlphaToGray {
    template <Form V>
    V operator()(V, V pixel) const {
        return AlphaBytes(pixel);
    }
};

struct ColorToAlpha {
    template <Form V>
    V operator()(V, V pixel) const {
        return WithAlphaOf(pixel, LargestColor(pixel));
    }
};

struct Whiten {
    template <Form V>
    V operator()(V, V pixel) const {
        return SelectEqual(pixel & V::Broadcast(0xFF000000), V::Broadcast(0), pixel, V::Broadcast(0xFFFFFFFF));
    }
};

struct Replace {
    std::uint32_t from, to;

    template <Form V>
    V operator()(V, V pixel) const {
        return SelectEqual(pixel, V::Broadcast(from), V::Broadcast(to), pixel);
    }
};

}  // namespace
}  // namespace zorvic

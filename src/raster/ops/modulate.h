// Drawing an image in a colour: as a light map, or multiplied by the colour and drawn over.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

// The image's brightness shows the colour's own channels and adds alpha. For opaque colours.
class Tint {
public:
    explicit Tint(std::uint32_t lightColor) : color(lightColor) {}

    template <Form V>
    V operator()(V dst, V src) const {
        const V light = V::Broadcast(color);
        const V lit = AddBytes(ScaleBytes(InvertBytes(src), dst), ScaleBytes(light, src));
        const V brightness = MultiplyBytes(Luma(src), light);  // in the alpha byte: (luma + 1) x 255 >> 8
        const V alpha = AddBytes(Scale(dst, InverseAlpha(brightness)), brightness);
        return WithAlphaOf(lit, alpha);
    }

private:
    std::uint32_t color;
};

class Modulate {
public:
    explicit Modulate(std::uint32_t factorColor) : color(factorColor) {}

    template <Form V>
    V operator()(V dst, V src) const {
        const V product = MultiplyBytes(src, V::Broadcast(color));
        return AddBytes(Scale(dst, InverseAlpha(product)), product);
    }

private:
    std::uint32_t color;
};

}  // namespace
}  // namespace zorvic

// Cross-fades: the low byte of a mix value is the amount a of the sample; 0 keeps the pixel, 255 replaces it.
#pragma once

#include "pixel/forms/form.h"
#include "raster/ops/operator.h"

namespace zorvic {
namespace {

// The sample's factor: a + 1, and 0 for the amount 0, so that both ends are exact.
inline int MixFactor(std::uint32_t value) {
    const int amount = static_cast<int>(value & 0xFF);
    return amount == 0 ? 0 : amount + 1;
}

// Truncates the sum of both products.
class CrossFade {
public:
    explicit CrossFade(std::uint32_t value) : factor(MixFactor(value)) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return MixBytes(src, V::Uniform(factor), dst, V::Uniform(256 - factor));
    }

private:
    int factor;
};
template <>
struct Operator<Op::crossFade> {
    using Type = CrossFade;
};

// Truncates each product: a colour is scaled once for all pixels.
class MixColor {
public:
    explicit MixColor(std::uint32_t value) : factor(MixFactor(value)) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return AddBytes(Scale(dst, V::Uniform(256 - factor)), Scale(src, V::Uniform(factor)));
    }

private:
    int factor;
};
template <>
struct Operator<Op::mixColor> {
    using Type = MixColor;
};

}  // namespace
}  // namespace zorvic

// Compositions of a sample with what is there that kernels and primitives have in common. Colors are premultiplied; a
// byte is scaled by k / 256 and truncated. Source-over: T. Porter, T. Duff, "Compositing digital images", 1984.
#pragma once

#include "pixel/forms/form.h"

namespace zorvic {
namespace {

struct Copy {
    template <Form V>
    V operator()(V, V src) const {
        return src;
    }
};

struct SourceOver {
    static constexpr bool opaqueIsCopy = true, transparentIsNothing = true;

    template <Form V>
    V operator()(V dst, V src) const {
        return src + Scale(dst, InverseAlpha(src));
    }
};

// A composition of the sample at an opacity; 255 leaves the sample as it is.
template <class Composition>
class AtOpacity {
public:
    static constexpr bool transparentIsNothing = true;

    explicit AtOpacity(std::uint8_t alpha) : factor(alpha + 1) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return Composition{}(dst, Scale(src, V::Uniform(factor)));
    }

private:
    int factor;
};

using ConstantAlpha = AtOpacity<SourceOver>;

}  // namespace
}  // namespace zorvic

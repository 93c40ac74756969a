// Compositions of a sample with what is there. Colours are premultiplied; a byte is scaled by k / 256 and truncated.
// Source-over and destination-over: T. Porter, T. Duff, "Compositing digital images", 1984.
#pragma once

#include "raster/forms/form.h"

namespace zorvic {
namespace {

struct Copy {
    template <Form V>
    V operator()(V, V src) const {
        return src;
    }
};

struct SourceOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return src + Scale(dst, InverseAlpha(src));
    }
};

struct DestinationOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return dst + Scale(src, InverseAlpha(dst));
    }
};

// Source-over of the sample at an opacity; 255 leaves the sample as it is.
class ConstantAlpha {
public:
    explicit ConstantAlpha(std::uint8_t alpha) : factor(alpha + 1) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return SourceOver{}(dst, Scale(src, V::Uniform(factor)));
    }

private:
    int factor;
};

// ConstantAlpha for sources whose alpha byte means nothing.
class OpaqueAlpha {
public:
    explicit OpaqueAlpha(std::uint8_t alpha) : blend(alpha) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return blend(dst, src | V::Broadcast(0xFF000000));
    }

private:
    ConstantAlpha blend;
};

// Copies what differs from the key, all 32 bits compared.
class ColorKey {
public:
    explicit ColorKey(std::uint32_t keyPixel) : key(keyPixel) {}

    template <Form V>
    V operator()(V dst, V src) const {
        return SelectEqual(src, V::Broadcast(key), dst, src);
    }

private:
    std::uint32_t key;
};

}  // namespace
}  // namespace zorvic

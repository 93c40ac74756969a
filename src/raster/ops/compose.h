// Compositions of a sample with what is there; copy, source-over and constant alpha stand with the pixel primitives.
#pragma once

#include "pixel/forms/form.h"
#include "pixel/ops/compose.h"

namespace zorvic {
namespace {

// Source-over of samples whose colour may exceed their alpha, as a filter that overshoots makes them: bytes saturate
// instead of carrying into the next channel. The same as SourceOver for premultiplied samples.
struct SaturatedOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return AddSaturated(src, Scale(dst, InverseAlpha(src)));
    }
};

struct DestinationOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return dst + Scale(src, InverseAlpha(dst));
    }
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

// Compositions of a sample with what is there; copy, source-over and constant alpha stand with the pixel primitives.
#pragma once

#include "pixel/forms/form.h"
#include "pixel/ops/compose.h"
#include "raster/ops/operator.h"

namespace zorvic {
namespace {

template <>
struct Operator<Op::copy> {
    using Type = Copy;
};
template <>
struct Operator<Op::sourceOver> {
    using Type = SourceOver;
};
template <>
struct Operator<Op::constantAlpha> {
    using Type = ConstantAlpha;
};

// Source-over of samples whose colour may exceed their alpha, as a filter that overshoots makes them: bytes saturate
// instead of carrying into the next channel. The same as SourceOver for premultiplied samples.
struct SaturatedOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return AddSaturated(src, Scale(dst, InverseAlpha(src)));
    }
};
template <>
struct OperatorOn<Op::sourceOver, Rows::bicubic> {
    using Type = SaturatedOver;
};
template <>
struct OperatorOn<Op::constantAlpha, Rows::bicubic> {
    using Type = AtOpacity<SaturatedOver>;
};

struct DestinationOver {
    template <Form V>
    V operator()(V dst, V src) const {
        return dst + Scale(src, InverseAlpha(dst));
    }
};
template <>
struct Operator<Op::destinationOver> {
    using Type = DestinationOver;
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
template <>
struct Operator<Op::opaqueAlpha> {
    using Type = OpaqueAlpha;
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
template <>
struct Operator<Op::colorKey> {
    using Type = ColorKey;
};

}  // namespace
}  // namespace zorvic

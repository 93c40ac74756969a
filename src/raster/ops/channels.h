// Operations that treat the four channels alike, or wash colour into grey.
#pragma once

#include "pixel/forms/form.h"
#include "raster/ops/operator.h"

namespace zorvic {
namespace {

struct Multiply {
    template <Form V>
    V operator()(V dst, V src) const {
        return MultiplyBytes(src, dst);
    }
};
template <>
struct Operator<Op::multiply> {
    using Type = Multiply;
};

struct BitOr {
    template <Form V>
    V operator()(V dst, V src) const {
        return dst | src;
    }
};
template <>
struct Operator<Op::bitOr> {
    using Type = BitOr;
};

struct MakeOpaque {
    template <Form V>
    V operator()(V dst, V) const {
        return dst | V::Broadcast(0xFF000000);
    }
};
template <>
struct Operator<Op::makeOpaque> {
    using Type = MakeOpaque;
};

// Adds the pixel's grey by the sample's alpha to what the pixel's own alpha leaves of its colour.
struct GrayWash {
    template <Form V>
    V operator()(V dst, V src) const {
        const V gray = Scale(Luma(dst), AlphaWeight(src));
        return WithAlphaOf(AddBytes(Scale(dst, InverseAlpha(dst)), gray), dst);
    }
};
template <>
struct Operator<Op::grayWash> {
    using Type = GrayWash;
};

}  // namespace
}  // namespace zorvic

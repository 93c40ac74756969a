// Every effect on pixels once, for any form. Only the files that instantiate a form include this; see
// pixel/forms/form.h.
#pragma once

#include "effects/pixels/box_rows.h"
#include "effects/pixels/colorize_op.h"
#include "effects/pixels/effect_set.h"
#include "effects/pixels/tone_ops.h"
#include "pixel/spans_inl.h"

namespace zorvic {
namespace {

template <Form V, class Op>
void RunInPlace(const Op& op, std::uint32_t* pixels, int n) {
    [[maybe_unused]] const typename V::Guard guard;
    ApplySpan<V>(op, pixels, static_cast<const std::uint32_t*>(pixels), n);
}

template <Form V, class Op>
void Tone(std::uint32_t* pixels, int n) {
    RunInPlace<V>(Op{}, pixels, n);
}

template <Form V>
consteval EffectSet MakeEffects() {
    return {
        .gray = Tone<V, Gray>,
        .invert = Tone<V, InvertInAlpha>,
        .premultiply = Tone<V, Premultiply>,
        .alphaToGray = Tone<V, AlphaToGray>,
        .colorToAlpha = Tone<V, ColorToAlpha>,
        .whiten = Tone<V, Whiten>,
        .replaceColor =
            [](std::uint32_t* pixels, int n, std::uint32_t from, std::uint32_t to) {
                RunInPlace<V>(Replace{from, to}, pixels, n);
            },
        .colorize =
            [](std::uint32_t* pixels, int n, const ColorizeTables& tables) {
                RunInPlace<typename V::Reals::Pixels>(Colorize{tables}, pixels, n);
            },
        .sumNeighbors = SumNeighbors<V>,
        .meanOfNine = MeanOfNine<V>,
    };
}

}  // namespace
}  // namespace zorvic

// What a picture is drawn with: one field per control. Plain values, so that undo can keep whole ones.
#pragma once

#include <tuple>

#include "zorvic/zorvic.hpp"

inline bool operator==(const RECT& a, const RECT& b) { return EqualRect(&a, &b) != FALSE; }

enum class Ground { clear, white, black, bars };

enum class Effect { none, gray, invert, blur, boxBlur, colorize, light, dark, alphaToGray, colorToAlpha };

struct Settings {
    zorvic::Operation operation = zorvic::Operation::sourceOver;
    DWORD colorKey = 0xFF00FF;  // 0xRRGGBB
    int opacity = 255;
    zorvic::Filter filter = zorvic::Filter::bilinear;
    zorvic::StretchKernel kernel = zorvic::StretchKernel::bSpline;
    Ground ground = Ground::clear;

    zorvic::Layout layout = zorvic::Layout::stretch;
    bool layoutFlag = true;  // tiles: scaled; uniform: centered
    int scalePercent = 100;  // of tiles and of nine-grid margins
    RECT margins{};
    RECT destination{};

    int transform = 0;  // a zorvic::Transform; 0, none
    Effect effect = Effect::none;
    int box = 9;                                  // of the box blur, in pixels
    int hue = 30, saturation = 0, lightness = 0;  // of colorize, in hundredths

    bool operator==(const Settings&) const = default;

    // The picture before it is drawn is the same.
    bool SamePreparation(const Settings& other) const { return Preparation() == other.Preparation(); }

private:
    std::tuple<int, Effect, int, int, int, int> Preparation() const {
        const bool blurs = effect == Effect::boxBlur;
        const bool colors = effect == Effect::colorize;
        return {transform, effect, blurs ? box : 0, colors ? hue : 0, colors ? saturation : 0, colors ? lightness : 0};
    }
};

inline bool UsesMargins(zorvic::Layout layout) {
    return layout == zorvic::Layout::nineGrid || layout == zorvic::Layout::nineGridFilled ||
           layout == zorvic::Layout::topTile || layout == zorvic::Layout::uniform;
}
inline bool IsNineGrid(zorvic::Layout layout) {
    return layout == zorvic::Layout::nineGrid || layout == zorvic::Layout::nineGridFilled;
}
inline float Scale(const Settings& settings) { return static_cast<float>(settings.scalePercent) / 100; }

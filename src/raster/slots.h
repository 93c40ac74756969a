// The 108 kernel slots, as data: which row source and which operation each one joins, and its kernel's argument list.
// A group is three consecutive slots for 8-, 24- and 32-bit sources. Slot numbers stand here and in kernel_table.cpp
// only.
#pragma once

#include <tuple>

#include "raster/image.h"

namespace zorvic {

// How a row of samples is made from the source.
enum class Rows { solid, unscaled, nearest, bilinear, bicubic, area };

// What happens to a destination pixel given a sample.
enum class Op {
    copy,
    sourceOver,
    constantAlpha,
    opaqueAlpha,  // constantAlpha of a sample that counts as opaque
    colorKey,
    multiply,
    destinationOver,
    bitOr,
    grayWash,
    crossFade,
    mixColor,
    makeOpaque
};

// The argument lists. Every kernel returns 1.
using Blit = int (*)(const BitmapLockInfo& dst, const BitmapLockInfo& src);
using BlitAlpha = int (*)(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint8_t alpha);
using BlitKey = int (*)(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t key);
using BlitMix = BlitKey;  // the word is a mix value
using Placed = int (*)(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src);
using PlacedAlpha = int (*)(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
                            std::uint8_t alpha);
using PlacedKey = int (*)(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
                          std::uint32_t key);
using Fill = int (*)(const BitmapLockInfo& dst, std::uint32_t color);
using FillMix = int (*)(const BitmapLockInfo& dst, std::uint32_t color, std::uint32_t value);
using InPlace = int (*)(const BitmapLockInfo& dst);

template <class Kernel>
struct Slot {
    int index;
    Rows rows;
    Op op;
    static constexpr int count = 1;
};

template <class Kernel>
struct Group {
    int first;
    Rows rows;
    Op op;
    static constexpr int count = 3;

    constexpr Slot<Kernel> operator[](SourceDepth depth) const { return {first + static_cast<int>(depth), rows, op}; }
};

inline constexpr int slotCount = 108;

namespace slots {

// clang-format off
// Whole jobs: the source stretched over the destination.
inline constexpr Group<Blit> copySameSize               {  6, Rows::unscaled, Op::copy };
inline constexpr Group<Blit> copyNearest                {  0, Rows::nearest,  Op::copy };
inline constexpr Group<Blit> copyBilinear               {  3, Rows::bilinear, Op::copy };
inline constexpr Group<Blit> copyBicubic                { 12, Rows::bicubic,  Op::copy };
inline constexpr Group<Blit> copyArea                   {  9, Rows::area,     Op::copy };
inline constexpr Group<Blit> overSameSize               { 96, Rows::unscaled, Op::sourceOver };
inline constexpr Group<Blit> overNearest                {105, Rows::nearest,  Op::sourceOver };
inline constexpr Group<Blit> overBilinear               { 26, Rows::bilinear, Op::sourceOver };
inline constexpr Group<Blit> overBicubic                { 92, Rows::bicubic,  Op::sourceOver };
inline constexpr Group<BlitAlpha> alphaSameSize         { 50, Rows::unscaled, Op::constantAlpha };
inline constexpr Group<BlitAlpha> alphaNearest          { 23, Rows::nearest,  Op::constantAlpha };
inline constexpr Group<BlitAlpha> alphaBilinear         { 41, Rows::bilinear, Op::constantAlpha };
inline constexpr Group<BlitAlpha> alphaBicubic          { 69, Rows::bicubic,  Op::constantAlpha };
inline constexpr Group<BlitKey> keySameSize             { 85, Rows::unscaled, Op::colorKey };
inline constexpr Group<BlitKey> keyNearest              { 99, Rows::nearest,  Op::colorKey };
inline constexpr Group<Blit> multiplySameSize           { 47, Rows::unscaled, Op::multiply };
inline constexpr Group<Blit> multiplyScaled             { 17, Rows::bilinear, Op::multiply };
inline constexpr Group<Blit> destinationOverSameSize    { 32, Rows::unscaled, Op::destinationOver };
inline constexpr Group<Blit> destinationOverScaled      { 44, Rows::bilinear, Op::destinationOver };

// Placed jobs: the visible part of a larger stretch.
inline constexpr Group<Placed> placedCopyNearest        { 76, Rows::nearest,  Op::copy };
inline constexpr Group<Placed> placedCopyBilinear       { 72, Rows::bilinear, Op::copy };
inline constexpr Group<Placed> placedCopyBicubic        { 79, Rows::bicubic,  Op::copy };
inline constexpr Group<Placed> placedCopyArea           { 20, Rows::area,     Op::copy };
inline constexpr Group<Placed> placedOverNearest        { 88, Rows::nearest,  Op::sourceOver };
inline constexpr Group<Placed> placedOverBilinear       { 64, Rows::bilinear, Op::sourceOver };
inline constexpr Group<Placed> placedOverBicubic        { 29, Rows::bicubic,  Op::sourceOver };
inline constexpr Group<PlacedAlpha> placedAlphaNearest  { 56, Rows::nearest,  Op::constantAlpha };
inline constexpr Group<PlacedAlpha> placedAlphaBilinear { 53, Rows::bilinear, Op::constantAlpha };
inline constexpr Group<PlacedAlpha> placedAlphaBicubic  {102, Rows::bicubic,  Op::constantAlpha };
inline constexpr Group<PlacedKey> placedKeyNearest      { 82, Rows::nearest,  Op::colorKey };
inline constexpr Group<Placed> placedMultiply           { 35, Rows::bilinear, Op::multiply };
inline constexpr Group<Placed> placedDestinationOver    { 38, Rows::bilinear, Op::destinationOver };

// Canvas with canvas; both have 32 bits.
inline constexpr Slot<BlitAlpha> opaqueAlphaSameSize    { 16, Rows::unscaled, Op::opaqueAlpha };
inline constexpr Slot<BlitAlpha> opaqueAlphaNearest     { 67, Rows::nearest,  Op::opaqueAlpha };
inline constexpr Slot<BlitMix> crossFadeSameSize        { 60, Rows::unscaled, Op::crossFade };
inline constexpr Slot<BlitMix> crossFadeNearest         { 95, Rows::nearest,  Op::crossFade };
inline constexpr Slot<InPlace> makeOpaque               { 61, Rows::solid,    Op::makeOpaque };

// One colour for the whole destination.
inline constexpr Slot<Fill> fillCopy                    { 91, Rows::solid,    Op::copy };
inline constexpr Slot<Fill> fillOver                    { 59, Rows::solid,    Op::sourceOver };
inline constexpr Slot<Fill> fillMultiply                { 62, Rows::solid,    Op::multiply };
inline constexpr Slot<Fill> fillOr                      { 68, Rows::solid,    Op::bitOr };
inline constexpr Slot<Fill> fillGrayWash                { 63, Rows::solid,    Op::grayWash };
inline constexpr Slot<Fill> fillDestinationOver         { 75, Rows::solid,    Op::destinationOver };
inline constexpr Slot<FillMix> fillMix                  { 15, Rows::solid,    Op::mixColor };

// clang-format on

inline constexpr std::tuple all{copySameSize,
                                copyNearest,
                                copyBilinear,
                                copyBicubic,
                                copyArea,
                                overSameSize,
                                overNearest,
                                overBilinear,
                                overBicubic,
                                alphaSameSize,
                                alphaNearest,
                                alphaBilinear,
                                alphaBicubic,
                                keySameSize,
                                keyNearest,
                                multiplySameSize,
                                multiplyScaled,
                                destinationOverSameSize,
                                destinationOverScaled,
                                placedCopyNearest,
                                placedCopyBilinear,
                                placedCopyBicubic,
                                placedCopyArea,
                                placedOverNearest,
                                placedOverBilinear,
                                placedOverBicubic,
                                placedAlphaNearest,
                                placedAlphaBilinear,
                                placedAlphaBicubic,
                                placedKeyNearest,
                                placedMultiply,
                                placedDestinationOver,
                                opaqueAlphaSameSize,
                                opaqueAlphaNearest,
                                crossFadeSameSize,
                                crossFadeNearest,
                                makeOpaque,
                                fillCopy,
                                fillOver,
                                fillMultiply,
                                fillOr,
                                fillGrayWash,
                                fillDestinationOver,
                                fillMix};

}  // namespace slots

template <class Kernel>
constexpr int FirstIndex(const Slot<Kernel>& slot) {
    return slot.index;
}
template <class Kernel>
constexpr int FirstIndex(const Group<Kernel>& group) {
    return group.first;
}

consteval bool EverySlotDescribedOnce() {
    int described[slotCount] = {};
    std::apply(
        [&](const auto&... entry) {
            const auto mark = [&](int first, int count) {
                for (int i = first; i < first + count; ++i) ++described[i];
            };
            (mark(FirstIndex(entry), entry.count), ...);
        },
        slots::all);
    for (const int times : described)
        if (times != 1) return false;
    return true;
}
static_assert(EverySlotDescribedOnce());

}  // namespace zorvic

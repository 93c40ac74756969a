// The decisions, in the order in which they are taken, and the calls.
#include "raster/selectors.h"

#include "raster/kernel_table.h"
#include "raster/saturated_over.h"

namespace zorvic {

namespace {

template <class... Function>
struct Overloaded : Function... {
    using Function::operator()...;
};
template <class... Function>
Overloaded(Function...) -> Overloaded<Function...>;  // Clang deduces aggregates from version 17 on only

// The scaled kernels of one operation, by filter.
template <class Kernel>
struct ByFilter {
    Group<Kernel> nearest, bilinear, bicubic;

    constexpr const Group<Kernel>& operator[](Filter filter) const {
        if (filter == Filter::nearest) return nearest;
        return filter == Filter::bicubic ? bicubic : bilinear;
    }
};

// What whole and placed jobs draw differently.
template <class Plain, class Alpha, class Key>
struct ScaledGroups {
    ByFilter<Plain> copy;
    Group<Plain> copyArea;
    ByFilter<Plain> over;
    ByFilter<Alpha> alpha;
    Group<Key> key;
    Group<Plain> multiply;
    Group<Plain> destinationOver;
    Group<Blit> destinationOverSameSize;
};

constexpr ScaledGroups<Blit, BlitAlpha, BlitKey> whole{
    .copy = {slots::copyNearest, slots::copyBilinear, slots::copyBicubic},
    .copyArea = slots::copyArea,
    .over = {slots::overNearest, slots::overBilinear, slots::overBicubic},
    .alpha = {slots::alphaNearest, slots::alphaBilinear, slots::alphaBicubic},
    .key = slots::keyNearest,
    .multiply = slots::multiplyScaled,
    .destinationOver = slots::destinationOverScaled,
    .destinationOverSameSize = slots::destinationOverSameSize,
};

constexpr ScaledGroups<Placed, PlacedAlpha, PlacedKey> placed{
    .copy = {slots::placedCopyNearest, slots::placedCopyBilinear, slots::placedCopyBicubic},
    .copyArea = slots::placedCopyArea,
    .over = {slots::placedOverNearest, slots::placedOverBilinear, slots::placedOverBicubic},
    .alpha = {slots::placedAlphaNearest, slots::placedAlphaBilinear, slots::placedAlphaBicubic},
    .key = slots::placedKeyNearest,
    .multiply = slots::placedMultiply,
    .destinationOver = slots::placedDestinationOver,
    .destinationOverSameSize = slots::destinationOverScaled,
};

// Calls act with the group of the draw's kernel, whatever its type, or with std::monostate when nothing is to be drawn.
template <class Groups, class Act>
auto WithKernel(const DrawRequest& request, const Groups& groups, const Act& act) {
    const auto choose = [&](const auto& ofSameSize, const auto& scaled) {
        return request.sameSize ? act(ofSameSize) : act(scaled);
    };
    const auto& [depth, sameSize, operation, filter, alpha] = request;
    if (operation == Operation::multiply) return choose(slots::multiplySameSize, groups.multiply);
    if (operation == Operation::destinationOver) return choose(groups.destinationOverSameSize, groups.destinationOver);
    if (operation != Operation::sourceOver && alpha == 255) {
        if (operation == Operation::colorKey) {
            // 24-bit sources are keyed exactly at any size; smooth filters of the others blend instead.
            if (depth == SourceDepth::rgb24 || filter == Filter::nearest) return choose(slots::keySameSize, groups.key);
            return choose(slots::keySameSize, groups.over[filter]);
        }
        return choose(slots::copySameSize, filter == Filter::area ? groups.copyArea : groups.copy[filter]);
    }
    if (alpha == 0) return act(std::monostate());
    if (alpha == 255) return choose(slots::overSameSize, groups.over[filter]);
    return choose(slots::alphaSameSize, groups.alpha[filter]);
}

// The samples of such rows. At the source's own size, where rows are unscaled, the bilinear kernel copies.
constexpr const Group<Placed>& PlacedCopyOf(Rows rows) {
    if (rows == Rows::nearest) return slots::placedCopyNearest;
    if (rows == Rows::bicubic) return slots::placedCopyBicubic;
    return rows == Rows::area ? slots::placedCopyArea : slots::placedCopyBilinear;
}

// Acts with a group's slot for sources of a depth.
template <class Act>
struct AtDepth {
    SourceDepth depth;
    Act act;

    auto operator()(std::monostate nothing) const { return act(nothing); }
    auto operator()(const auto& group) const { return act(group[depth]); }
};
template <class Act>
AtDepth(SourceDepth, Act) -> AtDepth<Act>;

// The key as the kernels compare it: 24-bit pixels are opaque, others are keyed by a transparent colour.
std::uint32_t KeyPixel(std::uint32_t operationWord, SourceDepth depth) {
    return (operationWord & 0x00FFFFFF) | (depth == SourceDepth::rgb24 ? 0xFF000000 : 0);
}

}  // namespace

DrawChoice ChooseStretchKernel(const DrawRequest& request) {
    return WithKernel(request, whole, AtDepth{request.depth, [](auto slot) { return DrawChoice(slot); }});
}
DrawChoice ChoosePlacedKernel(const DrawRequest& request) {
    return WithKernel(request, placed, AtDepth{request.depth, [](auto slot) { return DrawChoice(slot); }});
}

Slot<Blit> ChooseResizeKernel(SourceDepth depth, bool sameSize, Filter filter) {
    if (sameSize) return slots::copySameSize[depth];
    return (filter == Filter::area ? whole.copyArea : whole.copy[filter])[depth];
}

std::optional<Slot<Fill>> ChooseFillKernel(std::uint32_t color, Operation operation) {
    constexpr std::uint32_t white = 0xFFFFFFFF;
    const std::uint32_t alpha = color >> 24;
    switch (operation) {
        case Operation::copy:
            return slots::fillCopy;
        case Operation::multiply:
            if (color == white) return {};
            return color == 0 ? slots::fillCopy : slots::fillMultiply;
        case Operation::bitOr:
            // Not the algebra of OR, on purpose: white changes nothing, and 0 clears.
            if (color == white) return {};
            return color == 0 ? slots::fillCopy : slots::fillOr;
        case Operation::grayWash:
            if (alpha == 0) return {};
            return slots::fillGrayWash;
        case Operation::destinationOver:
            return slots::fillDestinationOver;
        default:
            if (alpha == 0) return {};
            return alpha == 255 ? slots::fillCopy : slots::fillOver;
    }
}

namespace {

DrawRequest RequestOf(const Placement& placement, const BitmapLockInfo& src, std::uint32_t operationWord,
                      std::uint32_t filterMode, std::uint8_t alpha) {
    const bool sameSize = src.bmWidth == placement.width && src.bmHeight == placement.height;
    return {DepthOf(src.bmBitsPixel), sameSize, OperationOf(operationWord), FilterOf(filterMode), alpha};
}

// Calls the kernel of a draw. part(): the source as kernels without a placement read it.
template <class Groups, class Part>
int Draw(const Groups& groups, const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
         const Part& part, std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha) {
    if (IsEmpty(dst) || IsEmpty(src)) return 1;
    const DrawRequest request = RequestOf(placement, src, operationWord, filterMode, alpha);
    const auto key = [&] { return KeyPixel(operationWord, request.depth); };
    const auto run =
        Overloaded{[](std::monostate) { return 1; },
                   [&](Slot<Blit> slot) { return KernelTable.At(slot)(dst, part()); },
                   [&](Slot<BlitAlpha> slot) { return KernelTable.At(slot)(dst, part(), alpha); },
                   [&](Slot<BlitKey> slot) { return KernelTable.At(slot)(dst, part(), key()); },
                   [&](Slot<Placed> slot) { return KernelTable.At(slot)(dst, placement, src); },
                   [&](Slot<PlacedAlpha> slot) { return KernelTable.At(slot)(dst, placement, src, alpha); },
                   [&](Slot<PlacedKey> slot) { return KernelTable.At(slot)(dst, placement, src, key()); }};
    WithKernel(request, groups, AtDepth{request.depth, run});
    return 1;
}

}  // namespace

int SelectStretchKernel(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t operationWord,
                        std::uint32_t filterMode, std::uint8_t alpha) {
    const auto part = [&]() -> const BitmapLockInfo& { return src; };
    return Draw(whole, dst, WholeOf(dst), src, part, operationWord, filterMode, alpha);
}

int SelectPlacedKernel(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
                       std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha) {
    // Only for sources of the draw's own size.
    const auto part = [&] {
        return PartOf(src, static_cast<int>(placement.left), static_cast<int>(placement.top), dst.bmWidth,
                      dst.bmHeight);
    };
    return Draw(placed, dst, placement, src, part, operationWord, filterMode, alpha);
}

int SelectSamplingKernel(const BitmapLockInfo& samples, const Placement& placement, const BitmapLockInfo& src,
                         std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha) {
    const DrawRequest request = RequestOf(placement, src, operationWord, filterMode, alpha);
    const auto rowsOf =
        Overloaded{[](std::monostate) { return Rows::unscaled; }, [](const auto& group) { return group.rows; }};
    return KernelTable.At(PlacedCopyOf(WithKernel(request, placed, rowsOf)), request.depth)(samples, placement, src);
}

int SelectSampledKernel(const BitmapLockInfo& dst, const BitmapLockInfo& samples, const Placement& placement,
                        const BitmapLockInfo& src, std::uint32_t operationWord, std::uint32_t filterMode,
                        std::uint8_t alpha) {
    const DrawRequest request = RequestOf(placement, src, operationWord, filterMode, alpha);
    const auto run = Overloaded{[](std::monostate) { return 1; },
                                [&](const Group<Blit>& group) {
                                    if (group.op == Op::copy)
                                        return KernelTable.At(slots::copySameSize, SourceDepth::argb32)(dst, samples);
                                    if (group.rows == Rows::bicubic) return DrawSaturatedOver(dst, samples, alpha);
                                    return KernelTable.At(group, SourceDepth::argb32)(dst, samples);
                                },
                                [&](const Group<BlitAlpha>& group) {
                                    if (group.rows == Rows::bicubic) return DrawSaturatedOver(dst, samples, alpha);
                                    return KernelTable.At(group, SourceDepth::argb32)(dst, samples, alpha);
                                },
                                [&](const Group<BlitKey>& group) {
                                    return KernelTable.At(group, SourceDepth::argb32)(
                                        dst, samples, KeyPixel(operationWord, request.depth));
                                }};
    return WithKernel(request, whole, run);
}

int SelectFillKernel(const BitmapLockInfo& dst, std::uint32_t color, std::uint32_t operationWord) {
    const auto slot = ChooseFillKernel(color, OperationOf(operationWord));
    return slot ? KernelTable.At(*slot)(dst, color) : 1;
}

int SelectResizeKernel(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t filterMode) {
    if (IsEmpty(dst) || IsEmpty(src)) return 1;
    const bool sameSize = src.bmWidth == dst.bmWidth && src.bmHeight == dst.bmHeight;
    return KernelTable.At(ChooseResizeKernel(DepthOf(src.bmBitsPixel), sameSize, FilterOf(filterMode)))(dst, src);
}

}  // namespace zorvic

// The decisions, in the order in which they are taken, and the calls.
#include "raster/selectors.h"

#include "raster/kernel_table.h"

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

// A choice between a kernel for sources of the draw's own size and a scaled one.
template <class SameSize, class Scaled>
DrawChoice Choose(const DrawRequest& request, const Group<SameSize>& sameSize, const Group<Scaled>& scaled) {
    if (request.sameSize) return sameSize[request.depth];
    return scaled[request.depth];
}

template <class Groups>
DrawChoice ChooseKernel(const DrawRequest& request, const Groups& groups) {
    const auto [depth, sameSize, operation, filter, alpha] = request;
    if (operation == Operation::multiply) return Choose(request, slots::multiplySameSize, groups.multiply);
    if (operation == Operation::destinationOver)
        return Choose(request, groups.destinationOverSameSize, groups.destinationOver);
    if (operation != Operation::sourceOver && alpha == 255) {
        if (operation == Operation::colorKey) {
            // 24-bit sources are keyed exactly at any size; smooth filters of the others blend instead.
            if (depth == SourceDepth::rgb24 || filter == Filter::nearest)
                return Choose(request, slots::keySameSize, groups.key);
            return Choose(request, slots::keySameSize, groups.over[filter]);
        }
        return Choose(request, slots::copySameSize, filter == Filter::area ? groups.copyArea : groups.copy[filter]);
    }
    if (alpha == 0) return {};
    if (alpha == 255) return Choose(request, slots::overSameSize, groups.over[filter]);
    return Choose(request, slots::alphaSameSize, groups.alpha[filter]);
}

// The key as the kernels compare it: 24-bit pixels are opaque, others are keyed by a transparent colour.
std::uint32_t KeyPixel(std::uint32_t operationWord, SourceDepth depth) {
    return (operationWord & 0x00FFFFFF) | (depth == SourceDepth::rgb24 ? 0xFF000000 : 0);
}

}  // namespace

DrawChoice ChooseStretchKernel(const DrawRequest& request) { return ChooseKernel(request, whole); }
DrawChoice ChoosePlacedKernel(const DrawRequest& request) { return ChooseKernel(request, placed); }

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

// Calls the chosen kernel. part: the source as kernels without a placement read it.
void RunChoice(const DrawChoice& choice, const BitmapLockInfo& dst, const Placement& placement,
               const BitmapLockInfo& src, const BitmapLockInfo& part, std::uint32_t operationWord, std::uint8_t alpha) {
    const std::uint32_t key = KeyPixel(operationWord, DepthOf(src.bmBitsPixel));
    std::visit(Overloaded{[](std::monostate) {}, [&](const Slot<Blit>& slot) { KernelTable.At(slot)(dst, part); },
                          [&](const Slot<BlitAlpha>& slot) { KernelTable.At(slot)(dst, part, alpha); },
                          [&](const Slot<BlitKey>& slot) { KernelTable.At(slot)(dst, part, key); },
                          [&](const Slot<Placed>& slot) { KernelTable.At(slot)(dst, placement, src); },
                          [&](const Slot<PlacedAlpha>& slot) { KernelTable.At(slot)(dst, placement, src, alpha); },
                          [&](const Slot<PlacedKey>& slot) { KernelTable.At(slot)(dst, placement, src, key); }},
               choice);
}

}  // namespace

int SelectStretchKernel(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t operationWord,
                        std::uint32_t filterMode, std::uint8_t alpha) {
    if (IsEmpty(dst) || IsEmpty(src)) return 1;
    const bool sameSize = src.bmWidth == dst.bmWidth && src.bmHeight == dst.bmHeight;
    const DrawRequest request{DepthOf(src.bmBitsPixel), sameSize, OperationOf(operationWord), FilterOf(filterMode),
                              alpha};
    RunChoice(ChooseStretchKernel(request), dst, WholeOf(dst), src, src, operationWord, alpha);
    return 1;
}

int SelectPlacedKernel(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
                       std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha) {
    if (IsEmpty(dst) || IsEmpty(src)) return 1;
    const bool sameSize = src.bmWidth == placement.width && src.bmHeight == placement.height;
    const DrawRequest request{DepthOf(src.bmBitsPixel), sameSize, OperationOf(operationWord), FilterOf(filterMode),
                              alpha};
    const BitmapLockInfo part = sameSize ? PartOf(src, static_cast<int>(placement.left),
                                                  static_cast<int>(placement.top), dst.bmWidth, dst.bmHeight)
                                         : src;
    RunChoice(ChoosePlacedKernel(request), dst, placement, src, part, operationWord, alpha);
    return 1;
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

// Any drawing request on any processor's kernel table: it gives a slot, or nothing to be drawn, and its result is 1. The
// wanted pixels are those of the slot's first form.
#include "raster/selectors.h"

#include <cstdio>
#include <type_traits>
#include <variant>

#include "kernels/slot_calls.h"
#include "support/fenced_image.h"

namespace zorvic {

namespace {

constexpr int depths[] = {32, 24, 8, 32, 24, 8, 16, 1};

// The kernel table of this processor or of a lesser one.
const KernelSet& ForceProcessor(int kind) {
    CpuFeatures features;
    features.cpuHasMMX = (kind & 3) != 0;
    features.cpuHasSSE = (kind & 3) > 1;
    features.cpuHasSSE2 = (kind & 3) > 2;
    const Level level = LimitLevel(static_cast<Level>(kind >> 2 & 3));
    FillTables(features, (kind & 16) != 0 ? std::optional(level) : std::nullopt);
    return features.cpuHasMMX ? packedKernels : baselineKernels;
}

// Any word: those that mean something are frequent.
std::uint32_t RequestWord(Input& input, std::uint32_t meanings, std::uint32_t place) {
    const int byte = input.Byte();
    return byte < 224 ? static_cast<std::uint32_t>(byte) % meanings << place |
                            (input.Flag() ? 0xABCDEF & ((1U << place) - 1) : 0)
                      : input.Word();
}

struct Request {
    std::uint32_t operationWord, filterMode;
    std::uint8_t alpha;
};

Request ReadRequest(Input& input) {
    constexpr std::uint8_t alphas[] = {255, 0, 1, 128, 254, 255, 77, 255};
    const std::uint32_t operationWord = RequestWord(input, 8, 24), filterMode = RequestWord(input, 7, 0);
    return {operationWord, filterMode, input.Pick(alphas)};
}

void CheckSlot(int index) {
    if (index < 0 || index >= slotCount) Fail("there is no slot %d", index);
}

// Draws by the slot that is chosen for the request, in one of the first forms.
void DrawWanted(const KernelSet& kernels, const DrawChoice& choice, const Job& job, const BitmapLockInfo& part) {
    std::visit(
        [&]<class Chosen>(const Chosen& slot) {
            if constexpr (!std::is_same_v<Chosen, std::monostate>) {
                CheckSlot(slot.index);
                constexpr bool placed = std::is_same_v<Chosen, Slot<Placed>> ||
                                        std::is_same_v<Chosen, Slot<PlacedAlpha>> ||
                                        std::is_same_v<Chosen, Slot<PlacedKey>>;
                Job own = job;
                if constexpr (!placed) own.src = part;
                Call(kernels.At(slot), own);
            }
        },
        choice);
}

}  // namespace

void RunInput(Input& input) {
    const int kind = input.Byte() & 3;
    const KernelSet& kernels = ForceProcessor(input.Byte());
    const Request request = ReadRequest(input);
    const int shape = input.Byte(), bitsPixel = input.Pick(depths);
    const bool sameSize = (shape & 1) != 0, emptyTarget = (shape & 0x1C) == 0x1C, emptySource = (shape & 0xE0) == 0xE0;
    Random random = input.Seed();
    const std::uint32_t color = random.Pixel();

    const SIZE size = ReadSize(input);
    FencedImage target(Fence::target, size.cx, size.cy, 32, Lie::From(input), random);
    Placement placement = WholeOf(target.Info());
    if (kind == 1) {
        const auto hidden = [&] { return sameSize ? input.Below(20) : input.Below(65536); };
        placement.left = hidden();
        placement.top = hidden();
        placement.width += placement.left + hidden();
        placement.height += placement.top + hidden();
    }
    SIZE sourceSize{static_cast<LONG>(placement.width), static_cast<LONG>(placement.height)};
    if (!sameSize || !FitsFence(placement.width, placement.height)) sourceSize = ReadSize(input);
    const FencedImage source(Fence::source, sourceSize.cx, sourceSize.cy, bitsPixel, Lie::From(input), random);
    const FencedImage wanted(Fence::wanted, target);

    BitmapLockInfo dst = target.Info(), src = source.Info();
    if (emptyTarget) (input.Flag() ? dst.bmWidth : dst.bmHeight) = -input.Below(3);
    if (emptySource) (input.Flag() ? src.bmWidth : src.bmHeight) = -input.Below(3);
    const bool drawsNothing = IsEmpty(dst) || IsEmpty(src);

    const SourceDepth depth = DepthOf(bitsPixel);
    const bool isUnscaled = sourceSize.cx == placement.width && sourceSize.cy == placement.height;
    const auto& [operationWord, filterMode, alpha] = request;
    const DrawRequest choice{depth, isUnscaled, OperationOf(operationWord), FilterOf(filterMode), alpha};
    const bool isKeyed = choice.operation == Operation::colorKey && alpha == 255;
    const std::uint32_t key = (operationWord & 0xFFFFFF) | (depth == SourceDepth::rgb24 ? 0xFF000000 : 0);
    const Job job{wanted.Info(), placement, source.Info(), color, isKeyed ? key : alpha};

    int result = 0;
    switch (kind) {
        case 0:
            result = SelectStretchKernel(dst, src, operationWord, filterMode, alpha);
            if (!drawsNothing) DrawWanted(kernels, ChooseStretchKernel(choice), job, job.src);
            break;
        case 1: {
            result = SelectPlacedKernel(dst, placement, src, operationWord, filterMode, alpha);
            const BitmapLockInfo part = isUnscaled ? PartOf(source.Info(), static_cast<int>(placement.left),
                                                            static_cast<int>(placement.top), size.cx, size.cy)
                                                   : source.Info();
            if (!drawsNothing) DrawWanted(kernels, ChoosePlacedKernel(choice), job, part);
            break;
        }
        case 2: {
            result = SelectFillKernel(dst, color, operationWord);
            const auto slot = ChooseFillKernel(color, choice.operation);
            if (slot) CheckSlot(slot->index);
            if (slot && !IsEmpty(dst)) Call(kernels.At(*slot), job);
            break;
        }
        default: {
            result = SelectResizeKernel(dst, src, filterMode);
            const Slot<Blit> slot = ChooseResizeKernel(depth, isUnscaled, choice.filter);
            CheckSlot(slot.index);
            if (!drawsNothing) Call(kernels.At(slot), job);
        }
    }

    char where[80];
    std::snprintf(where, sizeof where, "request %d %08x %08x %d", kind, operationWord, filterMode, alpha);
    if (result != 1) Fail("%s returns %d", where, result);
    CheckSame(target, wanted, where);
    target.CheckGaps(where);
}

}  // namespace zorvic

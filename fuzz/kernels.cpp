// Any slot of any kernel set that this processor can run, on any job that its callers allow. The wanted pixels come from
// the packed form, or from the slow model of the tests, which is written differently.
#include <cstdio>

#include "kernels/slot_calls.h"
#include "raster/lookup_tables.h"
#include "support/fenced_image.h"

namespace zorvic {

namespace {

using KernelCall = std::tuple<NamedKernels, SlotCall>;

// Puts the kernel set's filter weights in memory, in the mode that the input asks for.
void PrepareTables(const NamedKernels& set, std::uint32_t mode) {
    if (ProcessorFeatures.cpuHasMMX != set.packedWeights) {
        CpuFeatures features;
        features.cpuHasMMX = set.packedWeights;
        FillTables(features);
    }
    SetStretchKernelMode(mode);
    LimitLevel(set.form);
}

// The visible part of a draw that may be as large as two coordinates are apart.
void Place(Input& input, Placement& placement) {
    const auto hidden = [&]() -> std::int64_t {
        const int kind = input.Byte();
        if (kind < 200) return kind % 60;
        return kind < 230 ? input.Below(65536) : input.Word() >> 1;
    };
    placement.left = hidden();
    placement.top = hidden();
    placement.width += placement.left + hidden();
    placement.height += placement.top + hidden();
}

bool IsSmall(SIZE size) { return size.cx * size.cy <= 2048; }

}  // namespace

void RunInput(Input& input) {
    static const std::vector<KernelCall> calls = AllKernelCalls();
    const auto& [set, slot] = calls[static_cast<std::size_t>(input.Below(65536)) % calls.size()];
    const int flags = input.Byte();
    PrepareTables(set, static_cast<std::uint32_t>(flags & 3) % 3);
    const bool asksModel = (flags & 4) != 0, drawsNothing = (flags & 0xF0) == 0xF0, keepsSize = (flags & 8) != 0;

    Random random = input.Seed();
    const std::uint32_t color = random.Pixel();
    const SIZE size = ReadSize(input);
    FencedImage target(Fence::target, size.cx, size.cy, 32, Lie::From(input), random);
    Placement placement = WholeOf(target.Info());
    if (slot.takesPlacement) Place(input, placement);

    SIZE sourceSize = size;
    if (slot.IsScaled() && keepsSize && FitsFence(placement.width, placement.height))
        sourceSize = {static_cast<LONG>(placement.width), static_cast<LONG>(placement.height)};
    else if (slot.IsScaled())
        sourceSize = ReadSize(input);
    const FencedImage source(Fence::source, sourceSize.cx, sourceSize.cy, slot.bitsPixel, Lie::From(input), random);
    // Keys that the source has, and both ends of opacities and amounts, are frequent.
    const std::uint32_t arguments[] = {SourceColor(source.Info(), 0, 0), 0, 1, 0x5A5A5A00, 0xFE, 0xFF, random.Word()};
    const std::uint32_t argument = input.Pick(arguments);

    Job job{target.Info(), placement, source.Info(), color, argument};
    const FencedImage wanted(Fence::wanted, target);
    Job wantedJob = job;
    wantedJob.dst = wanted.Info();
    // Callers never ask a scaled kernel for the whole of nothing.
    if (drawsNothing && (slot.takesPlacement || !slot.IsScaled())) {
        job.dst.bmHeight = input.Flag() ? 0 : -3;
    } else if (asksModel && IsSmall(size) && IsSmall(sourceSize)) {
        DrawByModel(slot, wantedJob);
    } else {
        slot.run(set.packedWeights ? packedKernels : baselineKernels, wantedJob);
    }

    char where[80];
    std::snprintf(where, sizeof where, "slot %d, %s", slot.slot, set.name);
    if (slot.run(*set.kernels, job) != 1) Fail("%s does not return 1", where);
    CheckSame(target, wanted, where);
    target.CheckGaps(where);
}

}  // namespace zorvic

// Filling the kernel table: the overlays are the policy, their order is its meaning.
#include "raster/kernel_table.h"

#include <array>
#include <initializer_list>

#include "raster/kernels.h"
#include "raster/lookup_tables.h"

namespace zorvic {

namespace {

using SlotMask = std::array<bool, slotCount>;

consteval SlotMask Only(std::initializer_list<int> slots) {
    SlotMask mask{};
    for (const int slot : slots) mask[static_cast<std::size_t>(slot)] = true;
    return mask;
}

consteval SlotMask AllBut(std::initializer_list<int> slots) {
    SlotMask mask = Only(slots);
    for (bool& in : mask) in = !in;
    return mask;
}

struct Overlay {
    Stage stage;
    const KernelSet& kernels;
    SlotMask slots;
};

// Every stage brings the baseline form until it has one of its own.
constexpr Overlay overlays[] = {
    {Stage::baseline, baselineKernels, AllBut({})},
    {Stage::mmx, baselineKernels, AllBut({9, 10, 11, 16, 20, 21, 22, 61, 63, 67})},
    {Stage::sse, baselineKernels, Only({8, 16, 67, 68, 91})},
    {Stage::sse2, baselineKernels, Only({8, 9, 10, 11, 20, 21, 22})},
    {Stage::primitives, baselineKernels, Only({52, 59, 91, 98})},
};

bool Applies(Stage stage, const CpuFeatures& features, bool primitiveLayer) {
    switch (stage) {
        case Stage::baseline:
            return true;
        case Stage::mmx:
            return features.cpuHasMMX;
        case Stage::sse:
            return features.cpuHasSSE;
        case Stage::sse2:
            return features.cpuHasSSE2;
        case Stage::primitives:
            return primitiveLayer;
    }
    return false;
}

const Overlay& OverlayOfSlot(int slot, const CpuFeatures& features, bool primitiveLayer) {
    const Overlay* last = &overlays[0];
    for (const Overlay& overlay : overlays)
        if (overlay.slots[static_cast<std::size_t>(slot)] && Applies(overlay.stage, features, primitiveLayer))
            last = &overlay;
    return *last;
}

}  // namespace

CpuFeatures ProcessorFeatures;
constinit KernelSet KernelTable{};

Stage StageOfSlot(int slot, const CpuFeatures& features, bool primitiveLayer) {
    return OverlayOfSlot(slot, features, primitiveLayer).stage;
}

KernelSet MakeKernelTable(const CpuFeatures& features, bool primitiveLayer) {
    KernelSet table;
    for (int slot = 0; slot < slotCount; ++slot)
        table.Take(slot, OverlayOfSlot(slot, features, primitiveLayer).kernels);
    return table;
}

void InitKernelTable() {
    DetectCpuFeatures(ProcessorFeatures);
    BuildStretchFilterWeights();
    if (!ProcessorFeatures.cpuHasMMX) ClampTable = MakeClampTable();
    KernelTable = MakeKernelTable(ProcessorFeatures);
}

namespace {

// Fills the tables while the library is loaded.
[[maybe_unused]] const bool tablesAreReady = (InitKernelTable(), true);

}  // namespace

}  // namespace zorvic

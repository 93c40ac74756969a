// Filling the kernel table: the overlays are the policy, their order is its meaning.
#include "raster/kernel_table.h"

#include <array>
#include <initializer_list>
#include <tuple>

#include "pixel/primitives.h"
#include "raster/kernels.h"
#include "raster/lookup_tables.h"
#include "raster/routed_kernels.h"

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
    SlotMask slots;
};

constexpr Overlay overlays[] = {
    {Stage::baseline, AllBut({})},
    {Stage::mmx, AllBut({9, 10, 11, 16, 20, 21, 22, 61, 63, 67})},
    {Stage::sse, Only({8, 16, 67, 68, 91})},
    {Stage::sse2, Only({8, 9, 10, 11, 20, 21, 22})},
    {Stage::wide, AllBut({})},
    {Stage::routed, Only({52, 59, 91, 98})},
};

// Whether 512 bits were measured to be faster than 256 (see docs/performance.md).
constexpr bool GainsFromAvx512(Rows rows, Op op) {
    switch (rows) {
        case Rows::solid:
            return op != Op::copy;
        case Rows::unscaled:
            return op == Op::constantAlpha || op == Op::opaqueAlpha || op == Op::crossFade;
        case Rows::nearest:
            return true;
        default:
            return false;
    }
}

// Kernels that read the filter weights in memory: area reduction enlarges by them.
constexpr bool ReadsWeights(Rows rows, Op) { return rows == Rows::bicubic || rows == Rows::area; }

template <class Has>
consteval SlotMask SlotsThat(Has has) {
    SlotMask mask{};
    std::apply(
        [&](const auto&... entry) {
            const auto mark = [&](int first, int count, bool in) {
                for (int slot = first; slot < first + count; ++slot) mask[static_cast<std::size_t>(slot)] = in;
            };
            (mark(FirstIndex(entry), entry.count, has(entry.rows, entry.op)), ...);
        },
        slots::all);
    return mask;
}

const KernelSet& WidestKernels(int slot, Level level) {
    static constexpr SlotMask avx512Slots = SlotsThat(GainsFromAvx512);
    if (level == Level::avx512 && avx512Slots[static_cast<std::size_t>(slot)]) return avx512Kernels;
    return level >= Level::avx2 ? avx2Kernels : sse2Kernels;
}

const KernelSet& KernelsOf(int slot, Stage stage, const CpuFeatures& features, std::optional<Level> primitives) {
    // Without MMX weights are not packed: only the baseline's arithmetic suits them.
    static constexpr SlotMask weighted = SlotsThat(ReadsWeights);
    if (!features.cpuHasMMX && weighted[static_cast<std::size_t>(slot)]) return baselineKernels;
    switch (stage) {
        case Stage::mmx:
            return mmxKernels;
        case Stage::sse:
            return sseKernels;
        case Stage::sse2:
            return sse2Kernels;
        case Stage::wide:
            return WidestKernels(slot, *primitives);
        case Stage::routed:
            return routedKernels;
        default:
            return features.cpuHasMMX ? packedKernels : baselineKernels;
    }
}

bool Applies(Stage stage, const CpuFeatures& features, std::optional<Level> primitives) {
    switch (stage) {
        case Stage::mmx:
            return features.cpuHasMMX;
        case Stage::sse:
            return features.cpuHasSSE;
        case Stage::sse2:
            return features.cpuHasSSE2;
        case Stage::wide:
            return features.cpuHasMMX && primitives && *primitives > Level::generic;
        case Stage::routed:
            return primitives.has_value();
        default:
            return true;
    }
}

}  // namespace

CpuFeatures ProcessorFeatures;
constinit KernelSet KernelTable{};

Stage StageOfSlot(int slot, const CpuFeatures& features, std::optional<Level> primitives) {
    Stage last = Stage::baseline;
    for (const Overlay& overlay : overlays)
        if (overlay.slots[static_cast<std::size_t>(slot)] && Applies(overlay.stage, features, primitives))
            last = overlay.stage;
    return last;
}

KernelSet MakeKernelTable(const CpuFeatures& features, std::optional<Level> primitives) {
    KernelSet table;
    for (int slot = 0; slot < slotCount; ++slot)
        table.Take(slot, KernelsOf(slot, StageOfSlot(slot, features, primitives), features, primitives));
    return table;
}

void FillTables(const CpuFeatures& features, std::optional<Level> primitives) {
    ProcessorFeatures = features;
    BuildStretchFilterWeights();
    if (!features.cpuHasMMX) ClampTable = MakeClampTable();
    SavedKernels = MakeKernelTable(features);
    KernelTable = MakeKernelTable(features, primitives);
}

void InitKernelTable() {
    CpuFeatures features;
    DetectCpuFeatures(features);
    FillTables(features, InitPrimitives() == Status::success ? std::optional(CurrentLevel()) : std::nullopt);
}

namespace {

// Fills the tables while the library is loaded.
[[maybe_unused]] const bool tablesAreReady = (InitKernelTable(), true);

}  // namespace

}  // namespace zorvic

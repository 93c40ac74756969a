// Every slot as one kind of call, and the kernel sets that are tested through it. zvcheck runs them too.
#pragma once

#include <functional>
#include <stdexcept>
#include <tuple>
#include <type_traits>
#include <vector>

#include "kernels/model.h"
#include "pixel/primitive_set.h"
#include "raster/kernel_table.h"
#include "raster/kernels.h"
#include "raster/routed_kernels.h"
#include "support/cpu_state.h"

namespace zorvic {

// A kernel set under test, on a processor that has its filter weights in memory; a line for each form.
struct NamedKernels {
    const char* name;
    const KernelSet* kernels;
    bool packedWeights;
    Level form = Level::generic;  // of the pixel primitives
};
inline constexpr NamedKernels kernelSets[] = {
    {"baseline", &baselineKernels, false},
    {"packed", &packedKernels, true},
    {"mmx", &mmxKernels, true},
    {"sse", &sseKernels, true},
    {"sse2", &sse2Kernels, true, Level::sse2},
    {"avx2", &avx2Kernels, true, Level::avx2},
    {"avx512", &avx512Kernels, true, Level::avx512},
    {"routed_generic", &routedKernels, true, Level::generic},
    {"routed_sse2", &routedKernels, true, Level::sse2},
    {"routed_avx2", &routedKernels, true, Level::avx2},
    {"routed_avx512", &routedKernels, true, Level::avx512},
};

struct SlotCall : SlotMeaning {
    int slot;
    int bitsPixel;  // of the source
    bool takesPlacement;
    std::function<int(const KernelSet& kernels, const Job& job)> run;

    bool IsScaled() const { return rows != Rows::solid && rows != Rows::unscaled; }
};

// Throws the name of what the kernel did not leave as it found it.
template <class... Parameters>
int CallKernel(int (*kernel)(Parameters...), const std::type_identity_t<Parameters>&... arguments) {
#if ZORVIC_WATCHES_CALLS
    const auto word = [](const auto& argument) {
        if constexpr (std::is_class_v<std::remove_cvref_t<decltype(argument)>>)
            return reinterpret_cast<std::uint32_t>(&argument);
        else
            return std::uint32_t{argument};
    };
    const std::uint32_t words[] = {word(arguments)...};
    const CallOutcome outcome = CallWatched(reinterpret_cast<const void*>(kernel), words);
    if (outcome.broken != nullptr) throw std::runtime_error(outcome.broken);
    return static_cast<int>(outcome.result);
#else
    return kernel(arguments...);
#endif
}

inline int Call(Blit kernel, const Job& job) { return CallKernel(kernel, job.dst, job.src); }
inline int Call(BlitAlpha kernel, const Job& job) {
    return CallKernel(kernel, job.dst, job.src, static_cast<std::uint8_t>(job.argument));
}
inline int Call(BlitKey kernel, const Job& job) { return CallKernel(kernel, job.dst, job.src, job.argument); }
inline int Call(Placed kernel, const Job& job) { return CallKernel(kernel, job.dst, job.placement, job.src); }
inline int Call(PlacedAlpha kernel, const Job& job) {
    return CallKernel(kernel, job.dst, job.placement, job.src, static_cast<std::uint8_t>(job.argument));
}
inline int Call(PlacedKey kernel, const Job& job) {
    return CallKernel(kernel, job.dst, job.placement, job.src, job.argument);
}
inline int Call(Fill kernel, const Job& job) { return CallKernel(kernel, job.dst, job.color); }
inline int Call(FillMix kernel, const Job& job) { return CallKernel(kernel, job.dst, job.color, job.argument); }
inline int Call(InPlace kernel, const Job& job) { return CallKernel(kernel, job.dst); }

template <class Kernel>
void AppendCalls(std::vector<SlotCall>& calls, Slot<Kernel> slot, int bitsPixel = 32) {
    constexpr bool placed =
        std::is_same_v<Kernel, Placed> || std::is_same_v<Kernel, PlacedAlpha> || std::is_same_v<Kernel, PlacedKey>;
    calls.push_back(
        {{slot.rows, slot.op}, slot.index, bitsPixel, placed, [slot](const KernelSet& kernels, const Job& job) {
             return Call(kernels.At(slot), job);
         }});
}

template <class Kernel>
void AppendCalls(std::vector<SlotCall>& calls, Group<Kernel> group) {
    AppendCalls(calls, group[SourceDepth::palette8], 8);
    AppendCalls(calls, group[SourceDepth::rgb24], 24);
    AppendCalls(calls, group[SourceDepth::argb32], 32);
}

inline std::vector<SlotCall> AllSlotCalls() {
    std::vector<SlotCall> calls;
    std::apply([&](auto... entry) { (AppendCalls(calls, entry), ...); }, slots::all);
    return calls;
}

// The routed set has only the slots that the table takes from it.
inline bool IsInSet(const NamedKernels& set, const SlotCall& call) {
    return set.kernels != &routedKernels || StageOfSlot(call.slot, {}, Level::generic) == Stage::routed;
}

// Every slot of every set that this processor can run.
inline std::vector<std::tuple<NamedKernels, SlotCall>> AllKernelCalls() {
    std::vector<std::tuple<NamedKernels, SlotCall>> calls;
    for (const NamedKernels& set : kernelSets)
        for (const SlotCall& call : AllSlotCalls())
            if (set.form <= BestLevel() && IsInSet(set, call)) calls.emplace_back(set, call);
    return calls;
}

}  // namespace zorvic

// 108 kernels, one per slot, called through named slots that know their argument list: no caller casts.
#pragma once

#include <type_traits>

#include "raster/slots.h"

namespace zorvic {

class KernelSet {
public:
    template <class Kernel>
    constexpr Kernel At(const Slot<Kernel>& slot) const {
        return Member<Kernel>(kernels[slot.index]);
    }
    template <class Kernel>
    constexpr Kernel At(const Group<Kernel>& group, SourceDepth depth) const {
        return At(group[depth]);
    }
    template <class Kernel>
    constexpr void Put(const Slot<Kernel>& slot, Kernel kernel) {
        kernels[slot.index] = AnyKernel(kernel);
    }

    // Takes one slot over from another set, whatever its type.
    constexpr void Take(int slot, const KernelSet& other) { kernels[slot] = other.kernels[slot]; }

private:
    union AnyKernel {
        constexpr AnyKernel() : blit(nullptr) {}
        constexpr explicit AnyKernel(Blit kernel) : blit(kernel) {}
        constexpr explicit AnyKernel(BlitAlpha kernel) : blitAlpha(kernel) {}
        constexpr explicit AnyKernel(BlitKey kernel) : blitKey(kernel) {}
        constexpr explicit AnyKernel(Placed kernel) : placed(kernel) {}
        constexpr explicit AnyKernel(PlacedAlpha kernel) : placedAlpha(kernel) {}
        constexpr explicit AnyKernel(PlacedKey kernel) : placedKey(kernel) {}
        constexpr explicit AnyKernel(Fill kernel) : fill(kernel) {}
        constexpr explicit AnyKernel(FillMix kernel) : fillMix(kernel) {}
        constexpr explicit AnyKernel(InPlace kernel) : inPlace(kernel) {}

        Blit blit;
        BlitAlpha blitAlpha;
        BlitKey blitKey;
        Placed placed;
        PlacedAlpha placedAlpha;
        PlacedKey placedKey;
        Fill fill;
        FillMix fillMix;
        InPlace inPlace;
    };

    template <class Kernel>
    static constexpr Kernel Member(const AnyKernel& any) {
        if constexpr (std::is_same_v<Kernel, Blit>) return any.blit;
        if constexpr (std::is_same_v<Kernel, BlitAlpha>) return any.blitAlpha;
        if constexpr (std::is_same_v<Kernel, BlitKey>) return any.blitKey;
        if constexpr (std::is_same_v<Kernel, Placed>) return any.placed;
        if constexpr (std::is_same_v<Kernel, PlacedAlpha>) return any.placedAlpha;
        if constexpr (std::is_same_v<Kernel, PlacedKey>) return any.placedKey;
        if constexpr (std::is_same_v<Kernel, Fill>) return any.fill;
        if constexpr (std::is_same_v<Kernel, FillMix>) return any.fillMix;
        if constexpr (std::is_same_v<Kernel, InPlace>) return any.inPlace;
    }

    AnyKernel kernels[slotCount];
};

}  // namespace zorvic

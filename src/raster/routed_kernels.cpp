// From a kernel's job to a primitive's, and back to the saved kernel.
#include "raster/routed_kernels.h"

#include "pixel/primitives.h"

namespace zorvic {

namespace {

constexpr Slot<Blit> over = slots::overSameSize[SourceDepth::argb32];
constexpr Slot<BlitAlpha> overAtAlpha = slots::alphaSameSize[SourceDepth::argb32];

SourcePixels SourceOf(const BitmapLockInfo& image) { return {image.bmBits, image.bmWidthBytes}; }
TargetPixels TargetOf(const BitmapLockInfo& image) { return {image.bmBits, image.bmWidthBytes}; }
SIZE SizeOf(const BitmapLockInfo& image) { return {image.bmWidth, image.bmHeight}; }

int Over(const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    if (ComposePixels(SourceOf(src), TargetOf(dst), SizeOf(dst)) == Status::success) return 1;
    return SavedKernels.At(over)(dst, src);
}

int OverAtAlpha(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint8_t alpha) {
    if (ComposePixels(SourceOf(src), TargetOf(dst), SizeOf(dst), alpha) == Status::success) return 1;
    return SavedKernels.At(overAtAlpha)(dst, src, alpha);
}

int FillCopy(const BitmapLockInfo& dst, std::uint32_t color) {
    if (SetPixels(TargetOf(dst), SizeOf(dst), color) == Status::success) return 1;
    return SavedKernels.At(slots::fillCopy)(dst, color);
}

int FillOver(const BitmapLockInfo& dst, std::uint32_t color) {
    if (ComposeColor(color, TargetOf(dst), SizeOf(dst)) == Status::success) return 1;
    return SavedKernels.At(slots::fillOver)(dst, color);
}

consteval KernelSet MakeRoutedKernels() {
    KernelSet set;
    set.Put(over, Over);
    set.Put(overAtAlpha, OverAtAlpha);
    set.Put(slots::fillCopy, FillCopy);
    set.Put(slots::fillOver, FillOver);
    return set;
}

}  // namespace

constinit const KernelSet routedKernels = MakeRoutedKernels();
constinit KernelSet SavedKernels{};

}  // namespace zorvic

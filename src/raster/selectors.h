// From a drawing request to a kernel: pure decisions first (Choose...), then the calls that act on them (Select...).
#pragma once

#include <optional>
#include <variant>

#include "raster/request.h"
#include "raster/slots.h"

namespace zorvic {

// What decides on the kernel of a draw.
struct DrawRequest {
    SourceDepth depth;
    bool sameSize;  // the source has the size of the whole draw
    Operation operation;
    Filter filter;
    std::uint8_t alpha;
};

// A slot of any kind that a draw can need, or nothing to be drawn.
using DrawChoice = std::variant<std::monostate, Slot<Blit>, Slot<BlitAlpha>, Slot<BlitKey>, Slot<Placed>,
                                Slot<PlacedAlpha>, Slot<PlacedKey>>;

DrawChoice ChooseStretchKernel(const DrawRequest& request);
DrawChoice ChoosePlacedKernel(const DrawRequest& request);
Slot<Blit> ChooseResizeKernel(SourceDepth depth, bool sameSize, Filter filter);
std::optional<Slot<Fill>> ChooseFillKernel(std::uint32_t color, Operation operation);

// Draws the source stretched over the whole destination. Returns 1, also when nothing was drawn.
int SelectStretchKernel(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t operationWord,
                        std::uint32_t filterMode, std::uint8_t alpha);

// Draws the part of a stretched source that falls on the destination: the pixels of the whole draw. Returns 1.
int SelectPlacedKernel(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src,
                       std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha);

// SelectPlacedKernel in two steps, of which the second can be repeated. First the 32-bit samples that the draw takes from
// the source, then what it does with such samples, as many as dst has pixels. Both return 1; neither image is empty.
int SelectSamplingKernel(const BitmapLockInfo& samples, const Placement& placement, const BitmapLockInfo& src,
                         std::uint32_t operationWord, std::uint32_t filterMode, std::uint8_t alpha);
int SelectSampledKernel(const BitmapLockInfo& dst, const BitmapLockInfo& samples, const Placement& placement,
                        const BitmapLockInfo& src, std::uint32_t operationWord, std::uint32_t filterMode,
                        std::uint8_t alpha);

// Returns the kernel's result, or 1 when there is nothing to be done.
int SelectFillKernel(const BitmapLockInfo& dst, std::uint32_t color, std::uint32_t operationWord);

// Resizes the source over the whole destination, widened to 32 bits. Returns 1.
int SelectResizeKernel(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t filterMode);

}  // namespace zorvic

// One source drawn again and again, side by side. Draws of a few pixels cost mostly their call, and reductions by area
// cost the source: so what a copy shows is sampled once, as often as it fits into a strip, and the strip is drawn.
#pragma once

#include <cstddef>
#include <memory>

#include "raster/image.h"

namespace zorvic {

class Repeated {
public:
    // target: all that is drawn to, in any number of calls. The words are those of SelectPlacedKernel.
    Repeated(const BitmapLockInfo& target, std::uint32_t operation, std::uint32_t filter, std::uint8_t opacity)
        : all(target), operationWord(operation), filterMode(filter), alpha(opacity) {}

    // Draws copies of the stretched source, with the pixels of one SelectPlacedKernel for each. dst is a part of the
    // target. placement: where it lies in a row of copies, each of that width and height, which starts at 0.
    void Draw(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src);

private:
    bool IsWorthAStrip(const Placement& placement, std::int64_t copies, const BitmapLockInfo& src) const;
    // Samples what dst shows of each copy, unless the strip has that from the call before. False without memory.
    bool FillStrip(const Placement& placement, int rows, std::int64_t copies, const BitmapLockInfo& src);
    void DrawCopy(const BitmapLockInfo& dst, const Placement& placement, const BitmapLockInfo& src) const;

    const BitmapLockInfo all;
    const std::uint32_t operationWord, filterMode;
    const std::uint8_t alpha;

    std::unique_ptr<std::uint32_t[]> pixels;
    std::size_t room = 0;     // pixels
    BitmapLockInfo strip{};   // whole copies side by side
    BitmapLockInfo source{};  // what it shows
    Placement copy{};         // the first pixel of the strip, in a copy of that size
};

}  // namespace zorvic

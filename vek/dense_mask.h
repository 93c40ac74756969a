// Coverage of outlines with so many edges across the picture that Cairo's rasteriser, which keeps the edges of a row in
// order, would take minutes. Here each edge only counts up and down in 4 x 4 samples per pixel.
#pragma once

#include <cstdint>
#include <vector>

#include "edge_rows.h"

namespace zorvic::vek {

// Coverage 0..255 of an area.
struct Mask {
    Rect area;
    int stride = 0;  // bytes, a multiple of 4
    std::vector<std::uint8_t> bytes;
};

// smooth is false for all or nothing.
Mask MakeDenseMask(const Path& path, Point offset, const Rect& area, const StrokeForm& stroke, bool smooth);

}  // namespace zorvic::vek

// Outlines as lines, where Cairo cannot work with the curves or with coordinates as large as these: reduced to what is
// seen inside a box.
#pragma once

#include <optional>

#include "path.h"
#include "style.h"

namespace zorvic::vek {

// All of the outline. As strokes of this width are seen in the box shown, here and below.
Path FlattenForStroke(const Path& path, Point offset, const Box& shown, double width);

// What is filled inside the box is the same.
Path CutForFill(const Path& path, Point offset, const Box& box);

// The parts of the outline inside the box, joined as they were.
Path CutForStroke(const Path& path, Point offset, const Box& box, const Box& shown, double width);

// The dashes inside the box, to be stroked solid, each longer by reach at both of its ends; nothing when they are too
// many to be drawn in reasonable time.
std::optional<Path> CutIntoDashes(const Path& path, Point offset, const Box& box, double width, const Dashes& dashes,
                                  double reach);

}  // namespace zorvic::vek

// What an outline costs a rasteriser: the rows that its edges cross. Times here are those of Cairo; counting in samples
// takes a tenth of them.
#pragma once

#include "path.h"
#include "style.h"

namespace zorvic::vek {

struct StrokeForm {
    double width = 0;  // 0: the path is filled
    double miterLimit = 0;
    Cap cap = Cap::butt;
    Join join = Join::miter;
};

// Rows of an area that are crossed by the edges of a path, or of the stroke along it, all edges together.
double EdgeRows(const Path& path, Point offset, const Rect& area, const StrokeForm& stroke);

// The same for straight dashes of a length, all of them in the area.
double DashRows(double count, double length, const Rect& area, const StrokeForm& stroke);

}  // namespace zorvic::vek

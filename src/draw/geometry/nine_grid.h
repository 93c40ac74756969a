// The arithmetic of the nine-grid: corners keep their size, edges are stretched one way, the centre both ways.
#pragma once

#include <array>

#include "draw/geometry/layouts.h"

namespace zorvic {

// Pieces row by row; number 4 is the centre. Pieces for which there is no room are empty or reversed.
using NineGrid = std::array<Piece, 9>;

// Cuts the destination and the source at the margins. scale shrinks the source with its margins and enlarges the
// destination's margins, NaN counts as 1; tileScale, above 1, enlarges the latter once more.
NineGrid CutNineGrid(const RECT& dst, const RECT& source, const RECT& margins, float tileScale, double scale);

}  // namespace zorvic

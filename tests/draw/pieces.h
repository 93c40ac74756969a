// Layouts are compared piece by piece: a layout must have the pixels of the DrawBitmapEx2 calls for its pieces, whatever
// the operation, filter and opacity.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "support/host.h"

namespace host {

struct Piece {
    RECT dst, src;
};

// The nine pieces between four edges each way, on both sides.
using Edges = std::array<LONG, 4>;
std::vector<Piece> Grid(const Edges& xs, const Edges& ys, const Edges& srcXs, const Edges& srcYs);

// 100 x 60 pixels of 32 bits.
OwnedTexture MakeSkin();

// What pieces are drawn to: 120 x 100 pixels, not empty.
OwnedCanvas MakeTarget();

using Draw = std::function<int(HGCANVAS canvas, DWORD filter, BYTE alpha)>;

// The draw returns the result and shows the pieces.
void ExpectPieces(const std::string& name, HGTEXTURE texture, int result, const std::vector<Piece>& pieces,
                  const Draw& draw);

}  // namespace host

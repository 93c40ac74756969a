// Layouts are compared piece by piece: a layout must have the pixels of the DrawBitmapEx2 calls for its pieces, whatever
// the operation, filter and opacity.
#pragma once

#include <functional>
#include <string>

#include "support/host.h"

namespace host {

struct Piece {
    RECT dst, src;
};

// 100 x 60 pixels of 32 bits.
OwnedTexture MakeSkin();

// What pieces are drawn to: 120 x 100 pixels, not empty.
OwnedCanvas MakeTarget();

using Draw = std::function<int(HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha)>;

// The draw returns the result and shows the pieces.
void ExpectPieces(const std::string& name, int result, const std::vector<Piece>& pieces, const Draw& draw);

}  // namespace host

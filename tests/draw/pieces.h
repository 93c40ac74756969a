// Layouts are compared piece by piece: a layout must have the pixels of the DrawBitmapEx2 calls for its pieces,
// whatever the operation, filter and opacity.
#pragma once

#include <functional>
#include <string>

#include "support/host.h"

namespace host {

struct Piece {
    RECT dst, src;
};

// 100 x 60 pixels of 32 bits.
inline OwnedTexture MakeSkin() {
    OwnedTexture texture(CreateTexture(100, 60));
    Fill(texture.get(), PremultipliedPattern{7});
    return texture;
}

// What pieces are drawn to: 120 x 100 pixels, not empty.
inline OwnedCanvas MakeTarget() { return MakeCanvas(120, 100, PremultipliedPattern{3}); }

using Draw = std::function<int(HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha)>;

// The draw returns the result and shows the pieces.
inline void ExpectPieces(const std::string& name, int result, const std::vector<Piece>& pieces, const Draw& draw) {
    constexpr struct {
        DWORD operation, filter;
        BYTE alpha;
    } looks[] = {{ZORVIC_OP_COPY, ZORVIC_FILTER_NEAREST, 255},
                 {ZORVIC_OP_SOURCE_OVER, ZORVIC_FILTER_BILINEAR, 160},
                 {ZORVIC_OP_MULTIPLY, ZORVIC_FILTER_BICUBIC, 255},
                 {ZORVIC_OP_COPY, ZORVIC_FILTER_AREA, 255}};
    const OwnedTexture skin = MakeSkin();
    for (const auto& [operation, filter, alpha] : looks) {
        SetTextureFilter(skin.get(), operation);
        const OwnedCanvas canvas = MakeTarget(), wanted = MakeTarget();
        for (const auto& [dst, src] : pieces)
            DrawBitmapEx2(wanted.get(), &dst, AsBitmap(skin.get()), &src, filter, alpha);
        EXPECT_EQ(draw(canvas.get(), skin.get(), filter, alpha), result) << name;
        EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get()))) << name << " filter " << filter;
    }
}

}  // namespace host

#include "draw/pieces.h"

namespace host {

namespace {

struct Look {
    DWORD operation, filter;
    BYTE alpha;
};
constexpr Look looks[] = {{ZORVIC_OP_COPY, ZORVIC_FILTER_NEAREST, 255},
                          {ZORVIC_OP_SOURCE_OVER, ZORVIC_FILTER_BILINEAR, 160},
                          {ZORVIC_OP_MULTIPLY, ZORVIC_FILTER_BICUBIC, 255},
                          {ZORVIC_OP_COPY, ZORVIC_FILTER_AREA, 255}};

}  // namespace

OwnedTexture MakeSkin() {
    OwnedTexture texture(CreateTexture(100, 60));
    Fill(texture.get(), PremultipliedPattern{7});
    return texture;
}

OwnedCanvas MakeTarget() { return MakeCanvas(120, 100, PremultipliedPattern{3}); }

void ExpectPieces(const std::string& name, int result, const std::vector<Piece>& pieces, const Draw& draw) {
    const OwnedTexture skin = MakeSkin();
    for (const Look& look : looks) {
        SetTextureFilter(skin.get(), look.operation);
        const OwnedCanvas canvas = MakeTarget(), wanted = MakeTarget();
        for (const Piece& piece : pieces)
            DrawBitmapEx2(wanted.get(), &piece.dst, AsBitmap(skin.get()), &piece.src, look.filter, look.alpha);
        EXPECT_EQ(draw(canvas.get(), skin.get(), look.filter, look.alpha), result) << name;
        EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get()))) << name << " filter " << look.filter;
    }
}

}  // namespace host

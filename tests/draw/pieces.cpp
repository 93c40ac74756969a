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
constexpr View views[] = {wholeView, {{13, 11, 57, 64}, {7, -5}}};

}  // namespace

std::vector<Piece> Grid(const Edges& xs, const Edges& ys, const Edges& srcXs, const Edges& srcYs) {
    std::vector<Piece> pieces;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            pieces.push_back({{xs[column], ys[row], xs[column + 1], ys[row + 1]},
                              {srcXs[column], srcYs[row], srcXs[column + 1], srcYs[row + 1]}});
    return pieces;
}

OwnedTexture MakeSkin() {
    OwnedTexture texture(CreateTexture(100, 60));
    Fill(texture.get(), PremultipliedPattern{7});
    return texture;
}

OwnedCanvas MakeCanvas(const View& view) {
    OwnedCanvas canvas(CreateCanvas(wholeView.clip.right, wholeView.clip.bottom, nullptr));
    Fill(canvas.get(), PremultipliedPattern{3});
    SetCanvasClipRect(canvas.get(), &view.clip);
    SetViewportOrg(canvas.get(), view.viewport.x, view.viewport.y, nullptr);
    return canvas;
}

void ExpectPieces(const std::string& name, HGTEXTURE texture, const Draw& draw, int result,
                  const std::vector<Piece>& pieces) {
    for (const Look& look : looks)
        for (const View& view : views) {
            SetTextureFilter(texture, look.operation);
            const OwnedCanvas wanted = MakeCanvas(view);
            for (const Piece& piece : pieces)
                DrawBitmapEx2(wanted.get(), &piece.dst, AsBitmap(texture), &piece.src, look.filter, look.alpha);
            const OwnedCanvas canvas = MakeCanvas(view);
            EXPECT_EQ(draw(canvas.get(), look.filter, look.alpha), result) << name;
            EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get())))
                << name << " filter " << look.filter << " clip " << ToText(view.clip);
        }
}

}  // namespace host

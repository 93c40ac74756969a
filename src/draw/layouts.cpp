// Locking and drawing for all layouts but the nine-grid.
#include "draw/layouts.h"

#include "draw/bitmaps.h"
#include "draw/nine_grid.h"
#include "draw/rounded.h"
#include "raster/repeated.h"
#include "zorvic/zorvic.h"

namespace zorvic {

void DrawPiece(const CanvasLock& target, const Piece& piece, const Texture& texture, const TextureDrawParams& params) {
    DrawBitmapRect(target, piece.dst, texture, piece.src, params.filterMode, params.alpha);
}

namespace {

// Rows of equal pieces: the whole ones at once, the cut one on its own.
class RowPainter {
public:
    RowPainter(const CanvasLock& lockedTarget, const Texture& drawnTexture, const TextureDrawParams& drawParams)
        : target(lockedTarget),
          texture(drawnTexture),
          params(drawParams),
          repeated(*target, texture.filter, params.filterMode, params.alpha) {}

    void operator()(const PieceRow& row) {
        RECT whole = row.dst;
        whole.right = row.WholeRight();
        const RECT visible = Intersection(target.Area(), whole);
        if (const SurfaceLock source(texture, &row.src); source && !IsEmpty(visible))
            repeated.Draw(target.PartAt(visible),
                          {std::int64_t{visible.left} - whole.left, std::int64_t{visible.top} - whole.top, row.width,
                           HeightOf(whole)},
                          *source);
        DrawPiece(target, row.Last(), texture, params);
    }

private:
    const CanvasLock& target;
    const Texture& texture;
    const TextureDrawParams& params;
    Repeated repeated;
};

}  // namespace

int DrawTexture(Canvas& canvas, const RECT& dst, const Texture& texture, const TextureDrawParams& params) {
    const RECT* slice = texture.CurrentSlice();
    const auto& [layout, argument, margins] = texture.mode;
    switch (layout) {
        case ZORVIC_LAYOUT_NINE_GRID:
        case ZORVIC_LAYOUT_NINE_GRID_FILLED:
            return DrawTexture9Grid(canvas, dst, texture, slice, margins, layout == ZORVIC_LAYOUT_NINE_GRID_FILLED,
                                    params);
        case ZORVIC_LAYOUT_TILE:
            return DrawTextureTile(canvas, dst, texture, slice, argument, params);
        case ZORVIC_LAYOUT_CENTER:
            return DrawTextureCenter(canvas, dst, texture, slice, params);
        case ZORVIC_LAYOUT_TOP_TILE:
            return DrawTextureTopTile(canvas, dst, texture, slice, margins, params);
        case ZORVIC_LAYOUT_UNIFORM:
            return DrawTextureUniform(canvas, dst, texture, margins, argument == 1, params);
        default:
            return WantsRounding(params) ? DrawRoundedTexture(canvas, dst, texture, params)
                                         : DrawTextureSlice(canvas, dst, texture, params);
    }
}

int DrawTextureCenter(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice,
                      const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture.Size(), slice);
    if (!source) return 0;
    if (IsEmpty(dst)) return 1;
    return DrawBitmapRect(canvas, FitToCenter(dst, *source), texture, *source, params.filterMode, params.alpha);
}

int DrawTextureUniform(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT& margins, bool center,
                       const TextureDrawParams& params) {
    const RECT source = CropToProportions(texture.Size(), dst, margins, center);
    return DrawBitmapRect(canvas, dst, texture, source, params.filterMode, params.alpha);
}

// Returns 0 even when it has drawn, on purpose.
int DrawTextureTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, DWORD flags,
                    const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture.Size(), slice);
    if (!source) return 0;
    const Tiles tiles(*source, dst, (flags & ZORVIC_TILE_SCALED) != 0 ? params.tileScale : 1);
    if (tiles.IsEmpty()) return 0;
    const CanvasLock target(canvas, canvas.VisiblePart(dst));
    if (!target) return 0;
    tiles.ForEach(target.Area(), RowPainter(target, texture, params));
    return 0;
}

// Returns 0 even when it has drawn, on purpose.
int DrawTextureTopTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                       const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture.Size(), slice);
    if (!source) return 0;
    const TopTiles tiles(*source, dst, margins);
    const CanvasLock target(canvas, canvas.VisiblePart(tiles.Extent()));
    if (!target) return 0;
    tiles.ForEach(RowPainter(target, texture, params));
    return 0;
}

}  // namespace zorvic

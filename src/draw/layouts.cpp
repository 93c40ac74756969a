// Which part of a texture goes where, for all layouts but the nine-grid.
#include "draw/layouts.h"

#include <utility>

#include "draw/bitmaps.h"
#include "draw/coordinates.h"
#include "draw/nine_grid.h"
#include "draw/rounded.h"
#include "zorvic/zorvic.h"

namespace zorvic {

std::optional<RECT> ResolveSourceRect(const Texture& texture, const RECT* slice) {
    const SIZE size = texture.Size();
    RECT source = slice ? *slice : RECT{0, 0, size.cx, size.cy};
    if (source.right < source.left) std::swap(source.left, source.right);
    if (source.bottom < source.top) std::swap(source.top, source.bottom);
    const bool inside = source.left >= 0 && source.top >= 0 && source.right <= size.cx && source.bottom <= size.cy;
    if (!inside || IsEmpty(source)) return {};
    return source;
}

void DrawPiece(const CanvasLock& target, const RECT& dst, const Texture& texture, const RECT& src,
               const TextureDrawParams& params) {
    DrawBitmapRect(target, dst, texture, src, params.filterMode, params.alpha);
}

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
    const auto source = ResolveSourceRect(texture, slice);
    if (!source) return 0;
    if (IsEmpty(dst)) return 1;
    const std::int64_t sourceWidth = WidthOf(*source), sourceHeight = HeightOf(*source);
    const std::int64_t width = WidthOf(dst), height = HeightOf(dst);
    // Half of what the fitted image leaves free; an odd pixel stays with the image.
    std::int64_t insetX = 0, insetY = 0;
    if (sourceWidth * height < sourceHeight * width)
        insetX = (width - sourceWidth * height / sourceHeight) / 2;
    else
        insetY = (height - sourceHeight * width / sourceWidth) / 2;
    const RECT fitted = ToRect(dst.left + insetX, dst.top + insetY, dst.right - insetX, dst.bottom - insetY);
    return DrawBitmapRect(canvas, fitted, texture, *source, params.filterMode, params.alpha);
}

int DrawTextureUniform(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT& margins, bool center,
                       const TextureDrawParams& params) {
    const SIZE size = texture.Size();
    const std::int64_t freeWidth = std::int64_t{size.cx} - margins.left - margins.right;
    const std::int64_t freeHeight = std::int64_t{size.cy} - margins.bottom - margins.top;
    const auto dstWidth = static_cast<float>(WidthOf(dst)), dstHeight = static_cast<float>(HeightOf(dst));
    const float aspect = dstWidth / dstHeight;
    std::int64_t width = freeWidth, height = freeHeight;
    if (static_cast<float>(width) / static_cast<float>(height) < aspect)
        height = Truncate(dstHeight / dstWidth * static_cast<float>(width) + 0.5F);
    else
        width = Truncate(aspect * static_cast<float>(height) + 0.5F);
    const std::int64_t left = margins.left + (center ? (freeWidth - width) / 2 : 0);
    const std::int64_t top = margins.top + (center ? (freeHeight - height) / 2 : 0);
    const RECT source = ToRect(left, top, left + width, top + height);
    return DrawBitmapRect(canvas, dst, texture, source, params.filterMode, params.alpha);
}

namespace {

// The start of the last step that begins at or before a place; steps follow one another from start.
std::int64_t StepBefore(std::int64_t place, std::int64_t start, std::int64_t step) {
    return place <= start ? start : place - (place - start) % step;
}

// The tiles of one row after another. Lengths are logical pixels, but for src.
class Tiles {
public:
    Tiles(const RECT& source, const RECT& destination, float tileScale)
        : dst(destination),
          scale(tileScale),
          width(ExtentOf(source.left, source.right)),
          height(ExtentOf(source.top, source.bottom)),
          src(source) {}

    bool IsEmpty() const { return width < 1 || height < 1; }
    std::int64_t Height() const { return height; }

    // Calls draw(rectangle, source rectangle) for the tiles of the row at top between two edges.
    template <class Draw>
    void DrawRow(std::int64_t top, LONG from, LONG to, Draw draw) const {
        const std::int64_t bottom = std::min<std::int64_t>(top + height, dst.bottom);
        const LONG srcBottom = top + height > dst.bottom ? SourceEdge(src.top, dst.bottom - top) : src.bottom;
        for (std::int64_t left = StepBefore(from, dst.left, width); left < to; left += width) {
            const bool cut = left + width > dst.right;
            draw(ToRect(left, top, cut ? dst.right : left + width, bottom),
                 {src.left, src.top, cut ? SourceEdge(src.left, dst.right - left) : src.right, srcBottom});
        }
    }

    // Goes on to the next row. A cut is never undone, on purpose: when the right edge has cut the last tile of a row,
    // all tiles of the next one are as narrow and show as little of the source. False: nothing was cut, and all
    // further rows are like this one.
    bool NextRow() {
        const std::int64_t rest = WidthOf(dst) % width;
        if (rest == 0) return false;
        width = rest;
        src.right = SourceEdge(src.left, rest);
        return true;
    }

private:
    std::int64_t ExtentOf(LONG from, LONG to) const {
        return std::int64_t{Truncate(static_cast<float>(to - from) * scale + static_cast<float>(from))} - from;
    }
    // Where a tile that is cut after some pixels ends in the source.
    LONG SourceEdge(LONG start, std::int64_t pixels) const {
        return Truncate(static_cast<float>(pixels) / scale + static_cast<float>(start));
    }

    RECT dst;
    float scale;
    std::int64_t width, height;
    RECT src;
};

}  // namespace

// Returns 0 even when it has drawn, on purpose.
int DrawTextureTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, DWORD flags,
                    const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture, slice);
    if (!source) return 0;
    Tiles tiles(*source, dst, (flags & ZORVIC_TILE_SCALED) != 0 ? params.tileScale : 1);
    if (tiles.IsEmpty()) return 0;
    const CanvasLock target(canvas, canvas.VisiblePart(dst));
    if (!target) return 0;

    const RECT& visible = target.Area();
    const std::int64_t firstTop = StepBefore(visible.top, dst.top, tiles.Height());
    // Rows above what is visible matter only by what they cut.
    for (std::int64_t top = dst.top; top < firstTop && tiles.NextRow(); top += tiles.Height()) {
    }
    for (std::int64_t top = firstTop; top < visible.bottom; top += tiles.Height()) {
        tiles.DrawRow(top, visible.left, visible.right,
                      [&](const RECT& tile, const RECT& shown) { DrawPiece(target, tile, texture, shown, params); });
        tiles.NextRow();
    }
    return 0;
}

// Returns 0 even when it has drawn, on purpose.
int DrawTextureTopTile(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                       const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture, slice);
    if (!source || dst.left >= dst.right) return 0;

    std::int64_t bandHeight = margins.top;
    if (dst.top + bandHeight > dst.bottom) bandHeight = HeightOf(dst);
    const std::int64_t bodyTop = std::int64_t{dst.top} + margins.top;
    const RECT band = ToRect(dst.left, dst.top, dst.right, dst.top + bandHeight);
    const RECT body = margins.bottom > 0 ? ToRect(dst.left, bodyTop, dst.right, dst.bottom) : RECT{};
    const CanvasLock target(canvas, canvas.VisiblePart(Union(band, body)));
    if (!target) return 0;

    const std::int64_t step = WidthOf(*source);
    for (std::int64_t left = StepBefore(target.Area().left, dst.left, step); left < target.Area().right; left += step) {
        const std::int64_t right = std::min<std::int64_t>(left + step, dst.right);
        const std::int64_t srcRight = source->left + (right - left);
        DrawPiece(target, ToRect(left, band.top, right, band.bottom), texture,
                  ToRect(source->left, source->top, srcRight, source->top + bandHeight), params);
        DrawPiece(target, ToRect(left, body.top, right, body.bottom), texture,
                  ToRect(source->left, std::int64_t{source->bottom} - margins.bottom, srcRight, source->bottom),
                  params);
    }
    return 0;
}

}  // namespace zorvic

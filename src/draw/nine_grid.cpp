// Drawing the pieces of the grid.
#include "draw/nine_grid.h"

#include "draw/fills.h"
#include "draw/geometry/nine_grid.h"
#include "draw/layouts.h"
#include "raster/request.h"
#include "raster/selectors.h"

namespace zorvic {

namespace {

constexpr std::size_t centerPiece = 4;

// The texture's pixel in the middle of a rectangle; nothing when that lies outside.
std::optional<DWORD> PixelInMiddle(const Texture& texture, const RECT& rect) {
    const SurfaceLock source(texture);
    if (!source) return {};
    const std::int64_t x = (std::int64_t{rect.left} + rect.right) / 2, y = (std::int64_t{rect.top} + rect.bottom) / 2;
    if (x < 0 || y < 0 || x >= source->bmWidth || y >= source->bmHeight) return {};
    DWORD pixel = 0;
    const BitmapLockInfo single{0, 1, 1, sizeof pixel, 1, 32, &pixel, 0, 0, nullptr};
    SelectResizeKernel(single, PartOf(*source, static_cast<int>(x), static_cast<int>(y), 1, 1), 0);
    return pixel;
}

void FillCenter(const CanvasLock& target, const Piece& piece, const Texture& texture, BYTE alpha) {
    const auto pixel = PixelInMiddle(texture, piece.src);
    if (!pixel) return;
    // As in draws, multiplication ignores the opacity.
    const bool multiplies = OperationOf(texture.filter) == Operation::multiply;
    FillColor(target, multiplies ? *pixel : ScaleBytes(*pixel, alpha + 1U), piece.dst, texture.filter);
}

}  // namespace

int DrawTexture9Grid(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                     bool fillCenter, const TextureDrawParams& params) {
    const auto source = ResolveSourceRect(texture.Size(), slice);
    if (!source) return 0;
    const NineGrid grid = CutNineGrid(dst, *source, margins, params.tileScale, params.scale);
    RECT extent{};
    for (const Piece& piece : grid) extent = Union(extent, piece.dst);
    const CanvasLock target(canvas, canvas.VisiblePart(extent));
    if (!target) return 1;
    for (std::size_t i = 0; i < grid.size(); ++i) {
        if (fillCenter && i == centerPiece)
            FillCenter(target, grid[i], texture, params.alpha);
        else
            DrawPiece(target, grid[i], texture, params);
    }
    return 1;
}

}  // namespace zorvic

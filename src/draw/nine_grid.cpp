// Cutting the grid on both sides, and drawing its pieces.
#include "draw/nine_grid.h"

#include <numeric>

#include "draw/coordinates.h"
#include "draw/fills.h"
#include "draw/layouts.h"
#include "raster/request.h"
#include "raster/selectors.h"

namespace zorvic {

namespace {

constexpr std::size_t centerPiece = 4;

// Scales the record as a rectangle and not as four widths, on purpose: the right and bottom margins take up the
// rounding of the differences.
RECT ScaleMargins(const RECT& margins, float scale) {
    const auto scaled = [scale](std::int64_t length) { return Round(static_cast<float>(length) * scale); };
    const std::int64_t left = scaled(margins.left), top = scaled(margins.top);
    return ToRect(left, top, left + scaled(WidthOf(margins)), top + scaled(HeightOf(margins)));
}

RECT LimitMargins(const RECT& margins, std::int64_t width, std::int64_t height) {
    return ToRect(std::min<std::int64_t>(margins.left, width), std::min<std::int64_t>(margins.top, height),
                  std::min<std::int64_t>(margins.right, width), std::min<std::int64_t>(margins.bottom, height));
}

RECT Multiply(const RECT& rect, double factor) {
    return {Truncate(rect.left * factor), Truncate(rect.top * factor), Truncate(rect.right * factor),
            Truncate(rect.bottom * factor)};
}

RECT Divide(const RECT& rect, double divisor) {
    return {Truncate(rect.left / divisor), Truncate(rect.top / divisor), Truncate(rect.right / divisor),
            Truncate(rect.bottom / divisor)};
}

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

void FillCenter(const CanvasLock& target, const RECT& dst, const Texture& texture, const RECT& src, BYTE alpha) {
    const auto pixel = PixelInMiddle(texture, src);
    if (!pixel) return;
    // As in draws, multiplication ignores the opacity.
    const bool multiplies = OperationOf(texture.filter) == Operation::multiply;
    FillColor(target, multiplies ? *pixel : ScaleBytes(*pixel, alpha + 1U), dst, texture.filter);
}

}  // namespace

NineGrid SplitNineGrid(const RECT& rect, const RECT& margins, float scale) {
    const RECT m = scale > 1 ? ScaleMargins(margins, scale) : margins;
    const std::int64_t left = rect.left, top = rect.top, right = rect.right, bottom = rect.bottom;
    const std::int64_t x1 = left + m.left, y1 = top + m.top, x2 = right - m.right, y2 = bottom - m.bottom;
    // Corners and edges end at the rectangle's own edges. What lies between the margins is not limited: where they
    // overlap, it is reversed, and nothing of it is drawn.
    const std::int64_t columns[3][2]{{left, std::min(x1, right)}, {x1, x2}, {std::max(left, x2), right}};
    const std::int64_t rows[3][2]{{top, std::min(y1, bottom)}, {y1, y2}, {std::max(top, y2), bottom}};
    NineGrid grid;
    for (std::size_t i = 0; i < grid.size(); ++i) {
        const auto& [pieceLeft, pieceRight] = columns[i % 3];
        const auto& [pieceTop, pieceBottom] = rows[i / 3];
        grid[i] = ToRect(pieceLeft, pieceTop, pieceRight, pieceBottom);
    }
    return grid;
}

int DrawTexture9Grid(Canvas& canvas, const RECT& dst, const Texture& texture, const RECT* slice, const RECT& margins,
                     bool fillCenter, const TextureDrawParams& params) {
    auto source = ResolveSourceRect(texture, slice);
    if (!source) return 0;
    RECT srcMargins = margins, dstMargins = margins;
    const double scale = params.scale;
    if (scale != 1 && !std::isnan(scale)) {
        *source = Divide(*source, scale);
        srcMargins = Divide(margins, scale);
        dstMargins = Multiply(margins, scale);
    }
    const std::int64_t width = std::min(WidthOf(dst), WidthOf(*source));
    const std::int64_t height = std::min(HeightOf(dst), HeightOf(*source));
    const NineGrid dstPieces = SplitNineGrid(dst, LimitMargins(dstMargins, width, height), params.tileScale);
    const NineGrid srcPieces = SplitNineGrid(*source, LimitMargins(srcMargins, width, height), 1);
    const CanvasLock target(canvas,
                            canvas.VisiblePart(std::accumulate(dstPieces.begin(), dstPieces.end(), RECT{}, Union)));
    if (!target) return 1;
    for (std::size_t i = 0; i < dstPieces.size(); ++i) {
        if (fillCenter && i == centerPiece)
            FillCenter(target, dstPieces[i], texture, srcPieces[i], params.alpha);
        else
            DrawPiece(target, dstPieces[i], texture, srcPieces[i], params);
    }
    return 1;
}

}  // namespace zorvic

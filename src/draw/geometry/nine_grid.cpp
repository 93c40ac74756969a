// From margins and scales to edges, and from edges to pieces.
#include "draw/geometry/nine_grid.h"

namespace zorvic {

namespace {

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

// The nine parts of a rectangle.
std::array<RECT, 9> Split(const RECT& rect, const RECT& margins) {
    const std::int64_t left = rect.left, top = rect.top, right = rect.right, bottom = rect.bottom;
    const std::int64_t x1 = left + margins.left, y1 = top + margins.top;
    const std::int64_t x2 = right - margins.right, y2 = bottom - margins.bottom;
    // Corners and edges end at the rectangle's own edges. What lies between the margins is not limited: where they
    // overlap, it is reversed, and nothing of it is drawn.
    const std::int64_t columns[3][2]{{left, std::min(x1, right)}, {x1, x2}, {std::max(left, x2), right}};
    const std::int64_t rows[3][2]{{top, std::min(y1, bottom)}, {y1, y2}, {std::max(top, y2), bottom}};
    std::array<RECT, 9> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto& [partLeft, partRight] = columns[i % 3];
        const auto& [partTop, partBottom] = rows[i / 3];
        parts[i] = ToRect(partLeft, partTop, partRight, partBottom);
    }
    return parts;
}

}  // namespace

NineGrid CutNineGrid(const RECT& dst, const RECT& source, const RECT& margins, float tileScale, double scale) {
    RECT src = source, srcMargins = margins, dstMargins = margins;
    if (scale != 1 && !std::isnan(scale)) {
        src = Divide(source, scale);
        srcMargins = Divide(margins, scale);
        dstMargins = Multiply(margins, scale);
    }
    const std::int64_t width = std::min(WidthOf(dst), WidthOf(src)), height = std::min(HeightOf(dst), HeightOf(src));
    dstMargins = LimitMargins(dstMargins, width, height);
    if (tileScale > 1) dstMargins = ScaleMargins(dstMargins, tileScale);
    const auto dstParts = Split(dst, dstMargins), srcParts = Split(src, LimitMargins(srcMargins, width, height));
    NineGrid grid;
    for (std::size_t i = 0; i < grid.size(); ++i) grid[i] = {dstParts[i], srcParts[i]};
    return grid;
}

}  // namespace zorvic

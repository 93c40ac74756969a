// Fractions are cut off as the layouts are documented; everything that could overflow is done in 64 bits.
#include "draw/geometry/layouts.h"

#include <utility>

namespace zorvic {

std::optional<RECT> ResolveSourceRect(SIZE texture, const RECT* slice) {
    RECT source = slice ? *slice : RECT{0, 0, texture.cx, texture.cy};
    if (source.right < source.left) std::swap(source.left, source.right);
    if (source.bottom < source.top) std::swap(source.top, source.bottom);
    const bool inside =
        source.left >= 0 && source.top >= 0 && source.right <= texture.cx && source.bottom <= texture.cy;
    if (!inside || IsEmpty(source)) return {};
    return source;
}

RECT FitToCenter(const RECT& dst, const RECT& source) {
    const std::int64_t sourceWidth = WidthOf(source), sourceHeight = HeightOf(source);
    const std::int64_t width = WidthOf(dst), height = HeightOf(dst);
    // Half of what the fitted image leaves free; an odd pixel stays with the image.
    std::int64_t insetX = 0, insetY = 0;
    if (sourceWidth * height < sourceHeight * width)
        insetX = (width - sourceWidth * height / sourceHeight) / 2;
    else
        insetY = (height - sourceHeight * width / sourceWidth) / 2;
    return ToRect(dst.left + insetX, dst.top + insetY, dst.right - insetX, dst.bottom - insetY);
}

RECT CropToProportions(SIZE texture, const RECT& dst, const RECT& margins, bool center) {
    const std::int64_t freeWidth = std::int64_t{texture.cx} - margins.left - margins.right;
    const std::int64_t freeHeight = std::int64_t{texture.cy} - margins.bottom - margins.top;
    const auto dstWidth = static_cast<float>(WidthOf(dst)), dstHeight = static_cast<float>(HeightOf(dst));
    const float aspect = dstWidth / dstHeight;
    std::int64_t width = freeWidth, height = freeHeight;
    if (static_cast<float>(width) / static_cast<float>(height) < aspect)
        height = Truncate(dstHeight / dstWidth * static_cast<float>(width) + 0.5F);
    else
        width = Truncate(aspect * static_cast<float>(height) + 0.5F);
    const std::int64_t left = margins.left + (center ? (freeWidth - width) / 2 : 0);
    const std::int64_t top = margins.top + (center ? (freeHeight - height) / 2 : 0);
    return ToRect(left, top, left + width, top + height);
}

Tiles::Tiles(const RECT& source, const RECT& destination, float tileScale)
    : dst(destination),
      scale(tileScale),
      width(ExtentOf(source.left, source.right)),
      height(ExtentOf(source.top, source.bottom)),
      src(source) {}

PieceRow Tiles::RowAt(std::int64_t top) const {
    const bool isCut = top + height > dst.bottom;
    const LONG srcBottom = isCut ? SourceEdge(src.top, dst.bottom - top) : src.bottom;
    return {ToRect(dst.left, top, dst.right, isCut ? dst.bottom : top + height),
            width,
            {src.left, src.top, src.right, srcBottom},
            SourceEdge(src.left, WidthOf(dst) % width)};
}

bool Tiles::NextRow() {
    const std::int64_t rest = WidthOf(dst) % width;
    if (rest == 0) return false;
    width = rest;
    src.right = SourceEdge(src.left, rest);
    return true;
}

std::int64_t Tiles::ExtentOf(LONG from, LONG to) const {
    return std::int64_t{Truncate(static_cast<float>(to - from) * scale + static_cast<float>(from))} - from;
}

LONG Tiles::SourceEdge(LONG start, std::int64_t pixels) const {
    return Truncate(static_cast<float>(pixels) / scale + static_cast<float>(start));
}

TopTiles::TopTiles(const RECT& source, const RECT& destination, const RECT& textureMargins)
    : src(source), dst(destination), margins(textureMargins), bandHeight(margins.top) {
    if (dst.top + bandHeight > dst.bottom) bandHeight = HeightOf(dst);
    const std::int64_t bodyTop = std::int64_t{dst.top} + margins.top;
    band = ToRect(dst.left, dst.top, dst.right, dst.top + bandHeight);
    body = margins.bottom > 0 ? ToRect(dst.left, bodyTop, dst.right, dst.bottom) : RECT{};
}

}  // namespace zorvic

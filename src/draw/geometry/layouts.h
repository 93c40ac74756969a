// The arithmetic of the layouts: which part of a texture goes where, as plain rectangles. What is drawn with them stands
// in draw/layouts.cpp; the nine-grid has its own header.
#pragma once

#include <optional>

#include "draw/coordinates.h"

namespace zorvic {

// Texture pixels, and the rectangle over which they are stretched.
struct Piece {
    RECT dst, src;
};

// What a slice shows of a texture, its edges in order; nothing if it is empty or leaves the texture.
std::optional<RECT> ResolveSourceRect(SIZE texture, const RECT* slice);

// The source in its own proportions, as large as dst allows and in the middle of it. Neither is empty.
RECT FitToCenter(const RECT& dst, const RECT& source);

// What of a texture has the proportions of dst, within margins.
RECT CropToProportions(SIZE texture, const RECT& dst, const RECT& margins, bool center);

// The start of the last step that begins at or before a place; steps follow one another from start.
constexpr std::int64_t StepBefore(std::int64_t place, std::int64_t start, std::int64_t step) {
    return place <= start ? start : place - (place - start) % step;
}

// Copies of one piece side by side, from the left edge of dst on. The right edge cuts the last one, and its source.
struct PieceRow {
    RECT dst;
    std::int64_t width;  // of each
    RECT src;
    LONG lastSrcRight;  // of what is left of the last one when it is cut

    // Where the cut one begins, or dst ends.
    LONG WholeRight() const { return static_cast<LONG>(dst.right - WidthOf(dst) % width); }
    Piece Last() const {
        return {{WholeRight(), dst.top, dst.right, dst.bottom}, {src.left, src.top, lastSrcRight, src.bottom}};
    }
};

// The tiles of one row after another. Lengths are logical pixels, but for src.
class Tiles {
public:
    Tiles(const RECT& source, const RECT& dst, float scale);

    bool IsEmpty() const { return width < 1 || height < 1; }

    // Calls draw(row) for the rows of tiles that touch the visible part of the destination.
    template <class Draw>
    void ForEach(const RECT& visible, Draw draw) const {
        const std::int64_t firstTop = StepBefore(visible.top, dst.top, height);
        Tiles row = *this;
        // Rows above what is visible matter only by what they cut.
        for (std::int64_t top = dst.top; top < firstTop && row.NextRow(); top += height) {
        }
        for (std::int64_t top = firstTop; top < visible.bottom; top += height) {
            draw(row.RowAt(top));
            row.NextRow();
        }
    }

private:
    PieceRow RowAt(std::int64_t top) const;

    // Goes on to the next row. A cut is never undone, on purpose: when the right edge has cut the last tile of a row,
    // all tiles of the next one are as narrow and show as little of the source. False: nothing was cut, and all
    // further rows are like this one.
    bool NextRow();

    std::int64_t ExtentOf(LONG from, LONG to) const;
    // Where a tile that is cut after some pixels ends in the source.
    LONG SourceEdge(LONG start, std::int64_t pixels) const;

    RECT dst;
    float scale;
    std::int64_t width, height;
    RECT src;
};

// A band of tiles at the top, as high as the top margin, and below it the bottom margin's part of the texture.
class TopTiles {
public:
    TopTiles(const RECT& source, const RECT& destination, const RECT& textureMargins);

    RECT Extent() const { return Union(band, body); }

    // Calls draw(row) for the band and for the body.
    template <class Draw>
    void ForEach(Draw draw) const {
        const std::int64_t step = WidthOf(src);
        const LONG lastSrcRight = static_cast<LONG>(src.left + WidthOf(dst) % step);
        draw(PieceRow{band, step, ToRect(src.left, src.top, src.right, src.top + bandHeight), lastSrcRight});
        draw(PieceRow{body, step, ToRect(src.left, std::int64_t{src.bottom} - margins.bottom, src.right, src.bottom),
                      lastSrcRight});
    }

private:
    RECT src, dst, margins;
    std::int64_t bandHeight;
    RECT band, body;
};

}  // namespace zorvic

// Where the layouts put the parts of a texture, for any rectangle, margin and scale: what is drawn stays where it may be,
// a clipped draw is a crop of the full one, and every loop comes to an end.
#include "draw/geometry/layouts.h"

#include <vector>

#include "draw/geometry/nine_grid.h"
#include "support/input.h"

namespace zorvic {

namespace {

bool IsInside(const RECT& part, const RECT& whole) {
    return part.left >= whole.left && part.top >= whole.top && part.right <= whole.right && part.bottom <= whole.bottom;
}

// 64 bits hold that of any rectangle.
std::uint64_t AreaOf(const RECT& rect) {
    return IsEmpty(rect) ? 0 : static_cast<std::uint64_t>(WidthOf(rect)) * static_cast<std::uint64_t>(HeightOf(rect));
}

void Check(bool isRight, const char* what, const RECT& got, const RECT& within) {
    if (!isRight)
        Fail("%s: %d, %d, %d, %d and %d, %d, %d, %d", what, got.left, got.top, got.right, got.bottom, within.left,
             within.top, within.right, within.bottom);
}

// What drawing may see of a destination: small, so that all of it can be drawn.
RECT Visible(Input& input, const RECT& dst) {
    const auto start = [&](LONG from, LONG to) -> LONG {
        const std::int64_t extent = std::int64_t{to} - from;
        return extent <= 0 ? from : static_cast<LONG>(from + static_cast<std::int64_t>(input.Word()) % extent);
    };
    const LONG left = start(dst.left, dst.right), top = start(dst.top, dst.bottom);
    return Intersection(dst,
                        ToRect(left, top, std::int64_t{left} + input.Below(300), std::int64_t{top} + input.Below(300)));
}

bool Touches(const Piece& piece, const RECT& visible) { return !IsEmpty(Intersection(piece.dst, visible)); }

bool IsSame(const Piece& a, const Piece& b) { return a.dst == b.dst && a.src == b.src; }

// Calls use(piece) for the pieces of a row that touch the visible part.
template <class Use>
void ForEachPiece(const PieceRow& row, const RECT& visible, Use use) {
    if (IsEmpty(Intersection(row.dst, visible))) return;
    const LONG right = row.WholeRight();
    for (std::int64_t left = StepBefore(visible.left, row.dst.left, row.width); left < std::min(visible.right, right);
         left += row.width)
        use(Piece{ToRect(left, row.dst.top, left + row.width, row.dst.bottom), row.src});
    if (visible.right > right && right < row.dst.right) use(row.Last());
}

template <class Use>
void ForEachPiece(const Tiles& tiles, const RECT& visible, Use use) {
    tiles.ForEach(visible, [&](const PieceRow& row) { ForEachPiece(row, visible, use); });
}
template <class Use>
void ForEachPiece(const TopTiles& tiles, const RECT& visible, Use use) {
    tiles.ForEach([&](const PieceRow& row) { ForEachPiece(row, visible, use); });
}

// The pieces that touch the visible part; each belongs to a pixel of it that no other has.
template <class AllTiles>
std::vector<Piece> PiecesIn(const AllTiles& tiles, const RECT& visible) {
    std::vector<Piece> pieces;
    const std::uint64_t most = 2 * AreaOf(visible);
    std::uint64_t calls = 0;
    ForEachPiece(tiles, visible, [&](const Piece& piece) {
        if (++calls > most) Fail("more pieces than pixels");
        if (Touches(piece, visible)) pieces.push_back(piece);
    });
    return pieces;
}

template <class AllTiles>
void CheckCrop(const AllTiles& tiles, const RECT& dst, const RECT& visible) {
    if (IsEmpty(visible)) return;
    const std::vector<Piece> cropped = PiecesIn(tiles, visible);
    if (AreaOf(dst) > 40000) return;
    std::vector<Piece> all = PiecesIn(tiles, dst);
    std::erase_if(all, [&](const Piece& piece) { return !Touches(piece, visible); });
    if (!std::ranges::equal(cropped, all, IsSame))
        Fail("a clipped draw has %zu pieces, the full one %zu there", cropped.size(), all.size());
}

void CheckTiles(Input& input, const RECT& source, const RECT& dst) {
    const float scale = input.Factor();
    const RECT visible = Visible(input, dst);
    const Tiles tiles(source, dst, scale);
    if (tiles.IsEmpty()) return;
    std::uint64_t covered = 0;
    if (!IsEmpty(visible))
        ForEachPiece(tiles, visible, [&](const Piece& piece) {
            Check(IsInside(piece.dst, dst) && !IsEmpty(piece.dst), "a tile leaves the destination", piece.dst, dst);
            Check(piece.src.left == source.left && piece.src.top == source.top, "a tile starts elsewhere", piece.src,
                  source);
            covered += AreaOf(Intersection(piece.dst, visible));
        });
    if (covered != AreaOf(visible)) Fail("tiles cover %llu pixels", static_cast<unsigned long long>(covered));
    CheckCrop(tiles, dst, visible);
}

void CheckNineGrid(Input& input, const RECT& source, const RECT& dst) {
    const RECT margins = input.Rect();
    const float tileScale = input.Factor();
    const double scale = input.Factor();
    const NineGrid grid = CutNineGrid(dst, source, margins, tileScale, scale);
    const bool scales = tileScale > 1 || (scale != 1 && !std::isnan(scale));
    const bool isPlain = std::min({margins.left, margins.top, margins.right, margins.bottom}) >= 0 && !scales;
    if (!isPlain || IsEmpty(dst)) return;
    std::uint64_t covered = 0;
    for (const Piece& piece : grid) {
        Check(IsEmpty(piece.dst) || IsInside(piece.dst, dst), "a piece leaves", piece.dst, dst);
        Check(IsEmpty(piece.src) || IsInside(piece.src, source), "a piece leaves the source", piece.src, source);
        covered += AreaOf(piece.dst);
    }
    const bool hasRoom = std::int64_t{margins.left} + margins.right <= std::min(WidthOf(dst), WidthOf(source)) &&
                         std::int64_t{margins.top} + margins.bottom <= std::min(HeightOf(dst), HeightOf(source));
    if (hasRoom && covered != AreaOf(dst))
        Fail("nine pieces cover %llu pixels", static_cast<unsigned long long>(covered));
}

}  // namespace

void RunInput(Input& input) {
    const int kind = input.Byte() % 5;
    const SIZE texture{input.Extent(), input.Extent()};
    const RECT slice = input.Rect();
    const auto source = ResolveSourceRect(texture, input.Flag() ? nullptr : &slice);
    if (!source) return;
    const RECT whole{0, 0, texture.cx, texture.cy};
    Check(IsInside(*source, whole) && !IsEmpty(*source), "a source leaves the texture", *source, whole);

    const RECT dst = input.Rect();
    switch (kind) {
        case 0: {
            if (IsEmpty(dst)) return;
            const RECT fitted = FitToCenter(dst, *source);
            Check(IsInside(fitted, dst), "a fitted image leaves", fitted, dst);
            Check(fitted.left <= fitted.right && fitted.top <= fitted.bottom, "a fitted image is reversed", fitted,
                  dst);
            Check(std::int64_t{fitted.left} - dst.left == std::int64_t{dst.right} - fitted.right &&
                      std::int64_t{fitted.top} - dst.top == std::int64_t{dst.bottom} - fitted.bottom,
                  "a fitted image is not in the middle", fitted, dst);
            break;
        }
        case 1: {
            const bool center = input.Flag();
            const RECT margins = input.Rect();
            const RECT crop = CropToProportions(texture, dst, margins, center);
            if (!center)
                Check(crop.left == margins.left && crop.top == margins.top, "a crop starts elsewhere", crop, margins);
            break;
        }
        case 2:
            CheckTiles(input, *source, dst);
            break;
        case 3: {
            const TopTiles tiles(*source, dst, input.Rect());
            if (dst.left < dst.right) CheckCrop(tiles, dst, Visible(input, Intersection(dst, tiles.Extent())));
            break;
        }
        default:
            CheckNineGrid(input, *source, dst);
    }
}

}  // namespace zorvic

// The nine-grid: where its pieces come from and go to, in literal edges, and the colour that fills its centre.
#include <array>
#include <cmath>

#include "draw/pieces.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

constexpr RECT slice{10, 5, 70, 45};
constexpr RECT dst{2, 3, 102, 83};
constexpr RECT margins{6, 7, 8, 9};

// The nine pieces between four edges each way, on both sides.
using Edges = std::array<LONG, 4>;
std::vector<Piece> Grid(const Edges& xs, const Edges& ys, const Edges& srcXs, const Edges& srcYs) {
    std::vector<Piece> pieces;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            pieces.push_back({{xs[column], ys[row], xs[column + 1], ys[row + 1]},
                              {srcXs[column], srcYs[row], srcXs[column + 1], srcYs[row + 1]}});
    return pieces;
}
const std::vector<Piece> plain = Grid({2, 8, 94, 102}, {3, 10, 74, 83}, {10, 16, 62, 70}, {5, 12, 36, 45});

}  // namespace

TEST(NineGrid, CutsBothSidesAtTheMargins) {
    const auto expect = [](const RECT& to, const RECT& cut, float dstScale, double srcScale,
                           const std::vector<Piece>& pieces) {
        for (const DWORD edgeFlags : {0x0UL, 0xFUL})
            ExpectPieces(ToText(to) + ToText(cut) + std::to_string(dstScale) + ' ' + std::to_string(srcScale), 1,
                         pieces, [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                             return DrawTexture9Grid(canvas, &to, skin, &slice, &cut, filter, 0, alpha, edgeFlags,
                                                     dstScale, srcScale);
                         });
    };
    expect(dst, margins, 1, 1, plain);
    expect(dst, {}, 1, 1, {{dst, slice}});
    // A scale of the margins below 1 is none, nor is what is no number.
    expect(dst, margins, 0.5F, 1, plain);
    expect(dst, margins, std::nanf(""), std::nan(""), plain);
    // Margins are scaled as a rectangle: 9, 10.5 rounded away from zero, and from there 3 each.
    expect(dst, margins, 1.5F, 1, Grid({2, 11, 90, 102}, {3, 14, 69, 83}, {10, 16, 62, 70}, {5, 12, 36, 45}));
    // 1.5 becomes 2 on the left; four widths would have 3 on the right, not 4.
    expect(dst, {1, 1, 2, 2}, 1.5F, 1, Grid({2, 4, 98, 102}, {3, 5, 79, 83}, {10, 11, 68, 70}, {5, 6, 43, 45}));
    expect(dst, margins, 1, 2, Grid({2, 14, 86, 102}, {3, 17, 65, 83}, {5, 8, 31, 35}, {2, 5, 18, 22}));
    // Wider than the 10 columns: the corners are limited to the destination and overlap, the middle is reversed.
    expect({0, 3, 10, 83}, {30, 0, 8, 0}, 1, 1, {{{0, 3, 10, 83}, {10, 5, 20, 45}}, {{2, 3, 10, 83}, {62, 5, 70, 45}}});
    // Margins of 100 come down to the 60 columns and 40 rows of the slice; the middle has nothing to show.
    expect(
        {0, 3, 90, 83}, {100, 7, 0, 9}, 1, 1,
        {{{0, 3, 60, 10}, {10, 5, 70, 12}}, {{0, 10, 60, 74}, {10, 12, 70, 36}}, {{0, 74, 60, 83}, {10, 36, 70, 45}}});
    expect({0, 3, 90, 83}, {0, 0, 100, 100}, 1, 1, {{{30, 43, 90, 83}, {10, 5, 70, 45}}});
    // Ten times 6 columns on the left, 60 + 20 on the right, of 50; 60 rows above, 60 + 10 below, of as many.
    constexpr RECT narrow{0, 3, 50, 53};
    expect(
        narrow, {6, 6, 8, 7}, 10, 1,
        {{narrow, {10, 5, 16, 11}}, {narrow, {62, 5, 70, 11}}, {narrow, {10, 38, 16, 45}}, {narrow, {62, 38, 70, 45}}});
    // Outside the texture but for one corner; then there is no slice at all.
    expect(dst, margins, 1, 0.5, {{{2, 3, 5, 6}, {20, 10, 32, 24}}});
    for (const double none : {0.0, -1.0, HUGE_VAL}) expect(dst, margins, 1, none, {});
}

TEST(NineGrid, FillsItsCentreWithOnePixelOfTheTexture) {
    constexpr RECT center{8, 10, 94, 74};
    for (const int depth : {8, 24, 32}) {
        const OwnedTexture skin(CreateTextureEx(100, 60, depth, 256));
        Pixels pixels(skin.get());
        pixels.Fill(PremultipliedPattern{5});
        for (int i = 0; i < pixels->colorCount; ++i) pixels->palette[i] = PremultipliedPattern{6}(i, 0);
        const DWORD pixel = pixels.Color(39, 24);  // the middle of {16, 12, 62, 36}
        for (const DWORD operation : {0x00000000UL, 0x01000000UL, 0x02ABCDEFUL, 0x03000000UL, 0x06000000UL})
            for (const BYTE alpha : {BYTE{255}, BYTE{100}, BYTE{0}}) {
                SetTextureFilter(skin.get(), operation);
                const OwnedCanvas wanted = MakeTarget();
                for (const Piece& piece : plain)
                    if (!(piece.dst == center))
                        DrawBitmapEx2(wanted.get(), &piece.dst, AsBitmap(skin.get()), &piece.src, 0, alpha);
                const DWORD scaled = FromChannels([&](int i) { return Channel(pixel, i) * (alpha + 1) >> 8; });
                FillPreMulColorRectEx(wanted.get(), operation == ZORVIC_OP_MULTIPLY ? pixel : scaled, &center,
                                      operation);
                const OwnedCanvas canvas = MakeTarget();
                EXPECT_EQ(DrawTexture9Grid(canvas.get(), &dst, skin.get(), &slice, &margins, 0, 7, alpha, 0, 1, 1), 1);
                EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get())))
                    << "depth " << depth << " operation " << operation << " alpha " << int{alpha};
            }
    }
    // A centre behind the last column or row has no pixel.
    constexpr RECT texture{0, 0, 100, 60};
    for (const auto& [to, cut] : {Piece{{0, 0, 110, 60}, {100, 0, 0, 0}}, {{0, 0, 100, 70}, {0, 60, 0, 0}}})
        ExpectPieces(ToText(cut), 1, {{texture, texture}},
                     [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                         return DrawTexture9Grid(canvas, &to, skin, nullptr, &cut, filter, 1, alpha, 0, 1, 1);
                     });
}

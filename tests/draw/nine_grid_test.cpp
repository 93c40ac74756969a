// The nine-grid: where its pieces come from and go to, in literal edges, and the colour that fills its centre.
#include <cmath>

#include "draw/pieces.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

constexpr RECT slice{10, 5, 70, 45};
constexpr RECT dst{2, 3, 102, 83};
constexpr RECT margins{6, 7, 8, 9};

struct GridCase {
    const char* name;
    RECT dst, margins;
    float dstScale;
    double srcScale;
    std::vector<Piece> pieces;
};

}  // namespace

TEST(NineGrid, CutsBothSidesAtTheMargins) {
    const auto plain = Grid({2, 8, 94, 102}, {3, 10, 74, 83}, {10, 16, 62, 70}, {5, 12, 36, 45});
    const GridCase cases[] = {
        {"plain", dst, margins, 1, 1, plain},
        {"a scale below 1 is none", dst, margins, 0.5F, 1, plain},
        {"nor is what is no number", dst, margins, std::nanf(""), std::nan(""), plain},
        {"no margins", dst, {}, 1, 1, {{dst, slice}}},
        // 9, 10.5 rounded away from zero, and from there 3 each.
        {"margins scaled as a rectangle", dst, margins, 1.5F, 1,
         Grid({2, 11, 90, 102}, {3, 14, 69, 83}, {10, 16, 62, 70}, {5, 12, 36, 45})},
        // 1.5 becomes 2 on the left; four widths would have 3 on the right, not 4.
        {"with its rounding",
         dst,
         {1, 1, 2, 2},
         1.5F,
         1,
         Grid({2, 4, 98, 102}, {3, 5, 79, 83}, {10, 11, 68, 70}, {5, 6, 43, 45})},
        {"divided and multiplied", dst, margins, 1, 2,
         Grid({2, 14, 86, 102}, {3, 17, 65, 83}, {5, 8, 31, 35}, {2, 5, 18, 22})},
        // 80 + 80 / 3 columns of room: the corners are limited to the destination and overlap, the middle is reversed.
        {"narrower than the margins",
         {0, 3, 10, 83},
         {30, 7, 8, 9},
         1,
         1,
         {{{0, 3, 10, 10}, {10, 5, 20, 12}},
          {{2, 3, 10, 10}, {62, 5, 70, 12}},
          {{0, 10, 10, 74}, {10, 12, 20, 36}},
          {{2, 10, 10, 74}, {62, 12, 70, 36}},
          {{0, 74, 10, 83}, {10, 36, 20, 45}},
          {{2, 74, 10, 83}, {62, 36, 70, 45}}}},
        // Margins of 100 come down to the 60 columns of the slice; the middle has nothing to show.
        {"margins beyond the slice",
         {0, 3, 90, 83},
         {100, 7, 0, 9},
         1,
         1,
         {{{0, 3, 60, 10}, {10, 5, 70, 12}}, {{0, 10, 60, 74}, {10, 12, 70, 36}}, {{0, 74, 60, 83}, {10, 36, 70, 45}}}},
        {"and at the other ends", {0, 3, 90, 83}, {0, 0, 100, 100}, 1, 1, {{{30, 43, 90, 83}, {10, 5, 70, 45}}}},
        // Ten times 6 columns on the left, and 60 + 20 on the right, of 50.
        {"margins scaled beyond the destination",
         {0, 3, 50, 83},
         {6, 0, 8, 0},
         10,
         1,
         {{{0, 3, 50, 83}, {10, 5, 16, 45}}, {{0, 3, 50, 83}, {62, 5, 70, 45}}}},
        {"but for one corner outside the texture", dst, margins, 1, 0.5, {{{2, 3, 5, 6}, {20, 10, 32, 24}}}},
        {"source scale 0", dst, margins, 1, 0, {}},
        {"source scale below 0", dst, margins, 1, -1, {}},
        {"an infinite source scale", dst, margins, 1, HUGE_VAL, {}},
    };
    const OwnedTexture skin = MakeSkin();
    for (const GridCase& c : cases)
        for (const DWORD edgeFlags : {0x0UL, 0xFUL})
            ExpectPieces(c.name, skin.get(), 1, c.pieces, [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
                return DrawTexture9Grid(canvas, &c.dst, skin.get(), &slice, &c.margins, filter, 0, alpha, edgeFlags,
                                        c.dstScale, c.srcScale);
            });
}

TEST(NineGrid, FillsItsCentreWithOnePixelOfTheTexture) {
    constexpr RECT center{8, 10, 94, 74};
    for (const int depth : {8, 24, 32}) {
        const OwnedTexture skin(CreateTextureEx(100, 60, depth, 256));
        {
            Pixels pixels(skin.get());
            pixels.Fill(PremultipliedPattern{5});
            if (depth == 8)
                for (int i = 0; i < 256; ++i) pixels->palette[i] = PremultipliedPattern{6}(i, 0);
        }
        // The middle of {16, 12, 62, 36}.
        const DWORD stored = Pixels(skin.get()).Get(39, 24);
        const DWORD pixel = depth == 8    ? PremultipliedPattern{6}(static_cast<int>(stored), 0)
                            : depth == 24 ? 0xFF000000 | stored
                                          : stored;
        for (const DWORD operation : {0x00000000UL, 0x01000000UL, 0x02ABCDEFUL, 0x03000000UL, 0x06000000UL})
            for (const BYTE alpha : {BYTE{255}, BYTE{100}, BYTE{0}}) {
                SetTextureFilter(skin.get(), operation);
                const OwnedCanvas wanted = MakeTarget();
                for (const Piece& piece : Grid({2, 8, 94, 102}, {3, 10, 74, 83}, {10, 16, 62, 70}, {5, 12, 36, 45}))
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
}

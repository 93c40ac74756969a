// Fitted, cropped and tiled textures: where each piece comes from and goes to, in literal rectangles.
#include <cmath>

#include "draw/pieces.h"
#include "support/random.h"

using namespace host;

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

constexpr RECT cell{20, 10, 30, 20};  // a slice of 10 x 10 pixels

}  // namespace

TEST(Layouts, CenterFitsTheSliceIntoTheMiddle) {
    const struct {
        RECT slice, dst, fitted, src;
    } cases[] = {
        {{0, 0, 100, 50}, {0, 0, 100, 100}, {0, 25, 100, 75}, {0, 0, 100, 50}},
        {{10, 0, 30, 60}, {5, 5, 105, 65}, {45, 5, 65, 65}, {10, 0, 30, 60}},
        {{0, 0, 100, 60}, {3, 4, 103, 64}, {3, 4, 103, 64}, {0, 0, 100, 60}},
        // 30 rows fit, 31 are free: one of them goes to the image.
        {{0, 0, 100, 60}, {0, 0, 50, 61}, {0, 15, 50, 46}, {0, 0, 100, 60}},
        // Edges in reverse.
        {{30, 50, 10, 20}, {0, 0, 60, 30}, {20, 0, 40, 30}, {10, 20, 30, 50}},
        {{0, 0, 100, 60}, {-2000000000, 0, 2000000000, 50}, {-42, 0, 42, 50}, {0, 0, 100, 60}},
        {{0, 0, 100, 60}, {40, 0, 10, 50}, {}, {}},
    };
    const OwnedTexture skin = MakeSkin();
    for (const auto& c : cases)
        ExpectPieces("slice " + ToText(c.slice) + " dst " + ToText(c.dst), skin.get(), 1, {{c.fitted, c.src}},
                     [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
                         return DrawTextureCenter(canvas, &c.dst, skin.get(), &c.slice, filter, alpha);
                     });
}

TEST(Layouts, UniformCropsToTheShapeOfTheDestination) {
    const struct {
        RECT margins, dst;
        bool center;
        RECT src;
    } cases[] = {
        {{0, 0, 0, 0}, {0, 0, 50, 50}, false, {0, 0, 60, 60}},
        {{0, 0, 0, 0}, {0, 0, 50, 50}, true, {20, 0, 80, 60}},
        // 84 x 52 pixels inside the margins; 20 / 100 x 84 = 16.8 rows, rounded.
        {{10, 5, 6, 3}, {0, 0, 100, 20}, false, {10, 5, 94, 22}},
        {{10, 5, 6, 3}, {0, 0, 100, 20}, true, {10, 22, 94, 39}},
        // 17 / 100 x 52 = 8.84 columns.
        {{10, 5, 6, 3}, {7, 0, 24, 100}, true, {47, 5, 56, 57}},
        {{60, 0, 60, 0}, {0, 0, 50, 50}, true, {}},
        {{0, 60, 0, 0}, {0, 0, 50, 50}, false, {}},
        {{0, 0, 0, 0}, {50, 0, 0, 50}, false, {}},
        {{LONG_MIN, LONG_MIN, LONG_MIN, LONG_MIN}, {0, 0, 50, 50}, true, {}},
    };
    const OwnedTexture skin = MakeSkin();
    SetTextureSlice(skin.get(), 1, &cell);  // has no effect
    for (const auto& c : cases)
        ExpectPieces("margins " + ToText(c.margins) + " dst " + ToText(c.dst), skin.get(), 1, {{c.dst, c.src}},
                     [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
                         return DrawTextureUniform(canvas, &c.dst, skin.get(), &c.margins, filter, alpha, c.center);
                     });
}

TEST(Layouts, TilesMayBeScaled) {
    const struct {
        const char* name;
        RECT dst;
        DWORD flags;
        float scale;
        std::vector<Piece> pieces;
    } cases[] = {
        {"a scale without its flag", {0, 0, 20, 10}, 0xFFFFFFEF, 3, {{{0, 0, 10, 10}, cell}, {{10, 0, 20, 10}, cell}}},
        // 10 / 1.5 + 20 = 26.7 and 5 / 1.5 + 10 = 13.3, truncated.
        {"scaled",
         {0, 0, 40, 20},
         ZORVIC_TILE_SCALED,
         1.5F,
         {{{0, 0, 15, 15}, cell},
          {{15, 0, 30, 15}, cell},
          {{30, 0, 40, 15}, {20, 10, 26, 20}},
          {{0, 15, 10, 20}, {20, 10, 26, 13}},
          {{10, 15, 20, 20}, {20, 10, 26, 13}},
          {{20, 15, 30, 20}, {20, 10, 26, 13}},
          {{30, 15, 40, 20}, {20, 10, 26, 13}}}},
        // 10 x 0.25 + 20 = 22.5, truncated.
        {"reduced", {0, 0, 4, 2}, ZORVIC_TILE_SCALED, 0.25F, {{{0, 0, 2, 2}, cell}, {{2, 0, 4, 2}, cell}}},
        {"smaller than a pixel", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, 0.05F, {}},
        {"cut to nothing of the source", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, 1e30F, {}},
        {"scale 0", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, 0, {}},
        {"scale below 0", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, -1, {}},
        {"no scale", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, notANumber, {}},
        {"infinite scale", {0, 0, 40, 20}, ZORVIC_TILE_SCALED, infinite, {}},
        {"empty", {0, 20, 40, 20}, 0, 1, {}},
        {"reversed", {40, 0, 0, 20}, 0, 1, {}},
    };
    const OwnedTexture skin = MakeSkin();
    for (const auto& c : cases)
        ExpectPieces(c.name, skin.get(), 0, c.pieces, [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
            return DrawTextureTile(canvas, &c.dst, skin.get(), &cell, filter, alpha, c.flags, c.scale);
        });
}

// A tile that the right edge cuts is cut in all further rows, also where nothing is visible.
TEST(Layouts, TilesAreCutForGood) {
    const OwnedTexture skin = MakeSkin();
    zorvic::Random random(1);
    for (int i = 0; i < 60; ++i) {
        const int room = i < 20 ? 1 : 900;  // outside what is visible
        const RECT slice{2, 3, 2 + 1 + random.Below(40), 3 + 1 + random.Below(30)};
        const RECT dst{-random.Below(room), -random.Below(room), 80 + random.Below(40 + room),
                       70 + random.Below(40 + room)};
        std::vector<Piece> pieces;
        RECT shown = slice;
        for (LONG top = dst.top; top < dst.bottom;) {
            const LONG bottom = std::min(top + shown.bottom - shown.top, dst.bottom);
            shown.bottom = shown.top + bottom - top;
            for (LONG left = dst.left; left < dst.right;) {
                const LONG right = std::min(left + shown.right - shown.left, dst.right);
                shown.right = shown.left + right - left;
                pieces.push_back({{left, top, right, bottom}, shown});
                left = right;
            }
            top = bottom;
        }
        ExpectPieces("slice " + ToText(slice) + " dst " + ToText(dst), skin.get(), 0, pieces,
                     [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
                         return DrawTextureTile(canvas, &dst, skin.get(), &slice, filter, alpha, 0, 1);
                     });
    }
}

TEST(Layouts, TopTileStretchesTheBottomBandBelowTheTopOne) {
    constexpr RECT slice{10, 5, 40, 45};
    const struct {
        const char* name;
        RECT dst, margins;
        std::vector<Piece> pieces;
    } cases[] = {
        {"band and body",
         {0, 0, 70, 50},
         {99, 12, 99, 9},
         {{{0, 0, 30, 12}, {10, 5, 40, 17}},
          {{0, 12, 30, 50}, {10, 36, 40, 45}},
          {{30, 0, 60, 12}, {10, 5, 40, 17}},
          {{30, 12, 60, 50}, {10, 36, 40, 45}},
          {{60, 0, 70, 12}, {10, 5, 20, 17}},
          {{60, 12, 70, 50}, {10, 36, 20, 45}}}},
        {"far to the left", {-90000, 3, 30, 15}, {0, 12, 0, 9}, {{{0, 3, 30, 15}, {10, 5, 40, 17}}}},
        {"lower than the band", {0, 2, 30, 10}, {0, 12, 0, 9}, {{{0, 2, 30, 10}, {10, 5, 40, 13}}}},
        {"no bottom margin", {0, 0, 30, 50}, {0, 12, 0, 0}, {{{0, 0, 30, 12}, {10, 5, 40, 17}}}},
        {"no top margin", {0, 0, 30, 50}, {0, 0, 0, 9}, {{{0, 0, 30, 50}, {10, 36, 40, 45}}}},
        {"body above the top", {0, 9, 30, 50}, {0, -3, 0, 9}, {{{0, 6, 30, 50}, {10, 36, 40, 45}}}},
        {"bands beyond the texture", {0, 0, 30, 90}, {0, 56, 0, 46}, {}},
        {"reversed", {30, 0, 0, 50}, {0, 12, 0, 9}, {}},
    };
    const OwnedTexture skin = MakeSkin();
    for (const auto& c : cases)
        ExpectPieces(c.name, skin.get(), 0, c.pieces, [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
            return DrawTextureTopTile(canvas, &c.dst, skin.get(), &slice, &c.margins, filter, alpha);
        });
}

TEST(Layouts, RefuseSlicesThatAreEmptyOrLeaveTheTexture) {
    const OwnedTexture skin = MakeSkin();
    const RECT dst{0, 0, 100, 90}, margins{5, 5, 5, 5};
    for (const RECT& slice : {RECT{90, 0, 101, 10}, RECT{-1, 0, 5, 5}, RECT{0, 0, 10, 61}, RECT{0, -1, 10, 9},
                              RECT{5, 5, 5, 9}, RECT{5, 9, 9, 9}, RECT{LONG_MAX, 0, LONG_MIN, 9}})
        ExpectPieces(ToText(slice), skin.get(), 0, {}, [&](HGCANVAS canvas, DWORD filter, BYTE alpha) {
            return DrawTextureCenter(canvas, &dst, skin.get(), &slice, filter, alpha) +
                   DrawTextureTile(canvas, &dst, skin.get(), &slice, filter, alpha, 0, 1) +
                   DrawTextureTopTile(canvas, &dst, skin.get(), &slice, &margins, filter, alpha) +
                   DrawTexture9Grid(canvas, &dst, skin.get(), &slice, &margins, filter, 0, alpha, 0, 1, 1);
        });
}

TEST(Layouts, AreChosenByTheTexturesMode) {
    const RECT dst{3, 4, 98, 79}, margins{6, 7, 8, 9}, slices[] = {{10, 5, 43, 44}, {}};
    constexpr DWORD filter = ZORVIC_FILTER_BILINEAR;
    constexpr BYTE alpha = 200;
    constexpr float tileScale = 1.5F;
    constexpr double scale = 2;
    for (const RECT* slice : {static_cast<const RECT*>(nullptr), &slices[0]}) {
        const OwnedTexture skin = MakeSkin();
        const HGTEXTURE texture = skin.get();
        SetTextureFilter(texture, ZORVIC_OP_SOURCE_OVER);
        if (slice) SetTextureSlice(texture, 2, slices);
        SetTextureCurSlice(texture, 0);
        const auto grid = [&](HGCANVAS canvas, int fill, DWORD flags) {
            return DrawTexture9Grid(canvas, &dst, texture, slice, &margins, filter, fill, alpha, flags, tileScale,
                                    scale);
        };
        const auto uniform = [&](HGCANVAS canvas, bool center) {
            return DrawTextureUniform(canvas, &dst, texture, &margins, filter, alpha, center);
        };
        const struct {
            LONG layout;
            DWORD argument;
            std::function<int(HGCANVAS canvas)> direct;
        } cases[] = {
            {0, 1,
             [&](HGCANVAS c) { return slice ? DrawBitmapEx2(c, &dst, AsBitmap(texture), slice, filter, alpha) : 0; }},
            {1, 0xF, [&](HGCANVAS c) { return grid(c, 0, 0xF); }},
            {2, 0x10,
             [&](HGCANVAS c) { return DrawTextureTile(c, &dst, texture, slice, filter, alpha, 0x10, tileScale); }},
            {3, 0, [&](HGCANVAS c) { return DrawTextureCenter(c, &dst, texture, slice, filter, alpha); }},
            {4, 0, [&](HGCANVAS c) { return grid(c, 1, 0); }},
            {5, 0, [&](HGCANVAS c) { return DrawTextureTopTile(c, &dst, texture, slice, &margins, filter, alpha); }},
            {6, 1, [&](HGCANVAS c) { return uniform(c, true); }},
            {6, 2, [&](HGCANVAS c) { return uniform(c, false); }},
        };
        for (const auto& c : cases) {
            const TextureMode mode{c.layout, c.argument, margins};
            SetTextureMode(texture, &mode);
            const OwnedCanvas canvas = MakeTarget(), wanted = MakeTarget();
            EXPECT_EQ(DrawTextureEx2(canvas.get(), &dst, texture, filter, alpha, tileScale, scale),
                      c.direct(wanted.get()))
                << "layout " << c.layout;
            EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get()))) << "layout " << c.layout;
        }
    }
}

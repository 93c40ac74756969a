// Fitted, cropped and tiled textures: where each piece comes from and goes to, in literal rectangles.
#include <bit>
#include <cmath>

#include "draw/pieces.h"
#include "support/random.h"

using namespace host;

TEST(Layouts, CenterFitsTheSliceIntoTheMiddle) {
    const auto expect = [](const RECT& slice, const RECT& dst, const RECT& fitted, const RECT& src) {
        ExpectPieces(ToText(slice) + " to " + ToText(dst), 1, {{fitted, src}},
                     [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                         return DrawTextureCenter(canvas, &dst, skin, &slice, filter, alpha);
                     });
    };
    expect({0, 0, 100, 50}, {0, 0, 100, 100}, {0, 25, 100, 75}, {0, 0, 100, 50});
    expect({10, 0, 30, 60}, {5, 5, 105, 65}, {45, 5, 65, 65}, {10, 0, 30, 60});
    expect({0, 0, 100, 60}, {3, 4, 103, 64}, {3, 4, 103, 64}, {0, 0, 100, 60});
    // 30 rows fit, 31 are free: one of them goes to the image.
    expect({0, 0, 100, 60}, {0, 0, 50, 61}, {0, 15, 50, 46}, {0, 0, 100, 60});
    // Edges in reverse.
    expect({30, 50, 10, 20}, {0, 0, 60, 30}, {20, 0, 40, 30}, {10, 20, 30, 50});
    expect({0, 0, 100, 60}, {-2000000000, 0, 2000000000, 50}, {-42, 0, 42, 50}, {0, 0, 100, 60});
    expect({0, 0, 100, 60}, {40, 0, 10, 50}, {}, {});
}

TEST(Layouts, UniformCropsToTheShapeOfTheDestination) {
    const auto expect = [](const RECT& margins, const RECT& dst, bool center, const RECT& src) {
        ExpectPieces(ToText(margins) + " to " + ToText(dst), 1, {{dst, src}},
                     [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                         constexpr RECT slice{20, 10, 30, 20};
                         SetTextureSlice(skin, 1, &slice);  // has no effect
                         return DrawTextureUniform(canvas, &dst, skin, &margins, filter, alpha, center);
                     });
    };
    expect({0, 0, 0, 0}, {0, 0, 50, 50}, false, {0, 0, 60, 60});
    expect({0, 0, 0, 0}, {0, 0, 50, 50}, true, {20, 0, 80, 60});
    // 84 x 52 pixels inside the margins; 20 / 100 x 84 = 16.8 rows, rounded.
    expect({10, 5, 6, 3}, {0, 0, 100, 20}, false, {10, 5, 94, 22});
    expect({10, 5, 6, 3}, {0, 0, 100, 20}, true, {10, 22, 94, 39});
    // 17 / 100 x 52 = 8.84 columns.
    expect({10, 5, 6, 3}, {7, 0, 24, 100}, true, {47, 5, 56, 57});
    expect({60, 0, 60, 0}, {0, 0, 50, 50}, true, {});
    expect({0, 60, 0, 0}, {0, 0, 50, 50}, false, {});
    expect({0, 0, 0, 0}, {50, 0, 0, 50}, false, {});
    expect({LONG_MIN, LONG_MIN, LONG_MIN, LONG_MIN}, {0, 0, 50, 50}, true, {});
}

namespace {

void ExpectTiles(const RECT& slice, const RECT& dst, DWORD flags, float scale, const std::vector<Piece>& pieces) {
    ExpectPieces(ToText(slice) + " to " + ToText(dst) + " by " + std::to_string(scale), 0, pieces,
                 [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                     return DrawTextureTile(canvas, &dst, skin, &slice, filter, alpha, flags, scale);
                 });
}

}  // namespace

TEST(Layouts, TilesMayBeScaled) {
    constexpr RECT cell{20, 10, 30, 20};
    // 5 / 1.5 + 20 = 23.3, truncated.
    ExpectTiles(cell, {0, 0, 20, 15}, ZORVIC_TILE_SCALED, 1.5F,
                {{{0, 0, 15, 15}, cell}, {{15, 0, 20, 15}, {20, 10, 23, 20}}});
    // Tiles of no pixel, cut to nothing of the source, and by what is no scale.
    for (const float scale : {0.05F, 1e30F, 0.F, -1.F, std::nanf(""), HUGE_VALF})
        ExpectTiles(cell, {0, 0, 40, 20}, ZORVIC_TILE_SCALED, scale, {});
    ExpectTiles(cell, {0, 20, 40, 20}, 0, 1, {});
    ExpectTiles(cell, {40, 0, 0, 20}, 0, 1, {});
}

// A tile that the right edge cuts is cut in all further rows, also where nothing is visible.
TEST(Layouts, TilesAreCutForGood) {
    zorvic::Random random(1);
    for (int i = 0; i < 120; ++i) {
        const int room = i < 20 ? 1 : 900;  // outside what is visible
        const DWORD flags = i % 2 == 0 ? DWORD{ZORVIC_TILE_SCALED} : 0xFFFFFFEF;
        constexpr float scales[] = {.25F, 1.5F, 2, 2.75F};
        const float scale = i % 2 == 0 ? scales[random.Below(4)] : 1;
        const RECT slice{2, 3, 2 + 1 + random.Below(40), 3 + 1 + random.Below(30)};
        const RECT dst{-random.Below(room), -random.Below(room), 80 + random.Below(40 + room),
                       70 + random.Below(40 + room)};
        LONG width = static_cast<LONG>(scale * static_cast<float>(slice.right - slice.left));
        LONG height = static_cast<LONG>(scale * static_cast<float>(slice.bottom - slice.top));
        std::vector<Piece> pieces;
        RECT shown = slice;
        const auto cut = [scale](LONG& extent, LONG rest, LONG start, LONG& end) {
            if (rest >= extent) return;
            extent = rest;
            end = start + static_cast<LONG>(static_cast<float>(rest) / scale);
        };
        for (LONG top = dst.top; top < dst.bottom && width > 0 && height > 0; top += height) {
            cut(height, dst.bottom - top, shown.top, shown.bottom);
            for (LONG left = dst.left; left < dst.right; left += width) {
                cut(width, dst.right - left, shown.left, shown.right);
                pieces.push_back({{left, top, left + width, top + height}, shown});
            }
        }
        ExpectTiles(slice, dst, flags, flags == ZORVIC_TILE_SCALED ? scale : 3, pieces);
    }
}

TEST(Layouts, TopTileStretchesTheBottomBandBelowTheTopOne) {
    constexpr RECT slice{10, 5, 40, 45};
    const auto expect = [&](const RECT& dst, const RECT& margins, const std::vector<Piece>& pieces) {
        ExpectPieces(ToText(dst) + " by " + ToText(margins), 0, pieces,
                     [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
                         return DrawTextureTopTile(canvas, &dst, skin, &slice, &margins, filter, alpha);
                     });
    };
    expect({0, 0, 50, 50}, {99, 12, 99, 9},
           {{{0, 0, 30, 12}, {10, 5, 40, 17}},
            {{0, 12, 30, 50}, {10, 36, 40, 45}},
            {{30, 0, 50, 12}, {10, 5, 30, 17}},
            {{30, 12, 50, 50}, {10, 36, 30, 45}}});
    // Far to the left; lower than the band; without a margin; with a body above the top.
    expect({-90000, 3, 30, 15}, {0, 12, 0, 9}, {{{0, 3, 30, 15}, {10, 5, 40, 17}}});
    expect({0, 2, 30, 10}, {0, 12, 0, 9}, {{{0, 2, 30, 10}, {10, 5, 40, 13}}});
    expect({0, 0, 30, 50}, {0, 12, 0, 0}, {{{0, 0, 30, 12}, {10, 5, 40, 17}}});
    expect({0, 0, 30, 50}, {0, 0, 0, 9}, {{{0, 0, 30, 50}, {10, 36, 40, 45}}});
    expect({0, 9, 30, 50}, {0, -3, 0, 9}, {{{0, 6, 30, 50}, {10, 36, 40, 45}}});
    // Bands beyond the texture, and edges in reverse.
    expect({0, 0, 30, 90}, {0, 56, 0, 46}, {});
    expect({30, 0, 0, 50}, {0, 12, 0, 9}, {});
}

TEST(Layouts, RefuseSlicesThatAreEmptyOrLeaveTheTexture) {
    constexpr RECT dst{0, 0, 100, 90}, margins{5, 5, 5, 5};
    for (const RECT& slice : {RECT{90, 0, 101, 10}, RECT{-1, 0, 5, 5}, RECT{0, 0, 10, 61}, RECT{0, -1, 10, 9},
                              RECT{5, 5, 5, 9}, RECT{5, 9, 9, 9}, RECT{LONG_MAX, 0, LONG_MIN, 9}})
        ExpectPieces(ToText(slice), 0, {}, [&](HGCANVAS canvas, HGTEXTURE skin, DWORD filter, BYTE alpha) {
            return DrawTextureCenter(canvas, &dst, skin, &slice, filter, alpha) +
                   DrawTextureTile(canvas, &dst, skin, &slice, filter, alpha, 0, 1) +
                   DrawTextureTopTile(canvas, &dst, skin, &slice, &margins, filter, alpha) +
                   DrawTexture9Grid(canvas, &dst, skin, &slice, &margins, filter, 0, alpha, 0, 1, 1);
        });
}

TEST(Layouts, AreChosenByTheTexturesMode) {
    constexpr RECT dst{3, 4, 98, 79}, margins{6, 7, 8, 9}, slices[] = {{10, 5, 43, 44}, {}};
    constexpr DWORD filter = ZORVIC_FILTER_BILINEAR;
    constexpr BYTE alpha = 200;
    constexpr float tileScale = 1.5F;
    const auto direct = [&](HGCANVAS c, HGTEXTURE t, const RECT* slice, const TextureMode& mode) {
        const bool filled = mode.layout == ZORVIC_LAYOUT_NINE_GRID_FILLED;
        switch (mode.layout) {
            case ZORVIC_LAYOUT_STRETCH:
                return slice ? DrawBitmapEx2(c, &dst, AsBitmap(t), slice, filter, alpha) : 0;
            case ZORVIC_LAYOUT_TILE:
                return DrawTextureTile(c, &dst, t, slice, filter, alpha, mode.argument, tileScale);
            case ZORVIC_LAYOUT_CENTER:
                return DrawTextureCenter(c, &dst, t, slice, filter, alpha);
            case ZORVIC_LAYOUT_TOP_TILE:
                return DrawTextureTopTile(c, &dst, t, slice, &margins, filter, alpha);
            case ZORVIC_LAYOUT_UNIFORM:
                return DrawTextureUniform(c, &dst, t, &margins, filter, alpha, mode.argument == 1);
            default:
                return DrawTexture9Grid(c, &dst, t, slice, &margins, filter, filled, alpha, mode.argument, tileScale,
                                        2);
        }
    };
    for (const RECT* slice : {static_cast<const RECT*>(nullptr), &slices[0]})
        for (LONG layout = ZORVIC_LAYOUT_STRETCH; layout <= ZORVIC_LAYOUT_UNIFORM; ++layout)
            for (const DWORD argument : {1UL, 0x10UL}) {
                const OwnedTexture skin = MakeSkin();
                const TextureMode mode{layout, argument, margins};
                SetTextureMode(skin.get(), &mode);
                SetTextureFilter(skin.get(), ZORVIC_OP_SOURCE_OVER);
                if (slice) SetTextureSlice(skin.get(), 2, slices);
                SetTextureCurSlice(skin.get(), 0);
                const OwnedCanvas canvas = MakeTarget(), wanted = MakeTarget();
                // The other call takes the bits of the tile scale, and any number but 0 for a scale of 2.
                EXPECT_EQ(argument == 1 ? DrawTextureEx2(canvas.get(), &dst, skin.get(), filter, alpha, tileScale, 2)
                                        : DrawTextureEx(canvas.get(), &dst, skin.get(), filter, alpha,
                                                        std::bit_cast<DWORD>(tileScale), 7),
                          direct(wanted.get(), skin.get(), slice, mode))
                    << "layout " << layout;
                EXPECT_TRUE(Shows(canvas.get(), Snapshot(wanted.get()))) << "layout " << layout << ' ' << argument;
            }
}

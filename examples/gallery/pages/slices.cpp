// Textures cut into slices: the states of a button side by side on one surface.
#include "pages.h"

#include <algorithm>

namespace {

constexpr int states = 4;
constexpr const wchar_t* stateNames[states]{L"normal", L"hot", L"pressed", L"disabled"};

// Draws a picture four times and turns the canvas into a texture with four slices.
Texture MakeStrip(HGBITMAP picture) {
    const SIZE size = SizeOf(picture);
    Canvas canvas(CreateCanvas(states * size.cx, size.cy, nullptr));
    SetCanvasFilter(canvas, ZORVIC_OP_SOURCE_OVER);  // the texture keeps its alpha
    RECT slices[states];
    for (int i = 0; i < states; ++i) {
        slices[i] = Box(i * size.cx, 0, size.cx, size.cy);
        DrawBitmap(canvas, &slices[i], picture, ZORVIC_FILTER_NEAREST);
    }
    DrawModulation(canvas, slices[1].left, 0, picture, nullptr, 0xFFFFFFFF);
    FillPreMulColorRectEx(canvas, 0xFFA8A8A8, &slices[2], ZORVIC_OP_MULTIPLY);
    FillPreMulColorRectEx(canvas, 0x60606060, &slices[3], ZORVIC_OP_MULTIPLY);
    Texture strip(CanvasToTexture(canvas.release()));
    SetTextureSlice(strip, states, slices);
    return strip;
}

RECT Middle(const RECT& area, SIZE size) {
    return Box((area.left + area.right - size.cx) / 2, (area.top + area.bottom - size.cy) / 2, size.cx, size.cy);
}

}  // namespace

Sheet SlicesPage(const Pictures& pictures) {
    Sheet sheet(L"Texture slices",
                L"SetTextureSlice cuts one surface into several images; SetTextureCurSlice chooses the "
                L"one that is measured and drawn.");
    const Bitmap picture = Contain(pictures.WideSprite(), {220, 110});
    const Texture strip = MakeStrip(picture);
    const SIZE slice = SizeOf(picture);
    const int height = std::max(96, static_cast<int>(slice.cy) + 24);

    sheet.Section(L"One surface, four slices: a picture drawn four times; brightened, darkened and faded", 1, height);
    sheet.Tile(L"DrawBitmap draws the whole surface; framed: GetTextureCurSlice of each slice", [&](HGCANVAS canvas) {
        const SIZE whole = SizeOf(AsBitmap(strip));
        const RECT place = Middle(AreaOf(canvas), whole);
        DrawBitmap(canvas, &place, AsBitmap(strip), ZORVIC_FILTER_NEAREST);
        SetViewportOrg(canvas, place.left, place.top, nullptr);
        for (int i = 0; i < GetTextureSliceCount(strip); ++i) {
            SetTextureCurSlice(strip, i);
            RECT rect{};
            GetTextureCurSlice(strip, &rect);
            DrawFrame(canvas, rect, 0xFFE0402C);
        }
    });

    const auto drawn = [&](const std::wstring& caption, int index, const auto& draw) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            SetTextureCurSlice(strip, index);
            draw(canvas);
        });
    };
    sheet.Section(L"SetTextureCurSlice, then DrawTexture", states, height);
    for (int i = 0; i < states; ++i)
        drawn(L"slice " + std::to_wstring(i) + L": " + stateNames[i], i, [&](HGCANVAS canvas) {
            SIZE size{};
            GetTextureSize(strip, &size);
            const RECT place = Middle(AreaOf(canvas), size);
            DrawTexture(canvas, &place, strip, ZORVIC_FILTER_NEAREST);
        });
    sheet.Section(L"The same slice, drawn otherwise", 4, height);
    const RECT place = Middle(Box(0, 0, sheet.TileSize().cx, height), slice);
    drawn(L"DrawTextureEx2, alpha 128", 0,
          [&](HGCANVAS canvas) { DrawTextureEx2(canvas, &place, strip, ZORVIC_FILTER_NEAREST, 128, 1.0f, 1.0); });
    drawn(L"DrawTexture, stretched to the tile", 0, [&](HGCANVAS canvas) {
        const RECT whole = Inset(AreaOf(canvas), 4);
        DrawTexture(canvas, &whole, strip, ZORVIC_FILTER_NEAREST);
    });
    drawn(L"SetTextureFilter OP_MULTIPLY", 0, [&](HGCANVAS canvas) {
        SetTextureFilter(strip, ZORVIC_OP_MULTIPLY);
        TextureDrawParams params{};
        params.filterMode = ZORVIC_FILTER_NEAREST;
        params.alpha = 255;
        params.tileScale = 1;
        params.scale = 1;
        DrawTextureEx3(canvas, &place, strip, &params, nullptr);
        SetTextureFilter(strip, ZORVIC_OP_SOURCE_OVER);
    });
    drawn(L"DrawBitmap: all of it, stretched", 0, [&](HGCANVAS canvas) {
        const RECT whole = Inset(AreaOf(canvas), 4);
        DrawBitmap(canvas, &whole, AsBitmap(strip), ZORVIC_FILTER_NEAREST);
    });
    return sheet;
}

// A skin in every layout, at several sizes and scales: panels, buttons in three slices, a slider, tiles.
#include "pages.h"

#include "../sample.h"

namespace {

constexpr DWORD filter = ZORVIC_FILTER_BILINEAR;

// A picture given for this part of a skin, by its file's name, or else a sample.
Texture SkinPart(const Pictures& pictures, const wchar_t* name, Bitmap (*sample)()) {
    for (const Picture& given : pictures.sprites)
        if (given.name.find(name) != std::wstring::npos)
            return Texture(BitmapToTexture(Cover(given.bitmap, SizeOf(given.bitmap)).release()));
    Bitmap made = sample();
    SetBitmapFilter(made, ZORVIC_OP_SOURCE_OVER);
    return Texture(BitmapToTexture(made.release()));
}

SIZE SizeOf(const Texture& texture) { return SizeOf(AsBitmap(texture)); }

RECT Middle(const RECT& area, int width, int height) {
    return Box((area.right - width) / 2, (area.bottom - height) / 2, width, height);
}

// Lines over a texture drawn at its own size, where its margins are cut.
void DrawCuts(HGCANVAS canvas, const RECT& place, const RECT& margins) {
    constexpr DWORD red = 0xFFE0402C;
    const RECT lines[]{Box(place.left + margins.left, place.top - 6, 1, Height(place) + 12),
                       Box(place.right - margins.right, place.top - 6, 1, Height(place) + 12),
                       Box(place.left - 6, place.top + margins.top, Width(place) + 12, 1),
                       Box(place.left - 6, place.bottom - margins.bottom, Width(place) + 12, 1)};
    for (const RECT& line : lines) FillSolidRect(canvas, red, &line);
}

void AddPanels(Sheet& sheet, const Texture& panel) {
    const SIZE size = SizeOf(panel);
    const RECT margins{size.cx / 4, size.cy / 4, size.cx / 4, size.cy / 4};
    const auto draw = [&](const std::wstring& caption, int width, int height, int fillCenter, BYTE alpha,
                          float destinationScale, double sourceScale) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT place = Middle(AreaOf(canvas), width, height);
            DrawTexture9Grid(canvas, &place, panel, nullptr, &margins, filter, fillCenter, alpha, 0, destinationScale,
                             sourceScale);
        });
    };
    sheet.Section(L"DrawTexture9Grid: the corners keep their size, the edges are stretched one way", 4, 190);
    sheet.Tile(L"the texture, and where it is cut", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT place = Middle(AreaOf(canvas), size.cx, size.cy);
        DrawBitmap(canvas, &place, AsBitmap(panel), filter);
        DrawCuts(canvas, place, margins);
    });
    draw(L"wide", 250, 90, 0, 255, 1, 1);
    draw(L"large", 250, 170, 0, 255, 1, 1);
    draw(L"smaller than its margins: 40 x 170", 40, 170, 0, 255, 1, 1);
    draw(L"the centre in one colour", 250, 170, 1, 255, 1, 1);
    draw(L"alpha 128", 250, 170, 0, 128, 1, 1);
    draw(L"margins at scale 1.5 on the canvas", 250, 170, 0, 255, 1.5F, 1);
    sheet.Tile(L"plain stretch, for comparison", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT place = Middle(AreaOf(canvas), 250, 170);
        DrawBitmap(canvas, &place, AsBitmap(panel), filter);
    });
}

// The states of a button above one another, as a skin file has them; drawn with the texture's own mode.
Texture MakeButton(HGBITMAP picture) {
    const SIZE size = SizeOf(picture);
    const Canvas canvas(CreateCanvas(size.cx, 3 * size.cy, nullptr));
    RECT states[3];
    for (int i = 0; i < 3; ++i) {
        states[i] = Box(0, i * size.cy, size.cx, size.cy);
        DrawBitmap(canvas, &states[i], picture, ZORVIC_FILTER_NEAREST);
    }
    DrawModulation(canvas, 0, states[1].top, picture, nullptr, 0xFFFFFFFF);
    FillPreMulColorRectEx(canvas, 0xFFB0B0B0, &states[2], ZORVIC_OP_MULTIPLY);
    Bitmap strip(CreateMemBitmap(size.cx, 3 * size.cy));
    CopyBitmap(strip, nullptr, GetBitmap(canvas), nullptr);
    SetBitmapFilter(strip, ZORVIC_OP_SOURCE_OVER);
    Texture button(BitmapToTexture(strip.release()));
    SetTextureSlice(button, 3, states);
    const TextureMode mode{ZORVIC_LAYOUT_NINE_GRID, 0, {14, 0, 14, 0}};
    SetTextureMode(button, &mode);
    return button;
}

void AddButtons(Sheet& sheet, const Texture& button) {
    sheet.Section(L"A button in three slices: DrawTexture with a nine-grid that has margins left and right only", 3,
                  124);
    constexpr const wchar_t* states[]{L"normal", L"hot", L"pressed"};
    SIZE size{};
    GetTextureSize(button, &size);
    for (int i = 0; i < 3; ++i)
        sheet.Tile(std::wstring(states[i]) + L": 340, 190, 90 and 30 pixels wide", [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            SetTextureCurSlice(button, i);
            for (const RECT& place : {Box(10, 8, 340, size.cy), Box(10, 16 + size.cy, 190, size.cy),
                                      Box(214, 16 + size.cy, 90, size.cy), Box(316, 16 + size.cy, 30, size.cy)})
                DrawTexture(canvas, &place, button, filter);
        });
}

void AddSlider(Sheet& sheet, const Texture& groove, const Texture& thumb) {
    sheet.Section(L"A slider: a groove in three slices and a thumb that DrawTextureCenter fits into any box", 3, 90);
    const RECT margins{5, 0, 5, 0};
    for (const int percent : {0, 35, 100})
        sheet.Tile(std::to_wstring(percent) + L" %", [&](HGCANVAS canvas) {
            DrawChecks(canvas, AreaOf(canvas), 14, 0xFFF8F6EE, 0xFFDDE3EC);
            const RECT area = AreaOf(canvas);
            const RECT track = Box(36, (area.bottom - SizeOf(groove).cy) / 2, area.right - 72, SizeOf(groove).cy);
            DrawTexture9Grid(canvas, &track, groove, nullptr, &margins, filter, 0, 255, 0, 1, 1);
            const RECT box = Box(track.left + Width(track) * percent / 100 - 30, 10, 60, area.bottom - 20);
            DrawTextureCenter(canvas, &box, thumb, nullptr, filter, 255);
            DrawFrame(canvas, box, 0x60E0402C);
        });
}

void AddTiles(Sheet& sheet, const Texture& cell) {
    const SIZE size = SizeOf(cell);
    const auto draw = [&](const std::wstring& caption, int width, DWORD flags, float scale, DWORD sampling) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT place = Middle(AreaOf(canvas), width, 170);
            DrawTextureTile(canvas, &place, cell, nullptr, sampling, 255, flags, scale);
            DrawFrame(canvas, place, 0xFFE0402C);
        });
    };
    sheet.Section(L"DrawTextureTile: a tile that is cut at the right makes all tiles below as narrow", 4, 190);
    const int fits = 250 / size.cx * size.cx;
    draw(L"a multiple of the tile's width", fits, 0, 1, filter);
    draw(L"half a tile less", fits - size.cx / 2, 0, 1, filter);
    draw(L"scale 0.5", fits, ZORVIC_TILE_SCALED, 0.5F, ZORVIC_FILTER_AREA);
    draw(L"scale 2.5", fits, ZORVIC_TILE_SCALED, 2.5F, ZORVIC_FILTER_BICUBIC);
}

void AddTopTiles(Sheet& sheet, const Texture& panel) {
    const SIZE size = SizeOf(panel);
    const RECT margins{0, size.cy / 4, 0, size.cy / 2};
    sheet.Section(L"DrawTextureTopTile: the top quarter at its height, the bottom half stretched below it", 3, 190);
    for (const SIZE drawn : {SIZE{300, 60}, SIZE{340, 110}, SIZE{230, 170}})
        sheet.Tile(std::to_wstring(drawn.cx) + L" x " + std::to_wstring(drawn.cy), [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT place = Middle(AreaOf(canvas), drawn.cx, drawn.cy);
            DrawTextureTopTile(canvas, &place, panel, nullptr, &margins, filter, 255);
            DrawFrame(canvas, place, 0xFFE0402C);
        });
}

void AddFits(Sheet& sheet, HGBITMAP photo) {
    const Texture texture(BitmapToTexture(Cover(photo, SizeOf(photo)).release()));
    SetTextureFilter(texture, ZORVIC_OP_COPY);
    sheet.Section(L"One photo in three boxes: DrawTextureCenter shows all of it, DrawTextureUniform fills the box", 3,
                  190);
    const auto draw = [&](const wchar_t* caption, const auto& layout) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            for (const RECT& box : {Box(10, 10, 60, 170), Box(80, 10, 275, 60), Box(80, 80, 150, 100)}) {
                layout(canvas, box);
                DrawFrame(canvas, box, 0xFFE0402C);
            }
        });
    };
    const RECT margins{};
    draw(L"DrawTextureCenter", [&](HGCANVAS canvas, const RECT& box) {
        DrawTextureCenter(canvas, &box, texture, nullptr, ZORVIC_FILTER_AREA, 255);
    });
    draw(L"DrawTextureUniform, centred", [&](HGCANVAS canvas, const RECT& box) {
        DrawTextureUniform(canvas, &box, texture, &margins, ZORVIC_FILTER_AREA, 255, true);
    });
    draw(L"DrawTextureUniform, from the top left corner", [&](HGCANVAS canvas, const RECT& box) {
        DrawTextureUniform(canvas, &box, texture, &margins, ZORVIC_FILTER_AREA, 255, false);
    });
}

}  // namespace

Sheet LayoutsPage(const Pictures& pictures) {
    Sheet sheet(
        L"Texture layouts",
        L"A skin at any size. Pictures whose names hold panel, button, sliderHorizontal, sliderUp or box replace "
        L"the samples.");
    const Texture panel = SkinPart(pictures, L"panel", SamplePanel);
    AddPanels(sheet, panel);
    AddButtons(sheet, MakeButton(AsBitmap(SkinPart(pictures, L"button", SampleButton))));
    AddSlider(sheet, SkinPart(pictures, L"sliderHorizontal", SampleGroove),
              SkinPart(pictures, L"sliderUp", SampleThumb));
    const Texture ball = SkinPart(pictures, L"box", SampleBall);
    AddTiles(sheet, Texture(BitmapToTexture(Contain(AsBitmap(ball), {40, 40}).release())));
    AddTopTiles(sheet, panel);
    AddFits(sheet, pictures.Photo());
    return sheet;
}

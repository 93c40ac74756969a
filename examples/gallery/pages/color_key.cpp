// The colour key on the three source depths.
#include "pages.h"

namespace {

constexpr DWORD key = 0xFF00FF;

void DrawKeyed(HGCANVAS canvas, HGBITMAP bitmap, const RECT& rect, BYTE alpha) {
    DrawChecks(canvas);
    SetBitmapFilter(bitmap, ZORVIC_OP_COLOR_KEY | key);
    DrawBitmapEx(canvas, &rect, bitmap, ZORVIC_FILTER_NEAREST, alpha);
}

void AddSource(Sheet& sheet, HGBITMAP bitmap) {
    const auto draw = [&](const wchar_t* caption, RECT rect) {
        sheet.Tile(caption, [&](HGCANVAS canvas) { DrawKeyed(canvas, bitmap, rect, 255); });
    };
    const RECT same = AreaOf(bitmap);
    sheet.Tile(L"OP_COPY and made opaque, to compare", [&](HGCANVAS canvas) {
        SetBitmapFilter(bitmap, ZORVIC_OP_COPY);
        DrawBitmap(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST);
        FillPreMulColorRectEx(canvas, 0xFF000000, &same, ZORVIC_OP_OR);
    });
    draw(L"OP_COLOR_KEY | 0xFF00FF", same);
    draw(L"the same, half as wide", Box(same.right / 4, 0, same.right / 2, same.bottom));
    draw(L"the same, x 2 and clipped by the canvas", Box(-20, -10, same.right * 2, same.bottom * 2));
}

}  // namespace

Sheet ColorKeyPage(const Pictures& pictures) {
    Sheet sheet(
        L"Colour key",
        L"SetBitmapFilter(bitmap, ZORVIC_OP_COLOR_KEY | 0xRRGGBB): pixels of that colour are not drawn. Around the "
        L"picture lies 0xFF00FF.");
    constexpr int columns = 4;
    constexpr int height = 140;

    sheet.Section(L"24 bits: colour alone decides", columns, height);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    const Bitmap deep = To24Bits(photo);
    CutOut(deep, key);
    AddSource(sheet, deep);

    const Bitmap words = Cover(photo, sheet.TileSize());
    sheet.Section(L"32 bits, surroundings 0x00FF00FF: the key has alpha 0, so they are not drawn", columns, height);
    CutOut(words, key);
    AddSource(sheet, words);
    sheet.Section(L"32 bits, surroundings 0xFFFF00FF: opaque pixels never are the key", columns, height);
    CutOut(words, 0xFF000000 | key);
    AddSource(sheet, words);

    const Bitmap indices = ToPalette(photo);
    constexpr int last = 255;
    CutOut(indices, last);
    sheet.Section(L"8 bits, palette entry 0x00FF00FF: the entry is compared whole, so it is not drawn", columns,
                  height);
    Pixels(indices).Palette()[last] = key;
    AddSource(sheet, indices);
    sheet.Section(L"8 bits, palette entry 0xFFFF00FF: never the key", columns, height);
    Pixels(indices).Palette()[last] = 0xFF000000 | key;
    AddSource(sheet, indices);

    sheet.Section(L"Below opacity 255 a source is blended and no key is looked at (24 bits)", columns, height);
    for (const BYTE alpha : {BYTE{255}, BYTE{254}, BYTE{128}, BYTE{64}})
        sheet.Tile(L"DrawBitmapEx, alpha " + std::to_wstring(alpha),
                   [&](HGCANVAS canvas) { DrawKeyed(canvas, deep, AreaOf(deep), alpha); });
    return sheet;
}

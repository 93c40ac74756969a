// Sources of 8, 24 and 32 bits per pixel, and what a palette can do.
#include "pages.h"

namespace {

void DrawOnChecks(HGCANVAS canvas, HGBITMAP bitmap, DWORD operation, BYTE alpha = 255) {
    DrawChecks(canvas);
    SetBitmapFilter(bitmap, operation);
    DrawBitmapEx(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST, alpha);
}

void AddDepth(Sheet& sheet, HGBITMAP bitmap) {
    sheet.Tile(L"DrawBitmap", [&](HGCANVAS canvas) { DrawOnChecks(canvas, bitmap, ZORVIC_OP_COPY); });
    sheet.Tile(L"DrawBitmapEx, alpha 128", [&](HGCANVAS canvas) { DrawOnChecks(canvas, bitmap, ZORVIC_OP_COPY, 128); });
    sheet.Tile(L"DrawBitmap, OP_SOURCE_OVER",
               [&](HGCANVAS canvas) { DrawOnChecks(canvas, bitmap, ZORVIC_OP_SOURCE_OVER); });
    sheet.Tile(L"DrawBitmap, OP_MULTIPLY", [&](HGCANVAS canvas) { DrawOnChecks(canvas, bitmap, ZORVIC_OP_MULTIPLY); });
    sheet.Tile(L"DrawBitmapEx2, a part x 4", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        SetBitmapFilter(bitmap, ZORVIC_OP_SOURCE_OVER);
        const RECT whole = AreaOf(canvas);
        const RECT part = Box(whole.right * 3 / 8, whole.bottom * 3 / 8, whole.right / 4, whole.bottom / 4);
        DrawBitmapEx2(canvas, &whole, bitmap, &part, ZORVIC_FILTER_NEAREST, 255);
    });
}

// Gives every palette entry of a bitmap a new value.
template <class Change>
void ChangePalette(HGBITMAP bitmap, Change change) {
    const Pixels pixels(bitmap);
    for (int i = 0; i < 256; ++i) {
        const Color color = Color::From(pixels.Palette()[i]);
        pixels.Palette()[i] = change(color, (color.r + 2 * color.g + color.b) / 4).Argb();
    }
}

}  // namespace

Sheet DepthsPage(const Pictures& pictures) {
    Sheet sheet(L"Source depths", L"The same picture in every depth a source may have, on an opaque checkerboard.");
    constexpr int columns = 5;
    constexpr int height = 140;

    sheet.Section(L"8 bits per pixel with a palette of its own: CreateMemBitmapEx(width, height, 8, 256)", columns,
                  height);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    AddDepth(sheet, ToPalette(photo));
    sheet.Section(L"8 bits per pixel without a palette, shown by the grey ramp: CreateMemBitmapEx(width, height, 8, 0)",
                  columns, height);
    AddDepth(sheet, ToGray(photo));
    sheet.Section(L"24 bits per pixel, opaque: CreateMemBitmapEx(width, height, 24, 0)", columns, height);
    AddDepth(sheet, To24Bits(photo));
    sheet.Section(L"32 bits per pixel, here with edges that fade to transparent: CreateMemBitmap(width, height)",
                  columns, height);
    const Bitmap faded = Cover(photo, sheet.TileSize());
    FadeEdges(faded);
    AddDepth(sheet, faded);

    sheet.Section(L"The palette changed through LockBitmapBitsEx, the 8-bit pixels left alone; drawn OP_SOURCE_OVER",
                  columns, height);
    const auto recolored = [&](const wchar_t* caption, const auto& change) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            const Bitmap bitmap = ToPalette(photo);
            ChangePalette(bitmap, change);
            DrawOnChecks(canvas, bitmap, ZORVIC_OP_SOURCE_OVER);
        });
    };
    recolored(L"inverted", [](Color c, int) { return Color{255 - c.r, 255 - c.g, 255 - c.b, 255}; });
    recolored(L"red and blue exchanged", [](Color c, int) { return Color{c.b, c.g, c.r, 255}; });
    recolored(L"sepia", [](Color, int gray) { return Color{gray, gray * 215 / 255, gray * 165 / 255, 255}; });
    recolored(L"every entry half transparent", [](Color c, int) { return Color{c.r / 2, c.g / 2, c.b / 2, 128}; });
    recolored(L"alpha from darkness", [](Color, int gray) { return Color{0, 0, 0, 255 - gray}; });
    return sheet;
}

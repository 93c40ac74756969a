// Solid fills: every mode with the same colours.
#include "pages.h"

namespace {

// Checks, a photo, and nothing, side by side.
void DrawThirds(HGCANVAS canvas, HGBITMAP photo) {
    DrawChecks(canvas);
    const RECT area = AreaOf(canvas);
    const RECT middle{area.right / 3, 0, area.right * 2 / 3, area.bottom};
    const RECT right{area.right * 2 / 3, 0, area.right, area.bottom};
    DrawBitmap(canvas, &middle, photo, ZORVIC_FILTER_NEAREST);
    FillSolidRectEx(canvas, 0, &right, ZORVIC_OP_COPY);
}

}  // namespace

Sheet FillsPage(const Pictures& pictures) {
    Sheet sheet(L"Fills", L"FillSolidRectEx(canvas, colour, rect, mode) over checks, over a photo, and over nothing.");
    struct Mode {
        const wchar_t* name;
        DWORD word;
        const wchar_t* what;
    };
    constexpr Mode modes[]{
        {L"OP_COPY", ZORVIC_OP_COPY, L"replaces the pixels, alpha included"},
        {L"OP_SOURCE_OVER", ZORVIC_OP_SOURCE_OVER, L"draws over the pixels by the colour's alpha"},
        {L"OP_MULTIPLY", ZORVIC_OP_MULTIPLY, L"multiplies channel by channel; 0 clears, white changes nothing"},
        {L"OP_OR", ZORVIC_OP_OR, L"bitwise OR; but 0 clears, and 0xFFFFFFFF changes nothing"},
        {L"OP_GRAY_WASH", ZORVIC_OP_GRAY_WASH,
         L"opaque pixels become their grey, dimmed by the colour's alpha; its red, green and blue are not used"},
        {L"OP_DESTINATION_OVER", ZORVIC_OP_DESTINATION_OVER,
         L"draws behind the pixels: seen only where they are not opaque"},
    };
    for (const Mode& mode : modes) {
        sheet.Section(std::wstring(mode.name) + L": " + mode.what, 5, 96);
        SIZE third = sheet.TileSize();
        third.cx = third.cx * 2 / 3 - third.cx / 3;
        const Bitmap photo = Cover(pictures.Photo(), third);
        for (const DWORD color : {0xFFE0402Cu, 0x80E0402Cu, 0x802040E0u, 0x00000000u, 0xFFFFFFFFu})
            sheet.Tile(Hex(color), [&](HGCANVAS canvas) {
                DrawThirds(canvas, photo);
                const RECT rect = Inset(AreaOf(canvas), 14);
                FillSolidRectEx(canvas, color, &rect, mode.word);
            });
    }

    sheet.Section(
        L"FillSolidRect is OP_SOURCE_OVER; FillPreMulColorRectEx takes a colour that is premultiplied already", 5, 96);
    const auto plain = [&](const std::wstring& caption, const auto& fill) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT rect = Inset(AreaOf(canvas), 14);
            fill(canvas, rect);
        });
    };
    for (const DWORD color : {0x40E0402Cu, 0x80E0402Cu, 0xC0E0402Cu})
        plain(L"FillSolidRect " + Hex(color),
              [&](HGCANVAS canvas, const RECT& rect) { FillSolidRect(canvas, color, &rect); });
    for (const DWORD color : {0x80722116u, 0x80001060u})
        plain(L"FillPreMul... " + Hex(color), [&](HGCANVAS canvas, const RECT& rect) {
            FillPreMulColorRectEx(canvas, color, &rect, ZORVIC_OP_SOURCE_OVER);
        });
    return sheet;
}

// Every operation word with three opacities.
#include "pages.h"

namespace {

// A checkerboard whose middle is cut out, so that drawing behind it can be seen.
void DrawTarget(HGCANVAS canvas) {
    DrawChecks(canvas);
    const RECT area = AreaOf(canvas);
    const RECT middle{area.right * 5 / 16, 0, area.right * 3 / 4, area.bottom};
    FillSolidRectEx(canvas, 0, &middle, ZORVIC_OP_COPY);
}

}  // namespace

Sheet OperationsPage(const Pictures& pictures) {
    Sheet sheet(
        L"Operation words",
        L"SetBitmapFilter(bitmap, word), then DrawBitmapEx: a photo with soft edges and a picture with alpha, on "
        L"checks and on nothing.");
    struct Operation {
        const wchar_t* name;
        DWORD word;
        const wchar_t* what;
    };
    constexpr Operation operations[]{
        {L"OP_COPY", ZORVIC_OP_COPY, L"replaces the pixels; below opacity 255 it blends as OP_SOURCE_OVER"},
        {L"OP_SOURCE_OVER", ZORVIC_OP_SOURCE_OVER, L"draws over the pixels by the source's alpha"},
        {L"OP_COLOR_KEY | 0x000000", ZORVIC_OP_COLOR_KEY,
         L"copies all but the key, here transparent black; below 255 it blends"},
        {L"OP_MULTIPLY", ZORVIC_OP_MULTIPLY, L"multiplies channel by channel, whatever the opacity"},
        {L"OP_DESTINATION_OVER", ZORVIC_OP_DESTINATION_OVER, L"draws behind the pixels, whatever the opacity"},
    };
    for (const Operation& operation : operations) {
        sheet.Section(std::wstring(operation.name) + L": " + operation.what, 4, 132);
        const SIZE tile = sheet.TileSize();
        const Bitmap photo = Cover(pictures.Photo(), {tile.cx / 2, tile.cy - 12});
        FadeEdges(photo);
        const Bitmap sprite = Contain(pictures.Sprite(), {tile.cx * 2 / 5, tile.cy - 12});
        SetBitmapFilter(photo, operation.word);
        SetBitmapFilter(sprite, operation.word);

        const auto draw = [&](HGCANVAS canvas, BYTE alpha) {
            DrawTarget(canvas);
            const SIZE size = SizeOf(sprite);
            const RECT left = Box(6, 6, SizeOf(photo).cx, SizeOf(photo).cy);
            const RECT right = Box(tile.cx * 3 / 4 - size.cx / 2, (tile.cy - size.cy) / 2, size.cx, size.cy);
            DrawBitmapEx(canvas, &left, photo, ZORVIC_FILTER_NEAREST, alpha);
            DrawBitmapEx(canvas, &right, sprite, ZORVIC_FILTER_NEAREST, alpha);
        };
        for (const BYTE alpha : {BYTE{255}, BYTE{160}, BYTE{64}})
            sheet.Tile(L"DrawBitmapEx, alpha " + std::to_wstring(alpha), [&](HGCANVAS canvas) { draw(canvas, alpha); });
        sheet.Tile(L"stretched, alpha 255", [&](HGCANVAS canvas) {
            DrawTarget(canvas);
            const RECT wide = Inset(AreaOf(canvas), 6);
            DrawBitmapEx(canvas, &wide, sprite, ZORVIC_FILTER_NEAREST, 255);
        });
    }
    return sheet;
}

// What the other pages work with.
#include "pages.h"

Sheet PicturesPage(const Pictures& pictures) {
    Sheet sheet(L"Pictures",
                L"What the other pages draw: files read into 32-bit bitmaps, or samples drawn by formula.");
    const auto show = [&](const Picture& picture) {
        const SIZE size = SizeOf(picture.bitmap);
        sheet.Tile(
            picture.name + L", " + std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy), [&](HGCANVAS canvas) {
                const Bitmap small = Contain(picture.bitmap, sheet.TileSize());
                const RECT tile = AreaOf(canvas);
                const RECT drawn = AreaOf(small);
                const RECT middle =
                    Box((tile.right - drawn.right) / 2, (tile.bottom - drawn.bottom) / 2, drawn.right, drawn.bottom);
                DrawBitmap(canvas, &middle, small, ZORVIC_FILTER_NEAREST);
            });
    };
    sheet.Section(L"Photos", 2, 368);
    for (const Picture& photo : pictures.photos) show(photo);
    sheet.Section(L"With alpha: the pale checks are what every page shows where a canvas is transparent", 5, 120);
    for (const Picture& sprite : pictures.sprites) show(sprite);
    return sheet;
}

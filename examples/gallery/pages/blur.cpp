// The box blur of pixels in memory, at several sizes of the box.
#include "pages.h"

namespace {

// A copy that is blurred in place through its locked pixels.
Bitmap Blurred(HGBITMAP source, int box) {
    const SIZE size = SizeOf(source);
    Bitmap copy(CreateMemBitmap(size.cx, size.cy));
    CopyBitmap(copy, nullptr, source, nullptr);
    BITMAP locked{};
    LockBitmapBits(copy, &locked, nullptr);
    BlurBitmapData(locked.bmWidth, locked.bmHeight, locked.bmWidthBytes, locked.bmBits, locked.bmBitsPixel, box);
    UnlockBitmapBits(copy, 0, 1);
    return copy;
}

}  // namespace

Sheet BlurPage(const Pictures& pictures) {
    Sheet sheet(L"Box blur", L"BlurBitmapData(width, height, stride, bits, bitsPixel, box): the mean of a box, twice.");
    constexpr int boxes[]{1, 2, 3, 5, 15, 64};
    sheet.Section(L"A photo", 3, 220);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    for (const int box : boxes)
        sheet.Tile(L"box " + std::to_wstring(box),
                   [&](HGCANVAS canvas) { DrawBitmap(canvas, nullptr, Blurred(photo, box), ZORVIC_FILTER_NEAREST); });
    sheet.Section(L"A picture with alpha: the alpha is blurred too, and the result stays premultiplied", 3, 160);
    const Bitmap sprite = Contain(pictures.Sprite(), {200, 110});
    const SIZE size = SizeOf(sprite);
    for (const int box : boxes)
        sheet.Tile(L"box " + std::to_wstring(box), [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT area = AreaOf(canvas);
            const Canvas alone(CreateCanvas(area.right, area.bottom, nullptr));
            const RECT middle = Box((area.right - size.cx) / 2, (area.bottom - size.cy) / 2, size.cx, size.cy);
            DrawBitmap(alone, &middle, sprite, ZORVIC_FILTER_NEAREST);
            const Bitmap soft = Blurred(GetBitmap(alone), box);
            SetBitmapFilter(soft, ZORVIC_OP_SOURCE_OVER);
            DrawBitmap(canvas, nullptr, soft, ZORVIC_FILTER_NEAREST);
        });
    return sheet;
}

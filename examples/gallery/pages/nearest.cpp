// Stretching to the nearest pixel, and the law that a clip changes no pixel that it leaves.
#include "pages.h"

#include <algorithm>
#include <cstdlib>

namespace {

// |a - b| times 8 in every colour channel, opaque; returns how many pixels differ.
int DrawDifference(HGCANVAS target, int left, HGBITMAP first, HGBITMAP second) {
    const Pixels a(first);
    const Pixels b(second);
    const Pixels out(GetBitmap(target));
    int count = 0;
    for (int y = 0; y < a.Height(); ++y)
        for (int x = 0; x < a.Width(); ++x) {
            const DWORD one = a.At(x, y);
            const DWORD two = b.At(x, y);
            const Color c = Color::From(one);
            const Color d = Color::From(two);
            const auto much = [](int u, int v) { return std::min(255, 8 * std::abs(u - v)); };
            out.At(left + x, y) = Color{much(c.r, d.r), much(c.g, d.g), much(c.b, d.b), 255}.Argb();
            count += one != two;
        }
    return count;
}

// Three panels: drawn clipped, cut out of the unclipped drawing, the difference of the two.
void AddComparison(Sheet& sheet, const std::wstring& name, HGBITMAP bitmap, DWORD operation, BYTE alpha) {
    const SIZE tile = sheet.TileSize();
    const int gap = 4;
    const SIZE panel{(tile.cx - 2 * gap) / 3, tile.cy};
    constexpr int beyond = 56;  // how far the drawing reaches over the panel: two checks of 14, twice
    const RECT drawn{-beyond + 5, -beyond + 9, panel.cx + beyond - 12, panel.cy + beyond - 3};
    const auto draw = [&](HGCANVAS canvas) {
        DrawChecks(canvas, {-beyond, -beyond, panel.cx + beyond, panel.cy + beyond}, 14, 0xFFFFF3D6, 0xFF7C93B8);
        SetBitmapFilter(bitmap, operation);
        DrawBitmapEx(canvas, &drawn, bitmap, ZORVIC_FILTER_NEAREST, alpha);
    };
    Canvas clipped(CreateCanvas(panel.cx, panel.cy, nullptr));
    draw(clipped);
    Canvas unclipped(CreateCanvas(panel.cx + 2 * beyond, panel.cy + 2 * beyond, nullptr));
    SetViewportOrg(unclipped, beyond, beyond, nullptr);
    draw(unclipped);
    Bitmap crop(CreateMemBitmap(panel.cx, panel.cy));
    const RECT part = Box(beyond, beyond, panel.cx, panel.cy);
    CopyBitmap(crop, nullptr, GetBitmap(unclipped), &part);

    Canvas panels(CreateCanvas(tile.cx, tile.cy, nullptr));
    DrawBitmap(panels, nullptr, GetBitmap(clipped), ZORVIC_FILTER_NEAREST);
    const RECT middle = Box(panel.cx + gap, 0, panel.cx, panel.cy);
    DrawBitmap(panels, &middle, crop, ZORVIC_FILTER_NEAREST);
    const int count = DrawDifference(panels, 2 * (panel.cx + gap), GetBitmap(clipped), crop);
    sheet.Tile(name + L": " + std::to_wstring(count) + L" pixels differ",
               [&](HGCANVAS canvas) { DrawBitmap(canvas, nullptr, GetBitmap(panels), ZORVIC_FILTER_NEAREST); });
}

}  // namespace

Sheet NearestPage(const Pictures& pictures) {
    Sheet sheet(
        L"Nearest stretching",
        L"ZORVIC_FILTER_NEAREST: every pixel drawn is a pixel of the source, found from the top left corner on.");
    const HGBITMAP photo = pictures.Photo();
    const HGBITMAP sprite = pictures.Sprite();
    const auto stretched = [&](const std::wstring& caption, HGBITMAP bitmap) {
        sheet.Tile(caption + L" " + std::to_wstring(SizeOf(bitmap).cx) + L" x " + std::to_wstring(SizeOf(bitmap).cy),
                   [&](HGCANVAS canvas) {
                       DrawChecks(canvas);
                       const RECT whole = AreaOf(canvas);
                       DrawBitmap(canvas, &whole, bitmap, ZORVIC_FILTER_NEAREST);
                   });
    };
    sheet.Section(L"DrawBitmap, stretched to the tile of 272 x 176", 4, 176);
    stretched(L"reduced: from", photo);
    stretched(L"enlarged: from", Cover(photo, {68, 44}));
    stretched(L"enlarged: from", Cover(photo, {17, 11}));
    stretched(L"enlarged, with alpha: from", sprite);

    sheet.Section(L"DrawBitmapEx2: a part of the photo, nearer and nearer", 4, 176);
    const SIZE all = SizeOf(photo);
    for (const int zoom : {2, 4, 8, 16}) {
        const RECT part = Box(all.cx * 17 / 32 - all.cx / zoom / 2, all.cy * 15 / 32 - all.cy / zoom / 2,
                              std::max(1L, all.cx / zoom), std::max(1L, all.cy / zoom));
        sheet.Tile(L"1/" + std::to_wstring(zoom) + L" of its width and height", [&](HGCANVAS canvas) {
            const RECT whole = AreaOf(canvas);
            const RECT inside = {std::max(0L, part.left), std::max(0L, part.top), part.right, part.bottom};
            DrawBitmapEx2(canvas, &whole, photo, &inside, ZORVIC_FILTER_NEAREST, 255);
        });
    }

    sheet.Section(L"Clipped, cut out of the unclipped drawing, and the difference of both (black: none)", 3, 112);
    const Bitmap small = Cover(photo, {110, 74});
    const Bitmap words = Cover(photo, {110, 74});
    FadeEdges(words);
    const Bitmap deep = To24Bits(small);
    const Bitmap keyed = To24Bits(small);
    {
        const Pixels pixels(keyed);
        for (int y = 0; y < pixels.Height(); ++y)
            for (int x = 0; x < pixels.Width(); ++x)
                if ((x / 9 + y / 9) % 3 == 0) pixels.Set(x, y, 0xFF00FF);
    }
    const Bitmap indices = ToPalette(small);
    AddComparison(sheet, L"32 bits, OP_COPY", words, ZORVIC_OP_COPY, 255);
    AddComparison(sheet, L"32 bits, OP_SOURCE_OVER", words, ZORVIC_OP_SOURCE_OVER, 255);
    AddComparison(sheet, L"32 bits, alpha 128", words, ZORVIC_OP_SOURCE_OVER, 128);
    AddComparison(sheet, L"32 bits, OP_COLOR_KEY", words, ZORVIC_OP_COLOR_KEY, 255);
    AddComparison(sheet, L"24 bits, OP_COPY", deep, ZORVIC_OP_COPY, 255);
    AddComparison(sheet, L"24 bits, alpha 128", deep, ZORVIC_OP_COPY, 128);
    AddComparison(sheet, L"24 bits, OP_COLOR_KEY", keyed, ZORVIC_OP_COLOR_KEY | 0xFF00FF, 255);
    AddComparison(sheet, L"8 bits, OP_COPY", indices, ZORVIC_OP_COPY, 255);
    AddComparison(sheet, L"reduced, 32 bits, OP_COPY", photo, ZORVIC_OP_COPY, 255);
    SetBitmapFilter(photo, ZORVIC_OP_COPY);
    return sheet;
}

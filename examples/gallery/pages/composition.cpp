// Canvas with canvas: mixing, blending, scrolling, and modulation by a bitmap.
#include "../gdi.h"
#include "pages.h"

namespace {

Canvas CanvasOf(HGBITMAP bitmap) {
    Canvas canvas(CreateCanvas(SizeOf(bitmap).cx, SizeOf(bitmap).cy, nullptr));
    DrawBitmap(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST);
    return canvas;
}

void Show(HGCANVAS canvas, HGBITMAP bitmap) { DrawBitmap(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST); }

// White letters on black, which DrawModulation takes for light.
Bitmap Letters(SIZE size, const wchar_t* text) {
    Bitmap bitmap(CreateSystemBitmap(size.cx, size.cy));
    Lettering(MemoryDc(bitmap), size.cy / 3, FW_BOLD, RGB(255, 255, 255))
        .Write(text, AreaOf(bitmap), DT_CENTER | DT_VCENTER);
    return bitmap;
}

void AddMixing(Sheet& sheet, HGBITMAP photo, HGBITMAP other) {
    const Canvas source = CanvasOf(other);
    const RECT whole = AreaOf(photo);
    sheet.Section(L"MixCanvas, equal sizes: cross-fades into another canvas", 5, 142);
    for (const DWORD amount : {0u, 64u, 128u, 192u, 255u})
        sheet.Tile(L"amount " + std::to_wstring(amount), [&](HGCANVAS canvas) {
            Show(canvas, photo);
            MixCanvas(canvas, &whole, source, &whole, amount);
        });
    sheet.Section(L"MixCanvas, different sizes: the source is sampled to the nearest pixel; no clip applies", 5, 142);
    const auto mixed = [&](const wchar_t* caption, RECT to, RECT from, DWORD amount) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            Show(canvas, photo);
            MixCanvas(canvas, &to, source, &from, amount);
        });
    };
    const RECT part = Inset(whole, 24);
    mixed(L"whole into a part, amount 255", part, whole, 255);
    mixed(L"whole into a part, amount 128", part, whole, 128);
    mixed(L"a part x 4, amount 160", Box(20, 20, 160, 96), Box(80, 50, 40, 24), 160);
    mixed(L"same size, other place, 255", Box(10, 10, 90, 90), Box(100, 40, 90, 90), 255);
    mixed(L"not wholly inside: refused", Box(-1, 0, 100, 100), Box(0, 0, 100, 100), 255);
    sheet.Section(L"MixCanvasWithColor: cross-fades into a colour", 5, 142);
    const auto colored = [&](DWORD color, DWORD amount) {
        sheet.Tile(Hex(color) + L", amount " + std::to_wstring(amount), [&](HGCANVAS canvas) {
            Show(canvas, photo);
            MixCanvasWithColor(canvas, &part, color, amount);
        });
    };
    colored(0xFF20A060, 96);
    colored(0xFF20A060, 192);
    colored(0xFFFFFFFF, 128);
    colored(0x00000000, 128);
    colored(0x00000000, 224);
}

void AddBlending(Sheet& sheet, HGBITMAP photo, HGBITMAP other) {
    sheet.Section(L"BlendCanvas from a source that counts as opaque: blended by the constant alpha", 5, 142);
    const Canvas opaque = CanvasOf(other);
    const Bitmap faded = Cover(other, sheet.TileSize());
    FadeEdges(faded);
    const Canvas soft = CanvasOf(faded);
    const RECT whole = AreaOf(photo);
    const auto blended = [&](const wchar_t* caption, HGCANVAS source, const RECT& to, const RECT& from, BYTE alpha) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            Show(canvas, photo);
            BlendCanvas(canvas, &to, source, &from, alpha);
        });
    };
    const RECT part = Inset(whole, 24);
    const RECT outside = Box(60, 40, whole.right, whole.bottom);
    blended(L"same size, alpha 255", opaque, part, part, 255);
    blended(L"same size, alpha 128", opaque, part, part, 128);
    blended(L"stretched, alpha 128", opaque, part, whole, 128);
    blended(L"clipped, alpha 128", opaque, outside, whole, 128);
    blended(L"alpha 255 copies, alpha too", soft, whole, whole, 255);

    sheet.Section(L"BlendCanvas from a source with SetCanvasFilter(ZORVIC_OP_SOURCE_OVER): composed by its alpha", 5,
                  142);
    SetCanvasFilter(soft, ZORVIC_OP_SOURCE_OVER);
    blended(L"same size", soft, whole, whole, 255);
    blended(L"same size, alpha 128: no effect", soft, whole, whole, 128);
    blended(L"stretched", soft, part, whole, 255);
    blended(L"clipped", soft, outside, whole, 255);
    blended(L"stretched and clipped", soft, Box(-80, -60, whole.right * 2, whole.bottom * 2), whole, 255);
}

void AddScrolling(Sheet& sheet, HGBITMAP photo) {
    sheet.Section(L"CanvasScroll(canvas, 0, dy): the rows that are uncovered keep their pixels", 5, 142);
    for (const int dy : {0, 40, -40})
        sheet.Tile(L"dy " + std::to_wstring(dy), [&](HGCANVAS canvas) {
            Show(canvas, photo);
            CanvasScroll(canvas, 0, dy);
        });
    sheet.Tile(L"dy -40, then new rows filled", [&](HGCANVAS canvas) {
        Show(canvas, photo);
        CanvasScroll(canvas, 0, -40);
        const RECT area = AreaOf(canvas);
        const RECT fresh{0, area.bottom - 40, area.right, area.bottom};
        FillSolidRect(canvas, 0xFF7C93B8, &fresh);
    });
    sheet.Tile(L"dx 10: refused", [&](HGCANVAS canvas) {
        Show(canvas, photo);
        CanvasScroll(canvas, 10, 0);
    });
}

void AddModulation(Sheet& sheet, HGBITMAP photo, HGBITMAP other) {
    sheet.Section(L"DrawModulation with an opaque colour: the bitmap is light of that colour", 5, 142);
    const Bitmap letters = Letters(sheet.TileSize(), L"Light");
    const auto modulated = [&](const std::wstring& caption, HGBITMAP bitmap, DWORD color, bool onNothing) {
        sheet.Tile(caption + L", " + Hex(color), [&](HGCANVAS canvas) {
            if (!onNothing) Show(canvas, photo);
            DrawModulation(canvas, 0, 0, bitmap, nullptr, color);
        });
    };
    modulated(L"letters", letters, 0xFFFFE060, false);
    modulated(L"letters", letters, 0xFF1030A0, false);
    modulated(L"on nothing", letters, 0xFFE0402C, true);
    modulated(L"a photo", other, 0xFFFFFFFF, false);
    modulated(L"8-bit grey", ToGray(other), 0xFF30FF60, false);
    sheet.Section(L"DrawModulation with any other colour: the bitmap times the colour, drawn over", 5, 142);
    const Bitmap faded = Cover(other, sheet.TileSize());
    FadeEdges(faded);
    modulated(L"soft edges", faded, 0x80808080, false);
    modulated(L"soft edges", faded, 0xFEFE8040, false);
    modulated(L"soft edges", faded, 0x80204080, true);
    modulated(L"24 bits", To24Bits(other), 0xA0A0A0A0, false);
    modulated(L"8 bits", ToPalette(other), 0xC0C0C000, false);
}

}  // namespace

Sheet CompositionPage(const Pictures& pictures) {
    Sheet sheet(L"Canvas composition", L"Canvases mixed and blended into one another, scrolled, and lit by a bitmap.");
    sheet.Section(L"The two canvases", 5, 142);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    const Bitmap other = Cover(pictures.OtherPhoto(), sheet.TileSize());
    sheet.Tile(L"the canvas that is drawn on", [&](HGCANVAS canvas) { Show(canvas, photo); });
    sheet.Tile(L"the source", [&](HGCANVAS canvas) { Show(canvas, other); });
    AddMixing(sheet, photo, other);
    AddBlending(sheet, photo, other);
    AddScrolling(sheet, photo);
    AddModulation(sheet, photo, other);
    return sheet;
}

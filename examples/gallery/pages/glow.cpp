// Glow and shadow: soft copies drawn below a picture.
#include "../copy.h"
#include "pages.h"

namespace {

constexpr int border = 24;  // what spreads further is cut

// Four blurs each.
void Spread(HGTEXTURE texture, int times) {
    for (int i = 0; i < times; ++i) DarkBitmap(AsBitmap(texture));
}

Texture Glow(HGBITMAP picture, int spread) {
    Texture glow = Copied(picture, border);
    LightTexture(glow);
    Spread(glow, spread);
    return glow;
}

Texture Shadow(HGBITMAP picture, int spread) {
    Texture shadow = Copied(picture, border);
    ColorizeTexture(shadow, 0, 0, -1);  // black; the alpha stays
    Spread(shadow, spread);
    return shadow;
}

}  // namespace

Sheet GlowPage(const Pictures& pictures) {
    Sheet sheet(L"Glow and shadow",
                L"A copy with a transparent border, made soft, drawn first; the picture itself over it.");
    const auto section = [&](const wchar_t* heading) { sheet.Section(heading, 4, 170); };
    section(L"LightBitmap: a white glow; each DarkBitmap makes it wider, drawing it twice makes it stronger");
    const SIZE room{sheet.TileSize().cx - 2 * border, sheet.TileSize().cy - 2 * border};
    const Bitmap sprite = Contain(pictures.Sprite(), room);
    const Bitmap wide = Contain(pictures.WideSprite(), room);

    // Draws the soft copy some times, in the tint if there is one, and then the picture.
    DWORD tint = 0;
    const auto add = [&](const std::wstring& caption, DWORD ground, HGBITMAP picture, const Texture& soft, int dx,
                         int dy, int times, bool over) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            const RECT area = AreaOf(canvas);
            FillSolidRect(canvas, ground, &area);
            RECT place = Centered(area, SizeOf(AsBitmap(soft)));
            OffsetRect(&place, dx, dy);
            for (int i = 0; i < times; ++i) {
                if (tint != 0)
                    DrawModulation(canvas, place.left, place.top, AsBitmap(soft), nullptr, tint);
                else
                    DrawBitmap(canvas, &place, AsBitmap(soft), ZORVIC_FILTER_NEAREST);
            }
            const RECT middle = Centered(area, SizeOf(picture));
            if (over) DrawBitmap(canvas, &middle, picture, ZORVIC_FILTER_NEAREST);
        });
    };
    constexpr DWORD dark = 0xFF26323E, light = 0xFFE8ECF0;
    add(L"the glow alone", dark, sprite, Glow(sprite, 0), 0, 0, 1, false);
    add(L"below the picture", dark, sprite, Glow(sprite, 0), 0, 0, 1, true);
    add(L"wider: DarkBitmap 4 times, drawn twice", dark, sprite, Glow(sprite, 4), 0, 0, 2, true);
    add(L"DarkBitmap 16 times, drawn 3 times", dark, sprite, Glow(sprite, 16), 0, 0, 3, true);
    for (const int spread : {0, 4})
        add(L"a wide picture, DarkBitmap " + std::to_wstring(spread) + L" times", dark, wide, Glow(wide, spread), 0, 0,
            2, true);
    tint = 0xFE40A0FE;
    add(L"coloured by DrawModulation", dark, sprite, Glow(sprite, 4), 0, 0, 2, true);
    tint = 0xFEFE8020;
    add(L"coloured by DrawModulation", dark, wide, Glow(wide, 4), 0, 0, 2, true);
    tint = 0;

    section(L"DarkBitmap of a black copy: a shadow, moved down and to the right");
    add(L"the shadow alone", light, sprite, Shadow(sprite, 2), 0, 0, 1, false);
    add(L"below the picture", light, sprite, Shadow(sprite, 2), 6, 8, 1, true);
    add(L"softer: DarkBitmap 8 times", light, sprite, Shadow(sprite, 8), 8, 10, 1, true);
    add(L"a wide picture, DarkBitmap 8 times", light, wide, Shadow(wide, 8), 5, 7, 1, true);
    return sheet;
}

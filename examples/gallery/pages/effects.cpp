// Every effect in place: on pictures with alpha, and on pictures of other depths.
#include "../copy.h"
#include "pages.h"

namespace {

struct Effect {
    const wchar_t* caption;
    void (*run)(HGTEXTURE texture);
};

constexpr Effect effects[]{
    {L"as it is", [](HGTEXTURE) {}},
    {L"GrayBitmap", [](HGTEXTURE t) { GrayBitmap(AsBitmap(t)); }},
    {L"InvertBitmap: within the alpha", [](HGTEXTURE t) { InvertTexture(t); }},
    {L"ColorizeTexture 0.5, 0, 0: the hue", [](HGTEXTURE t) { ColorizeTexture(t, 0.5F, 0, 0); }},
    {L"ShuffleBitmap: alpha to grey", [](HGTEXTURE t) { ShuffleTexture(t, ZORVIC_SHUFFLE_ALPHA_TO_GRAY); }},
    {L"ShuffleBitmap: colour to alpha", [](HGTEXTURE t) { ShuffleTexture(t, ZORVIC_SHUFFLE_COLOR_TO_ALPHA); }},
    {L"ShuffleBitmapEx: the upper half",
     [](HGTEXTURE t) {
         const SIZE size = SizeOf(AsBitmap(t));
         const RECT upper = Box(0, 0, size.cx, size.cy / 2);
         ShuffleTextureEx(t, &upper, ZORVIC_SHUFFLE_ALPHA_TO_GRAY);
     }},
    {L"BlurBitmap of itself, three times",
     [](HGTEXTURE t) {
         for (int i = 0; i < 3; ++i) BlurTexture(t, t);
     }},
    {L"LightBitmap", [](HGTEXTURE t) { LightTexture(t); }},
    {L"DarkBitmap", [](HGTEXTURE t) { DarkBitmap(AsBitmap(t)); }},
    {L"DarkBitmap twice",
     [](HGTEXTURE t) {
         for (int i = 0; i < 2; ++i) DarkBitmap(AsBitmap(t));
     }},
};

// Two pictures side by side, each after the effect.
void AddTile(Sheet& sheet, const Effect& effect, HGBITMAP left, HGBITMAP right) {
    sheet.Tile(effect.caption, [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT area = AreaOf(canvas);
        const RECT halves[]{Box(0, 0, area.right / 2, area.bottom),
                            Box(area.right / 2, 0, area.right / 2, area.bottom)};
        for (int i = 0; i < 2; ++i) {
            const Texture copy = Copied(i == 0 ? left : right);
            effect.run(copy);
            const RECT place = Centered(halves[i], SizeOf(AsBitmap(copy)));
            DrawBitmap(canvas, &place, AsBitmap(copy), ZORVIC_FILTER_NEAREST);
        }
    });
}

}  // namespace

Sheet EffectsPage(const Pictures& pictures) {
    Sheet sheet(L"Effects",
                L"Each call changes a surface in place; drawn before and after, over checks, by its alpha.");
    sheet.Section(L"32 bits: a photo with soft edges and a picture with alpha", 4, 136);
    const SIZE half{sheet.TileSize().cx / 2 - 8, sheet.TileSize().cy - 8};
    const Bitmap photo = Cover(pictures.Photo(), half);
    const Bitmap soft = Cover(pictures.Photo(), half);
    const Bitmap sprite = Contain(pictures.Sprite(), half);
    FadeEdges(soft);
    SetBitmapFilter(soft, ZORVIC_OP_SOURCE_OVER);
    for (const Effect& effect : effects) AddTile(sheet, effect, soft, sprite);

    sheet.Section(L"Straight colour, as picture files hold it, must be premultiplied before it is drawn", 4, 136);
    MakeStraight(soft);
    MakeStraight(sprite);
    AddTile(sheet, {L"drawn as it is", [](HGTEXTURE) {}}, soft, sprite);
    AddTile(sheet, {L"after NormalizeBitmap", [](HGTEXTURE t) { NormalizeTexture(t); }}, soft, sprite);
    const Effect colorized{L"ColorizeTexture, then NormalizeBitmap", [](HGTEXTURE t) {
                               ColorizeTexture(t, 0.5F, 0.3F, 0);
                               NormalizeTexture(t);
                           }};
    AddTile(sheet, colorized, soft, sprite);

    sheet.Section(L"24 bits, and 8 bits with a palette: the palette changes, the indices stay", 4, 136);
    const Bitmap rgb = To24Bits(photo);
    const Bitmap palette = ToPalette(photo);
    const Bitmap wide(CreateMemBitmap(half.cx, half.cy));
    CopyBitmap(wide, nullptr, palette, nullptr);
    const Bitmap rgbOfPalette = To24Bits(wide);
    AddTile(sheet, effects[0], rgb, palette);
    AddTile(sheet, effects[1], rgb, palette);
    AddTile(sheet, effects[3], rgb, palette);
    AddTile(sheet,
            {L"TranslateTexture: one exact colour to red",
             [](HGTEXTURE t) {
                 // A colour of the sky.
                 const Pixels pixels(AsBitmap(t));
                 const int x = pixels.Width() / 2;
                 const BYTE* row = pixels.Row(pixels.Height() / 4);
                 const DWORD from = pixels.Palette() ? pixels.Palette()[row[x]]
                                                     : Color{row[3 * x + 2], row[3 * x + 1], row[3 * x], 255}.Argb();
                 TranslateTexture(t, from, 0xFFFF2020);
             }},
            rgbOfPalette, palette);
    return sheet;
}

// Sweeps of hue, saturation and lightness.
#include "../copy.h"
#include "pages.h"

namespace {

struct Amounts {
    float hue, saturation, lightness;
};

std::wstring Number(float amount) {
    wchar_t digits[16];
    std::swprintf(digits, 16, L"%+.2f", static_cast<double>(amount));
    return digits;
}

// A column for every value of t, 0 to 255, painted from a row number 0 to 3.
template <class ColorAt>
void DrawBands(HGCANVAS canvas, ColorAt colorAt) {
    const RECT area = AreaOf(canvas);
    for (int band = 0; band < 4; ++band)
        for (int x = 0; x < area.right; ++x) {
            const RECT column = Box(x, band * area.bottom / 4, 1, area.bottom / 4);
            FillSolidRect(canvas, 0xFF000000 | colorAt(x * 255 / (area.right - 1), band), &column);
        }
}

}  // namespace

Sheet ColorizePage(const Pictures& pictures) {
    Sheet sheet(L"Hue, saturation and lightness",
                L"ColorizeTexture on a photo and on a picture with alpha, whose colour must be straight then; below, "
                L"single colours.");
    constexpr int columns = 5;
    const auto sweep = [&](const wchar_t* heading, Amounts most) {
        sheet.Section(heading, columns, 110);
        const SIZE half{sheet.TileSize().cx / 2 - 6, sheet.TileSize().cy - 8};
        const Bitmap photo = Cover(pictures.Photo(), half);
        const Bitmap sprite = Contain(pictures.WideSprite(), half);
        MakeStraight(sprite);
        for (const float part : {-1.0F, -0.5F, 0.0F, 0.5F, 1.0F})
            sheet.Tile(Number(part), [&](HGCANVAS canvas) {
                const RECT area = AreaOf(canvas);
                const RECT left = Box(0, 0, area.right / 2, area.bottom),
                           right = Box(area.right / 2, 0, area.right / 2, area.bottom);
                for (const auto& [picture, where] : {std::pair(photo.get(), left), std::pair(sprite.get(), right)}) {
                    const Texture copy = Copied(picture);
                    ColorizeTexture(copy, most.hue * part, most.saturation * part, most.lightness * part);
                    NormalizeTexture(copy);
                    const RECT place = Centered(where, SizeOf(AsBitmap(copy)));
                    DrawBitmap(canvas, &place, AsBitmap(copy), ZORVIC_FILTER_NEAREST);
                }
            });
    };
    sweep(L"Hue: 1 and -1 are half the circle", {1, 0, 0});
    sweep(L"Saturation: 1 is the strongest colour, -1 nearly grey", {0, 1, 0});
    sweep(L"Lightness: 1 is white, -1 black", {0, 0, 1});
    sweep(L"All three by half as much", {0.5F, 0.5F, 0.5F});

    sheet.Section(L"AHSLtoARGB: hue from left to right", 2, 96);
    sheet.Tile(L"saturation 255, 170, 85 and 0 from above, lightness 128", [](HGCANVAS canvas) {
        DrawBands(canvas, [](int t, int band) { return AHSLtoARGB(Color{t, 255 - 85 * band, 128, 255}.Argb()); });
    });
    sheet.Tile(L"lightness 224, 160, 96 and 32 from above, saturation 255", [](HGCANVAS canvas) {
        DrawBands(canvas, [](int t, int band) { return AHSLtoARGB(Color{t, 255, 224 - 64 * band, 255}.Argb()); });
    });
    sheet.Section(L"ARGBColorize of 0xFFD06020, by -1 at the left to 1 at the right; and there and back", 2, 96);
    sheet.Tile(L"hue, saturation, lightness, all three", [](HGCANVAS canvas) {
        DrawBands(canvas, [](int t, int band) {
            const float amount = static_cast<float>(t) / 127.5F - 1;
            const auto only = [&](int which) { return band == which || band == 3 ? amount : 0.0F; };
            return ARGBColorize(0xFFD06020, only(0), only(1), only(2));
        });
    });
    sheet.Tile(
        L"a gradient; AHSLtoARGB(ARGBtoAHSL()) of it; the difference, 64 times; its hue as grey", [](HGCANVAS canvas) {
            DrawBands(canvas, [](int t, int band) -> DWORD {
                const DWORD color = Color{t / 2, t, 255 - t, 255}.Argb();
                const DWORD hsl = ARGBtoAHSL(color);
                const Color before = Color::From(color), after = Color::From(AHSLtoARGB(hsl));
                const auto apart = [](int a, int b) { return std::min(255, std::abs(a - b) * 64); };
                switch (band) {
                    case 0:
                        return color;
                    case 1:
                        return after.Argb();
                    case 2:
                        return Color{apart(before.r, after.r), apart(before.g, after.g), apart(before.b, after.b), 0}
                            .Argb();
                    default:
                        return (hsl >> 16 & 0xFF) * 0x010101;
                }
            });
        });
    return sheet;
}

// The blend modes of shapes over a photo, and gradients.
#include "vector.h"

namespace {

constexpr const wchar_t* modes[]{
    L"source-over", L"source",     L"destination-over", L"clear",      L"source-in", L"destination-in",
    L"source-out",  L"dest.-out",  L"source-atop",      L"dest.-atop", L"xor",       L"plus",
    L"multiply",    L"screen",     L"overlay",          L"darken",     L"lighten",   L"colour-dodge",
    L"colour-burn", L"hard-light", L"soft-light",       L"difference", L"exclusion", L"hue",
    L"saturation",  L"colour",     L"luminosity"};

}  // namespace

Sheet BlendingPage(const Pictures& pictures) {
    Sheet sheet(L"Blend modes",
                L"SetBlendMode: an orange disc and a translucent one over a photo that fades to nothing.");
    sheet.Section(L"The 27 modes", 6, 110);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    FadeEdges(photo);
    SetBitmapFilter(photo, ZORVIC_OP_SOURCE_OVER);
    for (int mode = 0; mode < 27; ++mode)
        sheet.Tile(std::to_wstring(mode) + L" " + modes[mode], [&](HGCANVAS canvas) {
            DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
            SetBlendMode(canvas, mode);
            SetColor(canvas, 0xFFE08020);
            DrawCircle(canvas, 62, 55, 38);
            SetColor(canvas, 0x802040E0);
            DrawCircle(canvas, 120, 55, 38);
        });
    return sheet;
}

Sheet GradientsPage(const Pictures&) {
    Sheet sheet(L"Gradients", L"Colours along a line or between two circles; the end colours repeat.");
    sheet.Section(L"GradientCreateLinear", 4, 110);
    const auto fill = [&](const wchar_t* caption, HGGRADIENT created) {
        const Gradient gradient = WithStops(created);
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            SetDrawStyle(canvas, ZORVIC_DRAW_GRADIENT);
            SetGradient(canvas, gradient.get());
            const RECT box = AreaOf(canvas);
            DrawRectangle(canvas, 0, 0, static_cast<float>(box.right), static_cast<float>(box.bottom));
        });
    };
    fill(L"left to right", GradientCreateLinear(0, 0, 270, 0));
    fill(L"top to bottom", GradientCreateLinear(0, 0, 0, 110));
    fill(L"slanted", GradientCreateLinear(60, 10, 200, 100));
    fill(L"short: the ends repeat", GradientCreateLinear(120, 0, 150, 0));
    sheet.Section(L"GradientCreateRadial", 4, 110);
    fill(L"about one point", GradientCreateRadial(135, 55, 0, 135, 55, 120));
    fill(L"a ring", GradientCreateRadial(135, 55, 25, 135, 55, 50));
    fill(L"one inside the other, off centre", GradientCreateRadial(110, 40, 5, 135, 55, 90));
    fill(L"apart: a cone", GradientCreateRadial(70, 55, 15, 190, 55, 40));

    sheet.Section(L"FillGradualRect, with alpha and without", 4, 110);
    for (const DWORD direction : {1U, 2U, 0U})
        sheet.Tile(L"direction " + std::to_wstring(direction), [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT left = Box(14, 14, 115, 82), right = Box(143, 14, 115, 82);
            FillGradualRect(canvas, 0xFFE0402C, 0xFF2040E0, &left, direction);
            FillGradualRect(canvas, 0xFFE0402C, 0x002040E0, &right, direction);
        });
    sheet.Tile(L"FillRectangleEx, FillRoundRectEx", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT left = Box(14, 14, 115, 82), right = Box(143, 14, 115, 82);
        const POINT corner{20, 20};
        FillRectangleEx(canvas, &left, 0x8020A060);
        FillRoundRectEx(canvas, &right, &corner, 0x8020A060);
    });
    return sheet;
}

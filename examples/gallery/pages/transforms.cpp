// A picture turned and mirrored at every depth, and resized.
#include "pages.h"

namespace {

struct Named {
    int op;
    const wchar_t* name;
};
constexpr Named transforms[]{{ZORVIC_TRANSFORM_ROTATE_90, L"ROTATE_90"},
                             {ZORVIC_TRANSFORM_ROTATE_180, L"ROTATE_180"},
                             {ZORVIC_TRANSFORM_ROTATE_270, L"ROTATE_270"},
                             {ZORVIC_TRANSFORM_FLIP_VERTICAL, L"FLIP_VERTICAL"},
                             {ZORVIC_TRANSFORM_FLIP_HORIZONTAL, L"FLIP_HORIZONTAL"},
                             {ZORVIC_TRANSFORM_TRANSPOSE, L"TRANSPOSE"},
                             {ZORVIC_TRANSFORM_ANTI_TRANSPOSE, L"ANTI_TRANSPOSE"}};

void AddPicture(Sheet& sheet, const std::wstring& caption, HGBITMAP bitmap) {
    const SIZE size = SizeOf(bitmap);
    sheet.Tile(caption, [&](HGCANVAS canvas) {
        const RECT area = AreaOf(canvas);
        const RECT place = Box((area.right - size.cx) / 2, (area.bottom - size.cy) / 2, size.cx, size.cy);
        DrawBitmap(canvas, &place, bitmap, ZORVIC_FILTER_NEAREST);
    });
}

void AddTransforms(Sheet& sheet, const wchar_t* heading, HGBITMAP bitmap) {
    sheet.Section(heading, 8, 148);
    AddPicture(sheet, L"the source", bitmap);
    for (const Named& transform : transforms)
        AddPicture(sheet, transform.name, Bitmap(TransformBitmap(bitmap, transform.op)));
}

}  // namespace

Sheet TransformsPage(const Pictures& pictures) {
    Sheet sheet(L"Transforms",
                L"TransformBitmap turns and mirrors into a new bitmap of the same depth and palette; "
                L"ResizeBitmap makes one of 32 bits in any size.");
    // A mark in the top left corner, longer than high, tells all seven apart.
    const Bitmap picture = Cover(pictures.Photo(), {112, 76});
    {
        const Pixels pixels(picture);
        for (int y = 0; y < 24; ++y)
            for (int x = 0; x < 36; ++x)
                if (x < 6 || y < 6 || (x < 15 && y < 15)) pixels.At(x, y) = 0xFFE0402C;
    }
    AddTransforms(sheet, L"32 bits per pixel", picture);
    AddTransforms(sheet, L"24 bits per pixel", To24Bits(picture));
    AddTransforms(sheet, L"8 bits per pixel with a palette of its own", ToPalette(picture));
    AddTransforms(sheet, L"8 bits per pixel, shown by the grey ramp", ToGray(picture));

    sheet.Section(L"ResizeBitmap(source, width, height, mode)", 4, 210);
    const auto resized = [&](const std::wstring& caption, HGBITMAP source, SIZE size, int mode) {
        AddPicture(sheet, caption + L": " + std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy),
                   Bitmap(ResizeBitmap(source, size.cx, size.cy, mode)));
    };
    resized(L"AREA", pictures.Photo(), {240, 160}, ZORVIC_FILTER_AREA);
    resized(L"AREA", pictures.Photo(), {60, 200}, ZORVIC_FILTER_AREA);
    resized(L"BICUBIC", picture, {260, 180}, ZORVIC_FILTER_BICUBIC);
    resized(L"NEAREST", picture, {260, 180}, ZORVIC_FILTER_NEAREST);
    return sheet;
}

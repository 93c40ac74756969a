// Outlines on canvases with and without alpha and on a device context, and textures with rounded corners.
#include "../gdi.h"
#include "vector.h"

namespace {

struct Outline {
    const wchar_t* name;
    void (*draw)(HGCANVAS canvas, const RECT& rect, HPEN pen);
};

constexpr POINT corner{18, 18};
constexpr Outline outlines[]{
    {L"GeoRectangle", [](HGCANVAS c, const RECT& r, HPEN pen) { GeoRectangle(c, &r, pen, nullptr); }},
    {L"GeoRectangleEx, 4", [](HGCANVAS c, const RECT& r, HPEN) { GeoRectangleEx(c, &r, 0xC0E0402C, 4); }},
    {L"GeoRoundRect", [](HGCANVAS c, const RECT& r, HPEN pen) { GeoRoundRect(c, &r, &corner, pen); }},
    {L"GeoRoundRectEx, 4", [](HGCANVAS c, const RECT& r, HPEN) { GeoRoundRectEx(c, &r, &corner, 0xC0E0402C, 4); }},
    {L"GeoRectFocusEx", [](HGCANVAS c, const RECT& r, HPEN) { GeoRectFocusEx(c, &r, 0xFF000000); }},
};

}  // namespace

Sheet OutlinesPage(const Pictures& pictures) {
    Sheet sheet(
        L"Outlines and rounded textures",
        L"Where GDI would destroy alpha the library draws itself; on a host's device context vector calls answer 0.");
    const HPEN pen = CreatePen(PS_DASH, 3, RGB(0x20, 0x60, 0xA0));
    for (const DWORD operation : {ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_COPY}) {
        sheet.Section(operation ? L"On a canvas with SetCanvasFilter(ZORVIC_OP_SOURCE_OVER)" : L"On a plain canvas", 5,
                      90);
        for (const Outline& outline : outlines)
            sheet.Tile(outline.name, [&](HGCANVAS canvas) {
                if (!operation) DrawChecks(canvas);
                SetCanvasFilter(canvas, operation);
                const RECT rect = Inset(AreaOf(canvas), 14), all = AreaOf(canvas);
                outline.draw(canvas, rect, pen);
                SetCanvasFilter(canvas, ZORVIC_OP_SOURCE_OVER);
                if (!operation) FillPreMulColorRectEx(canvas, 0xFF000000, &all, ZORVIC_OP_OR);  // GDI cleared the alpha
            });
    }
    sheet.Section(L"On a canvas made by CreateCanvasFromDC", 5, 90);
    for (const Outline& outline : outlines)
        sheet.Tile(outline.name, [&](HGCANVAS canvas) {
            DrawChecks(canvas);
            const RECT rect = Inset(AreaOf(canvas), 14), all = AreaOf(canvas);
            {
                const Canvas onDc(CreateCanvasFromDC(GetCanvasHandle(canvas)));
                outline.draw(onDc, rect, pen);
            }
            FillPreMulColorRectEx(canvas, 0xFF000000, &all, ZORVIC_OP_OR);
        });
    DeleteObject(pen);

    sheet.Section(L"DrawTextureEx3: cornerRadii 30, 30, and ellipse", 4, 130);
    const Texture photo(BitmapToTexture(Cover(pictures.Photo(), {200, 100}).release()));
    for (const LONG ellipse : {0, 1})
        for (const DWORD filter : {0U, 1U, 4U, 5U})
            sheet.Tile(std::wstring(ellipse ? L"ellipse" : L"rounded") + L", filter " + std::to_wstring(filter),
                       [&](HGCANVAS canvas) {
                           TextureDrawParams params{};
                           params.filterMode = filter;
                           params.alpha = 255;
                           params.cornerRadii[0] = params.cornerRadii[1] = 30;
                           params.ellipse = ellipse;
                           const RECT dst = Inset(AreaOf(canvas), filter == 5 ? 40 : 8);
                           DrawTextureEx3(canvas, &dst, photo, &params, nullptr);
                       });
    return sheet;
}

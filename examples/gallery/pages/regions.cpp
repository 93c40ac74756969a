// Regions made from a texture's alpha.
#include "../copy.h"
#include "../gdi.h"
#include "pages.h"

namespace {

struct DeleteRegion {
    void operator()(HRGN region) const { DeleteObject(region); }
};
using Region = std::unique_ptr<std::remove_pointer_t<HRGN>, DeleteRegion>;

// GDI has cleared the alpha of what it drew on.
void MakeOpaque(HGCANVAS canvas) {
    GdiFlush();
    const RECT all = AreaOf(canvas);
    FillPreMulColorRectEx(canvas, 0xFF000000, &all, ZORVIC_OP_OR);
}

void Stripe(HDC dc, const RECT& area) {
    const HGDIOBJ pen = SelectObject(dc, CreatePen(PS_SOLID, 5, RGB(230, 90, 40)));
    for (int x = area.left - area.bottom; x < area.right; x += 14) {
        MoveToEx(dc, x, area.bottom, nullptr);
        LineTo(dc, x + area.bottom, 0);
    }
    DeleteObject(SelectObject(dc, pen));
}

}  // namespace

Sheet RegionsPage(const Pictures& pictures) {
    Sheet sheet(L"Regions from alpha",
                L"CreateTextureRgn makes a GDI region of all pixels that are not transparent black.");
    const auto add = [&](const wchar_t* caption, HGBITMAP picture, const RECT* part, const auto& draw) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            const RECT area = AreaOf(canvas);
            FillSolidRect(canvas, 0xFFF4F6F8, &area);
            const RECT place = Centered(area, SizeOf(picture));
            const Region region(CreateTextureRgn(Copied(picture), part));
            OffsetRgn(region.get(), place.left + (part ? part->left : 0), place.top + (part ? part->top : 0));
            draw(canvas, place, region.get());
            MakeOpaque(canvas);
        });
    };
    const auto fill = [](HGCANVAS canvas, const RECT&, HRGN region) {
        HBRUSH brush = CreateSolidBrush(RGB(52, 120, 190));
        FillRgn(GetCanvasHandle(canvas), region, brush);
        DeleteObject(brush);
    };
    constexpr const wchar_t* headings[]{L"A picture with soft alpha: whatever its alpha, a pixel is in or out",
                                        L"A wide picture", L"A photo cut to an ellipse"};
    const Bitmap cut = Cover(pictures.Photo(), {190, 130});
    CutOut(cut, 0);
    SetBitmapFilter(cut, ZORVIC_OP_SOURCE_OVER);
    const Bitmap sprites[]{Contain(pictures.Sprite(), {200, 130}), Contain(pictures.WideSprite(), {220, 130}),
                           Contain(cut, {200, 130})};
    for (int i = 0; i < 3; ++i) {
        HGBITMAP picture = sprites[i];
        sheet.Section(headings[i], 4, 150);
        add(L"FillRgn", picture, nullptr, fill);
        add(L"FrameRgn around the picture", picture, nullptr, [&](HGCANVAS canvas, const RECT& place, HRGN region) {
            DrawBitmap(canvas, &place, picture, ZORVIC_FILTER_NEAREST);
            HBRUSH brush = CreateSolidBrush(RGB(230, 40, 120));
            FrameRgn(GetCanvasHandle(canvas), region, brush, 1, 1);
            DeleteObject(brush);
        });
        add(L"SelectClipRgn, then GDI lines", picture, nullptr, [](HGCANVAS canvas, const RECT&, HRGN region) {
            HDC dc = GetCanvasHandle(canvas);
            SelectClipRgn(dc, region);
            Stripe(dc, AreaOf(canvas));
            SelectClipRgn(dc, nullptr);
        });
        const SIZE size = SizeOf(picture);
        const RECT part = Box(size.cx / 4, size.cy / 4, size.cx / 2, size.cy / 2);
        add(L"an area of it", picture, &part, [&](HGCANVAS canvas, const RECT& place, HRGN region) {
            DrawBitmapEx(canvas, &place, picture, ZORVIC_FILTER_NEAREST, 90);
            fill(canvas, place, region);
        });
    }
    sheet.Section(L"Otherwise the region is the whole area", 4, 150);
    const Bitmap plain = Contain(pictures.Sprite(), {200, 130});
    SetBitmapFilter(plain, ZORVIC_OP_COPY);
    add(L"OP_COPY: alpha does not count", plain, nullptr, fill);
    add(L"24 bits", To24Bits(plain), nullptr, fill);
    return sheet;
}

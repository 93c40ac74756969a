// Clip and origins.
#include "pages.h"

namespace {

// The picture at logical (0, 0) with a grid of 40 pixels and the axes.
void DrawScene(HGCANVAS canvas, HGBITMAP photo, BYTE alpha) {
    DrawBitmapEx(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST, alpha);
    const RECT area = AreaOf(photo);
    const auto line = [&](int x, int y, int width, int height, DWORD color) {
        const RECT rect = Box(x, y, width, height);
        FillSolidRect(canvas, (color & 0xFFFFFF) | DWORD{alpha} << 24, &rect);
    };
    for (int x = 40; x < area.right; x += 40) line(x, 0, 1, area.bottom, 0xFFFFFF);
    for (int y = 40; y < area.bottom; y += 40) line(0, y, area.right, 1, 0xFFFFFF);
    line(0, 0, area.right, 3, 0xE02020);
    line(0, 0, 3, area.bottom, 0xE02020);
}

void DrawPale(HGCANVAS canvas, HGBITMAP photo) {
    const RECT area = AreaOf(canvas);
    FillSolidRect(canvas, 0xFFFFFFFF, &area);
    DrawScene(canvas, photo, 70);
}

}  // namespace

Sheet ClipPage(const Pictures& pictures) {
    Sheet sheet(L"Clip and origins",
                L"The same scene in every tile: drawn pale without a clip, then at full opacity. "
                L"Grid lines every 40 logical pixels, the axes red.");
    constexpr int columns = 4;
    constexpr int height = 160;
    HGBITMAP photo = nullptr;

    // What is drawn before is not clipped and not moved; then the tile sets its clip and origins.
    const auto add = [&](const wchar_t* caption, const std::function<void(HGCANVAS)>& set) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawPale(canvas, photo);
            set(canvas);
            DrawScene(canvas, photo, 255);
        });
    };
    const RECT first = Box(30, 24, 150, 90);
    const RECT second = Box(100, 60, 140, 84);

    sheet.Section(L"Clip: nothing is drawn outside it", columns, height);
    const Bitmap cover = Cover(pictures.Photo(), sheet.TileSize());
    photo = cover;
    add(L"SetCanvasClipRect 30, 24, 180, 114", [&](HGCANVAS canvas) { SetCanvasClipRect(canvas, &first); });
    add(L"then IntersectCanvasClipRect", [&](HGCANVAS canvas) {
        SetCanvasClipRect(canvas, &first);
        IntersectCanvasClipRect(canvas, &second);
    });
    add(L"SetCanvasClipRoundRect: same as ClipRect", [&](HGCANVAS canvas) {
        const RECT corner = Box(0, 0, 30, 30);
        SetCanvasClipRoundRect(canvas, &first, &corner);
    });
    add(L"the clip is cut to the surface", [&](HGCANVAS canvas) {
        const RECT beyond = Box(150, 80, 5000, 5000);
        SetCanvasClipRect(canvas, &beyond);
    });

    sheet.Section(L"Origins: surface = logical + viewport origin - window origin", columns, height);
    add(L"SetViewportOrg 60, 40", [](HGCANVAS canvas) { SetViewportOrg(canvas, 60, 40, nullptr); });
    add(L"SetWindowOrg 60, 40", [](HGCANVAS canvas) { SetWindowOrg(canvas, 60, 40, nullptr); });
    add(L"viewport 60, 40 and window 20, 40", [](HGCANVAS canvas) {
        SetViewportOrg(canvas, 60, 40, nullptr);
        SetWindowOrg(canvas, 20, 40, nullptr);
    });
    add(L"viewport -60, -40", [](HGCANVAS canvas) { SetViewportOrg(canvas, -60, -40, nullptr); });

    sheet.Section(L"Both: a clip is logical when it is set, and stays on the surface when the origin moves", columns,
                  height);
    add(L"clip, then viewport 60, 40", [&](HGCANVAS canvas) {
        SetCanvasClipRect(canvas, &first);
        SetViewportOrg(canvas, 60, 40, nullptr);
    });
    add(L"viewport 60, 40, then the same clip", [&](HGCANVAS canvas) {
        SetViewportOrg(canvas, 60, 40, nullptr);
        SetCanvasClipRect(canvas, &first);
    });
    const auto addMore = [&](const wchar_t* caption, const std::function<void(HGCANVAS)>& more) {
        sheet.Tile(caption, [&](HGCANVAS canvas) {
            DrawPale(canvas, photo);
            SetCanvasClipRect(canvas, &first);
            SetViewportOrg(canvas, 60, 40, nullptr);
            DrawScene(canvas, photo, 255);
            more(canvas);
        });
    };
    addMore(L"GetCanvasClipRect -30, -16, 120, 74", [](HGCANVAS canvas) {
        RECT clip{};
        GetCanvasClipRect(canvas, &clip);
        DrawFrame(canvas, clip, 0xFFE0402C);
    });
    addMore(L"GDI obeys both: Ellipse -20, 10, 110, 100", [](HGCANVAS canvas) {
        Ellipse(GetCanvasHandle(canvas), -20, 10, 110, 100);
        GdiFlush();
        RECT clip{};
        GetCanvasClipRect(canvas, &clip);
        FillPreMulColorRectEx(canvas, 0xFF000000, &clip, ZORVIC_OP_OR);  // GDI has cleared the alpha
    });
    return sheet;
}

// To GDI and back: canvases brought to a device context, GDI drawing on bitmaps and canvases, canvases on a host's
// device context.
#include "../gdi.h"
#include "pages.h"

namespace {

constexpr COLORREF green = RGB(40, 160, 96);
constexpr COLORREF yellow = RGB(255, 214, 64);

void DrawShapes(HDC dc, const RECT& area) {
    const HGDIOBJ pen = SelectObject(dc, CreatePen(PS_SOLID, 5, green));
    const HGDIOBJ brush = SelectObject(dc, CreateSolidBrush(yellow));
    const RECT box{16, 16, 116, area.bottom - 34};
    Rectangle(dc, box.left, box.top, box.right, box.bottom);
    Ellipse(dc, area.right - 120, 30, area.right - 16, area.bottom - 16);
    DeleteObject(SelectObject(dc, brush));
    DeleteObject(SelectObject(dc, pen));
    Lettering(dc, 30, FW_BOLD, RGB(200, 30, 30)).Write(L"GDI", box, DT_CENTER | DT_VCENTER);
    GdiFlush();
}

void MakeOpaque(HGCANVAS canvas) {
    const RECT all = AreaOf(canvas);
    FillPreMulColorRectEx(canvas, 0xFF000000, &all, ZORVIC_OP_OR);
}

void AddTransfers(Sheet& sheet, HGBITMAP soft) {
    sheet.Section(L"GdiTransCanvas to a device context: what a host does in WM_PAINT", 4, 150);
    const RECT whole = AreaOf(soft);
    const RECT part = Inset(whole, 30);
    const auto transferred = [&](const wchar_t* caption, DWORD operation, BYTE alpha, const RECT& to) {
        sheet.Tile(caption, [&](HGCANVAS tile) {
            const Canvas canvas(CreateCanvas(whole.right, whole.bottom, nullptr));
            DrawBitmap(canvas, nullptr, soft, ZORVIC_FILTER_NEAREST);
            SetCanvasFilter(canvas, operation);
            DrawChecks(tile);
            HDC target = GetCanvasHandle(tile);
            SetStretchBltMode(target, COLORONCOLOR);  // how GDI stretches is the target's choice
            GdiTransCanvas(target, &to, canvas, &whole, alpha);
            GdiFlush();
            MakeOpaque(tile);  // as a window, which has no alpha
        });
    };
    transferred(L"OP_SOURCE_OVER: AlphaBlend by its alpha", ZORVIC_OP_SOURCE_OVER, 255, whole);
    transferred(L"OP_SOURCE_OVER, alpha 128", ZORVIC_OP_SOURCE_OVER, 128, whole);
    transferred(L"OP_SOURCE_OVER, alpha 64", ZORVIC_OP_SOURCE_OVER, 64, whole);
    transferred(L"OP_SOURCE_OVER, stretched", ZORVIC_OP_SOURCE_OVER, 255, part);
    transferred(L"OP_COPY: StretchBlt, no alpha", ZORVIC_OP_COPY, 255, whole);
    transferred(L"OP_COPY, alpha 128: AlphaBlend", ZORVIC_OP_COPY, 128, whole);
    transferred(L"OP_COPY, stretched", ZORVIC_OP_COPY, 255, part);
    transferred(L"OP_COPY, stretched, alpha 128", ZORVIC_OP_COPY, 128, part);
}

void AddSystemBitmap(Sheet& sheet, HGBITMAP photo) {
    sheet.Section(L"A system bitmap: GDI draws on it, the library reads it back", 4, 150);
    const SIZE size = sheet.TileSize();
    const auto withShapes = [&] {
        Bitmap bitmap(CreateSystemBitmap(size.cx, size.cy));
        DrawShapes(MemoryDc(bitmap), AreaOf(bitmap));
        return bitmap;
    };
    sheet.Tile(L"drawn by GDI, made opaque by OP_OR", [&](HGCANVAS canvas) {
        DrawBitmap(canvas, nullptr, withShapes(), ZORVIC_FILTER_NEAREST);
        MakeOpaque(canvas);
    });
    sheet.Tile(L"alpha given through LockBitmapBits", [&](HGCANVAS canvas) {
        const Bitmap bitmap = withShapes();
        {
            const Pixels pixels(bitmap);
            for (int y = 0; y < pixels.Height(); ++y)
                for (int x = 0; x < pixels.Width(); ++x)
                    if (pixels.At(x, y) & 0xFFFFFF) pixels.At(x, y) |= 0xFF000000;
        }
        DrawChecks(canvas);
        SetBitmapFilter(bitmap, ZORVIC_OP_SOURCE_OVER);
        DrawBitmap(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST);
    });
    sheet.Tile(L"or OP_COLOR_KEY | 0x000000", [&](HGCANVAS canvas) {
        const Bitmap bitmap = withShapes();
        SetBitmapFilter(bitmap, ZORVIC_OP_COLOR_KEY);
        DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
        DrawBitmap(canvas, nullptr, bitmap, ZORVIC_FILTER_NEAREST);
        MakeOpaque(canvas);
    });
    sheet.Tile(L"BitBlt from GetBitmapHandle", [&](HGCANVAS canvas) {
        const Bitmap memory = Cover(photo, size);
        const MemoryDc source(memory);
        BitBlt(GetCanvasHandle(canvas), 20, 20, size.cx - 40, size.cy - 40, source, 20, 20, SRCCOPY);
        GdiFlush();
    });
}

void AddCanvasHandle(Sheet& sheet, HGBITMAP photo, HGBITMAP soft) {
    sheet.Section(L"GetCanvasHandle: GDI and the library in turns on one canvas", 4, 150);
    sheet.Tile(L"photo, then GDI: alpha is cleared", [&](HGCANVAS canvas) {
        DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
        DrawShapes(GetCanvasHandle(canvas), AreaOf(canvas));
    });
    sheet.Tile(L"and repaired by OP_OR 0xFF000000", [&](HGCANVAS canvas) {
        DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
        DrawShapes(GetCanvasHandle(canvas), AreaOf(canvas));
        MakeOpaque(canvas);
    });
    sheet.Tile(L"and a bitmap drawn over it by its alpha", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        DrawShapes(GetCanvasHandle(canvas), AreaOf(canvas));
        MakeOpaque(canvas);
        DrawBitmap(canvas, nullptr, soft, ZORVIC_FILTER_NEAREST);
    });
    sheet.Tile(L"the canvas's clip holds for both", [&](HGCANVAS canvas) {
        DrawChecks(canvas);
        const RECT clip = Inset(AreaOf(canvas), 28);
        SetCanvasClipRect(canvas, &clip);
        DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
        DrawShapes(GetCanvasHandle(canvas), AreaOf(canvas));
        MakeOpaque(canvas);
    });
}

// Draws on a device context through a canvas made for it.
void DrawThrough(HDC dc, HGBITMAP photo, HGBITMAP soft) {
    const Canvas canvas(CreateCanvasFromDC(dc));
    const RECT area = AreaOf(photo);
    const RECT band = Box(0, area.bottom / 2, area.right, 28);
    DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST);
    FillSolidRect(canvas, 0xA0102030, &band);
    const RECT place = Box(area.right / 3, 0, area.right * 2 / 3, area.bottom);
    DrawBitmapEx(canvas, &place, soft, ZORVIC_FILTER_NEAREST, 220);
}

void AddHostContexts(Sheet& sheet, HGBITMAP photo, HGBITMAP soft) {
    sheet.Section(
        L"CreateCanvasFromDC: the library draws on a device context of the host (photo, dark band, soft picture)", 4,
        150);
    const SIZE size = sheet.TileSize();
    const RECT area = Box(0, 0, size.cx, size.cy);
    // Draws on a device context and shows what arrived there.
    const auto shown = [&](HGCANVAS tile, HDC dc, const auto& prepare) {
        const HGDIOBJ brush = CreateSolidBrush(yellow);
        FillRect(dc, &area, static_cast<HBRUSH>(brush));
        DeleteObject(brush);
        prepare();
        DrawThrough(dc, photo, soft);
        SelectClipRgn(dc, nullptr);
        SetViewportOrgEx(dc, 0, 0, nullptr);
        BitBlt(GetCanvasHandle(tile), 0, 0, size.cx, size.cy, dc, 0, 0, SRCCOPY);
        GdiFlush();
        MakeOpaque(tile);
    };
    sheet.Tile(L"on a DIB section: straight into its pixels", [&](HGCANVAS tile) {
        const Bitmap bitmap(CreateSystemBitmap(size.cx, size.cy));
        shown(tile, MemoryDc(bitmap), [] {});
    });
    const auto clipped = [&](HDC dc) {
        const HRGN region = CreateEllipticRgn(10, 6, size.cx - 60, size.cy - 6);
        const HRGN right = CreateRectRgn(size.cx - 50, 30, size.cx - 8, size.cy - 30);
        CombineRgn(region, region, right, RGN_OR);
        SelectClipRgn(dc, region);
        DeleteObject(region);
        DeleteObject(right);
    };
    sheet.Tile(L"on a DIB section with a complex clip", [&](HGCANVAS tile) {
        const Bitmap bitmap(CreateSystemBitmap(size.cx, size.cy));
        const MemoryDc dc(bitmap);
        shown(tile, dc, [&] { clipped(dc); });
    });
    sheet.Tile(L"on a compatible bitmap with that clip", [&](HGCANVAS tile) {
        const MemoryDc dc(size);
        shown(tile, dc, [&] { clipped(dc); });
    });
    sheet.Tile(L"its viewport origin is obeyed: 60, 40", [&](HGCANVAS tile) {
        const Bitmap bitmap(CreateSystemBitmap(size.cx, size.cy));
        const MemoryDc dc(bitmap);
        shown(tile, dc, [&] { SetViewportOrgEx(dc, 60, 40, nullptr); });
    });
}

}  // namespace

Sheet GdiPage(const Pictures& pictures) {
    Sheet sheet(L"With GDI",
                L"Surfaces are DIB sections when they need to be, and canvases can stand on a host's device "
                L"context.");
    sheet.Section(L"The pictures", 4, 150);
    const Bitmap photo = Cover(pictures.Photo(), sheet.TileSize());
    const Bitmap soft = Cover(pictures.OtherPhoto(), sheet.TileSize());
    FadeEdges(soft);
    sheet.Tile(L"photo", [&](HGCANVAS canvas) { DrawBitmap(canvas, nullptr, photo, ZORVIC_FILTER_NEAREST); });
    sheet.Tile(L"soft picture, with alpha",
               [&](HGCANVAS canvas) { DrawBitmap(canvas, nullptr, soft, ZORVIC_FILTER_NEAREST); });
    SetBitmapFilter(soft, ZORVIC_OP_COPY);
    AddTransfers(sheet, soft);
    SetBitmapFilter(soft, ZORVIC_OP_SOURCE_OVER);
    AddSystemBitmap(sheet, photo);
    AddCanvasHandle(sheet, photo, soft);
    AddHostContexts(sheet, photo, soft);
    return sheet;
}

#include "sheet.h"

#include <algorithm>
#include <cwchar>

#include "gdi.h"

namespace {

constexpr int pageWidth = 1200;
constexpr int margin = 32;
constexpr int gap = 16;
constexpr int titleHeight = 84;
constexpr int headingHeight = 44;
constexpr int captionHeight = 26;

constexpr DWORD paper = 0xFFFFFFFF;
constexpr DWORD frameColor = 0xFFC4C9D0;
constexpr COLORREF ink = RGB(28, 32, 38);
constexpr COLORREF paleInk = RGB(104, 112, 122);

int TileWidth(int columns) { return (pageWidth - 2 * margin - (columns - 1) * gap) / columns; }

// Calls place(group, tile or null, rectangle) for every heading and tile; returns the height of the page.
template <class Groups, class Place>
int LayOut(const Groups& groups, Place place) {
    int y = titleHeight;
    for (const auto& group : groups) {
        place(group, nullptr, Box(margin, y, pageWidth - 2 * margin, headingHeight));
        y += headingHeight;
        const int width = TileWidth(group.columns);
        int column = 0;
        for (const auto& tile : group.tiles) {
            if (column == group.columns) {
                column = 0;
                y += group.tileHeight + captionHeight + gap / 2;
            }
            place(group, &tile, Box(margin + column * (width + gap), y, width, group.tileHeight));
            ++column;
        }
        y += group.tileHeight + captionHeight + gap / 2;
    }
    return y + margin / 2;
}

}  // namespace

void Sheet::Section(std::wstring heading, int columns, int tileHeight) {
    groups.push_back({std::move(heading), columns, tileHeight, {}});
}

SIZE Sheet::TileSize() const { return {TileWidth(groups.back().columns), groups.back().tileHeight}; }

void Sheet::Tile(std::wstring caption, const std::function<void(HGCANVAS)>& draw) {
    Canvas canvas(CreateCanvas(TileSize().cx, TileSize().cy, nullptr));
    draw(canvas);
    groups.back().tiles.push_back({std::move(caption), std::move(canvas)});
}

Canvas Sheet::Compose() const {
    const int height = LayOut(groups, [](const Group&, const Drawn*, const RECT&) {});
    Canvas page(CreateSystemCanvas(pageWidth, height, nullptr));
    const RECT all = AreaOf(page);
    FillSolidRect(page, paper, &all);

    LayOut(groups, [&](const Group&, const Drawn* tile, const RECT& where) {
        if (!tile) return;
        DrawFrame(page, Inset(where, -1), frameColor);
        // Pale checks show through wherever the tile's canvas is transparent.
        DrawChecks(page, where, 6, 0xFFFFFFFF, 0xFFE9ECEF);
        // The tile's origins and operation are its own affair; here it is a picture with alpha.
        SetViewportOrg(tile->canvas, 0, 0, nullptr);
        SetWindowOrg(tile->canvas, 0, 0, nullptr);
        SetCanvasFilter(tile->canvas, ZORVIC_OP_SOURCE_OVER);
        const RECT whole = AreaOf(tile->canvas);
        BlendCanvas(page, &where, tile->canvas, &whole, 255);
    });

    HDC dc = GetCanvasHandle(page);
    Lettering(dc, 27, FW_BOLD, ink).Write(title.c_str(), Box(margin, 20, pageWidth - 2 * margin, 36), 0);
    Lettering(dc, 14, FW_NORMAL, paleInk).Write(text.c_str(), Box(margin, 58, pageWidth - 2 * margin, 22), 0);
    LayOut(groups, [&](const Group& group, const Drawn* tile, const RECT& where) {
        if (tile)
            Lettering(dc, 12, FW_NORMAL, ink)
                .Write(tile->caption.c_str(), Box(where.left, where.bottom + 5, Width(where), captionHeight - 6), 0);
        else
            Lettering(dc, 15, FW_BOLD, ink).Write(group.heading.c_str(), where, DT_VCENTER);
    });
    GdiFlush();
    // GDI has cleared the alpha under the letters.
    FillPreMulColorRectEx(page, 0xFF000000, &all, ZORVIC_OP_OR);
    return page;
}

void DrawChecks(HGCANVAS canvas, const RECT& rect, int size, DWORD light, DWORD dark) {
    FillSolidRect(canvas, light, &rect);
    for (int y = rect.top; y < rect.bottom; y += size)
        for (int x = rect.left + (y - rect.top) / size % 2 * size; x < rect.right; x += 2 * size) {
            const RECT field{x, y, std::min<LONG>(x + size, rect.right), std::min<LONG>(y + size, rect.bottom)};
            FillSolidRect(canvas, dark, &field);
        }
}

void DrawChecks(HGCANVAS canvas) { DrawChecks(canvas, AreaOf(canvas), 14, 0xFFFFF3D6, 0xFF7C93B8); }

void DrawFrame(HGCANVAS canvas, const RECT& rect, DWORD color) {
    for (const RECT& side : {RECT{rect.left, rect.top, rect.right, rect.top + 1},
                             RECT{rect.left, rect.bottom - 1, rect.right, rect.bottom},
                             RECT{rect.left, rect.top, rect.left + 1, rect.bottom},
                             RECT{rect.right - 1, rect.top, rect.right, rect.bottom}})
        FillSolidRect(canvas, color, &side);
}

std::wstring Hex(DWORD value) {
    wchar_t digits[16];
    std::swprintf(digits, 16, L"0x%08lX", value);
    return digits;
}

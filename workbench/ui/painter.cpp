#include "ui/painter.h"

#include <cwchar>

namespace {

HFONT MakeFont(int height, int weight) {
    LOGFONTW face{};
    face.lfHeight = -height;
    face.lfWeight = weight;
    face.lfQuality = ANTIALIASED_QUALITY;
    std::wcscpy(face.lfFaceName, L"Segoe UI");
    return CreateFontIndirectW(&face);
}

// Kept until the program ends.
HFONT FontOf(Face face) {
    static const HFONT normal = MakeFont(12, FW_NORMAL);
    static const HFONT strong = MakeFont(12, FW_SEMIBOLD);
    static const HFONT small = MakeFont(11, FW_NORMAL);
    return face == Face::strong ? strong : face == Face::small ? small : normal;
}

COLORREF ToGdi(DWORD argb) { return RGB(argb >> 16 & 255, argb >> 8 & 255, argb & 255); }

}  // namespace

Painter::Painter(zorvic::CanvasRef drawn) : canvas(drawn), dc(drawn.Dc()), saved(SaveDC(dc)) {
    SetBkMode(dc, TRANSPARENT);
}

Painter::~Painter() {
    GdiFlush();
    RestoreDC(dc, saved);
}

void Painter::Fill(const RECT& rect, DWORD color) const { canvas.FillSolidRect(color, rect); }

void Painter::Round(const RECT& rect, int radius, DWORD color) const {
    canvas.FillRoundRect(rect, {radius, radius}, color);
}

void Painter::Ring(const RECT& rect, int radius, DWORD color) const {
    canvas.OutlineRoundRect(rect, {radius, radius}, color, 1);
}

void Painter::Frame(const RECT& r, DWORD color) const {
    Fill({r.left, r.top, r.right, r.top + 1}, color);
    Fill({r.left, r.bottom - 1, r.right, r.bottom}, color);
    Fill({r.left, r.top + 1, r.left + 1, r.bottom - 1}, color);
    Fill({r.right - 1, r.top + 1, r.right, r.bottom - 1}, color);
}

void Painter::Arrow(const RECT& rect, DWORD color) const {
    const int x = (rect.left + rect.right) / 2;
    const int y = (rect.top + rect.bottom) / 2 - 1;
    for (int i = 0; i < 4; ++i) Fill({x - 3 + i, y + i, x + 4 - i, y + i + 1}, color);
}

void Painter::Text(std::wstring_view text, RECT rect, DWORD color, UINT format, Face face) const {
    SelectObject(dc, FontOf(face));
    SetTextColor(dc, ToGdi(color));
    const UINT lines = format & DT_WORDBREAK ? 0u : DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect, DT_NOPREFIX | lines | format);
    GdiFlush();  // before the library writes to the same pixels
}

SIZE Painter::TextSize(std::wstring_view text, int width, Face face) const {
    SelectObject(dc, FontOf(face));
    RECT rect{0, 0, width, 0};
    DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect, DT_NOPREFIX | DT_WORDBREAK | DT_CALCRECT);
    return {rect.right, rect.bottom};
}

// Drawing of the window: shapes by the library, text by GDI on ground that is opaque already.
#pragma once

#include <string_view>

#include "zorvic/zorvic.hpp"

namespace theme {
inline constexpr DWORD panel = 0xFF2A2E35;
inline constexpr DWORD field = 0xFF3A404A;
inline constexpr DWORD fieldHot = 0xFF47505D;
inline constexpr DWORD fieldPressed = 0xFF2F343C;
inline constexpr DWORD line = 0xFF454C57;
inline constexpr DWORD text = 0xFFEDEFF2;
inline constexpr DWORD quiet = 0xFFA9B1BD;
inline constexpr DWORD disabled = 0xFF6C7480;
inline constexpr DWORD accent = 0xFF4A9DFF;
inline constexpr DWORD grid = 0xFFFF9A2E;  // nine-grid margins
inline constexpr DWORD warning = 0xFFFF7B6B;
inline constexpr DWORD card = 0xFF20242A;
}  // namespace theme

enum class Face { normal, strong, small };

class Painter {
public:
    explicit Painter(zorvic::CanvasRef drawn);
    ~Painter();
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    zorvic::CanvasRef Canvas() const { return canvas; }
    void Fill(const RECT& rect, DWORD color) const;
    void Round(const RECT& rect, int radius, DWORD color) const;
    void Ring(const RECT& rect, int radius, DWORD color) const;
    // The outline of a rectangle, one pixel wide, inside it.
    void Frame(const RECT& rect, DWORD color) const;
    // A triangle that points down, to the middle of the rectangle.
    void Arrow(const RECT& rect, DWORD color) const;
    // One line, cut with an ellipsis; the format is DrawText's. Several lines with DT_WORDBREAK.
    void Text(std::wstring_view text, RECT rect, DWORD color, UINT format = DT_LEFT, Face face = Face::normal) const;
    // As wide as `width` at most, with as many lines as that takes.
    SIZE TextSize(std::wstring_view text, int width, Face face = Face::normal) const;

private:
    zorvic::CanvasRef canvas;
    HDC dc;
    int saved;
};

inline int Width(const RECT& rect) { return rect.right - rect.left; }
inline int Height(const RECT& rect) { return rect.bottom - rect.top; }
inline RECT Inset(RECT rect, int by) { return {rect.left + by, rect.top + by, rect.right - by, rect.bottom - by}; }
inline bool Contains(const RECT& rect, POINT at) { return PtInRect(&rect, at) != FALSE; }

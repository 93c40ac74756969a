// Device contexts and fonts for the length of a scope.
#pragma once

#include <cwchar>

#include "surface.h"

// A memory device context with a bitmap selected.
class MemoryDc {
public:
    // Draws on the GDI side of a bitmap.
    explicit MemoryDc(HGBITMAP bitmap) : MemoryDc(GetBitmapHandle(bitmap), false) {}
    // Draws on a bitmap of the screen's format, whose pixels cannot be reached from outside.
    explicit MemoryDc(SIZE size) : MemoryDc(LikeScreen(size), true) {}
    ~MemoryDc() {
        GdiFlush();
        const HGDIOBJ bitmap = SelectObject(dc, previous);
        DeleteDC(dc);
        if (owner) DeleteObject(bitmap);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    operator HDC() const { return dc; }  // NOLINT(google-explicit-constructor)

private:
    MemoryDc(HBITMAP bitmap, bool ownsBitmap)
        : dc(CreateCompatibleDC(nullptr)), previous(SelectObject(dc, bitmap)), owner(ownsBitmap) {}

    static HBITMAP LikeScreen(SIZE size) {
        HDC screen = GetDC(nullptr);
        HBITMAP bitmap = CreateCompatibleBitmap(screen, size.cx, size.cy);
        ReleaseDC(nullptr, screen);
        return bitmap;
    }

    HDC dc;
    HGDIOBJ previous;
    bool owner;
};

// A font and a colour for text on a device context.
class Lettering {
public:
    Lettering(HDC target, int height, int weight, COLORREF color) : dc(target) {
        LOGFONTW face{};
        face.lfHeight = -height;
        face.lfWeight = weight;
        face.lfQuality = ANTIALIASED_QUALITY;
        std::wcscpy(face.lfFaceName, L"Segoe UI");  // Wine takes what it has instead
        previous = SelectObject(dc, CreateFontIndirectW(&face));
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, color);
    }
    ~Lettering() { DeleteObject(SelectObject(dc, previous)); }
    Lettering(const Lettering&) = delete;
    Lettering& operator=(const Lettering&) = delete;

    // One line; the format is DrawText's.
    void Write(const wchar_t* line, RECT where, UINT format) const {
        DrawTextW(dc, line, -1, &where, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | format);
    }

private:
    HDC dc;
    HGDIOBJ previous;
};

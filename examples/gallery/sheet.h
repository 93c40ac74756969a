// A contact sheet: sections of equal tiles, each a small canvas with a caption, laid out on a page of fixed width.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "surface.h"

class Sheet {
public:
    Sheet(std::wstring pageTitle, std::wstring pageText) : title(std::move(pageTitle)), text(std::move(pageText)) {}

    // Tiles that follow belong to this section.
    void Section(std::wstring heading, int columns, int tileHeight);
    SIZE TileSize() const;
    // Draws a tile at once, on a transparent canvas of the tile's size.
    void Tile(std::wstring caption, const std::function<void(HGCANVAS)>& draw);

    // The whole page as one opaque canvas.
    Canvas Compose() const;

private:
    struct Drawn {
        std::wstring caption;
        Canvas canvas;
    };
    struct Group {
        std::wstring heading;
        int columns;
        int tileHeight;
        std::vector<Drawn> tiles;
    };
    std::wstring title;
    std::wstring text;
    std::vector<Group> groups;
};

// Backgrounds for tiles.
void DrawChecks(HGCANVAS canvas, const RECT& rect, int size, DWORD light, DWORD dark);
void DrawChecks(HGCANVAS canvas);
void DrawFrame(HGCANVAS canvas, const RECT& rect, DWORD color);

// Numbers for captions: 0x80E8503A, alpha 128.
std::wstring Hex(DWORD value);

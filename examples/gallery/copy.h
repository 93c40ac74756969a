// Copies of pictures for effects, which change a surface in place.
#pragma once

#include <algorithm>

#include "surface.h"

// The picture in its own depth, within a border of transparent pixels for effects that spread.
inline Texture Copied(HGBITMAP picture, int border = 0) {
    BitmapLockInfo info{};
    LockBitmapBitsEx(picture, &info, nullptr);
    UnlockBitmapBits(picture, 0, 0);
    Texture copy(CreateTextureEx(info.bmWidth + 2 * border, info.bmHeight + 2 * border, info.bmBitsPixel,
                                 info.bmBitsPixel == 8 ? info.colorCount : 0));
    if (border > 0) {
        const Pixels pixels(AsBitmap(copy));
        for (int y = 0; y < pixels.Height(); ++y) std::fill_n(&pixels.At(0, y), pixels.Width(), 0);
    }
    const RECT place = Box(border, border, info.bmWidth, info.bmHeight);
    CopyBitmap(AsBitmap(copy), &place, picture, nullptr);
    return copy;
}

// Divides the colour by the alpha: what picture files hold, and what may be colorized without leaving its alpha.
inline void MakeStraight(HGBITMAP picture) {
    const Pixels pixels(picture);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const Color c = Color::From(pixels.At(x, y));
            const auto straight = [&](int value) { return c.a == 0 ? 0 : value * 255 / c.a; };
            pixels.At(x, y) = Color{straight(c.r), straight(c.g), straight(c.b), c.a}.Argb();
        }
}

// Where a picture of that size stands in the middle of an area.
inline RECT Centered(const RECT& area, SIZE size) {
    return Box((area.left + area.right - size.cx) / 2, (area.top + area.bottom - size.cy) / 2, size.cx, size.cy);
}

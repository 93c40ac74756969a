// The pictures that the pages show, and what a host makes of a picture before it draws it: other sizes, other depths.
#pragma once

#include <string>
#include <vector>

#include "surface.h"

struct Picture {
    std::wstring name;
    Bitmap bitmap;  // 32 bits; drawn by its alpha if it has any
};

struct Pictures {
    std::vector<Picture> photos;   // large and opaque; two or more
    std::vector<Picture> sprites;  // small or with alpha; one or more

    HGBITMAP Photo() const { return photos[0].bitmap; }
    HGBITMAP OtherPhoto() const { return photos[1].bitmap; }
    // The sprite with the longest shorter side, and the widest one.
    HGBITMAP Sprite() const;
    HGBITMAP WideSprite() const;
};

// Reads the files and adds samples for what is missing. Throws std::runtime_error with one line for the user.
Pictures LoadPictures(const std::vector<std::wstring>& files);

// The picture's middle, so large that it covers the size.
Bitmap Cover(HGBITMAP picture, SIZE size);
// The whole picture, so small that it fits into the size, but never enlarged.
Bitmap Contain(HGBITMAP picture, SIZE size);

// The same picture in 24 bits, in 8 bits with a palette of 252 colours, and in 8 bits without a palette of its own.
Bitmap To24Bits(HGBITMAP picture);
Bitmap ToPalette(HGBITMAP picture);
Bitmap ToGray(HGBITMAP picture);

// Fades a picture to transparent towards its edges.
void FadeEdges(HGBITMAP picture);
// What lies outside the ellipse that fills the picture takes this value, a pixel word or an index.
void CutOut(HGBITMAP picture, DWORD outside);

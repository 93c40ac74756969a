/* A host in C, checked by its result: 0, or the number of the first thing that was not as it should be. It draws a
 * texture by a layout, whose name is decorated in the DLL, and a shape by the vector backend. */
#include <zorvic/zorvic.h>

enum { background = 0xFF102030, drawn = 0xFF881018 /* 0x80800000 over it: s + (d * (256 - 0x80) >> 8) */ };

static DWORD PixelAt(HGCANVAS canvas, int x, int y) {
    BITMAP locked;
    if (!LockBitmapBits(GetBitmap(canvas), &locked, NULL)) return 0;
    return ((const DWORD*)((const BYTE*)locked.bmBits + y * locked.bmWidthBytes))[x];
}

static int Draw(HGCANVAS canvas, HGTEXTURE texture) {
    const RECT all = {0, 0, 40, 20}, left = {0, 0, 20, 20};
    BITMAP pixels;
    FillSolidRect(canvas, background, &all);
    if (!LockTextureBits(texture, &pixels, NULL) || !SetColor_IPP(&pixels, 0x80800000, 0)) return 1;
    SetTextureFilter(texture, ZORVIC_OP_SOURCE_OVER);
    if (!DrawTextureCenter(canvas, &left, texture, NULL, ZORVIC_FILTER_NEAREST, 255)) return 2;
    if (PixelAt(canvas, 10, 10) != (DWORD)drawn) return 3;
    if (PixelAt(canvas, 30, 10) != (DWORD)background) return 4;
    SetSmooth(canvas, 0);
    SetColor(canvas, 0xFFFFFFFF);
    if (!DrawRectangle(canvas, 25, 5, 10, 10)) return 5;
    return PixelAt(canvas, 30, 10) == 0xFFFFFFFF ? 0 : 6;
}

int main(void) {
    HGCANVAS canvas = CreateCanvas(40, 20, NULL);
    HGTEXTURE texture = CreateTexture(4, 4);
    int result = Draw(canvas, texture);
    DeleteTexture(texture);
    DeleteCanvas(canvas);
    return result;
}

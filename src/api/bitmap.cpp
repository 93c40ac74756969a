// Exports of the bitmap family. Their texture names are aliases in the export lists.
#include "surface/bitmap.h"

#include "zorvic/zorvic.h"

using zorvic::Bitmap;
using zorvic::FromHandle;
using zorvic::MakeSurface;
using zorvic::StoreKind;
using zorvic::ToHandle;

HGBITMAP ZORVIC_CALL CreateSystemBitmap(int width, int height) {
    return ToHandle(MakeSurface<Bitmap>(width, height, 32, 0, StoreKind::system).release());
}

HGBITMAP ZORVIC_CALL CreateMemBitmap(int width, int height) {
    return ToHandle(MakeSurface<Bitmap>(width, height, 32, 0, StoreKind::memory).release());
}

HGBITMAP ZORVIC_CALL CreateMemBitmapEx(int width, int height, int bitsPixel, int colorCount) {
    return ToHandle(MakeSurface<Bitmap>(width, height, bitsPixel, colorCount, StoreKind::memory).release());
}

void ZORVIC_CALL DeleteBitmap(HGBITMAP bitmap) {
    if (bitmap && FromHandle(bitmap)->isHosts) delete FromHandle(bitmap);
}

void ZORVIC_CALL ReleaseBitmap(HGBITMAP) {}

HBITMAP ZORVIC_CALL GetBitmapHandle(HGBITMAP bitmap) { return bitmap ? FromHandle(bitmap)->ToSystem() : nullptr; }

int ZORVIC_CALL GetBitmapSize(HGBITMAP bitmap, SIZE* size) {
    if (!bitmap || !size) return 0;
    *size = FromHandle(bitmap)->Size();
    return 1;
}

int ZORVIC_CALL LockBitmapBits(HGBITMAP bitmap, BITMAP* out, const RECT* area) {
    return bitmap && out && FromHandle(bitmap)->Lock(out, area);
}

int ZORVIC_CALL LockBitmapBitsEx(HGBITMAP bitmap, BitmapLockInfo* out, const RECT* area) {
    return bitmap && out && FromHandle(bitmap)->LockEx(out, area);
}

int ZORVIC_CALL UnlockBitmapBits(HGBITMAP bitmap, DWORD value, int changed) {
    if (!bitmap) return 0;
    FromHandle(bitmap)->Unlock();
    if (changed) NotifyChange(*FromHandle(bitmap), value);
    return 1;
}

int ZORVIC_CALL GetBitmapFilter(HGBITMAP bitmap, DWORD* filter) {
    if (!bitmap || !filter) return 0;
    *filter = FromHandle(bitmap)->filter;
    return 1;
}

int ZORVIC_CALL SetBitmapFilter(HGBITMAP bitmap, DWORD filter) {
    if (!bitmap) return 0;
    FromHandle(bitmap)->filter = filter;
    return 1;
}

int ZORVIC_CALL GetBitmapBitsPixel(HGBITMAP bitmap, BYTE* bitsPixel) {
    if (!bitmap || !bitsPixel) return 0;
    *bitsPixel = FromHandle(bitmap)->BitsPixel();
    return 1;
}

int ZORVIC_CALL CopyBitmap(HGBITMAP dst, const RECT* dstArea, HGBITMAP src, const RECT* srcArea) {
    if (!dst || !src) return 0;
    CopyPixels(*FromHandle(dst), dstArea, *FromHandle(src), srcArea);
    return 1;
}

ResourceManager* ZORVIC_CALL RegisterD2DResoureMgr(ResourceManager* manager) {
    zorvic::RegisteredManager = manager;
    return manager;
}

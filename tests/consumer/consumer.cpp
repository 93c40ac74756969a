// A host in C++, checked by its result: 0, or the number of the first thing that was not as it should be. What C has
// not: layouts under their C++ names, and the library calling a class of the host.
#include <zorvic/zorvic.h>

namespace {

class Listener final : public ResourceManager {
public:
    void OnRelease(HGBITMAP bitmap) override { released = bitmap; }
    void OnChange(HGBITMAP bitmap, DWORD value) override {
        changed = bitmap;
        lastValue = value;
    }

    HGBITMAP released = nullptr, changed = nullptr;
    DWORD lastValue = 0;
};

int Listen() {
    Listener listener;
    const HGBITMAP bitmap = CreateMemBitmap(3, 3);
    if (RegisterD2DResoureMgr(&listener) != &listener) return 1;
    UnlockBitmapBits(bitmap, 0x12345678, 1);
    DeleteBitmap(bitmap);
    RegisterD2DResoureMgr(nullptr);
    return listener.changed == bitmap && listener.lastValue == 0x12345678 && listener.released == bitmap ? 0 : 2;
}

int DrawLayouts() {
    const RECT all{0, 0, 30, 20}, margins{1, 1, 1, 1};
    const HGCANVAS canvas = CreateCanvas(30, 20, nullptr);
    const HGTEXTURE texture = CreateTexture(4, 4);
    BITMAP pixels;
    LockTextureBits(texture, &pixels, nullptr);
    SetColor_IPP(&pixels, 0xFF336699, 0);
    int failed = 0;
    const auto check = [&](int number, int returned, int wanted) {
        LockBitmapBits(GetBitmap(canvas), &pixels, nullptr);
        auto& corner = *static_cast<DWORD*>(pixels.bmBits);
        if (failed == 0 && (returned != wanted || corner != 0xFF336699)) failed = number;
        corner = 0;
    };
    check(11, DrawTextureUniform(canvas, &all, texture, &margins, ZORVIC_FILTER_NEAREST, 255, true), 1);
    check(12, DrawTextureTile(canvas, &all, texture, nullptr, ZORVIC_FILTER_NEAREST, 255, 0, 1), 0);
    check(13, DrawTextureTopTile(canvas, &all, texture, nullptr, &margins, ZORVIC_FILTER_NEAREST, 255), 0);
    check(14, DrawTexture9Grid(canvas, &all, texture, nullptr, &margins, ZORVIC_FILTER_NEAREST, 0, 255, 0, 1, 1), 1);
    DeleteTexture(texture);
    DeleteCanvas(canvas);
    return failed;
}

}  // namespace

int main() {
    const int failed = Listen();
    return failed != 0 ? failed : DrawLayouts();
}

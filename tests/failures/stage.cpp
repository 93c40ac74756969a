// The stage and its reset.
#include "failures/stage.h"

namespace failures {

using namespace host;

Stage::Stage() {
    for (const HGTEXTURE each : {texture.get(), texture16.get()}) {
        SetTextureSlice(each, 1, &all);
        SetTextureFilter(each, ZORVIC_OP_SOURCE_OVER);
    }
    for (const HGBITMAP each : {colors16.get(), AsBitmap(texture16.get())}) {
        Fill(each, [](int x, int y) { return Pattern{2}(x, y) % 16; });
        const host::Pixels pixels(each);
        for (int i = 0; i < 16; ++i) pixels->palette[i] = PremultipliedPattern{3}(i, 0);
    }
    Fill(rgb.get(), Pattern{4});
    PathAddEllipse(path.get(), 2, 1, 6, 7);
    PathMoveTo(path.get(), 1, 1);
    PathBezierCurveTo(path.get(), 9, 1, 1, 8, 9, 7);
    PathLineTo(path.get(), 3, 9);
    for (int i = 0; i < 2200; ++i)
        PathLineTo(densePath.get(), static_cast<float>(i % 7), static_cast<float>(i % 2 * 999));
    GradientAddColorStop(gradient.get(), 0, 0xFF00FF00);
    GradientAddColorStop(gradient.get(), 1, 0x40FF0000);
    Reset();
}

void Stage::Reset() {
    Fill(texture.get(), PremultipliedPattern{5});
    dib.Fill(Pattern{6});
    dib24.Fill(Pattern{7});
    for (std::size_t kind = 0; kind < canvasCount; ++kind) {
        canvases[kind] = NewCanvas(kind);
        const HGCANVAS canvas = Canvas(kind);
        if (!GetBitmap(canvas)) continue;
        Fill(canvas, PremultipliedPattern{8});
        SetSmooth(canvas, 1);
    }
}

OwnedCanvas Stage::NewCanvas(std::size_t kind) const {
    switch (kind) {
        case 0:
            return OwnedCanvas(CreateCanvas(stageWidth, stageHeight, nullptr));
        case 1:
            return OwnedCanvas(CreateSystemCanvas(stageWidth, stageHeight, nullptr));
        default:
            return OwnedCanvas(CreateCanvasFromDC(kind == 2 ? dib.Dc() : dib24.Dc()));
    }
}

std::vector<DWORD> Stage::Pixels() const {
    std::vector<DWORD> words;
    const auto add = [&words](HGBITMAP bitmap) {
        BitmapLockInfo info;
        if (!LockBitmapBitsEx(bitmap, &info, nullptr)) return;
        const Snapshot shown(bitmap);
        words.insert(words.end(), shown.words.begin(), shown.words.end());
    };
    add(AsBitmap(texture.get()));
    for (const GdiBitmap* bitmap : {&dib, &dib24}) add(bitmap->Shown().get());
    for (const OwnedCanvas& canvas : canvases) add(GetBitmap(canvas.get()));
    return words;
}

}  // namespace failures

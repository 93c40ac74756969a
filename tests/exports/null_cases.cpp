#include "exports/null_cases.h"

namespace {

template <class Result>
std::intptr_t Number(Result result) {
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<std::intptr_t>(result);
    else
        return static_cast<std::intptr_t>(result);
}

using With = Partners;

// clang-format off
const NullCase cases[] = {
    // bitmaps
    {"CreateSystemBitmap", [](With&) { return Number(CreateSystemBitmap(0, 4)); }, 0},
    {"CreateMemBitmap", [](With&) { return Number(CreateMemBitmap(0, 4)); }, 0},
    {"CreateMemBitmapEx", [](With&) { return Number(CreateMemBitmapEx(4, 0, 8, 0)); }, 0},
    {"DeleteBitmap", [](With&) { DeleteBitmap(nullptr); return Number(0); }, 0},
    {"ReleaseBitmap", [](With&) { ReleaseBitmap(nullptr); return Number(0); }, 0},
    {"GetBitmapHandle", [](With&) { return Number(GetBitmapHandle(nullptr)); }, 0},
    {"GetBitmapSize", [](With& o) { return Number(GetBitmapSize(nullptr, &o.size)); }, 0},
    {"LockBitmapBits", [](With& o) { return Number(LockBitmapBits(nullptr, &o.image, nullptr)); }, 0},
    {"LockBitmapBitsEx", [](With& o) { return Number(LockBitmapBitsEx(nullptr, &o.lock, nullptr)); }, 0},
    {"UnlockBitmapBits", [](With&) { return Number(UnlockBitmapBits(nullptr, 0, 1)); }, 0},
    {"GetBitmapFilter", [](With& o) { return Number(GetBitmapFilter(nullptr, &o.word)); }, 0},
    {"SetBitmapFilter", [](With&) { return Number(SetBitmapFilter(nullptr, 1)); }, 0},
    {"GetBitmapBitsPixel", [](With& o) { return Number(GetBitmapBitsPixel(nullptr, &o.byte)); }, 0},
    {"CopyBitmap", [](With& o) { return Number(CopyBitmap(nullptr, nullptr, o.bitmap.get(), nullptr)); }, 0},
    {"CopyBitmap", [](With& o) { return Number(CopyBitmap(o.bitmap.get(), nullptr, nullptr, nullptr)); }, 0},
    {"RegisterD2DResoureMgr", [](With&) { return Number(RegisterD2DResoureMgr(nullptr)); }, 0},
    {"DeleteTexture", [](With&) { DeleteTexture(nullptr); return Number(0); }, 0},
    {"ReleaseTexture", [](With&) { ReleaseTexture(nullptr); return Number(0); }, 0},
    {"GetTextureHandle", [](With&) { return Number(GetTextureHandle(nullptr)); }, 0},
    {"LockTextureBits", [](With& o) { return Number(LockTextureBits(nullptr, &o.image, nullptr)); }, 0},
    {"LockTextureBitsEx", [](With& o) { return Number(LockTextureBitsEx(nullptr, &o.lock, nullptr)); }, 0},
    {"UnlockTextureBits", [](With&) { return Number(UnlockTextureBits(nullptr, 0, 1)); }, 0},
    {"GetTextureFilter", [](With& o) { return Number(GetTextureFilter(nullptr, &o.word)); }, 0},
    {"SetTextureFilter", [](With&) { return Number(SetTextureFilter(nullptr, 1)); }, 0},
    {"GetTextureBitsPixel", [](With& o) { return Number(GetTextureBitsPixel(nullptr, &o.byte)); }, 0},
    {"CopyTexture", [](With& o) { return Number(CopyTexture(nullptr, nullptr, o.texture.get(), nullptr)); }, 0},

    // textures
    {"CreateTexture", [](With&) { return Number(CreateTexture(4, 0)); }, 0},
    {"CreateTextureEx", [](With&) { return Number(CreateTextureEx(4, 4, 0, 0)); }, 0},
    {"GetTexture", [](With&) { return Number(GetTexture(nullptr)); }, 0},
    {"BitmapToTexture", [](With&) { return Number(BitmapToTexture(nullptr)); }, 0},
    {"CanvasToTexture", [](With&) { return Number(CanvasToTexture(nullptr)); }, 0},
    {"GetTextureSize", [](With& o) { return Number(GetTextureSize(nullptr, &o.size)); }, 0},
    {"SetTextureMode", [](With& o) { return Number(SetTextureMode(nullptr, &o.mode)); }, 0},
    {"GetTextureMode", [](With& o) { return Number(GetTextureMode(nullptr, &o.mode)); }, 0},
    {"SetTextureSlice", [](With& o) { return Number(SetTextureSlice(nullptr, 1, &o.rect)); }, 0},
    {"SetTextureCurSlice", [](With&) { return Number(SetTextureCurSlice(nullptr, 0)); }, -1},
    {"GetTextureCurSlice", [](With& o) { return Number(GetTextureCurSlice(nullptr, &o.rect)); }, 0},
    {"GetTextureSliceCount", [](With&) { return Number(GetTextureSliceCount(nullptr)); }, -1},

    // bitmaps and textures from others
    {"ResizeBitmap", [](With&) { return Number(ResizeBitmap(nullptr, 4, 4, 0)); }, 0},
    {"ResizeTexture", [](With&) { return Number(ResizeTexture(nullptr, 4, 4, 0)); }, 0},
    {"TransformBitmap", [](With&) { return Number(TransformBitmap(nullptr, 1)); }, 0},
    {"TransformTexture", [](With&) { return Number(TransformTexture(nullptr, 1)); }, 0},
    {"RotateBitmap", [](With&) { return Number(RotateBitmap(nullptr, 1)); }, 0},
    {"RotateTexture", [](With&) { return Number(RotateTexture(nullptr, 1)); }, 0},
    {"FlipBitmap", [](With&) { return Number(FlipBitmap(nullptr, 4)); }, 0},
    {"FlipTexture", [](With&) { return Number(FlipTexture(nullptr, 4)); }, 0},

    // canvases
    {"CreateCanvas", [](With&) { return Number(CreateCanvas(0, 4, nullptr)); }, 0},
    {"CreateSystemCanvas", [](With&) { return Number(CreateSystemCanvas(4, 0, nullptr)); }, 0},
    {"CreateCanvasFromDC", [](With&) { return Number(CreateCanvasFromDC(nullptr)); }, 0},
    {"DeleteCanvas", [](With&) { DeleteCanvas(nullptr); return Number(0); }, 0},
    {"GetCanvasHandle", [](With&) { return Number(GetCanvasHandle(nullptr)); }, 0},
    {"GetCanvasSize", [](With& o) { return Number(GetCanvasSize(nullptr, &o.size)); }, 0},
    {"SetViewportOrg", [](With& o) { return Number(SetViewportOrg(nullptr, 1, 2, &o.point)); }, 0},
    {"GetViewportOrg", [](With& o) { return Number(GetViewportOrg(nullptr, &o.point)); }, 0},
    {"SetWindowOrg", [](With& o) { return Number(SetWindowOrg(nullptr, 1, 2, &o.point)); }, 0},
    {"GetWindowOrg", [](With& o) { return Number(GetWindowOrg(nullptr, &o.point)); }, 0},
    {"WindowToDevice", [](With& o) { return Number(WindowToDevice(nullptr, &o.rect)); }, 0},
    {"DeviceToWindow", [](With& o) { return Number(DeviceToWindow(nullptr, &o.rect)); }, 0},
    {"SetCanvasWindow", [](With&) { return Number(SetCanvasWindow(nullptr, GetDesktopWindow())); }, 0},
    {"GetCanvasWindow", [](With&) { return Number(GetCanvasWindow(nullptr)); }, 0},
    {"GetCanvasFilter", [](With& o) { return Number(GetCanvasFilter(nullptr, &o.word)); }, 0},
    {"SetCanvasFilter", [](With&) { return Number(SetCanvasFilter(nullptr, 1)); }, 0},
    {"SetCanvasBkColor", [](With& o) { return Number(SetCanvasBkColor(nullptr, 1, &o.word)); }, 0},
    {"GetCanvasBkColor", [](With& o) { return Number(GetCanvasBkColor(nullptr, &o.word)); }, 0},
    {"SetCanvasClipRect", [](With& o) { return Number(SetCanvasClipRect(nullptr, &o.rect)); }, 0},
    {"SetCanvasClipRoundRect", [](With& o) { return Number(SetCanvasClipRoundRect(nullptr, &o.rect, &o.rect)); }, 0},
    {"IntersectCanvasClipRect", [](With& o) { return Number(IntersectCanvasClipRect(nullptr, &o.rect)); }, 0},
    {"GetCanvasClipRect", [](With& o) { return Number(GetCanvasClipRect(nullptr, &o.rect)); }, 0},
    {"GetBitmap", [](With&) { return Number(GetBitmap(nullptr)); }, 0},

    // drawing bitmaps
    {"SetStretchKernelMode", [](With&) { return Number(SetStretchKernelMode(GetStretchKernelMode())); }, 0},
    {"GetStretchKernelMode", [](With&) { return Number(GetStretchKernelMode()); }, 1},
    {"DrawBitmap", [](With& o) { return Number(DrawBitmap(nullptr, &o.rect, o.bitmap.get(), 0)); }, 0},
    {"DrawBitmap", [](With& o) { return Number(DrawBitmap(o.canvas.get(), &o.rect, nullptr, 0)); }, 0},
    {"DrawBitmapEx", [](With& o) { return Number(DrawBitmapEx(nullptr, &o.rect, o.bitmap.get(), 0, 9)); }, 0},
    {"DrawBitmapEx", [](With& o) { return Number(DrawBitmapEx(o.canvas.get(), &o.rect, nullptr, 0, 9)); }, 0},
    {"DrawBitmapEx2", [](With& o) { return Number(DrawBitmapEx2(nullptr, &o.rect, o.bitmap.get(), &o.rect, 0, 9)); }, 0},
    {"DrawBitmapEx2", [](With& o) { return Number(DrawBitmapEx2(o.canvas.get(), &o.rect, nullptr, &o.rect, 0, 9)); }, 0},
    {"DrawTexture", [](With& o) { return Number(DrawTexture(nullptr, &o.rect, o.texture.get(), 0)); }, 0},
    {"DrawTexture", [](With& o) { return Number(DrawTexture(o.canvas.get(), &o.rect, nullptr, 0)); }, 0},
    {"DrawTextureEx", [](With& o) { return Number(DrawTextureEx(nullptr, &o.rect, o.texture.get(), 0, 9, 0, 0)); }, 0},
    {"DrawTextureEx", [](With& o) { return Number(DrawTextureEx(o.canvas.get(), &o.rect, nullptr, 0, 9, 0, 0)); }, 0},
    {"DrawTextureEx2", [](With& o) { return Number(DrawTextureEx2(nullptr, &o.rect, o.texture.get(), 0, 9, 1, 1)); }, 0},
    {"DrawTextureEx2", [](With& o) { return Number(DrawTextureEx2(o.canvas.get(), &o.rect, nullptr, 0, 9, 1, 1)); }, 0},
    {"DrawTextureEx3", [](With& o) { return Number(DrawTextureEx3(nullptr, &o.rect, o.texture.get(), &o.params, nullptr)); }, 0},
    {"DrawTextureEx3", [](With& o) { return Number(DrawTextureEx3(o.canvas.get(), &o.rect, nullptr, &o.params, nullptr)); }, 0},

    // texture layouts
    {"?DrawTextureCenter@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE@Z",
     [](With& o) { return Number(DrawTextureCenter(nullptr, &o.rect, o.texture.get(), nullptr, 0, 9)); }, 0},
    {"?DrawTextureCenter@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE@Z",
     [](With& o) { return Number(DrawTextureCenter(o.canvas.get(), &o.rect, nullptr, nullptr, 0, 9)); }, 0},
    {"?DrawTextureUniform@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE_N@Z",
     [](With& o) { return Number(DrawTextureUniform(nullptr, &o.rect, o.texture.get(), &o.rect, 0, 9, true)); }, 0},
    {"?DrawTextureUniform@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KE_N@Z",
     [](With& o) { return Number(DrawTextureUniform(o.canvas.get(), &o.rect, nullptr, &o.rect, 0, 9, true)); }, 0},
    {"?DrawTextureTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KEKM@Z",
     [](With& o) { return Number(DrawTextureTile(nullptr, &o.rect, o.texture.get(), nullptr, 0, 9, 0, 1)); }, 0},
    {"?DrawTextureTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@1KEKM@Z",
     [](With& o) { return Number(DrawTextureTile(o.canvas.get(), &o.rect, nullptr, nullptr, 0, 9, 0, 1)); }, 0},
    {"?DrawTextureTopTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KE@Z",
     [](With& o) { return Number(DrawTextureTopTile(nullptr, &o.rect, o.texture.get(), nullptr, &o.rect, 0, 9)); }, 0},
    {"?DrawTextureTopTile@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KE@Z",
     [](With& o) { return Number(DrawTextureTopTile(o.canvas.get(), &o.rect, nullptr, nullptr, &o.rect, 0, 9)); }, 0},
    {"?DrawTexture9Grid@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KHEKMN@Z",
     [](With& o) { return Number(DrawTexture9Grid(nullptr, &o.rect, o.texture.get(), nullptr, &o.rect, 0, 0, 9, 0, 1, 1)); }, 0},
    {"?DrawTexture9Grid@@YAHPAUHGCANVAS__@@PBUtagRECT@@PAUHGTEXTURE__@@11KHEKMN@Z",
     [](With& o) { return Number(DrawTexture9Grid(o.canvas.get(), &o.rect, nullptr, nullptr, &o.rect, 0, 0, 9, 0, 1, 1)); }, 0},

    // composing canvases
    {"MixCanvas", [](With& o) { return Number(MixCanvas(nullptr, &o.rect, o.canvas.get(), &o.rect, 9)); }, 0},
    {"MixCanvas", [](With& o) { return Number(MixCanvas(o.canvas.get(), &o.rect, nullptr, &o.rect, 9)); }, 0},
    {"MixCanvasWithColor", [](With& o) { return Number(MixCanvasWithColor(nullptr, &o.rect, 1, 9)); }, 0},
    {"BlendCanvas", [](With& o) { return Number(BlendCanvas(nullptr, &o.rect, o.canvas.get(), &o.rect, 9)); }, 0},
    {"BlendCanvas", [](With& o) { return Number(BlendCanvas(o.canvas.get(), &o.rect, nullptr, &o.rect, 9)); }, 0},
    {"CanvasScroll", [](With&) { return Number(CanvasScroll(nullptr, 0, 1)); }, 0},
    {"GdiTransCanvas", [](With& o) { return Number(GdiTransCanvas(nullptr, &o.rect, o.canvas.get(), &o.rect, 9)); }, 0},
    {"GdiTransCanvas", [](With& o) { return Number(GdiTransCanvas(o.dc, &o.rect, nullptr, &o.rect, 9)); }, 0},
    {"DrawModulation", [](With& o) { return Number(DrawModulation(nullptr, 0, 0, o.bitmap.get(), nullptr, 1)); }, 0},
    {"DrawModulation", [](With& o) { return Number(DrawModulation(o.canvas.get(), 0, 0, nullptr, nullptr, 1)); }, 0},

    // fills; a colour without alpha needs no canvas
    {"FillSolidRect", [](With& o) { return Number(FillSolidRect(nullptr, 0xFF000000, &o.rect)); }, 0},
    {"FillSolidRect", [](With& o) { return Number(FillSolidRect(nullptr, 0x00FFFFFF, &o.rect)); }, 1},
    {"FillSolidRectEx", [](With& o) { return Number(FillSolidRectEx(nullptr, 0xFF000000, &o.rect, 0)); }, 0},
    {"FillPreMulColorRectEx", [](With& o) { return Number(FillPreMulColorRectEx(nullptr, 0xFF000000, &o.rect, 0)); }, 0},

    // single colours, which have no handles
    {"ARGBtoAHSL", [](With&) { return Number(ARGBtoAHSL(0x00FF0000)); }, 0x0000FF80},
    {"AHSLtoARGB", [](With&) { return Number(AHSLtoARGB(0x00AA00FF)); }, 0x00FFFFFF},
    {"RGBtoHSL", [](With&) { return Number(RGBtoHSL({0, 0, 0}).hue); }, 170},
    {"HSLtoRGB", [](With&) { return Number(HSLtoRGB({255, 0, 0}).red); }, 255},
    {"ARGBColorize", [](With&) { return Number(ARGBColorize(0x123456, 0, 0, 0)); }, 0x123456},
    {"RGBColorize", [](With&) { return Number(RGBColorize({1, 2, 3}, 0, 0, 0).red); }, 3},
    {"AHSLColorize", [](With&) { return Number(AHSLColorize(0x123456, 0, 0, 0)); }, 0x123456},
    {"HSLColorize", [](With&) { return Number(HSLColorize({1, 2, 3}, 0, 0, 0).hue); }, 3},

    // effects
    {"GrayBitmap", [](With&) { return Number(GrayBitmap(nullptr)); }, 0},
    {"GrayTexture", [](With&) { return Number(GrayTexture(nullptr)); }, 0},
    {"InvertBitmap", [](With&) { return Number(InvertBitmap(nullptr)); }, 0},
    {"InvertTexture", [](With&) { return Number(InvertTexture(nullptr)); }, 0},
    {"NormalizeBitmap", [](With&) { return Number(NormalizeBitmap(nullptr)); }, 0},
    {"NormalizeTexture", [](With&) { return Number(NormalizeTexture(nullptr)); }, 0},
    {"NormalizeBitmap2", [](With&) { return Number(NormalizeBitmap2(nullptr)); }, 0},
    {"ShuffleBitmap", [](With&) { return Number(ShuffleBitmap(nullptr, 1)); }, 0},
    {"ShuffleTexture", [](With&) { return Number(ShuffleTexture(nullptr, 1)); }, 0},
    {"ShuffleBitmapEx", [](With& o) { return Number(ShuffleBitmapEx(nullptr, &o.rect, 1)); }, 0},
    {"ShuffleTextureEx", [](With& o) { return Number(ShuffleTextureEx(nullptr, &o.rect, 1)); }, 0},
    {"TranslateTexture", [](With&) { return Number(TranslateTexture(nullptr, 1, 2)); }, 0},
    {"ColorizeTexture", [](With&) { return Number(ColorizeTexture(nullptr, 0.5F, 0, 0)); }, 0},
    {"ColorizeTexture", [](With&) { return Number(ColorizeTexture(nullptr, 0, 0, 0)); }, 1},
    {"BlurBitmap", [](With& o) { return Number(BlurBitmap(nullptr, o.bitmap.get())); }, 0},
    {"BlurBitmap", [](With& o) { return Number(BlurBitmap(o.bitmap.get(), nullptr)); }, 0},
    {"BlurTexture", [](With& o) { return Number(BlurTexture(o.texture.get(), nullptr)); }, 0},
    {"LightBitmap", [](With&) { return Number(LightBitmap(nullptr)); }, 0},
    {"LightTexture", [](With&) { return Number(LightTexture(nullptr)); }, 0},
    {"DarkBitmap", [](With&) { return Number(DarkBitmap(nullptr)); }, 0},
    {"CreateTextureRgn", [](With& o) { return Number(CreateTextureRgn(nullptr, &o.rect)); }, 0},
};
// clang-format on

}  // namespace

std::span<const NullCase> NullCases() { return cases; }

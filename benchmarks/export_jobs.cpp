// Whole calls of the DLL's exports.
#include "contenders.h"

namespace bench {

namespace {

BITMAP Described(const BitmapLockInfo& image) {
    return {0, image.bmWidth, image.bmHeight, image.bmWidthBytes, 1, 32, image.bmBits};
}

}  // namespace

Job ExportJob(const Row& row, const Surfaces& images) {
    const HGCANVAS canvas = images.Canvas();
    const HGTEXTURE texture = images.Texture();
    const HGBITMAP bitmap = images.Bitmap();
    const RECT area = images.area;
    const BitmapLockInfo source = images.source, target = images.target;
    switch (row.work) {
        case Work::fill:
            return [=, color = row.color, mode = row.operation] { FillPreMulColorRectEx(canvas, color, &area, mode); };
        case Work::draw:
            return [=, filter = row.filter, alpha = row.alpha] { DrawBitmapEx(canvas, &area, bitmap, filter, alpha); };
        case Work::crossFade:
            // Both are canvases: the source as well.
            return
                [=, from = std::make_shared<Surfaces>(row, SizeOf(source)), value = static_cast<DWORD>(row.argument)] {
                    MixCanvas(canvas, &area, from->Canvas(), &area, value);
                };
        case Work::gray:
            return [=] { GrayBitmap(bitmap); };
        case Work::premultiply:
            return [=] { NormalizeBitmap(bitmap); };
        case Work::invert:
            return [=] { InvertBitmap(bitmap); };
        case Work::shuffle:
            return [=, mode = row.argument] { ShuffleBitmap(bitmap, mode); };
        case Work::translate:
            return [=] { TranslateTexture(texture, 0, 0xFF00FF00); };
        case Work::colorize:
            return [=] { ColorizeTexture(texture, 0.25F, 0.2F, 0); };
        case Work::box3:
            return [=] { BlurBitmap(GetBitmap(canvas), bitmap); };
        case Work::boxTwice:
            return [=, box = row.argument] {
                BlurBitmapData(source.bmWidth, source.bmHeight, source.bmWidthBytes, source.bmBits, 32, box);
            };
        case Work::mirror:
            return [=, from = Described(source), to = Described(target), axis = row.argument]() mutable {
                MirrorEx(&from, &to, axis);
            };
        case Work::newTransform:
            return [=, op = row.argument] { DeleteBitmap(TransformBitmap(bitmap, op)); };
        case Work::nineGrid:
            return [=, filter = row.filter, alpha = row.alpha, width = LONG{row.argument}] {
                const RECT margins{width, width, width, width};
                DrawTexture9Grid(canvas, &area, texture, nullptr, &margins, filter, 0, alpha, 0, 1, 1);
            };
        case Work::move:
            break;  // no export writes to an image that is there
    }
    return {};
}

}  // namespace bench

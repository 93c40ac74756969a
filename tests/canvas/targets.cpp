#include "canvas/targets.h"

namespace host {

namespace {

template <int bitsPixel, GdiBitmap::RowOrder order = GdiBitmap::RowOrder::topDown>
GdiBitmap Dib(int width, int height) {
    return GdiBitmap::Dib(width, height, bitsPixel, order);
}
constexpr auto bottomUp = GdiBitmap::RowOrder::bottomUp;

}  // namespace

std::span<const CanvasKind> CanvasKinds() {
    static const CanvasKind kinds[] = {
        {"memory", CreateCanvas, nullptr},
        {"system", CreateSystemCanvas, nullptr},
        {"32 bits", nullptr, Dib<32>},
        {"32 bits, bottom-up", nullptr, Dib<32, bottomUp>, 0x00FFFFFF},
        {"24 bits", nullptr, Dib<24>, 0x00FFFFFF},
        {"24 bits, bottom-up", nullptr, Dib<24, bottomUp>, 0x00FFFFFF},
        {"16 bits", nullptr, Dib<16>, 0x00F8F8F8},
        {"compatible", nullptr, GdiBitmap::Compatible, 0x00FFFFFF},
    };
    return kinds;
}

Target::Target(const CanvasKind& kind, int targetWidth, int targetHeight)
    : width(targetWidth), height(targetHeight), keptBits(kind.kept) {
    if (kind.create) {
        canvas.reset(kind.create(width, height, nullptr));
        Fill(canvas.get(), PremultipliedPattern{3});
    } else {
        bitmap.reset(new GdiBitmap(kind.makeBitmap(width, height)));
        bitmap->Fill(PremultipliedPattern{3});
        canvas.reset(CreateCanvasFromDC(bitmap->Dc()));
    }
}

void Target::FillPlain(DWORD pixel) const {
    if (bitmap)
        bitmap->Fill(Plain{pixel});
    else
        Fill(canvas.get(), Plain{pixel});
}

}  // namespace host

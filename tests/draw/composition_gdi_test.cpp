// Composition through GDI: blending when a canvas is on a host's device context, and the way to the screen.
#include <climits>

#include "support/gdi.h"

using namespace host;

namespace {

constexpr RECT from{2, 1, 14, 9};
constexpr RECT to{3, 4, 21, 12};

struct Target {
    Target() { bitmap.Fill(Pattern{2}); }
    HDC Dc() const { return bitmap.Dc(); }
    OwnedBitmap Shown() const { return bitmap.Shown(); }

    const GdiBitmap bitmap = GdiBitmap::Dib(24, 16);
};

void Stretch(HDC target, HDC source) {
    EXPECT_TRUE(StretchBlt(target, to.left, to.top, 18, 8, source, from.left, from.top, 12, 8, SRCCOPY));
}

void Blend(HDC target, HDC source, BYTE alpha, BYTE format) {
    const BLENDFUNCTION function{AC_SRC_OVER, 0, alpha, format};
    EXPECT_TRUE(AlphaBlend(target, to.left, to.top, 18, 8, source, from.left, from.top, 12, 8, function));
}

// What GDI itself makes of the same pixels.
template <class Transfer>
Snapshot Expected(Transfer transfer) {
    const GdiBitmap source = GdiBitmap::Dib(20, 10);
    source.Fill(PremultipliedPattern{1});
    const Target target;
    transfer(target.Dc(), source.Dc());
    return Snapshot(target.Shown().get());
}

constexpr DWORD filters[] = {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_MULTIPLY};  // one of them means alpha
constexpr BYTE alphas[] = {100, 255};

}  // namespace

TEST(BlendCanvas, OntoADeviceContextIsGdisWork) {
    for (const DWORD filter : filters)
        for (const BYTE alpha : alphas) {
            const OwnedCanvas src = MakeCanvas(20, 10, PremultipliedPattern{1}, filter);
            const Target target;
            const OwnedCanvas dst(CreateCanvasFromDC(target.Dc()));
            EXPECT_EQ(BlendCanvas(dst.get(), &to, src.get(), &from, alpha), 1);
            EXPECT_TRUE(Shows(target.Shown().get(), Expected([&](HDC t, HDC s) {
                                  if (filter != ZORVIC_OP_SOURCE_OVER) return Stretch(t, s);  // whatever the opacity
                                  Blend(t, s, alpha, AC_SRC_ALPHA);
                              })))
                << filter << ' ' << int{alpha};
        }
}

TEST(BlendCanvas, FromADeviceContextIsGdisWorkToo) {
    const GdiBitmap source = GdiBitmap::Dib(20, 10);
    source.Fill(PremultipliedPattern{1});
    const OwnedCanvas src(CreateCanvasFromDC(source.Dc()));
    const OwnedCanvas dst = MakeCanvas(24, 16, Pattern{2});
    const RECT clip{5, 0, 24, 16};
    SetCanvasClipRect(dst.get(), &clip);
    EXPECT_EQ(BlendCanvas(dst.get(), &to, src.get(), &from, 7), 1);
    const Snapshot whole = Expected([](HDC t, HDC s) { Stretch(t, s); });
    EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) { return Inside(clip, x, y) ? whole(x, y) : Pattern{2}(x, y); }));

    const Snapshot before(dst.get());
    const RECT apart{0, 0, 5, 16};
    EXPECT_EQ(BlendCanvas(dst.get(), &apart, src.get(), &from, 255), 1) << "nothing visible, GDI is not asked";
    EXPECT_TRUE(Shows(dst.get(), before));
}

TEST(GdiTransCanvas, TakesItsThreeRoutes) {
    for (const DWORD filter : filters)
        for (const BYTE alpha : alphas) {
            const OwnedCanvas canvas = MakeCanvas(20, 10, PremultipliedPattern{1}, filter);
            const Target target;
            EXPECT_EQ(GdiTransCanvas(target.Dc(), &to, canvas.get(), &from, alpha), 1);
            EXPECT_TRUE(Shows(target.Shown().get(), Expected([&](HDC t, HDC s) {
                                  if (filter != ZORVIC_OP_SOURCE_OVER && alpha == 255) return Stretch(t, s);
                                  Blend(t, s, alpha, filter == ZORVIC_OP_SOURCE_OVER ? AC_SRC_ALPHA : BYTE{0});
                              })))
                << filter << ' ' << int{alpha};
        }
}

TEST(GdiTransCanvas, ReadsLogicalPixelsAndReturnsGdisResult) {
    const OwnedCanvas canvas = MakeCanvas(20, 10, PremultipliedPattern{1});
    SetViewportOrg(canvas.get(), 2, 1, nullptr);
    const RECT logical{0, 0, 12, 8};  // from, in surface pixels
    const Target target;
    EXPECT_EQ(GdiTransCanvas(target.Dc(), &to, canvas.get(), &logical, 255), 1);
    EXPECT_TRUE(Shows(target.Shown().get(), Expected([](HDC t, HDC s) { Stretch(t, s); })));

    EXPECT_EQ(GdiTransCanvas(nullptr, &to, canvas.get(), &logical, 255), 0);
    const RECT outside{-9, 0, 12, 8};
    EXPECT_EQ(GdiTransCanvas(target.Dc(), &to, canvas.get(), &outside, 100), 0) << "blending needs pixels everywhere";
    const RECT huge{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    for (const BYTE alpha : {BYTE{100}, BYTE{255}}) {
        GdiTransCanvas(target.Dc(), &huge, canvas.get(), &logical, alpha);
        GdiTransCanvas(target.Dc(), &to, canvas.get(), &huge, alpha);
    }
}

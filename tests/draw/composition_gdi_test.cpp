// Composition through GDI: blending when a canvas is on a host's device context, and the way to the screen.
#include <optional>

#include "support/gdi.h"

using namespace host;

namespace {

constexpr RECT to{3, 4, 21, 12}, logical{0, 0, 12, 8};
constexpr POINT origin{2, 1};  // of the sources

// What GDI itself makes of the same pixels: blended, or just stretched.
Snapshot ByGdi(std::optional<BLENDFUNCTION> blend) {
    const GdiBitmap source = GdiBitmap::Dib(20, 10), target = GdiBitmap::Dib(24, 16);
    source.Fill(PremultipliedPattern{1});
    target.Fill(Pattern{2});
    const HDC s = source.Dc(), t = target.Dc();
    EXPECT_TRUE(blend ? AlphaBlend(t, to.left, to.top, 18, 8, s, origin.x, origin.y, 12, 8, *blend)
                      : StretchBlt(t, to.left, to.top, 18, 8, s, origin.x, origin.y, 12, 8, SRCCOPY));
    return Snapshot(target.Shown().get());
}

}  // namespace

TEST(GdiComposition, OntoADeviceContextIsGdisWork) {
    for (const DWORD filter : {ZORVIC_OP_COPY, ZORVIC_OP_SOURCE_OVER, ZORVIC_OP_MULTIPLY})  // one of them means alpha
        for (const BYTE alpha : {BYTE{100}, BYTE{255}})
            for (const bool transfer : {false, true}) {
                const OwnedCanvas src = MakeCanvas(20, 10, PremultipliedPattern{1}, filter);
                SetViewportOrg(src.get(), origin.x, origin.y, nullptr);
                const GdiBitmap target = GdiBitmap::Dib(24, 16);
                target.Fill(Pattern{2});
                const OwnedCanvas dst(CreateCanvasFromDC(target.Dc()));
                EXPECT_EQ(transfer ? GdiTransCanvas(target.Dc(), &to, src.get(), &logical, alpha)
                                   : BlendCanvas(dst.get(), &to, src.get(), &logical, alpha),
                          1);
                const BYTE format = filter == ZORVIC_OP_SOURCE_OVER ? AC_SRC_ALPHA : 0;
                std::optional<BLENDFUNCTION> blend;  // BlendCanvas ignores the opacity of sources without alpha
                if (format != 0 || (transfer && alpha != 255)) blend = {AC_SRC_OVER, 0, alpha, format};
                EXPECT_TRUE(Shows(target.Shown().get(), ByGdi(blend))) << filter << ' ' << int{alpha} << transfer;
            }
    const OwnedCanvas canvas(CreateCanvas(20, 10, nullptr));
    const GdiBitmap target = GdiBitmap::Dib(24, 16);
    const RECT outside{-9, 0, 12, 8};
    EXPECT_EQ(GdiTransCanvas(target.Dc(), &to, canvas.get(), &outside, 100), 0) << "blending needs pixels everywhere";
}

TEST(GdiComposition, FromADeviceContextIsGdisWorkToo) {
    const GdiBitmap source = GdiBitmap::Dib(20, 10);
    source.Fill(PremultipliedPattern{1});
    const OwnedCanvas src(CreateCanvasFromDC(source.Dc()));
    SetViewportOrg(src.get(), origin.x, origin.y, nullptr);
    const OwnedCanvas dst = MakeCanvas(24, 16, Pattern{2});
    const RECT clip{5, 0, 24, 16}, apart{0, 0, 5, 16};
    SetCanvasClipRect(dst.get(), &clip);
    EXPECT_EQ(BlendCanvas(dst.get(), &apart, src.get(), &logical, 255), 1) << "nothing visible, GDI is not asked";
    EXPECT_TRUE(Shows(dst.get(), Pattern{2}));
    EXPECT_EQ(BlendCanvas(dst.get(), &to, src.get(), &logical, 7), 1);
    const Snapshot whole = ByGdi({});
    EXPECT_TRUE(Shows(dst.get(), [&](int x, int y) { return Inside(clip, x, y) ? whole(x, y) : Pattern{2}(x, y); }));
}

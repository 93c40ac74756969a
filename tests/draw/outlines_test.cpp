// Outlines: the library's own frames pixel by pixel, and the routes through GDI.
#include "support/gdi.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

bool OnFrame(const RECT& rect, int x, int y) {
    return Inside(rect, x, y) && !Inside({rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1}, x, y);
}

}  // namespace

TEST(Outlines, AlphaCanvasesGetAnOpaqueFrameInThePensColor) {
    const RECT rect{2, 1, 9, 6};
    const HPEN pen = CreatePen(PS_DASH, 4, RGB(0x10, 0x20, 0x30));
    for (const bool withPen : {false, true}) {
        const OwnedCanvas canvas = MakeCanvas(12, 8, Plain{}, ZORVIC_OP_SOURCE_OVER);
        EXPECT_EQ(GeoRectangle(canvas.get(), &rect, withPen ? pen : nullptr,
                               static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH))),
                  1);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
            return !OnFrame(rect, x, y) ? 0 : withPen ? 0xFF102030U : 0xFF000000U;
        })) << withPen;
    }
    DeleteObject(pen);
}

// Pixels 1, 3, 5... of each side; a corner that two sides reach is blended twice.
TEST(Outlines, FocusFramesAreDottedOnEverySide) {
    constexpr DWORD color = 0x80FF0000, premultiplied = 0x80800000, white = 0xFFFFFFFF;
    for (const RECT& rect : {RECT{1, 1, 9, 7}, RECT{2, 3, 9, 10}, RECT{0, 0, 12, 12}}) {
        const OwnedCanvas canvas = MakeCanvas(12, 12, Plain{white});
        EXPECT_EQ(GeoRectFocusEx(canvas.get(), &rect, color), 1);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
            const bool inRow = Inside(rect, x, y) && (x - rect.left) % 2 == 1;
            const bool inColumn = Inside(rect, x, y) && (y - rect.top) % 2 == 1;
            DWORD pixel = white;
            for (const LONG row : {rect.top, rect.bottom - 1})
                if (inRow && y == row) pixel = SlowOver(premultiplied, pixel);
            for (const LONG column : {rect.left, rect.right - 1})
                if (inColumn && x == column) pixel = SlowOver(premultiplied, pixel);
            return pixel;
        })) << ToText(rect);
    }
}

TEST(Outlines, OtherCanvasesAreDrawnByGdi) {
    const RECT rect{2, 1, 9, 6};
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    const OwnedCanvas canvas = MakeCanvas(12, 8, Plain{});
    EXPECT_EQ(GeoRectangle(canvas.get(), &rect, pen, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH))), 1);
    EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
        return OnFrame(rect, x, y) ? 0x00FF0000U : Inside(rect, x, y) ? 0x00FFFFFFU : 0U;
    })) << "GDI leaves no alpha";
    EXPECT_NE(GetCurrentObject(GetCanvasHandle(canvas.get()), OBJ_PEN), pen) << "the pen stayed selected";
    DeleteObject(pen);
    Fill(canvas.get(), Plain{0x00808080});
    EXPECT_EQ(GeoRectangle(canvas.get(), &rect, nullptr, nullptr), 1);
    EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return OnFrame(rect, x, y) ? 0U : 0x00808080U; }))
        << "black without a pen, hollow without a brush";

    const GdiBitmap dib = GdiBitmap::Dib(12, 8);
    const OwnedCanvas dcCanvas(CreateCanvasFromDC(dib.Dc()));
    EXPECT_EQ(GeoRectFocusEx(dcCanvas.get(), &rect, 0xFFFFFFFF), 1);
    const OwnedBitmap shown = dib.Shown();
    const Snapshot pixels(shown.get());
    int lit = 0;
    EXPECT_TRUE(Shows(shown.get(), [&](int x, int y) {
        const DWORD pixel = OnFrame(rect, x, y) ? pixels(x, y) : 0;
        lit += pixel != 0;
        return pixel;
    }));
    EXPECT_GE(lit, 9) << "about half of the 20 pixels of the frame";
}

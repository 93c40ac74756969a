// What a new canvas is, what it inherits, what it keeps for the host, and how long things live.
#include <climits>

#include "support/gdi.h"

using namespace host;

TEST(CanvasLife, StartsTransparentAndPlain) {
    for (const auto create : {CreateCanvas, CreateSystemCanvas}) {
        SCOPED_TRACE(create == CreateCanvas ? "memory" : "system");
        // Heap blocks of this size are used again: their old pixels must not show through.
        MakeBitmap(37, 23, Pattern{});
        const OwnedCanvas canvas(create(37, 23, nullptr));
        ASSERT_TRUE(canvas);
        EXPECT_TRUE(Shows(canvas.get(), Plain{}));
        SIZE size{};
        EXPECT_EQ(GetCanvasSize(canvas.get(), &size), 1);
        EXPECT_TRUE(size.cx == 37 && size.cy == 23);
        EXPECT_EQ(FilterOf(canvas.get()) | FilterOf(GetBitmap(canvas.get())), 0U);
        for (const auto& [width, height] : {std::pair{0, 5}, {5, -1}, {32768, 1}, {1, 32768}, {INT_MIN, INT_MAX}})
            EXPECT_EQ(create(width, height, nullptr), nullptr) << width << " x " << height;

        EXPECT_EQ(SetCanvasFilter(canvas.get(), 0x02112233), 1);
        const OwnedCanvas next(create(8, 8, canvas.get()));
        for (const HGCANVAS inherited : {canvas.get(), next.get()}) {
            EXPECT_EQ(FilterOf(inherited), 0x02112233U);
            EXPECT_EQ(FilterOf(GetBitmap(inherited)), 0x02112233U) << "the surface's word mirrors the canvas's";
        }
    }
}

TEST(CanvasLife, KeepsWhatTheHostStores) {
    const OwnedCanvas canvas(CreateCanvas(4, 4, nullptr));
    HWND previousWindow = nullptr;
    DWORD previousColor = 0, color = 9;
    for (const auto& [newWindow, newColor] :
         {std::pair(reinterpret_cast<HWND>(canvas.get()), 0x80FFFFFFUL), {nullptr, 2}}) {
        EXPECT_EQ(GetCanvasWindow(canvas.get()), previousWindow);
        EXPECT_EQ(SetCanvasWindow(canvas.get(), newWindow), std::exchange(previousWindow, newWindow));
        EXPECT_EQ(GetCanvasBkColor(canvas.get(), &color), 1);
        EXPECT_EQ(color, previousColor);
        EXPECT_EQ(SetCanvasBkColor(canvas.get(), newColor, &color), 1);
        EXPECT_EQ(color, std::exchange(previousColor, newColor));
    }
}

// The first request for the device context turns a memory surface into a DIB section: same bitmap, moved pixels.
TEST(CanvasLife, TheDeviceContextShowsTheSurface) {
    for (const auto create : {CreateCanvas, CreateSystemCanvas}) {
        SCOPED_TRACE(create == CreateCanvas ? "memory" : "system");
        const OwnedCanvas canvas(create(9, 7, nullptr));
        const HGBITMAP surface = GetBitmap(canvas.get());
        Fill(canvas.get(), Pattern{});
        const HDC dc = GetCanvasHandle(canvas.get());
        ASSERT_NE(dc, nullptr);
        EXPECT_EQ(GetCanvasHandle(canvas.get()), dc);
        EXPECT_EQ(GetBitmap(canvas.get()), surface);
        EXPECT_EQ(GetCurrentObject(dc, OBJ_BITMAP), GetBitmapHandle(surface));
        EXPECT_TRUE(Shows(canvas.get(), Pattern{}));
        const DWORD pixel = Pattern{}(8, 6);
        EXPECT_EQ(GetPixel(dc, 8, 6), RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF));
    }
}

TEST(CanvasLife, ACanvasOnADeviceContextOnlyBorrowsIt) {
    const GdiBitmap dib = GdiBitmap::Dib(8, 6);
    SetViewportOrgEx(dib.Dc(), 3, 2, nullptr);
    SetWindowOrgEx(dib.Dc(), 1, -1, nullptr);
    OwnedCanvas canvas(CreateCanvasFromDC(dib.Dc()));
    ASSERT_TRUE(canvas);
    POINT viewport{}, window{}, previous{};
    EXPECT_EQ(GetViewportOrg(canvas.get(), &viewport) + GetWindowOrg(canvas.get(), &window), 2);
    EXPECT_EQ(viewport, (POINT{3, 2}));
    EXPECT_EQ(window, (POINT{1, -1}));
    SetViewportOrgEx(dib.Dc(), 11, 12, nullptr);
    EXPECT_EQ(SetViewportOrg(canvas.get(), 3, 2, &previous), 1);
    EXPECT_EQ(previous, (POINT{11, 12})) << "the host's are what counts";
    EXPECT_EQ(GetCanvasHandle(canvas.get()), dib.Dc());
    EXPECT_EQ(GetBitmap(canvas.get()), nullptr);
    EXPECT_EQ(GetTexture(canvas.get()), nullptr);
    SIZE size{-1, -1};
    EXPECT_EQ(GetCanvasSize(canvas.get(), &size), 0);
    EXPECT_EQ(SetCanvasFilter(canvas.get(), 0x01000000), 0);
    EXPECT_EQ(FilterOf(canvas.get()), 0U);

    EXPECT_TRUE(OwnedTexture(CanvasToTexture(canvas.release()))) << "the canvas is consumed";
    EXPECT_EQ(GetCurrentObject(dib.Dc(), OBJ_BITMAP), dib.Handle());
    EXPECT_TRUE(PatBlt(dib.Dc(), -2, -3, 8, 6, WHITENESS)) << "the host's device context goes on";

    EXPECT_EQ(CreateCanvasFromDC(nullptr), nullptr);
    const HWND desktop = GetDesktopWindow();
    const HDC screen = GetDC(desktop);
    canvas.reset(CreateCanvasFromDC(screen));
    EXPECT_EQ(GetCanvasWindow(canvas.get()), desktop);
    canvas.reset();
    EXPECT_EQ(ReleaseDC(desktop, screen), 1);
}

// Only source-over says that the alpha bytes mean something.
TEST(CanvasLife, BecomesATextureOpaqueUnlessItHasAlpha) {
    for (const bool withDc : {false, true})
        for (const DWORD filter : {0x01000000UL, 0x01ABCDEFUL, 0x00000000UL, 0x02112233UL, 0x00000001UL}) {
            SCOPED_TRACE(filter);
            const HGCANVAS canvas = CreateCanvas(9, 7, nullptr);
            EXPECT_TRUE(!withDc || GetCanvasHandle(canvas));
            SetCanvasFilter(canvas, filter);
            SetBitmapFilter(GetBitmap(canvas), 0x01000000);  // the canvas's word is what counts
            Fill(canvas, Pattern{});
            const OwnedTexture texture(CanvasToTexture(canvas));
            ASSERT_TRUE(texture);
            const DWORD opaque = filter >> 24 == 1 ? 0 : 0xFF000000;
            const auto picture = [=](int x, int y) { return Pattern{}(x, y) | opaque; };
            EXPECT_TRUE(Shows(texture.get(), picture));
            EXPECT_EQ(FilterOf(texture.get()), filter);
            const GdiBitmap target = GdiBitmap::Dib(9, 7);
            const HGDIOBJ previous = SelectObject(target.Dc(), GetTextureHandle(texture.get()));
            EXPECT_NE(previous, nullptr) << "no device context holds its pixels any more";
            SelectObject(target.Dc(), previous);
            EXPECT_TRUE(Shows(texture.get(), picture));
        }
}

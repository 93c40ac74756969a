// Drawing together with GDI: GDI on a canvas's surface, and a canvas on a host's device context of any kind.
#include <functional>

#include "support/gdi.h"

using namespace host;

namespace {

constexpr RECT everything{-1000, -1000, 1000, 1000};

// A bitmap that a host's device context may have selected.
struct Target {
    const char* name;
    GdiBitmap (*make)(int width, int height);
    DWORD kept;  // bits of a pixel that survive
};
const Target targets[] = {
    {"32 bits", [](int w, int h) { return GdiBitmap::Dib(w, h); }, 0xFFFFFFFF},
    {"32 bits, bottom-up", [](int w, int h) { return GdiBitmap::Dib(w, h, 32, GdiBitmap::RowOrder::bottomUp); },
     0x00FFFFFF},
    {"24 bits", [](int w, int h) { return GdiBitmap::Dib(w, h, 24); }, 0x00FFFFFF},
    {"24 bits, bottom-up", [](int w, int h) { return GdiBitmap::Dib(w, h, 24, GdiBitmap::RowOrder::bottomUp); },
     0x00FFFFFF},
    {"16 bits", [](int w, int h) { return GdiBitmap::Dib(w, h, 16); }, 0x00F8F8F8},
    {"compatible", [](int w, int h) { return GdiBitmap::Compatible(w, h); }, 0x00FFFFFF},
};

// What the target shows, compared with a picture in the bits that it keeps.
template <class Picture>
testing::AssertionResult Keeps(const Target& target, const GdiBitmap& bitmap, Picture picture) {
    OwnedBitmap shown = bitmap.Shown();
    const Snapshot got(shown.get());
    Fill(shown.get(), [&](int x, int y) { return got(x, y) & target.kept; });
    return Shows(shown.get(), [&](int x, int y) { return picture(x, y) & target.kept; });
}

}  // namespace

TEST(CanvasGdi, DrawsOnTheSurface) {
    const OwnedCanvas canvas(CreateCanvas(60, 30, nullptr));
    FillPreMulColorRectEx(canvas.get(), 0xFF405060, &everything, ZORVIC_OP_COPY);
    SetViewportOrg(canvas.get(), 2, 1, nullptr);
    const HDC dc = GetCanvasHandle(canvas.get());
    const HGDIOBJ pen = SelectObject(dc, GetStockObject(BLACK_PEN));
    const HGDIOBJ brush = SelectObject(dc, GetStockObject(WHITE_BRUSH));
    ASSERT_TRUE(Rectangle(dc, 3, 4, 13, 10));
    SelectObject(dc, pen);
    SelectObject(dc, brush);
    EXPECT_TRUE(Shows(canvas.get(), [](int x, int y) -> DWORD {
        if (Inside({6, 6, 14, 10}, x, y)) return 0x00FFFFFF;  // GDI knows no alpha
        return Inside({5, 5, 15, 11}, x, y) ? 0 : 0xFF405060;
    }));

    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(255, 0, 0));
    ASSERT_TRUE(TextOutW(dc, 20, 5, L"Hg", 2));
    int red = 0;
    const RECT text{22, 6, 60, 30};
    const Snapshot shown(canvas.get());
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x)
            if (shown(x, y) == 0x00FF0000) red += Inside(text, x, y) ? 1 : 1000;
    EXPECT_GT(red, 10);
    EXPECT_LT(red, 1000);
}

// Every row order has its own mistake: each area of rows, the middle one of 9 among them.
TEST(CanvasGdi, DrawsOnTheRightRows) {
    const OwnedBitmap source = MakeBitmap(13, 9, Pattern{2});
    for (const Target& target : targets)
        for (int top = 0; top < 9; ++top)
            for (int bottom = top + 1; bottom <= 9; ++bottom) {
                SCOPED_TRACE(testing::Message() << target.name << ", rows " << top << " to " << bottom);
                const GdiBitmap bitmap = target.make(13, 9);
                bitmap.Fill(Plain{});  // every row alike
                const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
                const RECT rows{0, top, 13, bottom};
                SetCanvasClipRect(canvas.get(), &rows);
                DrawBitmap(canvas.get(), nullptr, source.get(), ZORVIC_FILTER_NEAREST);
                ASSERT_TRUE(
                    Keeps(target, bitmap, [&](int x, int y) { return Inside(rows, x, y) ? Pattern{2}(x, y) : 0; }));
            }
}

TEST(CanvasGdi, FollowsTheOriginsOfTheDeviceContext) {
    for (const Target& target : targets) {
        SCOPED_TRACE(target.name);
        const GdiBitmap bitmap = target.make(13, 9);
        bitmap.Fill(Pattern{});
        const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
        SetViewportOrgEx(bitmap.Dc(), 6, 5, nullptr);  // the host's own, after the canvas was made
        SetWindowOrgEx(bitmap.Dc(), 2, 4, nullptr);
        const RECT rect{-1, 1, 4, 100};
        const RECT painted{3, 2, 8, 9};
        FillPreMulColorRectEx(canvas.get(), 0xFF80A0C0, &rect, ZORVIC_OP_COPY);
        EXPECT_TRUE(
            Keeps(target, bitmap, [&](int x, int y) { return Inside(painted, x, y) ? 0xFF80A0C0 : Pattern{}(x, y); }));
    }
}

// GDI scales the position; our own arithmetic would have painted (4, 4) to (8, 8) and missed.
TEST(CanvasGdi, PaintsWhereAScaledDeviceContextSaysSo) {
    for (const Target& target : targets) {
        SCOPED_TRACE(target.name);
        const GdiBitmap bitmap = target.make(13, 9);
        bitmap.Fill(Pattern{});
        SetMapMode(bitmap.Dc(), MM_ANISOTROPIC);
        SetWindowExtEx(bitmap.Dc(), 2, 2, nullptr);
        SetViewportExtEx(bitmap.Dc(), 1, 1, nullptr);
        const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
        const RECT rect{4, 4, 8, 8};
        EXPECT_EQ(FillPreMulColorRectEx(canvas.get(), 0xFF80A0C0, &rect, ZORVIC_OP_COPY), 1);
        const RECT painted{2, 2, 6, 6};  // pixels keep their size
        EXPECT_TRUE(
            Keeps(target, bitmap, [&](int x, int y) { return Inside(painted, x, y) ? 0xFF80A0C0 : Pattern{}(x, y); }));
        EXPECT_EQ(FillPreMulColorRectEx(canvas.get(), 0xFF80A0C0, &everything, ZORVIC_OP_COPY), 1);
    }
}

TEST(CanvasGdi, LeavesAloneWhatTheClipRegionHides) {
    for (const Target& target : targets) {
        SCOPED_TRACE(target.name);
        const GdiBitmap bitmap = target.make(20, 16);
        bitmap.Fill(Pattern{});
        const RECT first{2, 1, 9, 8};
        const RECT second{6, 5, 18, 12};
        ClipTo(bitmap.Dc(), {first, second});
        SetViewportOrgEx(bitmap.Dc(), 1, 2, nullptr);
        const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
        RECT box{};
        GetCanvasClipRect(canvas.get(), &box);
        EXPECT_EQ(box, (RECT{1, -1, 17, 10}));

        const auto hidden = [&](int x, int y) { return !Inside(first, x, y) && !Inside(second, x, y); };
        FillPreMulColorRectEx(canvas.get(), 0xFF80A0C0, &everything, ZORVIC_OP_COPY);
        EXPECT_TRUE(Keeps(target, bitmap, [&](int x, int y) { return hidden(x, y) ? Pattern{}(x, y) : 0xFF80A0C0; }));

        // Not clipped by us: the lock reaches beyond the clip box, GDI holds back what is hidden.
        const RECT all{-1, -2, 19, 14};
        EXPECT_EQ(MixCanvasWithColor(canvas.get(), &all, 0xFF808080, 255), 1);
        EXPECT_TRUE(Keeps(target, bitmap, [&](int x, int y) { return hidden(x, y) ? Pattern{}(x, y) : 0xFF808080; }));
    }
}

// Rectangles beyond the bitmap, too: what is outside goes nowhere.
TEST(CanvasGdi, LocksMayReachOutside) {
    for (const Target& target : targets) {
        SCOPED_TRACE(target.name);
        const GdiBitmap bitmap = target.make(20, 16);
        bitmap.Fill(Pattern{});
        const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
        const RECT rect{-4, 10, 5, 40};
        EXPECT_EQ(MixCanvasWithColor(canvas.get(), &rect, 0xFF808080, 255), 1);
        EXPECT_TRUE(
            Keeps(target, bitmap, [&](int x, int y) { return Inside(rect, x, y) ? 0xFF808080 : Pattern{}(x, y); }));
        const RECT huge{-20000, 0, 20000, 1};
        const Snapshot before(bitmap.Shown().get());
        EXPECT_EQ(MixCanvasWithColor(canvas.get(), &huge, 0x80204060, 255), 1);
        EXPECT_TRUE(Shows(bitmap.Shown().get(), before)) << "too wide for a surface";
    }
}

// Layouts draw all pieces under one lock; the body of the last one begins above the destination.
TEST(CanvasGdi, TakesLayouts) {
    const OwnedTexture skin(CreateTexture(9, 7));
    Fill(skin.get(), Pattern{4});
    const RECT clip{3, 2, 37, 27}, dst{1, 9, 39, 29}, margins{2, 3, 2, 2}, raised{2, -3, 2, 2};
    const std::function<void(HGCANVAS)> layouts[] = {
        [&](HGCANVAS c) { DrawTexture9Grid(c, &dst, skin.get(), nullptr, &margins, 0, 0, 255, 0, 1, 1); },
        [&](HGCANVAS c) { DrawTexture9Grid(c, &dst, skin.get(), nullptr, &margins, 0, 1, 255, 0, 1, 1); },
        [&](HGCANVAS c) { DrawTextureTile(c, &dst, skin.get(), nullptr, 0, 255, 0, 1); },
        [&](HGCANVAS c) { DrawTextureTopTile(c, &dst, skin.get(), nullptr, &margins, 0, 255); },
        [&](HGCANVAS c) { DrawTextureTopTile(c, &dst, skin.get(), nullptr, &raised, 0, 255); },
    };
    for (const Target& target : targets)
        for (const auto& draw : layouts) {
            SCOPED_TRACE(testing::Message() << target.name << ", layout " << &draw - layouts);
            const GdiBitmap bitmap = target.make(40, 30);
            bitmap.Fill(Pattern{});
            const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc())), surface(CreateCanvas(40, 30, nullptr));
            Fill(surface.get(), Pattern{});
            for (const HGCANVAS c : {canvas.get(), surface.get()}) {
                SetCanvasClipRect(c, &clip);
                draw(c);
            }
            EXPECT_TRUE(Keeps(target, bitmap, Snapshot(surface.get())));
        }
}

// Both rectangles of the call are locked at once on the same device context.
TEST(CanvasGdi, OneCanvasMayBeSourceAndDestination) {
    for (const Target& target : targets) {
        SCOPED_TRACE(target.name);
        const GdiBitmap bitmap = target.make(20, 16);
        bitmap.Fill(Pattern{});
        const OwnedCanvas canvas(CreateCanvasFromDC(bitmap.Dc()));
        const RECT src{1, 2, 8, 9};
        const RECT dst{11, 7, 18, 14};
        EXPECT_EQ(MixCanvas(canvas.get(), &dst, canvas.get(), &src, 255), 1);
        EXPECT_TRUE(Keeps(target, bitmap, [&](int x, int y) {
            return Inside(dst, x, y) ? Pattern{}(x - 10, y - 5) : Pattern{}(x, y);
        }));
    }
}

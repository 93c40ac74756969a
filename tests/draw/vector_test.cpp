// Vector drawing through the real backend: where shapes land, what survives, and what canvases without a surface answer.
#include "support/gdi.h"
#include "support/host.h"

using namespace host;

namespace {

constexpr DWORD red = 0xFFFF0000;

OwnedTexture MakeTexture(int width, int height, DWORD color) {
    OwnedTexture texture(CreateTexture(width, height));
    Fill(texture.get(), Plain{color});
    return texture;
}

}  // namespace

TEST(Vector, StyleStaysUntilItIsRestored) {
    const OwnedCanvas canvas(CreateCanvas(4, 1, nullptr));
    SetColor(canvas.get(), red);
    Save(canvas.get());
    SetColor(canvas.get(), 0xFF0000FF);
    SetBlendValue(canvas.get(), 0);
    DrawPoint(canvas.get(), 0, 0);
    Restore(canvas.get());
    EXPECT_EQ(GetBlendValue(canvas.get()), 255);
    DrawPoint(canvas.get(), 1, 0);
    const RECT third{2, 0, 3, 1};
    FillRectangleEx(canvas.get(), &third, 0xFF00FF00);
    DrawPoint(canvas.get(), 3, 0);
    const DWORD wanted[] = {0, red, 0xFF00FF00, red};
    EXPECT_TRUE(Shows(canvas.get(), [&](int x, int) { return wanted[x]; }));
}

TEST(Vector, ShapesFollowTheSurfaceWhenItIsConverted) {
    for (const bool throughBitmap : {false, true}) {
        const OwnedCanvas canvas(CreateCanvas(6, 1, nullptr));
        SetColor(canvas.get(), red);
        SetStrokeWidth(canvas.get(), 3);
        DrawPoint(canvas.get(), 0, 0);
        if (throughBitmap) {
            GetBitmapHandle(GetBitmap(canvas.get()));
        } else {
            GetCanvasHandle(canvas.get());
        }
        DrawPoint(canvas.get(), 5, 0);
        EXPECT_EQ(GetStrokeWidth(canvas.get()), 3);
        EXPECT_TRUE(Shows(canvas.get(), [](int x, int) { return x == 0 || x == 5 ? red : 0; })) << throughBitmap;
    }
}

TEST(Vector, CanvasesOnADeviceContextAnswerDefaultsAndDrawNothing) {
    const GdiBitmap dib = GdiBitmap::Dib(8, 8);
    const OwnedCanvas canvas(CreateCanvasFromDC(dib.Dc()));
    const RECT rect{0, 0, 8, 8};
    const POINT corner{2, 2};
    EXPECT_EQ(DrawLine(canvas.get(), 0, 0, 8, 8), 0);
    EXPECT_EQ(GetBlendValue(canvas.get()), 255);
    EXPECT_EQ(GetBlendMode(canvas.get()), -1);
    EXPECT_EQ(GetStrokeWidth(canvas.get()), 1);
    EXPECT_EQ(FillRectangleEx(canvas.get(), &rect, red), 0);
    EXPECT_EQ(FillRoundRectEx(canvas.get(), &rect, &corner, red), 0);
    EXPECT_EQ(GeoRectangleEx(canvas.get(), &rect, red, 1), 0);
    EXPECT_EQ(GeoRoundRectEx(canvas.get(), &rect, &corner, red, 1), 0);
    EXPECT_EQ(GeoRoundRect(canvas.get(), &rect, &corner, nullptr), 0);
    EXPECT_EQ(FillGradualRect(canvas.get(), 0xFF000000, red, &rect, 1), 1);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(GetPixel(dib.Dc(), i, i), 0U);
}

TEST(Vector, GradientsRunFromColorToColor) {
    const RECT rect{0, 0, 64, 64};
    for (const DWORD direction : {1U, 2U}) {
        const OwnedCanvas canvas(CreateCanvas(64, 64, nullptr));
        EXPECT_EQ(FillGradualRect(canvas.get(), 0xFF000000, 0xFFFF8000, &rect, direction), 1);
        const Pixels pixels(canvas.get());
        for (int i = 0; i < 64; ++i) {
            const DWORD pixel = direction == 1 ? pixels.Get(9, i) : pixels.Get(i, 9);
            EXPECT_NEAR(pixel >> 16 & 0xFF, 255 * (i + 0.5) / 64, 2) << direction << ' ' << i;
            EXPECT_EQ(pixel, direction == 1 ? pixels.Get(50, i) : pixels.Get(i, 50));
        }
    }
}

TEST(Vector, RoundedTexturesKeepTheirMiddleAndLoseTheirCorners) {
    const OwnedTexture texture = MakeTexture(20, 10, 0xFF204060);
    const RECT dst{4, 4, 44, 24};
    for (const DWORD filter : {0U, 1U, 4U, 5U})
        for (const LONG ellipse : {0, 1}) {
            const OwnedCanvas canvas(CreateCanvas(48, 28, nullptr));
            TextureDrawParams params{};
            params.filterMode = filter;
            params.alpha = 255;
            params.cornerRadii[0] = params.cornerRadii[1] = 10;
            params.ellipse = ellipse;
            EXPECT_EQ(DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr), 1);
            const Pixels pixels(canvas.get());
            EXPECT_NEAR(pixels.Get(24, 14) & 0xFF, 0x60, 1) << "the middle";
            EXPECT_LE(pixels.Get(4, 4) >> 24, 8U) << "a corner";
            double coverage = 0;
            for (int y = 0; y < 28; ++y)
                for (int x = 0; x < 48; ++x) {
                    coverage += (pixels.Get(x, y) >> 24) / 255.0;
                    ASSERT_TRUE(Inside(dst, x, y) || pixels.Get(x, y) == 0) << x << ' ' << y;
                }
            const double area = ellipse ? 3.14159 * 20 * 10 : 40 * 20 - (4 - 3.14159) * 10 * 10;
            EXPECT_NEAR(coverage, area, area * 0.04) << "filter " << filter << ", ellipse " << ellipse;
        }
    // Other depths are widened first.
    OwnedTexture rgb(CreateTextureEx(8, 8, 24, 0));
    Fill(rgb.get(), Plain{0x123456});
    const OwnedCanvas canvas(CreateCanvas(8, 8, nullptr));
    TextureDrawParams params{};
    params.alpha = 255;
    params.rounded = 1;
    const RECT same{0, 0, 8, 8};
    EXPECT_EQ(DrawTextureEx3(canvas.get(), &same, rgb.get(), &params, nullptr), 1);
    EXPECT_TRUE(Shows(canvas.get(), Plain{0xFF123456}));
}

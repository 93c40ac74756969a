// Textures with rounded corners, cut by the real backend.
#include "support/host.h"

using namespace host;

TEST(RoundedTextures, KeepTheirMiddleAndLoseTheirCorners) {
    const OwnedTexture texture(CreateTexture(20, 10));
    Fill(texture.get(), Plain{0xFF204060});
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
    const OwnedTexture rgb(CreateTextureEx(8, 8, 24, 0));
    Fill(rgb.get(), Plain{0x123456});
    const OwnedCanvas canvas(CreateCanvas(8, 8, nullptr));
    TextureDrawParams params{};
    params.alpha = 255;
    params.rounded = 1;
    const RECT same{0, 0, 8, 8};
    EXPECT_EQ(DrawTextureEx3(canvas.get(), &same, rgb.get(), &params, nullptr), 1);
    EXPECT_TRUE(Shows(canvas.get(), Plain{0xFF123456}));
}

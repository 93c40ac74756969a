// Textures with rounded corners, cut by the real backend.
#include "support/allocations.h"
#include "support/host.h"
#include "support/random.h"

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
    params.ellipse = 1;
    Fill(canvas.get(), Plain{0xFF0000FF});
    EXPECT_EQ(DrawTextureEx3(canvas.get(), &same, rgb.get(), &params, nullptr), 1);
    EXPECT_EQ(Pixels(canvas.get()).Get(0, 0), 0xFF0000FFU) << "a corner shows what was there";
}

TEST(RoundedTextures, AreAskedForByAnyOfTheRadii) {
    const OwnedTexture texture(CreateTexture(4, 4));
    const OwnedCanvas canvas(CreateCanvas(4, 4, nullptr));
    const RECT dst{0, 0, 4, 4};
    for (int radius = -1; radius < 4; ++radius) {
        TextureDrawParams params{};
        if (radius >= 0) params.cornerRadii[radius] = 1e-6F;
        // A plain stretch needs a slice.
        EXPECT_EQ(DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr), radius >= 0) << radius;
    }
}

// Stretched and reduced: a clipped draw is a crop of the full one. What a reduced texture costs is what is visible of
// it, not its own size, and its edges are as smooth as those of a texture that is not stretched.
TEST(RoundedTextures, AreCutAsTheyAreShown) {
    zorvic::Random random(1);
    for (int i = 0; i < 400; ++i) {
        const OwnedTexture texture(CreateTexture(1 + random.Below(150), 1 + random.Below(150)));
        Fill(texture.get(), PremultipliedPattern{7});
        const RECT dst{-random.Below(40), random.Below(20), 30 + random.Below(120), 30 + random.Below(70)};
        const RECT clip{random.Below(30), random.Below(40), 31 + random.Below(29), 41 + random.Below(19)};
        TextureDrawParams params{};
        params.filterMode = static_cast<DWORD>(random.Below(6));
        params.alpha = static_cast<BYTE>(random.Word() | 0xC0);
        params.cornerRadii[0] = static_cast<float>(random.Below(99)) / 4;
        params.cornerRadii[1] = static_cast<float>(random.Below(99)) / 4;
        params.ellipse = random.Below(2);
        params.rounded = 1;
        const OwnedCanvas whole = MakeCanvas(60, 60, Plain{0xFF808080}), part = MakeCanvas(60, 60, Plain{0xFF808080});
        SetCanvasClipRect(part.get(), &clip);
        DrawTextureEx3(whole.get(), &dst, texture.get(), &params, nullptr);
        DrawTextureEx3(part.get(), &dst, texture.get(), &params, nullptr);
        const Snapshot full(whole.get());
        EXPECT_TRUE(Shows(part.get(), [&](int x, int y) { return Inside(clip, x, y) ? full(x, y) : 0xFF808080; })) << i;
    }
    for (const LONG ellipse : {0, 1}) {
        std::vector<std::uint32_t> alphas[2];
        for (const int scale : {1, 50}) {
            const OwnedTexture texture(CreateTexture(20 * scale, 20 * scale));
            Fill(texture.get(), Plain{0xFF204060});
            const OwnedCanvas canvas(CreateCanvas(24, 24, nullptr));
            const RECT dst{2, 2, 22, 22};
            TextureDrawParams params{};
            params.alpha = 255;
            params.cornerRadii[0] = params.cornerRadii[1] = 6;
            params.ellipse = ellipse;
            DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr);
            const Allocations allocations;
            const long long before = Allocations::Requested().bytes;
            DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr);
            EXPECT_LE(Allocations::Requested().bytes - before, 64 * 1024) << scale;
            const Pixels pixels(canvas.get());
            for (int y = 0; y < 24; ++y)
                for (int x = 0; x < 24; ++x) alphas[scale > 1].push_back(pixels.Get(x, y) >> 24);
        }
        EXPECT_EQ(alphas[0], alphas[1]);
    }
}

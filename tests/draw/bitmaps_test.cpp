// Drawing bitmaps and textures on canvases: operations, opacity, parts and slices.
#include <functional>

#include "support/host.h"
#include "support/slow_pixels.h"

using namespace host;

namespace {

struct OperationCase {
    const char* name;
    int depth;
    DWORD operation;
    BYTE alpha;
    DWORD source, before, after;
};

// One pixel, by hand.
constexpr OperationCase operationCases[] = {
    {"copy", 32, 0x00000000, 255, 0x00112233, 0xFFFFFFFF, 0x00112233},
    {"copy widens 24 bits", 24, 0x00000000, 255, 0x112233, 0x00000000, 0xFF112233},
    {"source-over, transparent", 32, 0x01000000, 255, 0x00000000, 0x80402010, 0x80402010},
    {"source-over", 32, 0x01000000, 255, 0x80402010, 0xFFFFFFFF, 0xFFBF9F8F},
    {"opacity", 32, 0x01000000, 128, 0xFFFFFFFF, 0xFF000000, 0xFF808080},
    {"opacity blends copies too", 32, 0x00000000, 128, 0xFFFFFFFF, 0xFF000000, 0xFF808080},
    {"opacity 0", 32, 0x01000000, 0, 0xFFFFFFFF, 0xFF000000, 0xFF000000},
    {"multiply", 32, 0x03000000, 255, 0xFF80FF00, 0xFF8080FF, 0xFF408000},
    {"multiply ignores the opacity", 32, 0x03000000, 0, 0xFF80FF00, 0xFF8080FF, 0xFF408000},
    {"destination-over", 32, 0x06000000, 255, 0xFF808080, 0x80000000, 0xFF404040},
    {"destination-over ignores the opacity", 32, 0x06000000, 0, 0xFF808080, 0x80000000, 0xFF404040},
    {"key skips transparent pixels of its colour", 32, 0x02112233, 255, 0x00112233, 0xFFFFFFFF, 0xFFFFFFFF},
    {"key copies opaque pixels of its colour", 32, 0x02112233, 255, 0xFF112233, 0x00000000, 0xFF112233},
    {"key skips 24-bit pixels of its colour", 24, 0x02112233, 255, 0x112233, 0x80808080, 0x80808080},
    {"key copies other 24-bit pixels", 24, 0x02112233, 255, 0x112234, 0x80808080, 0xFF112234},
    {"key never matches the grey ramp", 8, 0x02112233, 255, 0x11, 0x80808080, 0xFF111111},
};

}  // namespace

TEST(Bitmaps, EveryOperationDoesToAPixelWhatItsFormulaSays) {
    for (const OperationCase& c : operationCases)
        for (const int size : {3, 7}) {  // unscaled, and enlarged by nearest sampling
            const OwnedBitmap source = MakeBitmap(3, 3, c.depth);
            Fill(source.get(), Plain{c.source});
            SetBitmapFilter(source.get(), c.operation);
            const OwnedCanvas canvas = MakeCanvas(size, size, Plain{c.before});
            const RECT dst{0, 0, size, size};
            EXPECT_EQ(DrawBitmapEx(canvas.get(), &dst, source.get(), ZORVIC_FILTER_NEAREST, c.alpha), 1) << c.name;
            EXPECT_TRUE(Shows(canvas.get(), Plain{c.after})) << c.name << ", size " << size;
        }
}

TEST(Bitmaps, PartsOfTheSourceMustLieInsideIt) {
    const OwnedBitmap source = MakeBitmap(12, 9, Pattern{});
    const OwnedCanvas canvas(CreateCanvas(12, 9, nullptr));
    const RECT dst{1, 1, 6, 5}, inside{7, 5, 12, 9};
    for (const RECT& src : {RECT{8, 5, 13, 9}, {-1, 0, 4, 4}, {8, 6, 3, 2}, {3, 2, 3, 6}, {LONG_MIN, 0, LONG_MAX, 4}})
        EXPECT_EQ(DrawBitmapEx2(canvas.get(), &dst, source.get(), &src, 0, 255), 1) << ToText(src);
    EXPECT_TRUE(Shows(canvas.get(), Plain{}));
    EXPECT_EQ(DrawBitmapEx2(canvas.get(), &dst, source.get(), &inside, 0, 255), 1);
    EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Inside(dst, x, y) ? Pattern{}(x + 6, y + 4) : 0; }));
    const OwnedCanvas larger(CreateCanvas(14, 14, nullptr));
    EXPECT_EQ(DrawBitmap(larger.get(), nullptr, source.get(), 0), 1);
    EXPECT_TRUE(Shows(larger.get(), [](int x, int y) { return x < 12 && y < 9 ? Pattern{}(x, y) : 0; })) << "own size";
}

// Bits that are fewer than 8 for each pixel cannot be locked.
TEST(Bitmaps, WithoutReachablePixelsDrawNothingAndReturnOne) {
    const OwnedBitmap bitmap = MakeBitmap(12, 9, 4, 16);
    const OwnedTexture texture(CreateTextureEx(12, 9, 4, 16));
    const OwnedCanvas canvas = MakeCanvas(12, 9, Pattern{});
    const HGCANVAS c = canvas.get();
    const RECT dst{1, 1, 6, 5}, part{0, 0, 4, 4};
    TextureDrawParams params{};
    params.alpha = 255;
    SetTextureSlice(texture.get(), 1, &part);
    EXPECT_EQ(DrawBitmap(c, &dst, bitmap.get(), 0), 1);
    EXPECT_EQ(DrawBitmap(c, nullptr, bitmap.get(), 0), 1);
    EXPECT_EQ(DrawBitmapEx2(c, &dst, bitmap.get(), &part, 0, 255), 1);
    EXPECT_EQ(DrawModulation(c, 0, 0, bitmap.get(), &part, 0x80FFFFFF), 1);
    for (params.rounded = 0; params.rounded < 2; ++params.rounded)
        EXPECT_EQ(DrawTextureEx3(c, &dst, texture.get(), &params, nullptr), 1) << params.rounded;
    EXPECT_EQ(DrawTextureCenter(c, &dst, texture.get(), &part, 0, 255), 1);
    EXPECT_EQ(DrawTextureUniform(c, &dst, texture.get(), &part, 0, 255, false), 1);
    EXPECT_TRUE(Shows(c, Pattern{}));
}

TEST(Textures, DrawTheCurrentSlice) {
    const OwnedTexture texture(CreateTexture(12, 4));
    Fill(texture.get(), Pattern{});
    const OwnedCanvas canvas(CreateCanvas(4, 4, nullptr));
    const RECT dst{0, 0, 4, 4};
    EXPECT_EQ(DrawTexture(canvas.get(), &dst, texture.get(), 0), 0) << "no slice is current";
    const RECT states[] = {{0, 0, 4, 4}, {4, 0, 8, 4}, {8, 0, 12, 4}};
    SetTextureSlice(texture.get(), 3, states);
    TextureDrawParams params{};
    params.alpha = 255;
    const std::function<int()> draws[] = {
        [&] { return DrawTexture(canvas.get(), &dst, texture.get(), 0); },
        [&] { return DrawTextureEx(canvas.get(), &dst, texture.get(), 0, 255, 0, 0); },
        [&] { return DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr); }};
    for (const int state : {2, 0, 1})
        for (const auto& draw : draws) {
            SetTextureCurSlice(texture.get(), state);
            Fill(canvas.get(), Plain{});
            EXPECT_EQ(draw(), 1);
            EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Pattern{}(x + 4 * state, y); }))
                << "state " << state << ", call " << &draw - draws;
        }
}

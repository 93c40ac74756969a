// Drawing bitmaps and textures on canvases: operations, opacity, clips, origins, slices, and lenient results.
#include "support/host.h"

using namespace host;

namespace {

constexpr DWORD operations[] = {0x00000000, 0x01000000, 0x02000000, 0x03000000, 0x06000000, 0x09000000};
constexpr BYTE opacities[] = {0, 1, 128, 254, 255};
constexpr int depths[] = {8, 24, 32};

// A source of any depth whose 32-bit pixels are premultiplied and whose palette has every alpha.
OwnedBitmap MakeSource(int width, int height, int depth) {
    OwnedBitmap bitmap = MakeBitmap(width, height, depth, 200);
    Pixels pixels(bitmap.get());
    if (depth == 8) {
        for (int i = 0; i < 200; ++i) pixels->palette[i] = PremultipliedPattern{5}(i, 0);
        pixels.Fill([](int x, int y) { return Pattern{9}(x, y) % 200; });
    } else {
        pixels.Fill(PremultipliedPattern{7});
    }
    return bitmap;
}

// The key: the colour of one of the source's pixels, as a 24- or 32-bit pixel holds it.
DWORD KeyOf(const OwnedBitmap& bitmap) { return Pixels(bitmap.get()).Get(3, 2) & 0x00FFFFFF; }

struct Draw {
    RECT dst;
    POINT viewport, window;
};

// Source 23 x 17: same size, enlarged, reduced, mixed, and far outside.
constexpr Draw draws[] = {
    {{4, 3, 27, 20}, {0, 0}, {0, 0}},       {{-9, -5, 14, 12}, {3, 2}, {1, -4}},  {{-20, -30, 61, 47}, {0, 0}, {0, 0}},
    {{5, 6, 18, 15}, {0, 0}, {0, 0}},       {{-3, 8, 90, 13}, {7, -1}, {0, 5}},   {{11, -40, 16, 90}, {-2, 0}, {0, 0}},
    {{-300, -10, 500, 40}, {0, 0}, {0, 0}}, {{20, -1000, 30, 9}, {0, 0}, {0, 0}},
};

OwnedCanvas MakeCanvas(const Draw& draw) {
    OwnedCanvas canvas(CreateCanvas(40, 32, nullptr));
    Fill(canvas.get(), PremultipliedPattern{3});
    SetViewportOrg(canvas.get(), draw.viewport.x, draw.viewport.y, nullptr);
    SetWindowOrg(canvas.get(), draw.window.x, draw.window.y, nullptr);
    return canvas;
}

}  // namespace

// The draw is done once on a canvas that holds all of it, and once clipped; the clipped one is a crop of the other.
TEST(Bitmaps, ClippedDrawsHaveThePixelsOfTheWholeDraw) {
    for (const int depth : depths) {
        const OwnedBitmap source = MakeSource(23, 17, depth);
        for (const Draw& draw : draws) {
            const int width = draw.dst.right - draw.dst.left, height = draw.dst.bottom - draw.dst.top;
            const POINT shift{draw.viewport.x - draw.window.x, draw.viewport.y - draw.window.y};
            const RECT onCanvas{draw.dst.left + shift.x, draw.dst.top + shift.y, draw.dst.right + shift.x,
                                draw.dst.bottom + shift.y};
            for (const DWORD operation : operations)
                for (const BYTE alpha : opacities)
                    for (const DWORD filter :
                         {ZORVIC_FILTER_NEAREST, ZORVIC_FILTER_BILINEAR, ZORVIC_FILTER_BICUBIC, ZORVIC_FILTER_AREA}) {
                        SetBitmapFilter(source.get(), operation | (operation == 0x02000000 ? KeyOf(source) : 0));
                        const OwnedCanvas wholeCanvas(CreateCanvas(width, height, nullptr));
                        Fill(wholeCanvas.get(), [&](int x, int y) {
                            return PremultipliedPattern{3}(x + onCanvas.left, y + onCanvas.top);
                        });
                        const RECT all{0, 0, width, height};
                        ASSERT_EQ(DrawBitmapEx(wholeCanvas.get(), &all, source.get(), filter, alpha), 1);
                        const Snapshot whole(wholeCanvas.get());

                        const OwnedCanvas canvas = MakeCanvas(draw);
                        ASSERT_EQ(DrawBitmapEx(canvas.get(), &draw.dst, source.get(), filter, alpha), 1);
                        ASSERT_TRUE(Shows(canvas.get(),
                                          [&](int x, int y) {
                                              return Inside(onCanvas, x, y) ? whole(x - onCanvas.left, y - onCanvas.top)
                                                                            : PremultipliedPattern{3}(x, y);
                                          }))
                            << ToText(draw.dst) << " depth " << depth << " operation " << operation << " alpha "
                            << int{alpha} << " filter " << filter;
                    }
        }
    }
}

TEST(Bitmaps, TheClipCutsAndTheOriginMoves) {
    const OwnedBitmap source = MakeBitmap(10, 10, Pattern{});
    const OwnedCanvas canvas(CreateCanvas(30, 30, nullptr));
    const RECT clip{8, 9, 15, 14};
    SetCanvasClipRect(canvas.get(), &clip);
    SetViewportOrg(canvas.get(), 6, 7, nullptr);  // the clip stays where it is
    EXPECT_EQ(DrawBitmap(canvas.get(), nullptr, source.get(), 0), 1);
    EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Inside(clip, x, y) ? Pattern{}(x - 6, y - 7) : 0; }));
}

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

TEST(Bitmaps, EveryOperationDoesToAPixelWhatItsFormulaSays) {
    for (const OperationCase& c : operationCases)
        for (const int size : {3, 7}) {  // unscaled, and enlarged by nearest sampling
            const OwnedBitmap source = MakeBitmap(3, 3, c.depth);
            Fill(source.get(), [&](int, int) { return c.source; });
            SetBitmapFilter(source.get(), c.operation);
            const OwnedCanvas canvas(CreateCanvas(size, size, nullptr));
            Fill(canvas.get(), [&](int, int) { return c.before; });
            const RECT dst{0, 0, size, size};
            EXPECT_EQ(DrawBitmapEx(canvas.get(), &dst, source.get(), ZORVIC_FILTER_NEAREST, c.alpha), 1) << c.name;
            EXPECT_TRUE(Shows(canvas.get(), [&](int, int) { return c.after; })) << c.name << ", size " << size;
        }
}

TEST(Bitmaps, NearestSamplingIsAnchoredAtTheTopLeft) {
    const struct {
        int source, drawn;
        std::vector<int> columns;
    } cases[] = {{2, 4, {0, 0, 1, 1}}, {3, 2, {0, 1}}, {4, 3, {0, 1, 2}}, {5, 1, {0}}, {3, 7, {0, 0, 0, 1, 1, 2, 2}}};
    for (const auto& c : cases) {
        const OwnedBitmap source = MakeBitmap(c.source, c.source, Pattern{});
        const OwnedCanvas canvas(CreateCanvas(c.drawn, c.drawn, nullptr));
        const RECT dst{0, 0, c.drawn, c.drawn};
        DrawBitmap(canvas.get(), &dst, source.get(), ZORVIC_FILTER_NEAREST);
        const auto at = [&](int i) { return c.columns[static_cast<std::size_t>(i)]; };
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) { return Pattern{}(at(x), at(y)); }))
            << c.source << " to " << c.drawn;
    }
}

TEST(Bitmaps, PartsOfTheSourceMustLieInsideIt) {
    const OwnedBitmap source = MakeBitmap(12, 9, Pattern{});
    const OwnedCanvas canvas(CreateCanvas(12, 9, nullptr));
    const RECT dst{1, 1, 6, 5};
    const struct {
        RECT src;
        bool drawn;
    } cases[] = {{{3, 2, 8, 6}, true},
                 {{7, 5, 12, 9}, true},
                 {{8, 5, 13, 9}, false},
                 {{-1, 0, 4, 4}, false},
                 {{8, 6, 3, 2}, false},
                 {{3, 2, 3, 6}, false},
                 {{LONG_MIN, 0, LONG_MAX, 4}, false}};
    for (const auto& c : cases) {
        Fill(canvas.get(), [](int, int) { return 0U; });
        EXPECT_EQ(DrawBitmapEx2(canvas.get(), &dst, source.get(), &c.src, 0, 255), 1) << ToText(c.src);
        EXPECT_TRUE(Shows(canvas.get(), [&](int x, int y) {
            return c.drawn && Inside(dst, x, y) ? Pattern{}(x - 1 + c.src.left, y - 1 + c.src.top) : 0;
        })) << ToText(c.src);
    }
}

TEST(Bitmaps, AnyRectangleIsHarmless) {
    const OwnedBitmap source = MakeSource(5, 4, 32);
    const OwnedCanvas canvas(CreateCanvas(9, 7, nullptr));
    constexpr LONG edges[] = {LONG_MIN, LONG_MIN + 1, -40000, -1, 0, 3, 9, 40000, LONG_MAX - 1, LONG_MAX};
    for (const DWORD operation : operations) {
        SetBitmapFilter(source.get(), operation);
        for (const LONG left : edges)
            for (const LONG right : edges)
                for (const LONG top : edges)
                    for (const LONG bottom : edges) {
                        const RECT rect{left, top, right, bottom};
                        ASSERT_EQ(DrawBitmapEx(canvas.get(), &rect, source.get(), operation >> 24, 200), 1);
                        ASSERT_EQ(DrawBitmapEx2(canvas.get(), nullptr, source.get(), &rect, 0, 255), 1);
                    }
    }
    // At nearly 2^32 pixels either way the step is nothing: everything shows the first pixel.
    SetBitmapFilter(source.get(), ZORVIC_OP_COPY);
    const RECT huge{LONG_MIN, LONG_MIN, LONG_MAX, LONG_MAX};
    DrawBitmap(canvas.get(), &huge, source.get(), ZORVIC_FILTER_NEAREST);
    EXPECT_TRUE(Shows(canvas.get(), [](int, int) { return PremultipliedPattern{7}(0, 0); }));
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
    for (const int state : {2, 0, 1}) {
        SetTextureCurSlice(texture.get(), state);
        const auto picture = [&](int x, int y) { return Pattern{}(x + 4 * state, y); };
        Fill(canvas.get(), [](int, int) { return 0U; });
        EXPECT_EQ(DrawTexture(canvas.get(), &dst, texture.get(), 0), 1);
        EXPECT_TRUE(Shows(canvas.get(), picture)) << "DrawTexture, state " << state;
        Fill(canvas.get(), [](int, int) { return 0U; });
        EXPECT_EQ(DrawTextureEx(canvas.get(), &dst, texture.get(), 0, 255, 0, 0), 1);
        EXPECT_TRUE(Shows(canvas.get(), picture)) << "DrawTextureEx, state " << state;
        Fill(canvas.get(), [](int, int) { return 0U; });
        EXPECT_EQ(DrawTextureEx3(canvas.get(), &dst, texture.get(), &params, nullptr), 1);
        EXPECT_TRUE(Shows(canvas.get(), picture)) << "DrawTextureEx3, state " << state;
    }
    const RECT outside{10, 0, 14, 4};
    SetTextureSlice(texture.get(), 1, &outside);
    Fill(canvas.get(), [](int, int) { return 0U; });
    EXPECT_EQ(DrawTexture(canvas.get(), &dst, texture.get(), 0), 1);
    EXPECT_TRUE(Shows(canvas.get(), [](int, int) { return 0U; })) << "a slice that leaves the texture draws nothing";
}

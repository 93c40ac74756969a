// Style, clip, translation, the stack of states, layers, and what every call refuses.
#include <limits>

#include "script.h"

using namespace vek_test;

TEST(State, DefaultsAndGetters) {
    Drawing drawing;
    EXPECT_EQ(vekCanvasGetBlendMode(drawing), VEK_BLEND_SOURCE_OVER);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 255);
    EXPECT_EQ(vekCanvasGetStrokeWidth(drawing), 1);
    Draw(drawing, "circle 20 20 9  line 30.5 9 30.5 30");
    EXPECT_EQ(drawing.At(20, 20), 0xFF000000);
    EXPECT_EQ(drawing.At(30, 20), 0xFF000000);
    EXPECT_EQ(drawing.At(31, 20), 0U);

    EXPECT_EQ(Draw(drawing, "value 1000"), 1);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 255);
    EXPECT_EQ(Draw(drawing, "mode 10  width 2.5  value -3"), 1);
    for (const char* bad : {"mode -1", "mode 27", "mode 1000", "width 0", "width -1", "style 3", "cap 3", "join -1"})
        EXPECT_EQ(Draw(drawing, bad), 0) << bad;
    EXPECT_EQ(vekCanvasGetBlendMode(drawing), VEK_BLEND_XOR);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 0);
    EXPECT_EQ(vekCanvasGetStrokeWidth(drawing), 2.5F);
}

TEST(State, RestoreUndoesEverything) {
    Drawing drawing;
    const auto picture = [&] {
        std::fill(drawing.words.begin(), drawing.words.end(), 0U);
        Draw(drawing,
             "circle 30 30 20.5  line 5.5 60 60 70  L 90 90  L 120 40  L 130 90  save  style 1  path  restore");
        return drawing.words;
    };
    // A base where every change shows: a gradient fill, wide strokes.
    Draw(drawing, "linear 0 0 100 0  #FFFF0000 stop 0  #FF0000FF stop 1  style 2  width 8");
    const auto before = picture();
    for (const std::string change :
         {"#FF123456", "style 1", "linear 0 0 1 0  stop 0", "smooth 0", "mode 3", "value 9", "width 9", "cap 1",
          "join 1", "dash 2", "dashes 1 50", "clip 15 0 200 200", "translate 7 9"}) {
        EXPECT_EQ(Draw(drawing, "save  " + change), 1);
        EXPECT_NE(picture(), before) << change << " has no effect";
        EXPECT_EQ(Draw(drawing, "restore"), 1);
        EXPECT_EQ(picture(), before) << change;
        EXPECT_EQ(Draw(drawing, "layer 0  " + change + "  restore"), 1);
        EXPECT_EQ(picture(), before) << change << " in a layer";
    }
    EXPECT_EQ(Draw(drawing, "restore"), 0);
    EXPECT_EQ(picture(), before);
}

TEST(State, ClipsIntersectInTheCoordinatesOfTheirMoment) {
    Drawing drawing;
    const std::string everything = "  rectangle -1e6 -1e6 2e6 2e6";
    Draw(drawing, "clip 10 10 100 100  translate 50 60  clip -20 -20 30 30  translate -50 -60" + everything);
    EXPECT_EQ(drawing.Area(), 50.0 * 50);
    EXPECT_EQ(drawing.At(30, 40), 0xFF000000);
    EXPECT_EQ(drawing.At(79, 89), 0xFF000000);
    std::fill(drawing.words.begin(), drawing.words.end(), 0U);
    EXPECT_EQ(Draw(drawing, "clip 50 50 50 60  clip 10 10 100 100" + everything), 1);
    EXPECT_EQ(drawing.Area(), 0);
}

TEST(State, LayersAreComposedOnceWithTheirOpacity) {
    Drawing drawing;
    const RECT bounds{20, 20, 80, 80};
    // The mode inside the layer meets the layer's transparent pixels only; the layer itself is drawn over.
    Draw(drawing, "translate 10 0  mode 1");
    EXPECT_EQ(vekCanvasSaveLayer(drawing, &bounds, 128), 1);
    EXPECT_EQ(Draw(drawing,
                   "#FFFF0000 rectangle 0 0 60 200  #FF0000FF rectangle 50 0 100 200  "
                   "layer 0  rectangle 0 0 200 200  restore"),
              1);
    EXPECT_EQ(drawing.Area(), 0);
    EXPECT_EQ(Draw(drawing, "restore"), 1);
    EXPECT_EQ(drawing.At(40, 50), 0x80800000);
    EXPECT_EQ(drawing.At(65, 50), 0x80000080);
    EXPECT_NEAR(drawing.Area(), 60 * 60 * 128.0 / 255, 1e-6);
    EXPECT_EQ(drawing.At(29, 50), 0U);
    EXPECT_EQ(drawing.At(90, 50), 0U);
}

#ifndef _WIN64
// As large as bitmaps get, with memory for its first rows only: 32 bits cannot address a layer of that size.
TEST(State, ALayerWithoutMemoryIsOnlyASave) {
    constexpr int most = 32767;
    Pixels rows(most, 3);
    const OwnedBitmap huge(vekBitmapCreateFromData(rows.words.data(), most, most, most * 4));
    Drawing drawing;
    vekCanvasSetBitmap(drawing, huge.get());
    EXPECT_EQ(Draw(drawing, "layer 128"), 0);
    EXPECT_EQ(Draw(drawing, "#FF00FF00  circle 1.5 1.5 1.4  restore  point 9 1"), 1);
    EXPECT_EQ(rows.At(1, 1), 0xFF00FF00);
    EXPECT_EQ(rows.At(9, 1), 0xFF000000);
}
#endif

TEST(State, RebindingKeepsStyleAndUsesTheNewPixels) {
    Drawing drawing(50, 50);
    Pixels other(60, 30);
    Draw(drawing, "#80FF0000  save  #FF00FF00  translate 5 0");
    EXPECT_EQ(vekCanvasSetBitmap(drawing, nullptr), 0);
    Draw(drawing, "point 0 0");
    EXPECT_EQ(drawing.At(5, 0), 0xFF00FF00);
    EXPECT_EQ(vekCanvasSetBitmap(drawing, other.Wrap().get()), 1);
    Draw(drawing, "circle 50 10 4  restore  circle 20 20 5");
    EXPECT_EQ(other.At(55, 10), 0xFF00FF00);
    EXPECT_EQ(other.At(20, 20), 0x80800000);
    EXPECT_EQ(drawing.Area(), 1);
}

TEST(State, NothingHappensWithoutAHandleOrABitmap) {
    const float numbers[] = {1, 1, 2, 2, 1, 1};
    const RECT rect{0, 0, 10, 10};
    Pixels pixels(10, 10);
    const OwnedBitmap bitmap = pixels.Wrap();
    const Owned<VekCanvas> bare(vekCanvasCreate());
    Pen none(nullptr), empty(bare.get());
    none.path.reset();
    for (const NumberCall& call : NumberCalls()) {
        none.gradient.reset();
        EXPECT_EQ(call.call(none, numbers), 0) << call.name;
    }
    for (const char* script : {"B", "Z", "path", "save", "restore", "layer 9", "style 1", "smooth 1", "mode 1",
                               "value 1", "cap 1", "join 1", "dash 1", "clip 0 0 9 9", "fill 0 0 9 9", "#FFFFFFFF"})
        EXPECT_EQ(Draw(none, script), 0) << script;
    // The refused layer is a save all the same.
    for (const char* script : {"point 1 1", "line 1 1 2 2", "rectangle 1 1 2 2", "round 1 1", "circle 1 1 1",
                               "ellipse 1 1 2 2", "path", "fill 0 0 9 9", "bitmap 1 1", "layer 9"})
        EXPECT_EQ(Draw(empty, script), 0) << script;
    EXPECT_EQ(Draw(empty, "restore"), 1);
    EXPECT_EQ(Draw(empty, "restore"), 0);

    Drawing drawing;
    VekBounds bounds{9, 9, 9, 9};
    const int results[] = {vekCanvasSetBitmap(nullptr, bitmap.get()),
                           vekCanvasSaveLayer(nullptr, &rect, 9),
                           vekCanvasClipRect(drawing, nullptr),
                           vekCanvasGetBlendMode(nullptr),
                           vekCanvasGetBlendValue(nullptr),
                           static_cast<int>(vekCanvasGetStrokeWidth(nullptr)),
                           vekCanvasSetGradient(nullptr, nullptr),
                           vekCanvasDrawPath(drawing, nullptr),
                           vekCanvasDrawBitmap(drawing, nullptr, 0, 0),
                           vekCanvasDrawColor(drawing, 1, nullptr),
                           vekCanvasDrawRoundRect(drawing, nullptr, 1, 1),
                           vekPathGetBounds(nullptr, &bounds),
                           vekPathGetBounds(empty, nullptr)};
    for (std::size_t i = 0; i < std::size(results); ++i) EXPECT_EQ(results[i], 0) << i;
    EXPECT_EQ(bounds.left, 9);
    EXPECT_EQ(drawing.Area(), 0);
    vekCanvasDestroy(nullptr);
    vekBitmapDestroy(nullptr);
    vekPathDestroy(nullptr);
    vekGradientDestroy(nullptr);
}

TEST(State, BadBitmapsAndPatternsAreRefused) {
    Pixel word = 0;
    const struct {
        void* bits;
        int width, height, stride;
    } bitmaps[] = {{nullptr, 1, 1, 4},
                   {&word, 0, 1, 4},
                   {&word, 1, 0, 4},
                   {&word, -1, 1, 4},
                   {&word, 2, 1, 4},
                   {&word, 1, 1, 6},
                   {&word, 1, 1, -4},
                   {&word, 1, 1, 0},
                   {&word, 1, 32768, 4},
                   {&word, 32768, 1, 200000},
                   {reinterpret_cast<char*>(&word) + 1, 1, 1, 4}};
    for (const auto& b : bitmaps) EXPECT_EQ(vekBitmapCreateFromData(b.bits, b.width, b.height, b.stride), nullptr);

    Drawing drawing;
    constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
    constexpr float endless = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Draw(drawing, "dashes 2 2"), 1);
    for (const auto& [a, b] : {std::pair{0.0F, 0.0F}, {5.0F, -1.0F}, {5.0F, notANumber}, {endless, 1.0F}}) {
        const float pattern[] = {a, b};
        EXPECT_EQ(vekCanvasSetDashPattern(drawing, pattern, 2), 0) << a << ", " << b;
        EXPECT_EQ(vekCanvasSetDashPattern(drawing, pattern, -1), 0);
    }
    Draw(drawing, "line 10 10.5 110 10.5");
    EXPECT_NEAR(drawing.Area(), 50, 0.01) << "the old pattern stays";
}

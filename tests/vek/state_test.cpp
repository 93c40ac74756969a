// Style, clip, translation, the stack of states, layers, and what every call refuses.
#include <functional>
#include <limits>

#include "drawing.h"

using namespace vek_test;

namespace {

// A pixel of a small circle drawn now: its colour tells what style is set.
Pixel Probe(Drawing& drawing) {
    std::fill(drawing.words.begin(), drawing.words.end(), 0U);
    vekCanvasDrawRectangle(drawing, 10, 10, 20, 20);
    return drawing.At(20, 20);
}

}  // namespace

TEST(State, DefaultsAndGetters) {
    Drawing drawing;
    EXPECT_EQ(vekCanvasGetBlendMode(drawing), VEK_BLEND_SOURCE_OVER);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 255);
    EXPECT_EQ(vekCanvasGetStrokeWidth(drawing), 1);
    EXPECT_EQ(Probe(drawing), 0xFF000000);

    EXPECT_EQ(vekCanvasSetBlendValue(drawing, 1000), 1);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 255);
    EXPECT_EQ(vekCanvasSetBlendMode(drawing, VEK_BLEND_XOR), 1);
    EXPECT_EQ(vekCanvasSetStrokeWidth(drawing, 2.5F), 1);
    for (const int mode : {-1, 27, 1000}) EXPECT_EQ(vekCanvasSetBlendMode(drawing, mode), 0);
    for (const float width :
         {0.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()})
        EXPECT_EQ(vekCanvasSetStrokeWidth(drawing, width), 0);
    EXPECT_EQ(vekCanvasGetBlendMode(drawing), VEK_BLEND_XOR);
    EXPECT_EQ(vekCanvasGetStrokeWidth(drawing), 2.5F);
}

TEST(State, RestoreUndoesEverything) {
    Drawing drawing;
    const RECT clip{15, 0, 200, 200};
    const float pattern[] = {1, 50};
    const OwnedGradient gradient(vekGradientCreateLinear(0, 0, 1, 0));
    vekGradientAddColorStop(gradient.get(), 0, 0xFF00FF00);
    const std::function<void()> changes[] = {
        [&] { vekCanvasSetColor(drawing, 0xFF123456); },
        [&] { vekCanvasSetDrawStyle(drawing, VEK_DRAW_STROKE); },
        [&] { vekCanvasSetGradient(drawing, gradient.get()); },
        [&] { vekCanvasSetSmooth(drawing, 0); },
        [&] { vekCanvasSetBlendMode(drawing, VEK_BLEND_CLEAR); },
        [&] { vekCanvasSetBlendValue(drawing, 9); },
        [&] { vekCanvasSetStrokeWidth(drawing, 9); },
        [&] { vekCanvasSetStrokeCap(drawing, VEK_CAP_ROUND); },
        [&] { vekCanvasSetStrokeJoin(drawing, VEK_JOIN_ROUND); },
        [&] { vekCanvasSetDashStyle(drawing, VEK_DASH_DOT); },
        [&] { vekCanvasSetDashPattern(drawing, pattern, 2); },
        [&] { vekCanvasClipRect(drawing, &clip); },
        [&] { vekCanvasTranslate(drawing, 7, 9); },
    };
    const auto picture = [&] {
        std::fill(drawing.words.begin(), drawing.words.end(), 0U);
        vekCanvasDrawCircle(drawing, 30, 30, 20.5F);
        vekCanvasDrawLine(drawing, 5.5F, 60, 60, 70);
        const OwnedPath path = MakePath();
        for (const auto& [x, y] : {std::pair{90.0F, 90.0F}, {120.0F, 40.0F}, {130.0F, 90.0F}})
            vekPathLineTo(path.get(), x, y);
        vekCanvasSave(drawing);
        vekCanvasSetDrawStyle(drawing, VEK_DRAW_STROKE);
        vekCanvasDrawPath(drawing, path.get());
        vekCanvasRestore(drawing);
        return drawing.words;
    };
    // A base where every change shows: a gradient fill, wide strokes.
    const OwnedGradient base(vekGradientCreateLinear(0, 0, 100, 0));
    vekGradientAddColorStop(base.get(), 0, 0xFFFF0000);
    vekGradientAddColorStop(base.get(), 1, 0xFF0000FF);
    vekCanvasSetGradient(drawing, base.get());
    vekCanvasSetDrawStyle(drawing, VEK_DRAW_GRADIENT);
    vekCanvasSetStrokeWidth(drawing, 8);
    const auto before = picture();
    for (std::size_t i = 0; i < std::size(changes); ++i)
        for (const bool layer : {false, true}) {
            EXPECT_EQ(layer ? vekCanvasSaveLayer(drawing, nullptr, 0) : vekCanvasSave(drawing), 1);
            changes[i]();
            if (!layer) {
                EXPECT_NE(picture(), before) << "change " << i << " has no effect";
            }
            EXPECT_EQ(vekCanvasRestore(drawing), 1);
            EXPECT_EQ(picture(), before) << "change " << i;
        }
    EXPECT_EQ(vekCanvasRestore(drawing), 0);
    EXPECT_EQ(picture(), before);
}

TEST(State, ClipsIntersectInTheCoordinatesOfTheirMoment) {
    Drawing drawing;
    const RECT first{10, 10, 100, 100}, second{-20, -20, 30, 30}, empty{50, 50, 50, 60};
    vekCanvasClipRect(drawing, &first);
    vekCanvasTranslate(drawing, 50, 60);
    vekCanvasClipRect(drawing, &second);
    vekCanvasTranslate(drawing, -50, -60);
    vekCanvasDrawRectangle(drawing, -1e6F, -1e6F, 2e6F, 2e6F);
    EXPECT_EQ(drawing.Area(), 50.0 * 50);
    EXPECT_EQ(drawing.At(30, 40), 0xFF000000);
    EXPECT_EQ(drawing.At(79, 89), 0xFF000000);

    std::fill(drawing.words.begin(), drawing.words.end(), 0U);
    vekCanvasClipRect(drawing, &empty);
    vekCanvasClipRect(drawing, &first);
    EXPECT_EQ(vekCanvasDrawRectangle(drawing, 0, 0, 200, 200), 1);
    EXPECT_TRUE(drawing.IsEmpty());
}

TEST(State, LayersAreComposedOnceWithTheirOpacity) {
    Drawing drawing;
    const RECT bounds{20, 20, 80, 80};
    vekCanvasTranslate(drawing, 10, 0);
    // The mode inside the layer meets the layer's transparent pixels only; the layer itself is drawn over.
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE);
    EXPECT_EQ(vekCanvasSaveLayer(drawing, &bounds, 128), 1);
    vekCanvasSetColor(drawing, 0xFFFF0000);
    vekCanvasDrawRectangle(drawing, 0, 0, 60, 200);
    vekCanvasSetColor(drawing, 0xFF0000FF);
    vekCanvasDrawRectangle(drawing, 50, 0, 100, 200);
    EXPECT_EQ(vekCanvasSaveLayer(drawing, nullptr, 0), 1);
    vekCanvasDrawRectangle(drawing, 0, 0, 200, 200);
    EXPECT_EQ(vekCanvasRestore(drawing), 1);
    EXPECT_TRUE(drawing.IsEmpty());
    EXPECT_EQ(vekCanvasRestore(drawing), 1);
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
    EXPECT_EQ(vekCanvasSaveLayer(drawing, nullptr, 128), 0);
    vekCanvasSetColor(drawing, 0xFF00FF00);
    EXPECT_EQ(vekCanvasDrawCircle(drawing, 1.5F, 1.5F, 1.4F), 1);
    EXPECT_EQ(rows.At(1, 1), 0xFF00FF00);
    EXPECT_EQ(vekCanvasRestore(drawing), 1);
    vekCanvasDrawPoint(drawing, 9, 1);
    EXPECT_EQ(rows.At(9, 1), 0xFF000000);
}
#endif

TEST(State, RebindingKeepsStyleAndUsesTheNewPixels) {
    Drawing drawing(50, 50);
    Pixels other(60, 30);
    vekCanvasSetColor(drawing, 0x80FF0000);
    vekCanvasSave(drawing);
    vekCanvasSetColor(drawing, 0xFF00FF00);
    vekCanvasTranslate(drawing, 5, 0);
    EXPECT_EQ(vekCanvasSetBitmap(drawing, nullptr), 0);
    vekCanvasDrawPoint(drawing, 0, 0);
    EXPECT_EQ(drawing.At(5, 0), 0xFF00FF00);
    EXPECT_EQ(vekCanvasSetBitmap(drawing, other.Wrap().get()), 1);
    vekCanvasDrawCircle(drawing, 50, 10, 4);
    EXPECT_EQ(other.At(55, 10), 0xFF00FF00);
    vekCanvasRestore(drawing);
    vekCanvasDrawCircle(drawing, 20, 20, 5);
    EXPECT_EQ(other.At(20, 20), 0x80800000);
    EXPECT_EQ(drawing.At(20, 20), 0U);
    EXPECT_EQ(drawing.Area(), 1);
}

// The owner may write between calls; Cairo must not rely on what it knew.
TEST(State, PixelsWrittenBetweenCallsCount) {
    Drawing drawing(40, 40, 0xFFFFFFFF);
    vekCanvasSetBlendMode(drawing, VEK_BLEND_CLEAR);
    vekCanvasDrawCircle(drawing, 20, 20, 100);
    ASSERT_TRUE(drawing.IsEmpty());
    std::fill(drawing.words.begin(), drawing.words.end(), 0xFF0000FF);
    vekCanvasSetBlendMode(drawing, VEK_BLEND_SOURCE_OVER);
    vekCanvasSetColor(drawing, 0x80FF0000);
    vekCanvasDrawCircle(drawing, 20, 20, 100);
    EXPECT_TRUE(IsNear(drawing.At(20, 20), 0xFF80007F, 1));
}

TEST(State, NothingHappensWithoutAHandleOrABitmap) {
    const RECT rect{0, 0, 10, 10};
    const float pattern[] = {1, 1};
    VekBounds bounds{9, 9, 9, 9};
    Pixels pixels(10, 10);
    const OwnedBitmap bitmap = pixels.Wrap();
    const OwnedPath path = MakePath();
    Drawing drawing;
    VekCanvas none = nullptr;
    const int results[] = {vekCanvasSetBitmap(none, bitmap.get()),
                           vekCanvasSave(none),
                           vekCanvasRestore(none),
                           vekCanvasSaveLayer(none, &rect, 9),
                           vekCanvasClipRect(none, &rect),
                           vekCanvasClipRect(drawing, nullptr),
                           vekCanvasTranslate(none, 1, 1),
                           vekCanvasSetDrawStyle(none, 1),
                           vekCanvasSetColor(none, 1),
                           vekCanvasSetSmooth(none, 1),
                           vekCanvasSetBlendMode(none, 1),
                           vekCanvasGetBlendMode(none),
                           vekCanvasSetBlendValue(none, 1),
                           vekCanvasGetBlendValue(none),
                           vekCanvasSetStrokeCap(none, 1),
                           vekCanvasSetStrokeJoin(none, 1),
                           vekCanvasSetStrokeWidth(none, 1),
                           static_cast<int>(vekCanvasGetStrokeWidth(none)),
                           vekCanvasSetDashStyle(none, 1),
                           vekCanvasSetDashPattern(none, pattern, 2),
                           vekCanvasSetGradient(none, nullptr),
                           vekCanvasDrawPath(drawing, nullptr),
                           vekCanvasDrawBitmap(drawing, nullptr, 0, 0),
                           vekCanvasDrawColor(drawing, 1, nullptr),
                           vekCanvasDrawRoundRect(drawing, nullptr, 1, 1),
                           vekPathBegin(nullptr),
                           vekPathClose(nullptr),
                           vekPathMoveTo(nullptr, 1, 1),
                           vekPathLineTo(nullptr, 1, 1),
                           vekPathArcTo(nullptr, 1, 1, 2, 2, 1),
                           vekPathBezierCurveTo(nullptr, 1, 1, 1, 1, 1, 1),
                           vekPathQuadraticCurveTo(nullptr, 1, 1, 1, 1),
                           vekPathAddArc(nullptr, 1, 1, 1, 1, 1, 1),
                           vekPathAddRectangle(nullptr, 1, 1, 1, 1),
                           vekPathAddCircle(nullptr, 1, 1, 1),
                           vekPathAddEllipse(nullptr, 1, 1, 1, 1),
                           vekPathGetBounds(nullptr, &bounds),
                           vekPathGetBounds(path.get(), nullptr),
                           vekGradientAddColorStop(nullptr, 0, 0)};
    for (std::size_t i = 0; i < std::size(results); ++i) EXPECT_EQ(results[i], 0) << i;
    EXPECT_EQ(bounds.left, 9);
    vekCanvasDestroy(nullptr);
    vekBitmapDestroy(nullptr);
    vekPathDestroy(nullptr);
    vekGradientDestroy(nullptr);

    const Owned<VekCanvas> bare(vekCanvasCreate());
    for (VekCanvas canvas : {none, bare.get()}) {
        const int draws[] = {vekCanvasDrawPoint(canvas, 1, 1),
                             vekCanvasDrawLine(canvas, 1, 1, 2, 2),
                             vekCanvasDrawRectangle(canvas, 1, 1, 2, 2),
                             vekCanvasDrawRoundRect(canvas, &rect, 1, 1),
                             vekCanvasDrawCircle(canvas, 1, 1, 1),
                             vekCanvasDrawEllipse(canvas, 1, 1, 1, 1),
                             vekCanvasDrawPath(canvas, path.get()),
                             vekCanvasDrawColor(canvas, 1, &rect),
                             vekCanvasDrawBitmap(canvas, bitmap.get(), 1, 1),
                             vekCanvasSaveLayer(canvas, nullptr, 9)};
        for (std::size_t i = 0; i < std::size(draws); ++i) EXPECT_EQ(draws[i], 0) << i;
    }
    // The refused layer was a save all the same.
    EXPECT_EQ(vekCanvasRestore(bare.get()), 1);
    EXPECT_EQ(vekCanvasRestore(bare.get()), 0);
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
                   {&word, 32768, 1, 200000},
                   {&word, 1, 1, 0},
                   {&word, 1, 32768, 4},
                   {reinterpret_cast<char*>(&word) + 1, 1, 1, 4}};
    for (const auto& b : bitmaps) EXPECT_EQ(vekBitmapCreateFromData(b.bits, b.width, b.height, b.stride), nullptr);

    Drawing drawing;
    const float good[] = {2, 2}, zero[] = {0, 0, 0}, negative[] = {5, -1};
    const float notANumber[] = {5, std::numeric_limits<float>::quiet_NaN()};
    const float endless[] = {std::numeric_limits<float>::infinity(), 1};
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, good, 2), 1);
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, zero, 3), 0);
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, negative, 2), 0);
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, notANumber, 2), 0);
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, endless, 2), 0);
    EXPECT_EQ(vekCanvasSetDashPattern(drawing, good, -1), 0);
    vekCanvasDrawLine(drawing, 10, 10.5F, 110, 10.5F);
    EXPECT_NEAR(drawing.Area(), 50, 0.01) << "the old pattern stays";
}

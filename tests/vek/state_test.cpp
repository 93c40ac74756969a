// Style, clip, translation, the stack of states, layers, and what every call refuses.
#include <set>

#include "drawing.h"

using namespace vek_test;

namespace {

// A picture where every part of the style shows.
const std::string picture =
    "circle 30 30 20.5  line 5.5 60 60 70  L 90 90  L 120 40  L 130 90  save  style 1  path  restore";

// Nothing happens without one of the pointers, but for those that are optional.
template <std::size_t none = 0, class Result, class... Args>
void ExpectRefusals(const std::string& name, Result (*function)(Args...)) {
    static const std::set<std::string> optional{"vekCanvasSaveLayer 1", "vekCanvasSetDashPattern 1",
                                                "vekCanvasSetGradient 1"};
    if constexpr (none < sizeof...(Args)) {
        if constexpr (std::is_pointer_v<std::tuple_element_t<none, std::tuple<Args...>>>) {
            Drawing drawing(10, 10);
            Pen pen(drawing);
            const float nines[] = {9, 9, 9, 9, 9, 9}, *next = nines;
            std::tuple<Args...> arguments{pen.Argument<Args>(next)...};
            std::get<none>(arguments) = nullptr;
            const std::string call = name + ' ' + std::to_string(none);
            if constexpr (std::is_void_v<Result>)
                std::apply(function, arguments);
            else
                EXPECT_EQ(static_cast<bool>(std::apply(function, arguments)), optional.contains(call)) << call;
            EXPECT_EQ(drawing.Area(), 0) << call;
            EXPECT_TRUE(pen.memory[0] == 9 && pen.memory[3] == 9) << call;
        }
        ExpectRefusals<none + 1>(name, function);
    }
}

}  // namespace

TEST(State, DefaultsAndRefusals) {
    EXPECT_TRUE(AreTheSame(
        picture, "#FF000000 style 0  smooth 1  mode 0  value 255  width 1  cap 0  join 0  dash 0  " + picture));
    EXPECT_TRUE(AreTheSame("value 1000  " + picture, picture));
    EXPECT_TRUE(AreTheSame("value -3  " + picture, ""));
    const std::string style = "style 1  mode 11  width 2.5  cap 1  join 1  dashes 2 2  ";
    for (const std::string bad : {"mode -1", "mode 27", "mode 1000", "width 0", "width -1", "style 3", "cap 3",
                                  "join -1", "dashes 0 0", "dashes 5 -1"}) {
        EXPECT_EQ(Draw(Drawing(), bad), 0) << bad;
        EXPECT_TRUE(AreTheSame(style + bad + picture, style + picture)) << bad;
    }
    Drawing drawing;
    Draw(drawing, "mode 10  width 2.5  value 7");
    EXPECT_EQ(vekCanvasGetBlendMode(drawing), VEK_BLEND_XOR);
    EXPECT_EQ(vekCanvasGetBlendValue(drawing), 7);
    EXPECT_EQ(vekCanvasGetStrokeWidth(drawing), 2.5F);
}

TEST(State, RestoreUndoesEverything) {
    // Gradients and wide strokes, where every change shows.
    const std::string style = "linear 0 0 100 0  #FFFF0000 stop 0  #FF0000FF stop 1  style 2  width 8  ";
    for (const std::string change :
         {"#FF123456", "style 1", "linear 0 0 1 0  stop 0", "smooth 0", "mode 3", "value 9", "width 9", "cap 1",
          "join 1", "dash 2", "dashes 1 50", "clip 15 0 200 200", "translate 7 9"}) {
        EXPECT_FALSE(AreTheSame(style + change + "  " + picture, style + picture)) << change;
        for (const std::string save : {"save  ", "layer 0 0 200 200 0  "})
            EXPECT_TRUE(AreTheSame(style + save + change + "  restore  " + picture, style + picture));
    }
    EXPECT_EQ(Draw(Drawing(), "restore"), 0);
}

TEST(State, ClipsLayersAndGradientsFollowTheTranslation) {
    const std::string everything = "  rectangle -1e6 -1e6 2e6 2e6",
                      marks = "  point 3 4  fill 9 9 20 20  line 0 30 9 50", linear = "  style 2  #FFFF0000 linear ",
                      stops = " stop 0  #FF0000FF stop 1  ", dot = "  style 0  #FF112233 circle ",
                      shaded = linear + "0 0 100 0" + stops + "circle 90 30 20";
    const std::pair<std::string, std::string> same[] = {
        {"clip 10 10 100 100  translate 50 60  clip -20 -20 30 30  translate -50 -60" + everything, "fill 30 40 80 90"},
        {"clip 50 50 50 60  clip 10 10 100 100" + everything, ""},
        {"layer 0 0 200 200 128" + everything, ""},
        {"layer 0 0 40 50 128" + everything + "  restore", "#80000000 fill 0 0 40 50"},
        // The mode inside the layer meets the layer's transparent pixels only; the layer itself is drawn over.
        {"bitmap 30 20  translate 10 0  mode 1  layer 20 20 80 80 255  #80FF0000 rectangle 0 0 60 200  "
         "#800000FF rectangle 50 0 100 200  layer 0 0 200 200 0  rectangle 0 0 200 200  restore  restore",
         "bitmap 30 20  #80FF0000 fill 30 20 60 80  #800000FF fill 60 20 90 80"},
        {"style 2  #FF112233" + everything, "#FF112233 fill 0 0 200 200"},
        {"style 2  linear 0 0 9 9" + marks, marks},
        // The same colour before and after a gradient.
        {dot + "30 30 9" + shaded + dot + "30 90 9", shaded + dot + "30 30 9" + dot + "30 90 9"},
        {linear + "0 0 100 0" + stops +
             "rectangle 0 0 9 9  translate 50 20  circle 50 50 30  value 99  rectangle 0 90 90 9",
         linear + "0 0 100 0" + stops + "rectangle 0 0 9 9" + linear + "50 20 150 20" + stops + "circle 100 70 30" +
             linear + "50 0 150 0" + stops + "value 99  rectangle 50 110 90 9"},
    };
    for (const auto& [one, other] : same) EXPECT_TRUE(AreTheSame(one, other));
}

#ifndef _WIN64
// As large as bitmaps get, with memory for its first rows only: 32 bits cannot address a layer of that size.
TEST(State, ALayerWithoutMemoryIsOnlyASave) {
    constexpr int most = 32767;
    Pixels rows(most, 3);
    const Owned<VekBitmap> huge(vekBitmapCreateFromData(rows.words.data(), most, most, most * 4));
    Drawing drawing;
    vekCanvasSetBitmap(drawing, huge.get());
    EXPECT_EQ(Draw(drawing, "layer 0 0 40000 40000 128"), 0);
    EXPECT_EQ(Draw(drawing, "#FF00FF00  circle 1.5 1.5 1.4  restore  point 9 1"), 1);
    EXPECT_TRUE(rows.At(1, 1) == 0xFF00FF00 && rows.At(9, 1) == 0xFF000000);
}
#endif

TEST(State, RebindingKeepsStyleAndUsesTheNewPixels) {
    Drawing drawing(50, 50);
    Pixels other(60, 30);
    Draw(drawing, "#80FF0000  save  #FF00FF00  translate 5 0  point 0 0");
    EXPECT_EQ(vekCanvasSetBitmap(drawing, other.Wrap().get()), 1);
    Draw(drawing, "circle 50 10 4  restore  circle 20 20 5");
    EXPECT_TRUE(other.At(55, 10) == 0xFF00FF00 && other.At(20, 20) == 0x80800000 && drawing.Area() == 1);
}

TEST(State, NothingHappensWithoutAHandleOrABitmap) {
#define RECORDED(Result, name, ...) ExpectRefusals(#name, name);
#include "backend_functions.inl"
#undef RECORDED
    const Owned<VekCanvas> bare(vekCanvasCreate());
    // The refused layer is a save all the same.
    for (const char* script : {"point 1 1", "line 1 1 2 2", "rectangle 1 1 2 2", "round 1 1", "circle 1 1 1",
                               "ellipse 1 1 2 2", "path", "fill 0 0 9 9", "bitmap 1 1", "layer 0 0 9 9 9"})
        EXPECT_EQ(Draw(bare.get(), script), 0) << script;
    EXPECT_EQ(Draw(bare.get(), "restore"), 1);
    EXPECT_EQ(Draw(bare.get(), "restore"), 0);
}

TEST(State, BadBitmapsAndPatternsAreRefused) {
    Pixel words[2] = {};
    EXPECT_EQ(vekBitmapCreateFromData(reinterpret_cast<char*>(words) + 1, 1, 1, 4), nullptr);
    const int bad[][3] = {{0, 1, 4},  {1, 0, 4}, {-1, 1, 4},    {2, 1, 4},         {1, 1, 6},
                          {1, 1, -4}, {1, 1, 0}, {1, 32768, 4}, {32768, 1, 200000}};
    for (const auto& [width, height, stride] : bad)
        EXPECT_EQ(vekBitmapCreateFromData(words, width, height, stride), nullptr)
            << width << " x " << height << ", " << stride;
    const float pattern[] = {2, 2};
    EXPECT_EQ(vekCanvasSetDashPattern(Drawing(), pattern, -1), 0);
}

// Arguments that no sensible caller passes: nothing crashes, hangs, leaves the clip or writes outside the pixels.
#include <cmath>
#include <thread>

#include "drawing.h"
#include "support/amount.h"
#include "support/cpu_state.h"

#include <psapi.h>

using namespace vek_test;

namespace {

SIZE_T CommittedBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

// A random style that leaves nothing out.
void SetRandomStyle(VekCanvas canvas, std::mt19937& random) {
    const std::pair<int (*)(VekCanvas, int), unsigned> setters[] = {
        {vekCanvasSetDrawStyle, 3}, {vekCanvasSetSmooth, 4},     {vekCanvasSetBlendMode, 27},
        {vekCanvasSetStrokeCap, 3}, {vekCanvasSetStrokeJoin, 3}, {vekCanvasSetDashStyle, 6}};
    for (const auto& [set, count] : setters) set(canvas, static_cast<int>(random() % count));
    vekCanvasSetColor(canvas, random() | 0x20000000);
    vekCanvasSetBlendValue(canvas, random() % 2 ? 255 : static_cast<int>(random() % 256));
    vekCanvasSetStrokeWidth(canvas, static_cast<float>(random() % 300) / 10);
}

// Hosts that are compiled with other compilers call with a stack aligned to 4 bytes only, and count on their registers.
void DrawPathWatched(Pen& pen, [[maybe_unused]] int residue) {
#if ZORVIC_WATCHES_CALLS
    const std::uint32_t words[] = {reinterpret_cast<std::uint32_t>(pen.canvas),
                                   reinterpret_cast<std::uint32_t>(pen.path.get())};
    const auto outcome = zorvic::CallWatched(reinterpret_cast<const void*>(&vekCanvasDrawPath), words, residue);
    EXPECT_TRUE(outcome.result == 1 && !outcome.broken) << outcome.broken;
#else
    EXPECT_EQ(Draw(pen, "path"), 1);
#endif
}

}  // namespace

// Ordinary numbers, and by turns extreme ones and such as are refused, in every call, style, clip and layer.
TEST(Abuse, RandomCallsEndLeakNothingAndStayInsideTheClip) {
    constexpr float extremes[] = {0,    1e-40F, 0.3F,  -30,   256.5F, 32767,   -32769, 65536,    1e5F,      -1e6F,
                                  8e6F, 2e9F,   -3e9F, 1e30F, -1e30F, 3.4e38F, -3e38F, INFINITY, -INFINITY, NAN};
    constexpr int size = 70, stride = 80, rows = size + 20;
    Pixels memory(stride, rows);
    const Owned<VekBitmap> bitmap(vekBitmapCreateFromData(&memory.At(5, 10), size, size, stride * 4));
    const Drawing canvas;
    vekCanvasSetBitmap(canvas, bitmap.get());
    Pen pen(canvas);
    Draw(pen, "linear 0 0 20 20");
    std::mt19937 random(2);
    const auto pixel = [&] { return static_cast<LONG>(random() % 90) - 10; };
    SIZE_T committed = 0;
    const int rounds = zorvic::Amount(6000, 26000);
    for (int round = 0; round < rounds; ++round) {
        if (round == rounds / 4) committed = CommittedBytes();
        const NumberCall& call = NumberCalls()[random() % NumberCalls().size()];
        if (call.floats == 0) continue;
        SCOPED_TRACE(call.name + ' ' + std::to_string(round));
        if (round % 50 == 0) FillWithNoise(memory, static_cast<unsigned>(round));
        const Pixels before = memory;
        const bool isLength = call.name == "width" || call.name == "dashes";
        std::vector<float> floats(call.count, static_cast<float>(random() % 2));
        double sum = 0;
        for (float& f : std::span(floats).first(call.floats)) {
            f = round % 2 ? extremes[random() % std::size(extremes)]
                          : static_cast<float>(static_cast<int>(random() % 4000) - 1500) / 25;
            if (isLength) f = std::abs(f);
            sum += static_cast<double>(f);
        }
        const RECT clip{pixel(), pixel(), pixel(), pixel()}, rect{pixel(), pixel(), pixel(), pixel()};
        Draw(pen, round % 40 == 0 ? "layer 0 0 99 99 200" : "save");
        SetRandomStyle(pen, random);
        vekCanvasClipRect(pen, &clip);
        vekCanvasTranslate(pen, static_cast<float>(pixel()) / 4, static_cast<float>(pixel()) / 4);
        vekCanvasSetGradient(pen, pen);
        EXPECT_EQ(call.call(pen, floats), std::isfinite(sum) && !(isLength && sum == 0));
        Draw(pen, "circle 30 30 20");
        if (round % 4 == 0) Draw(pen, "#3000FFFF stop 0.4  #C0FFFFFF stop 1  circle 30 30 20");
        if (round % 8 < 2) {
            EXPECT_EQ(Draw(pen, "line 10 10 50 50"), 1);
            DrawPathWatched(pen, static_cast<int>(random() % 4) * 4);
            vekCanvasDrawColor(pen, random(), &rect);
            pen.path.reset(vekPathCreate());
        }
        vekCanvasRestore(pen);
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < stride; ++x) {
                const int left = x - 5, top = y - 10;
                const bool inside = left >= std::max<LONG>(clip.left, 0) && left < std::min<LONG>(clip.right, size) &&
                                    top >= std::max<LONG>(clip.top, 0) && top < std::min<LONG>(clip.bottom, size);
                const Pixel now = memory.At(x, y);
                const int most = std::max({Channel(now, 0), Channel(now, 8), Channel(now, 16)});
                ASSERT_TRUE(inside ? most <= Channel(now, 24) : now == before.At(x, y)) << x << ' ' << y;
            }
    }
    EXPECT_EQ(vekCanvasRestore(pen), 0);
    EXPECT_LT(CommittedBytes(), committed + 1000000);
}

TEST(Abuse, LargePathsAreDrawn) {
    std::mt19937 random(4);
    const Owned<VekPath> path(vekPathCreate());
    for (int i = 0; i < zorvic::Amount(8000, 100000); ++i)
        vekPathLineTo(path.get(), static_cast<float>(random() % 64000) / 100 - 20,
                      static_cast<float>(random() % 64000) / 100 - 20);
    const std::tuple<const char*, std::size_t, double> cases[] = {{"style 0", 0, 0.9},
                                                                  {"style 1", 0, 0.9},
                                                                  {"style 1  cap 1  join 1  width 1e30", 0, 1},
                                                                  {"style 1  cap 1  join 1", 2, 0.45},
                                                                  {"style 1  cap 2  join 2", 1000000, 0.45}};
    for (const auto& [look, dashes, area] : cases) {
        Drawing drawing(600, 600);
        Draw(drawing, look);
        const std::vector<float> pattern(dashes, 5.0F);
        vekCanvasSetDashPattern(drawing, pattern.data(), static_cast<int>(dashes));
        EXPECT_EQ(vekCanvasDrawPath(drawing, path.get()), 1) << look;
        EXPECT_GE(drawing.Area(), 600 * 600 * area) << look;
    }
}

// Threads with a canvas each, sharing nothing but a gradient whose handle is gone.
TEST(Abuse, ThreadsDrawWhatOneDraws) {
    constexpr std::size_t threadCount = 16, seeds = 4;
    const int rounds = zorvic::Amount(512, 8192);
    std::vector<Drawing> drawings;
    {
        Pen pen(nullptr);
        Draw(pen, "linear 0 0 20 20  #FFFF0000 stop 0  #400000FF stop 1");
        for (std::size_t i = 0; i < threadCount + seeds; ++i) vekCanvasSetGradient(drawings.emplace_back(24, 24), pen);
    }
    std::vector<Pixel> sums(drawings.size());  // of the pixels after every round
    const auto draw = [&](std::size_t index) {
        Pen pen(drawings[index]);
        std::mt19937 random(index % seeds);
        vekPathAddCircle(pen, 11, 11, 9);
        for (int i = 0; i < rounds; ++i) {
            SetRandomStyle(pen, random);
            vekCanvasSave(pen);
            vekCanvasTranslate(pen, static_cast<float>(i % 3), 0);
            vekCanvasDrawPath(pen, pen);
            vekCanvasDrawBitmap(pen, pen, 3, static_cast<float>(i % 5) / 2);
            vekCanvasDrawLine(pen, 2, 3, 20, 17);
            vekCanvasRestore(pen);
            for (const Pixel pixel : drawings[index].words) sums[index] = sums[index] * 31 + pixel;
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < threadCount; ++i) threads.emplace_back(draw, i);
    for (std::thread& thread : threads) thread.join();
    for (std::size_t i = threadCount; i < drawings.size(); ++i) draw(i);
    for (std::size_t i = 0; i < threadCount; ++i) EXPECT_EQ(sums[i], sums[threadCount + i % seeds]) << "thread " << i;
}

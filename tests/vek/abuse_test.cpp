// Arguments that no sensible caller passes: nothing crashes, hangs, leaves the clip or writes outside the pixels.
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <thread>

#include "drawing.h"

#include <psapi.h>

using namespace vek_test;

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

class Stopwatch {
public:
    double Seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); }

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

// Every call that takes floats, with its floats from an array.
struct FloatCall {
    int floats;
    std::function<int(VekCanvas, VekPath, const float*)> call;
};
const FloatCall floatCalls[] = {
    {2, [](VekCanvas c, VekPath, const float* f) { return vekCanvasDrawPoint(c, f[0], f[1]); }},
    {4, [](VekCanvas c, VekPath, const float* f) { return vekCanvasDrawLine(c, f[0], f[1], f[2], f[3]); }},
    {4, [](VekCanvas c, VekPath, const float* f) { return vekCanvasDrawRectangle(c, f[0], f[1], f[2], f[3]); }},
    {2,
     [](VekCanvas c, VekPath, const float* f) {
         const RECT rect{3, 4, 50, 60};
         return vekCanvasDrawRoundRect(c, &rect, f[0], f[1]);
     }},
    {3, [](VekCanvas c, VekPath, const float* f) { return vekCanvasDrawCircle(c, f[0], f[1], f[2]); }},
    {4, [](VekCanvas c, VekPath, const float* f) { return vekCanvasDrawEllipse(c, f[0], f[1], f[2], f[3]); }},
    {2,
     [](VekCanvas c, VekPath, const float* f) {
         static Pixels picture(20, 20, 0xFF00FF00);
         return vekCanvasDrawBitmap(c, picture.Wrap().get(), f[0], f[1]);
     }},
    {2,
     [](VekCanvas c, VekPath, const float* f) {
         vekCanvasSave(c);
         const int done = vekCanvasTranslate(c, f[0], f[1]);
         vekCanvasDrawCircle(c, 30, 30, 20);
         vekCanvasRestore(c);
         return done;
     }},
    {1,
     [](VekCanvas c, VekPath, const float* f) {
         const int done = vekCanvasSetStrokeWidth(c, std::abs(f[0]));
         vekCanvasDrawLine(c, 10, 10, 50, 50);
         return done;
     }},
    {2, [](VekCanvas, VekPath p, const float* f) { return vekPathMoveTo(p, f[0], f[1]); }},
    {2, [](VekCanvas, VekPath p, const float* f) { return vekPathLineTo(p, f[0], f[1]); }},
    {5, [](VekCanvas, VekPath p, const float* f) { return vekPathArcTo(p, f[0], f[1], f[2], f[3], f[4]); }},
    {6,
     [](VekCanvas, VekPath p, const float* f) { return vekPathBezierCurveTo(p, f[0], f[1], f[2], f[3], f[4], f[5]); }},
    {4, [](VekCanvas, VekPath p, const float* f) { return vekPathQuadraticCurveTo(p, f[0], f[1], f[2], f[3]); }},
    {5, [](VekCanvas, VekPath p, const float* f) { return vekPathAddArc(p, f[0], f[1], f[2], f[3], f[4], 0); }},
    {5, [](VekCanvas, VekPath p, const float* f) { return vekPathAddArc(p, f[0], f[1], f[2], f[3], f[4], 1); }},
    {4, [](VekCanvas, VekPath p, const float* f) { return vekPathAddRectangle(p, f[0], f[1], f[2], f[3]); }},
    {3, [](VekCanvas, VekPath p, const float* f) { return vekPathAddCircle(p, f[0], f[1], f[2]); }},
    {4, [](VekCanvas, VekPath p, const float* f) { return vekPathAddEllipse(p, f[0], f[1], f[2], f[3]); }},
    {4,
     [](VekCanvas c, VekPath, const float* f) {
         const OwnedGradient gradient(vekGradientCreateLinear(f[0], f[1], f[2], f[3]));
         vekGradientAddColorStop(gradient.get(), 0.25F, 0xFF00FF00);
         vekGradientAddColorStop(gradient.get(), 1, 0x100000FF);
         vekCanvasSetGradient(c, gradient.get());
         vekCanvasDrawCircle(c, 30, 30, 20);
         return gradient ? 1 : 0;
     }},
    {6,
     [](VekCanvas c, VekPath, const float* f) {
         const OwnedGradient gradient(vekGradientCreateRadial(f[0], f[1], f[2], f[3], f[4], f[5]));
         vekGradientAddColorStop(gradient.get(), 0.25F, 0xFF00FF00);
         vekGradientAddColorStop(gradient.get(), 1, 0x100000FF);
         vekCanvasSetGradient(c, gradient.get());
         vekCanvasDrawCircle(c, 30, 30, 20);
         return gradient ? 1 : 0;
     }},
};

// A random style that leaves nothing out.
void SetRandomStyle(VekCanvas canvas, std::mt19937& random) {
    vekCanvasSetDrawStyle(canvas, static_cast<int>(random() % 3));
    vekCanvasSetColor(canvas, random() | 0x20000000);
    vekCanvasSetSmooth(canvas, static_cast<int>(random() % 4));
    vekCanvasSetBlendMode(canvas, static_cast<int>(random() % 27));
    vekCanvasSetBlendValue(canvas, random() % 2 ? 255 : static_cast<int>(random() % 256));
    vekCanvasSetStrokeCap(canvas, static_cast<int>(random() % 3));
    vekCanvasSetStrokeJoin(canvas, static_cast<int>(random() % 3));
    vekCanvasSetStrokeWidth(canvas, static_cast<float>(random() % 300) / 10);
    vekCanvasSetDashStyle(canvas, static_cast<int>(random() % 6));
}

}  // namespace

TEST(Abuse, NumbersThatAreNotFiniteAreRefused) {
    for (std::size_t i = 0; i < std::size(floatCalls); ++i)
        for (int bad = 0; bad < floatCalls[i].floats; ++bad)
            for (const float number : {notANumber, infinite, -infinite}) {
                Drawing drawing(64, 64);
                const OwnedPath path = MakePath();
                float floats[6] = {10, 10, 30, 40, 20, 25};
                floats[bad] = number;
                vekCanvasSetBlendValue(drawing, 0);  // what these calls draw beside is not the question
                EXPECT_EQ(floatCalls[i].call(drawing, path.get(), floats), 0) << "call " << i << ", float " << bad;
                VekBounds bounds{};
                vekPathGetBounds(path.get(), &bounds);
                EXPECT_EQ(bounds.right, 0);
            }
    const OwnedGradient gradient(vekGradientCreateLinear(0, 0, 1, 1));
    EXPECT_EQ(vekGradientAddColorStop(gradient.get(), notANumber, 0), 0);
}

// Ordinary numbers and extreme ones by turns, in every call, style, clip and layer.
TEST(Abuse, RandomCallsEndAndStayInsideClipAndMemory) {
    constexpr float extremes[] = {0,    1e-40F, 0.3F, -30,   256.5F, 32767, -32769, 65536,   1e5F,  -1e6F,
                                  8e6F, -9e6F,  2e9F, -3e9F, 1e18F,  1e30F, -1e30F, 3.4e38F, -3e38F};
    constexpr int size = 70, stride = 80, rows = size + 20;
    Pixels memory(stride, rows);
    const OwnedBitmap bitmap(vekBitmapCreateFromData(&memory.At(5, 10), size, size, stride * 4));
    const Owned<VekCanvas> canvas(vekCanvasCreate());
    vekCanvasSetBitmap(canvas.get(), bitmap.get());
    std::mt19937 random(2);
    const auto pixel = [&] { return static_cast<LONG>(random() % 90) - 10; };
    OwnedPath path = MakePath();
    for (int round = 0; round < 16000; ++round) {
        if (round % 50 == 0) FillWithNoise(memory, static_cast<unsigned>(round));
        const Pixels before = memory;
        float floats[6];
        for (float& f : floats)
            f = round % 2 ? extremes[random() % std::size(extremes)]
                          : static_cast<float>(static_cast<int>(random() % 4000) - 1500) / 25;
        SetRandomStyle(canvas.get(), random);
        vekCanvasSave(canvas.get());
        const RECT clip{pixel(), pixel(), pixel(), pixel()}, rect{pixel(), pixel(), pixel(), pixel()};
        vekCanvasClipRect(canvas.get(), &clip);
        vekCanvasTranslate(canvas.get(), static_cast<float>(pixel()) / 4, static_cast<float>(pixel()) / 4);
        const bool layer = round % 40 == 0;
        if (layer) vekCanvasSaveLayer(canvas.get(), nullptr, 200);
        const auto call = random() % std::size(floatCalls);
        const Stopwatch watch;
        // A width of 0 is the only number that is refused here.
        EXPECT_TRUE(floatCalls[call].call(canvas.get(), path.get(), floats) == 1 || floats[0] == 0) << call;
        if (round % 8 < 2) {
            EXPECT_EQ(vekCanvasDrawPath(canvas.get(), path.get()), 1);
            vekCanvasDrawColor(canvas.get(), random(), &rect);
            path = MakePath();
        }
        if (layer) vekCanvasRestore(canvas.get());
        vekCanvasRestore(canvas.get());
        ASSERT_LT(watch.Seconds(), 5) << "round " << round << ", call " << call;
        ASSERT_TRUE(IsPremultiplied(memory)) << "round " << round << ", call " << call;
        for (int y = 0; y < rows; ++y)
            for (int x = 0; x < stride; ++x) {
                const int left = x - 5, top = y - 10;
                const bool inside = left >= std::max<LONG>(clip.left, 0) && left < std::min<LONG>(clip.right, size) &&
                                    top >= std::max<LONG>(clip.top, 0) && top < std::min<LONG>(clip.bottom, size);
                if (!inside) {
                    ASSERT_EQ(memory.At(x, y), before.At(x, y)) << "round " << round << ", call " << call;
                }
            }
    }
    EXPECT_EQ(vekCanvasRestore(canvas.get()), 0);
}

TEST(Abuse, LargePathsTakeBoundedTime) {
    std::mt19937 random(4);
    const OwnedPath path = MakePath();
    for (int i = 0; i < 100000; ++i)
        vekPathLineTo(path.get(), static_cast<float>(random() % 64000) / 100 - 20,
                      static_cast<float>(random() % 64000) / 100 - 20);
    const struct {
        const char* name;
        int style;
        float width;
        float dash;
        double area;
    } cases[] = {{"fill", VEK_DRAW_FILL, 1, 0, 0.9},
                 {"stroke", VEK_DRAW_STROKE, 1, 0, 0.9},
                 {"endless stroke", VEK_DRAW_STROKE, 1e30F, 0, 1},
                 {"dashes", VEK_DRAW_STROKE, 1, 5, 0.45}};
    for (const auto& c : cases) {
        Drawing drawing(600, 600);
        vekCanvasSetDrawStyle(drawing, c.style);
        vekCanvasSetStrokeWidth(drawing, c.width);
        vekCanvasSetStrokeJoin(drawing, VEK_JOIN_ROUND);
        vekCanvasSetStrokeCap(drawing, VEK_CAP_ROUND);
        if (c.dash > 0) vekCanvasSetDashPattern(drawing, &c.dash, 1);
        const Stopwatch watch;
        EXPECT_EQ(vekCanvasDrawPath(drawing, path.get()), 1) << c.name;
        EXPECT_LT(watch.Seconds(), 30) << c.name;
        EXPECT_GE(drawing.Area(), 600 * 600 * c.area) << c.name;
    }
}

// Threads with a canvas each, sharing nothing but a gradient whose handle is gone.
TEST(Abuse, ThreadsDrawWhatOneDraws) {
    constexpr std::size_t threadCount = 16, seeds = 4;
    constexpr int rounds = 8192;
    OwnedGradient gradient(vekGradientCreateLinear(0, 0, 20, 20));
    vekGradientAddColorStop(gradient.get(), 0, 0xFFFF0000);
    vekGradientAddColorStop(gradient.get(), 1, 0x400000FF);
    std::vector<Drawing> drawings;
    for (std::size_t i = 0; i < threadCount + seeds; ++i)
        vekCanvasSetGradient(drawings.emplace_back(24, 24), gradient.get());
    gradient.reset();
    // Sums the pixels up after every round.
    std::vector<Pixel> sums(drawings.size());
    const auto draw = [&](std::size_t index) {
        Drawing& drawing = drawings[index];
        std::mt19937 random(index % seeds);
        const OwnedPath path = MakePath();
        vekPathAddCircle(path.get(), 11, 11, 9);
        for (int i = 0; i < rounds; ++i) {
            SetRandomStyle(drawing, random);
            vekCanvasSave(drawing);
            vekCanvasTranslate(drawing, static_cast<float>(i % 3), 0);
            if (i % 8 == 0) vekCanvasSaveLayer(drawing, nullptr, 200);
            vekCanvasDrawPath(drawing, path.get());
            if (i % 8 == 0) vekCanvasRestore(drawing);
            vekCanvasRestore(drawing);
            for (const Pixel pixel : drawing.words) sums[index] = sums[index] * 31 + pixel;
        }
    };
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < threadCount; ++i) threads.emplace_back(draw, i);
    for (std::thread& thread : threads) thread.join();
    for (std::size_t i = threadCount; i < drawings.size(); ++i) draw(i);
    for (std::size_t i = 0; i < threadCount; ++i) EXPECT_EQ(sums[i], sums[threadCount + i % seeds]) << "thread " << i;
}

TEST(Abuse, CyclesLeakNothing) {
    const auto committed = [] {
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
        return counters.PagefileUsage;
    };
    const auto cycle = [] {
        for (int mode = 0; mode < 27; ++mode) {
            Drawing drawing(64, 64);
            const OwnedPath path = MakePath();
            const float floats[] = {10, 10, 30, 40, 20, 25};
            vekCanvasSetDrawStyle(drawing, mode % 3);
            vekCanvasSetBlendMode(drawing, mode);
            vekCanvasSaveLayer(drawing, nullptr, 99);
            for (const FloatCall& call : floatCalls) call.call(drawing, path.get(), floats);
            vekCanvasDrawPath(drawing, path.get());
        }
    };
    for (int i = 0; i < 5; ++i) cycle();
    const SIZE_T before = committed();
    for (int i = 0; i < 30; ++i) cycle();
    EXPECT_LT(committed(), before + 150000) << "30 x 27 cycles";
}

#ifdef __i386__
namespace {

// Calls with the stack that many bytes below a 16-byte boundary.
int CallShifted(int (*function)(VekCanvas, VekPath), VekCanvas canvas, VekPath path, int shift) {
    const void* arguments[] = {canvas, path};
    auto result = reinterpret_cast<int>(function);
    __asm__ volatile(
        "movl %%esp, %%ebx\n\tandl $-16, %%esp\n\tsubl %%edi, %%esp\n\t"
        "pushl 4(%%esi)\n\tpushl (%%esi)\n\tcall *%%eax\n\tmovl %%ebx, %%esp"
        : "+a"(result)
        : "S"(arguments), "D"(shift)
        : "ebx", "ecx", "edx", "memory", "cc");
    return result;
}

}  // namespace

// Hosts that are compiled with other compilers call with a stack aligned to 4 bytes only.
TEST(Abuse, CallsWorkOnAMisalignedStack) {
    Drawing drawing;
    const OwnedGradient gradient(vekGradientCreateLinear(0, 0, 100, 0));
    vekGradientAddColorStop(gradient.get(), 0, 0xFFFF0000);
    vekCanvasSetGradient(drawing, gradient.get());
    vekCanvasSetDrawStyle(drawing, VEK_DRAW_GRADIENT);
    const OwnedPath path = MakePath();
    vekPathAddCircle(path.get(), 50, 50, 40);
    for (int shift = 0; shift < 16; shift += 4)
        for (int mode = 0; mode < 27; ++mode) {
            vekCanvasSetBlendMode(drawing, mode);
            EXPECT_EQ(CallShifted(&vekCanvasDrawPath, drawing, path.get(), shift), 1) << shift << ", " << mode;
        }
}
#endif

// The calls as a table: a name, and a function that makes the objects and then the job.
#include "extreme_calls.h"

#include <chrono>
#include <limits>
#include <random>

#include "contenders.h"

namespace bench {

namespace {

constexpr LONG width = 1920, height = 1080;
constexpr RECT screen{0, 0, width, height};

struct DeleteVectorObject {
    void operator()(HGPATH path) const { PathDestroy(path); }
    void operator()(HGGRADIENT gradient) const { GradientDestroy(gradient); }
};
template <class Handle>
using Shared = std::shared_ptr<std::remove_pointer_t<Handle>>;

Shared<HGPATH> NewPath() { return {PathCreate(), DeleteVectorObject{}}; }
Shared<HGTEXTURE> NewTexture(LONG columns, LONG rows) { return {CreateTexture(columns, rows), DeleteHandle{}}; }

// Alpha 255 on every other pixel, as on a chess-board.
Shared<HGTEXTURE> Checkerboard(LONG columns, LONG rows) {
    const auto texture = NewTexture(columns, rows);
    SetTextureFilter(texture.get(), ZORVIC_OP_SOURCE_OVER);
    BitmapLockInfo image{};
    LockTextureBitsEx(texture.get(), &image, nullptr);
    for (LONG i = 0; i < columns * rows; ++i)
        PixelsOf(image)[i] = (i % columns + i / columns) % 2 ? 0xFF336699 : 0x00000000;
    return texture;
}

void Stroke(HGCANVAS canvas, float strokeWidth, float dash, int cap = 0) {
    SetDrawStyle(canvas, 1);
    SetStrokeWidth(canvas, strokeWidth);
    SetStrokeCap(canvas, cap);
    const float pattern[]{dash, dash};
    SetDashPattern(canvas, pattern, dash > 0 ? 2 : 0);
}

Job DashedLine(HGCANVAS canvas, float dash, float strokeWidth) {
    Stroke(canvas, strokeWidth, dash);
    return [=] { DrawLine(canvas, 0, 0, width, height); };
}

Job DashedCircles(HGCANVAS canvas) {
    const auto path = NewPath();
    for (int i = 0; i < 50; ++i)
        PathAddCircle(path.get(), static_cast<float>(i % 10 * 190 + 95), static_cast<float>(i / 10 * 210 + 100), 90);
    Stroke(canvas, 20, 1, 1);
    return [=] { DrawPath(canvas, path.get()); };
}

Job RandomLines(HGCANVAS canvas, bool stroked) {
    const auto path = NewPath();
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i)
        PathLineTo(path.get(), static_cast<float>(random() % width), static_cast<float>(random() % height));
    if (stroked) Stroke(canvas, 1.5F, 0);
    return [=] { DrawPath(canvas, path.get()); };
}

// Drawn with another opacity every time.
Job ManyStops(HGCANVAS canvas) {
    constexpr int stops = 40000;
    const Shared<HGGRADIENT> gradient(GradientCreateLinear(0, 0, width, height), DeleteVectorObject{});
    for (int i = 0; i < stops; ++i)
        GradientAddColorStop(gradient.get(), static_cast<float>(i) / stops,
                             0xFF000000 | static_cast<DWORD>(i) * 2654435761U >> 8);
    SetGradient(canvas, gradient.get());
    SetDrawStyle(canvas, 2);
    return [=, opacity = 255]() mutable {
        SetBlendValue(canvas, --opacity);
        DrawRectangle(canvas, 0, 0, width, height);
    };
}

Job CheckerboardRegion(LONG columns, LONG rows) {
    return [texture = Checkerboard(columns, rows)] { DeleteObject(CreateTextureRgn(texture.get(), nullptr)); };
}

// A pen of one-pixel dashes around a rectangle far larger than the canvas.
Job FarRectangle(HGCANVAS canvas) {
    const LOGBRUSH brush{BS_SOLID, RGB(200, 0, 0), 0};
    const DWORD pattern[]{1, 1};
    const std::shared_ptr<HPEN__> pen(ExtCreatePen(PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT, 2, &brush, 2, pattern),
                                      DeleteObject);
    return [=] {
        constexpr RECT frame{-100000000, 100, 100000000, 200};
        GeoRectangle(canvas, &frame, pen.get(), nullptr);
    };
}

Job WideRoundRect() {
    const std::shared_ptr<std::remove_pointer_t<HGCANVAS>> thin(CreateCanvas(1, 14995, nullptr), DeleteHandle{});
    return [=] {
        constexpr RECT rect{-500, 10, 800, 14000};
        constexpr POINT corner{300, 400};
        GeoRoundRectEx(thin.get(), &rect, &corner, 0xFF204060, 27724);
    };
}

Job LargeBox(HGCANVAS canvas, int box) {
    BitmapLockInfo image{};
    LockBitmapBitsEx(GetBitmap(canvas), &image, nullptr);
    return [=] { BlurBitmapData(image.bmWidth, image.bmHeight, image.bmWidthBytes, image.bmBits, 32, box); };
}

Job SmallRoundedIcon(HGCANVAS canvas) {
    return [=, texture = Checkerboard(2000, 2000)] {
        constexpr RECT dst{100, 100, 120, 120};
        TextureDrawParams params{};
        params.filterMode = ZORVIC_FILTER_BILINEAR;
        params.alpha = 255;
        params.cornerRadii[0] = params.cornerRadii[1] = 6;
        DrawTextureEx3(canvas, &dst, texture.get(), &params, nullptr);
    };
}

Job TinyTiles(HGCANVAS canvas) {
    return [=, texture = Checkerboard(1, 1)] {
        DrawTextureTile(canvas, &screen, texture.get(), nullptr, ZORVIC_FILTER_NEAREST, 255, 0, 1);
    };
}

struct ExtremeCall {
    const char* name;
    Job (*make)(HGCANVAS canvas);
};
constexpr ExtremeCall calls[]{
    {"line, dash 0.05, stroke 1000", [](HGCANVAS canvas) { return DashedLine(canvas, 0.05F, 1000); }},
    {"line, dash 0.02, stroke 2000", [](HGCANVAS canvas) { return DashedLine(canvas, 0.02F, 2000); }},
    {"50 circles, dash 1, stroke 20, round caps", DashedCircles},
    {"polygon of 5,000 random points", [](HGCANVAS canvas) { return RandomLines(canvas, false); }},
    {"stroke along 5,000 random points", [](HGCANVAS canvas) { return RandomLines(canvas, true); }},
    {"gradient of 40,000 stops, another opacity", ManyStops},
    {"region of a 700 x 700 checkerboard", [](HGCANVAS) { return CheckerboardRegion(700, 700); }},
    {"region of a 1000 x 1000 checkerboard", [](HGCANVAS) { return CheckerboardRegion(1000, 1000); }},
    {"dashed pen around a far rectangle", FarRectangle},
    {"round rectangle, stroke 27724, canvas 1 x 14995", [](HGCANVAS) { return WideRoundRect(); }},
    {"box filter 2896", [](HGCANVAS canvas) { return LargeBox(canvas, 2896); }},
    {"box filter 2897", [](HGCANVAS canvas) { return LargeBox(canvas, 2897); }},
    {"rounded icon 20 x 20 from 2000 x 2000", SmallRoundedIcon},
    {"tiles of 1 x 1", TinyTiles},
};

double MillisecondsOf(const Job& job) {
    const auto start = std::chrono::steady_clock::now();
    job();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

std::vector<ExtremeResult> MeasureExtremeCalls(std::string_view text) {
    std::vector<ExtremeResult> results;
    for (const auto& [name, make] : calls) {
        if (std::string_view(name).find(text) == std::string_view::npos) continue;
        const Owned<HGCANVAS> canvas(CreateCanvas(width, height, nullptr));
        const Job job = make(canvas.get());
        double least = std::numeric_limits<double>::infinity(), all = 0;
        // A call that takes seconds is not repeated.
        for (int i = 0; i < 5 && all < 1000; ++i) {
            const double milliseconds = MillisecondsOf(job);
            least = std::min(least, milliseconds);
            all += milliseconds;
        }
        results.push_back({name, least});
    }
    return results;
}

}  // namespace bench

// Everything here is a function from a place to a colour, except for the lettering, which is GDI's.
#include "sample.h"

#include <algorithm>
#include <cmath>

#include "gdi.h"

namespace {

// Straight colour and opacity, 0..1.
struct Paint {
    double r, g, b, a = 1;
};

double Mix(double from, double to, double t) { return from + (to - from) * t; }
Paint Mix(const Paint& from, const Paint& to, double t) {
    return {Mix(from.r, to.r, t), Mix(from.g, to.g, t), Mix(from.b, to.b, t), Mix(from.a, to.a, t)};
}
Paint Lit(const Paint& paint, double light) { return {paint.r * light, paint.g * light, paint.b * light, paint.a}; }

// Cubic step from 0 at `from` to 1 at `to`.
double Step(double from, double to, double x) {
    const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

DWORD Premultiplied(const Paint& paint) {
    const auto byte = [](double value) { return static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * 255)); };
    const double a = std::clamp(paint.a, 0.0, 1.0);
    return Color{byte(paint.r * a), byte(paint.g * a), byte(paint.b * a), byte(a)}.Argb();
}

// upper over lower, both straight.
Paint Over(const Paint& upper, const Paint& lower) {
    const double a = upper.a + lower.a * (1 - upper.a);
    if (a <= 0) return {0, 0, 0, 0};
    Paint mixed = Mix(lower, upper, upper.a / a);
    mixed.a = a;
    return mixed;
}

// A value 0..1 for every point of a grid, smooth in between; octaves make it rough.
double Hash(int x, int y) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1u ^ static_cast<std::uint32_t>(y) * 0x85EBCA77u;
    h = (h ^ h >> 15) * 0x2C1B3C6Du;
    h = (h ^ h >> 12) * 0x297A2D39u;
    return (h ^ h >> 15) / 4294967296.0;
}
double Noise(double x, double y) {
    const int i = static_cast<int>(std::floor(x));
    const int j = static_cast<int>(std::floor(y));
    const double u = Step(0, 1, x - i);
    const double v = Step(0, 1, y - j);
    return Mix(Mix(Hash(i, j), Hash(i + 1, j), u), Mix(Hash(i, j + 1), Hash(i + 1, j + 1), u), v);
}
double Rough(double x, double y, int octaves) {
    double sum = 0;
    double size = 0.5;
    for (int i = 0; i < octaves; ++i, size /= 2, x *= 2, y *= 2) sum += size * Noise(x, y);
    return sum;
}

struct Scene {
    Paint zenith, horizon, sun, cloud, distant, close;
    double light;  // on the balloons
};
constexpr Scene day{{0.13, 0.36, 0.74},
                    {0.99, 0.80, 0.58},
                    {1.00, 0.95, 0.75},
                    {1.00, 0.97, 0.95},
                    {0.60, 0.58, 0.74},
                    {0.09, 0.24, 0.20},
                    1.0};
constexpr Scene night{{0.02, 0.03, 0.14},
                      {0.24, 0.22, 0.46},
                      {0.93, 0.95, 1.00},
                      {0.22, 0.24, 0.42},
                      {0.16, 0.17, 0.36},
                      {0.01, 0.03, 0.07},
                      0.75};

constexpr double shore = 0.80;  // where the water begins, in picture heights

struct Balloon {
    double x, y, radius;
    Paint first, second;
};
constexpr Balloon balloons[]{{0.34, 0.30, 0.150, {0.90, 0.16, 0.14}, {1.00, 0.86, 0.30}},
                             {1.13, 0.20, 0.085, {0.12, 0.50, 0.90}, {0.97, 0.97, 1.00}},
                             {0.80, 0.47, 0.050, {0.16, 0.66, 0.33}, {0.98, 0.60, 0.12}}};

Paint BalloonAt(const Balloon& balloon, double x, double y, double light) {
    const double u = (x - balloon.x) / balloon.radius;
    const double v = (y - balloon.y) / balloon.radius;
    const double soft = 0.004 / balloon.radius;
    // The envelope narrows towards the basket; its gores are meridians of a globe.
    const double waist = v > 0 ? 1 - 0.28 * v * v : 1;
    const double rim = std::hypot(u / waist, v > 0 ? v / 1.15 : v);
    const double meridian = u / waist / std::sqrt(std::max(1e-6, 1 - std::min(0.999, v * v / 1.33)));
    const bool odd = static_cast<int>(std::floor(std::asin(std::clamp(meridian, -1.0, 1.0)) * 2.55 + 8.5)) % 2 != 0;
    const double shade = 0.62 + 0.5 * std::sqrt(std::max(0.0, 1 - rim * rim)) - 0.22 * (u + v);
    Paint envelope = Lit(odd ? balloon.first : balloon.second, shade * light);
    envelope.a = 1 - Step(1 - soft, 1 + soft, rim);
    Paint basket = Lit({0.45, 0.28, 0.12}, light);
    basket.a = 1 - Step(-soft, soft, std::max(std::abs(u) - 0.13, std::abs(v - 1.48) - 0.11));
    Paint rope = Lit({0.25, 0.18, 0.12}, light);
    rope.a = v > 1.0 && v < 1.4 ? 1 - Step(0.0, 2 * soft, std::abs(std::abs(u) - Mix(0.42, 0.11, (v - 1.0) / 0.4))) : 0;
    return Over(envelope, Over(basket, rope));
}

// The view above the water; x and y in picture heights.
Paint View(const Scene& scene, double x, double y) {
    Paint color = Mix(scene.zenith, scene.horizon, std::pow(std::clamp(y / 0.62, 0.0, 1.0), 1.3));
    const double sun = std::hypot(x - 0.98, y - 0.42);
    color = Mix(color, scene.sun, 0.75 * std::exp(-sun * 6) + 0.25 * (1 - Step(0.0, 0.5, sun)) * 0.4);
    color = Mix(color, scene.sun, 1 - Step(0.046, 0.052, sun));
    const double cloud = Rough(x * 3, y * 9, 5) - 0.12 * std::abs(y - 0.25);
    color = Mix(color, scene.cloud, 0.85 * Step(0.50, 0.68, cloud) * (1 - Step(0.45, 0.62, y)));
    for (int layer = 0; layer < 4; ++layer) {
        const double depth = layer / 3.0;
        const double height = Mix(0.27, 0.07, depth) * Rough(x * Mix(2.2, 5.5, depth) + layer * 17, layer, 6);
        const double ridge = Mix(0.66, 0.80, depth) - height;
        const Paint ground =
            Lit(Mix(scene.distant, scene.close, depth), 0.9 + 0.25 * Rough(x * 40, y * 40 + layer * 9, 3));
        color = Mix(color, ground, Step(ridge - 0.002, ridge + 0.002, y));
    }
    for (const Balloon& balloon : balloons) color = Over(BalloonAt(balloon, x, y, scene.light), color);
    return color;
}

Paint Landscape(const Scene& scene, double x, double y) {
    if (y < shore) return View(scene, x, y);
    const double depth = (y - shore) / (1 - shore);
    const double ripple = (Rough(x * 8, y * 90 / (0.4 + depth), 3) - 0.45) * (0.01 + 0.05 * depth);
    const Paint mirrored = View(scene, x + ripple, std::max(0.0, shore - (y - shore) * 2.6 + ripple * 2));
    return Mix(Lit(mirrored, 0.85), scene.zenith, 0.25 + 0.3 * depth);
}

template <class PaintAt>
Bitmap Painted(HGBITMAP fresh, PaintAt paintAt) {
    Bitmap bitmap(fresh);
    const Pixels pixels(bitmap);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) pixels.At(x, y) = Premultiplied(paintAt(x + 0.5, y + 0.5));
    return bitmap;
}

// Signed distance to a rectangle with round corners around a middle; negative inside.
double RoundRect(double x, double y, double halfWidth, double halfHeight, double radius) {
    const double u = std::abs(x) - halfWidth + radius;
    const double v = std::abs(y) - halfHeight + radius;
    return std::hypot(std::max(u, 0.0), std::max(v, 0.0)) + std::min(std::max(u, v), 0.0) - radius;
}

Paint Shadow(double distance, double reach, double strength) {
    return {0, 0, 0, strength * (1 - Step(-reach / 2, reach, distance))};
}

}  // namespace

Bitmap SampleLandscape(Daytime daytime) {
    const Scene& scene = daytime == Daytime::day ? day : night;
    Bitmap bitmap =
        Painted(CreateSystemBitmap(768, 512), [&](double x, double y) { return Landscape(scene, x / 512, y / 512); });
    Lettering(MemoryDc(bitmap), 44, FW_BOLD, RGB(255, 250, 235))
        .Write(L"Zorvic", {0, 0, 748, 500}, DT_RIGHT | DT_BOTTOM);
    const Pixels pixels(bitmap);  // GDI has cleared the alpha under the letters
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) pixels.At(x, y) |= 0xFF000000;
    return bitmap;
}

Bitmap SampleButton() {
    return Painted(CreateMemBitmap(190, 49), [](double x, double y) {
        const double u = x - 95;
        const double v = y - 22.5;
        const double edge = RoundRect(u, v, 90, 19.5, 10);
        Paint face = Mix({0.30, 0.66, 0.98}, {0.06, 0.32, 0.76}, (v + 19.5) / 39);
        if (v < 0) face = Mix(face, {1, 1, 1}, 0.22);
        face = Mix(face, {0.03, 0.17, 0.42}, Step(-2.2, -1.2, edge));
        face.a = 1 - Step(-0.5, 0.5, edge);
        return Over(face, Shadow(RoundRect(u, v - 2.5, 90, 19.5, 10), 5, 0.55));
    });
}

Bitmap SampleBall() {
    return Painted(CreateMemBitmap(96, 96), [](double x, double y) {
        const double u = (x - 48) / 40;
        const double v = (y - 44) / 40;
        const double radius = std::hypot(u, v);
        const double rim = Step(0.35, 1.0, radius);
        Paint glass = Mix({1.00, 0.62, 0.16}, {0.80, 0.10, 0.22}, std::clamp(0.5 + 0.6 * v - 0.2 * u, 0.0, 1.0));
        glass.a = Mix(0.45, 0.92, rim) * (1 - Step(0.98, 1.01, radius));
        Paint gloss{1, 1, 1, 0.85 * (1 - Step(0.10, 0.42, std::hypot(u + 0.30, (v + 0.42) * 1.4)))};
        return Over(gloss, Over(glass, Shadow((std::hypot(u * 0.95, (v - 0.86) * 3.4) - 0.7) * 20, 7, 0.5)));
    });
}

Bitmap SamplePanel() {
    return Painted(CreateMemBitmap(100, 100), [](double x, double y) {
        const double edge = RoundRect(x - 50, y - 50, 50, 50, 14);
        Paint face = y < 22 ? Mix({0.36, 0.62, 0.94}, {0.13, 0.36, 0.74}, y / 22)
                            : Mix({0.97, 0.97, 0.99}, {0.82, 0.86, 0.93}, (y - 22) / 78);
        const double stud = std::hypot(std::abs(x - 50) - 39, std::abs(y - 50) - 39);
        face = Mix(face, {0.98, 0.83, 0.36}, 1 - Step(3.4, 4.4, stud));
        face = Mix(face, {0.07, 0.16, 0.34}, std::max(Step(-2.6, -1.6, edge), 1 - Step(0.4, 1.1, std::abs(y - 22))));
        face.a = 1 - Step(-0.5, 0.5, edge);
        return face;
    });
}

Bitmap SampleGroove() {
    return Painted(CreateMemBitmap(190, 10), [](double x, double y) {
        const double edge = RoundRect(x - 95, y - 5, 95, 5, 5);
        Paint face = Mix({0.62, 0.66, 0.72}, {0.88, 0.90, 0.93}, y / 10);
        face = Mix(face, {0.36, 0.40, 0.47}, Step(-2.0, -1.0, edge));
        face.a = 1 - Step(-0.5, 0.5, edge);
        return face;
    });
}

Bitmap SampleThumb() {
    return Painted(CreateMemBitmap(28, 42), [](double x, double y) {
        // A box that ends in an arrow.
        const double edge = std::max(RoundRect(x - 14, y - 20, 12, 19, 4), (y + std::abs(x - 14) - 40) * 0.7);
        Paint face = Mix({0.40, 0.72, 1.0}, {0.08, 0.34, 0.78}, y / 42);
        face = Mix(face, {0.03, 0.17, 0.42}, Step(-2.2, -1.2, edge));
        face.a = 1 - Step(-0.5, 0.5, edge);
        return face;
    });
}

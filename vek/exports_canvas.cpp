// Exported functions of bitmaps, of canvases and of their style.
#include <cstdint>

#include "exports.h"

using namespace zorvic::vek;

VekBitmap vekBitmapCreateFromData(void* bits, int width, int height, int stride) {
    constexpr int mostPixels = 32767;  // Cairo's limit
    const bool sizeIsGood = width > 0 && width <= mostPixels && height > 0 && height <= mostPixels;
    const bool bitsAreGood = bits && reinterpret_cast<std::uintptr_t>(bits) % 4 == 0;
    if (!sizeIsGood || !bitsAreGood || stride % 4 != 0 || stride < width * 4) return nullptr;
    return NewHandle<VekBitmap>([&] {
        return std::make_unique<Image>(static_cast<std::uint32_t*>(bits), Rect{0, 0, width, height}, stride);
    });
}

void vekBitmapDestroy(VekBitmap bitmap) { delete ObjectOf(bitmap); }

VekCanvas vekCanvasCreate() {
    return NewHandle<VekCanvas>([] { return std::make_unique<Canvas>(); });
}

void vekCanvasDestroy(VekCanvas canvas) { delete ObjectOf(canvas); }

int vekCanvasSetBitmap(VekCanvas canvas, VekBitmap bitmap) {
    return With(canvas, [&](Canvas& c) { return With(bitmap, [&](Image& image) { c.SetBitmap(image); }); });
}

int vekCanvasSave(VekCanvas canvas) {
    return With(canvas, [](Canvas& c) { c.Save(); });
}

int vekCanvasSaveLayer(VekCanvas canvas, const RECT* bounds, int alpha) {
    return With(canvas, [&](Canvas& c) {
        if (!bounds) return c.SaveLayer(nullptr, alpha);
        const Box box = BoxOf(*bounds);
        return c.SaveLayer(&box, alpha);
    });
}

int vekCanvasRestore(VekCanvas canvas) {
    return With(canvas, [](Canvas& c) { return c.Restore(); });
}

int vekCanvasClipRect(VekCanvas canvas, const RECT* rect) {
    return With(canvas, [&](Canvas& c) {
        if (!rect) return false;
        c.ClipTo(BoxOf(*rect));
        return true;
    });
}

int vekCanvasTranslate(VekCanvas canvas, float dx, float dy) {
    return With(canvas, [&](Canvas& c) {
        if (!AllFinite(dx, dy)) return false;
        c.Translate(PointOf(dx, dy));
        return true;
    });
}

namespace {

// Stores a number as an enumerator if it is one.
template <class Enum>
int SetEnum(VekCanvas canvas, Enum Style::*member, int value, Enum last) {
    return With(canvas, [&](Canvas& c) {
        if (value < 0 || value > static_cast<int>(last)) return false;
        c.CurrentStyle().*member = static_cast<Enum>(value);
        return true;
    });
}

template <class Value>
int SetValue(VekCanvas canvas, Value Style::*member, Value value) {
    return With(canvas, [&](Canvas& c) { c.CurrentStyle().*member = value; });
}

}  // namespace

int vekCanvasSetDrawStyle(VekCanvas canvas, int style) {
    return SetEnum(canvas, &Style::draw, style, DrawStyle::gradient);
}

int vekCanvasSetColor(VekCanvas canvas, DWORD color) {
    return SetValue(canvas, &Style::color, static_cast<std::uint32_t>(color));
}

int vekCanvasSetSmooth(VekCanvas canvas, int smooth) { return SetValue(canvas, &Style::smooth, smooth != 0); }

int vekCanvasSetBlendMode(VekCanvas canvas, int mode) {
    return SetEnum(canvas, &Style::blend, mode, Blend::luminosity);
}

int vekCanvasGetBlendMode(VekCanvas canvas) {
    return canvas ? static_cast<int>(ObjectOf(canvas)->CurrentStyle().blend) : 0;
}

int vekCanvasSetBlendValue(VekCanvas canvas, int value) {
    return SetValue(canvas, &Style::value, std::clamp(value, 0, 255));
}

int vekCanvasGetBlendValue(VekCanvas canvas) { return canvas ? ObjectOf(canvas)->CurrentStyle().value : 0; }

int vekCanvasSetStrokeCap(VekCanvas canvas, int cap) { return SetEnum(canvas, &Style::cap, cap, Cap::square); }

int vekCanvasSetStrokeJoin(VekCanvas canvas, int join) { return SetEnum(canvas, &Style::join, join, Join::bevel); }

int vekCanvasSetStrokeWidth(VekCanvas canvas, float width) {
    return AllFinite(width) && width > 0 ? SetValue(canvas, &Style::strokeWidth, width) : 0;
}

float vekCanvasGetStrokeWidth(VekCanvas canvas) { return canvas ? ObjectOf(canvas)->CurrentStyle().strokeWidth : 0; }

int vekCanvasSetDashStyle(VekCanvas canvas, int style) {
    return With(canvas, [&](Canvas& c) {
        c.CurrentStyle().dashStyle = style;
        c.CurrentStyle().dashPattern.reset();
    });
}

int vekCanvasSetDashPattern(VekCanvas canvas, const float* pattern, int count) {
    return With(canvas, [&](Canvas& c) {
        Dashes dashes;
        double sum = 0;
        for (int i = 0; pattern && i < count; ++i) {
            if (!AllFinite(pattern[i]) || pattern[i] < 0) return false;
            dashes.push_back(static_cast<double>(pattern[i]));
            sum += dashes.back();
        }
        if (count < 0 || (!dashes.empty() && sum == 0)) return false;
        // An odd number of lengths is the same as all of them twice.
        if (dashes.size() % 2 != 0) {
            const Dashes once = dashes;
            dashes.insert(dashes.end(), once.begin(), once.end());
        }
        c.CurrentStyle().dashPattern = std::make_shared<const Dashes>(std::move(dashes));
        return true;
    });
}

int vekCanvasSetGradient(VekCanvas canvas, VekGradient gradient) {
    return With(canvas, [&](Canvas& c) { c.CurrentStyle().gradient = gradient ? *ObjectOf(gradient) : nullptr; });
}

// The words and the calls that they stand for.
#include "script.h"

#include <numbers>
#include <sstream>

namespace vek_test {

namespace {

LONG Whole(float f) { return static_cast<LONG>(f); }

RECT RectOf(const float* f) { return {Whole(f[0]), Whole(f[1]), Whole(f[2]), Whole(f[3])}; }

float Radians(float degrees) { return degrees * (std::numbers::pi_v<float> / 180); }

int SetGradient(Pen& pen, VekGradient gradient) {
    pen.gradient.reset(gradient);
    return gradient ? vekCanvasSetGradient(pen, gradient) : 0;
}

const NumberCall numberCalls[] = {
    {"point", 2, [](Pen& p, const float* f) { return vekCanvasDrawPoint(p, f[0], f[1]); }},
    {"line", 4, [](Pen& p, const float* f) { return vekCanvasDrawLine(p, f[0], f[1], f[2], f[3]); }},
    {"rectangle", 4, [](Pen& p, const float* f) { return vekCanvasDrawRectangle(p, f[0], f[1], f[2], f[3]); }},
    {"round", 2,
     [](Pen& p, const float* f) {
         const RECT rect{10, 10, 110, 70};
         return vekCanvasDrawRoundRect(p, &rect, f[0], f[1]);
     }},
    {"circle", 3, [](Pen& p, const float* f) { return vekCanvasDrawCircle(p, f[0], f[1], f[2]); }},
    {"ellipse", 4, [](Pen& p, const float* f) { return vekCanvasDrawEllipse(p, f[0], f[1], f[2], f[3]); }},
    {"bitmap", 2,
     [](Pen& p, const float* f) {
         static Pixels green(20, 20, 0xFF00FF00);
         return vekCanvasDrawBitmap(p, green.Wrap().get(), f[0], f[1]);
     }},
    {"translate", 2, [](Pen& p, const float* f) { return vekCanvasTranslate(p, f[0], f[1]); }},
    {"width", 1, [](Pen& p, const float* f) { return vekCanvasSetStrokeWidth(p, f[0]); }},
    {"dashes", 2, [](Pen& p, const float* f) { return vekCanvasSetDashPattern(p, f, 2); }},
    {"M", 2, [](Pen& p, const float* f) { return vekPathMoveTo(p, f[0], f[1]); }},
    {"L", 2, [](Pen& p, const float* f) { return vekPathLineTo(p, f[0], f[1]); }},
    {"C", 6, [](Pen& p, const float* f) { return vekPathBezierCurveTo(p, f[0], f[1], f[2], f[3], f[4], f[5]); }},
    {"Q", 4, [](Pen& p, const float* f) { return vekPathQuadraticCurveTo(p, f[0], f[1], f[2], f[3]); }},
    {"T", 5, [](Pen& p, const float* f) { return vekPathArcTo(p, f[0], f[1], f[2], f[3], f[4]); }},
    // Arcs in degrees, clockwise and not.
    {"A", 5,
     [](Pen& p, const float* f) { return vekPathAddArc(p, f[0], f[1], f[2], Radians(f[3]), Radians(f[4]), 0); }},
    {"a", 5,
     [](Pen& p, const float* f) { return vekPathAddArc(p, f[0], f[1], f[2], Radians(f[3]), Radians(f[4]), 1); }},
    {"R", 4, [](Pen& p, const float* f) { return vekPathAddRectangle(p, f[0], f[1], f[2], f[3]); }},
    {"O", 3, [](Pen& p, const float* f) { return vekPathAddCircle(p, f[0], f[1], f[2]); }},
    {"E", 4, [](Pen& p, const float* f) { return vekPathAddEllipse(p, f[0], f[1], f[2], f[3]); }},
    {"linear", 4,
     [](Pen& p, const float* f) { return SetGradient(p, vekGradientCreateLinear(f[0], f[1], f[2], f[3])); }},
    {"radial", 6,
     [](Pen& p, const float* f) {
         return SetGradient(p, vekGradientCreateRadial(f[0], f[1], f[2], f[3], f[4], f[5]));
     }},
    {"stop", 1, [](Pen& p, const float* f) { return vekGradientAddColorStop(p, f[0], p.color); }},
};

// Calls that take whole numbers.
const NumberCall wholeCalls[] = {
    {"B", 0, [](Pen& p, const float*) { return vekPathBegin(p); }},
    {"Z", 0, [](Pen& p, const float*) { return vekPathClose(p); }},
    {"path", 0, [](Pen& p, const float*) { return vekCanvasDrawPath(p, p); }},
    {"save", 0, [](Pen& p, const float*) { return vekCanvasSave(p); }},
    {"restore", 0, [](Pen& p, const float*) { return vekCanvasRestore(p); }},
    {"layer", 1, [](Pen& p, const float* f) { return vekCanvasSaveLayer(p, nullptr, Whole(f[0])); }},
    {"style", 1, [](Pen& p, const float* f) { return vekCanvasSetDrawStyle(p, Whole(f[0])); }},
    {"smooth", 1, [](Pen& p, const float* f) { return vekCanvasSetSmooth(p, Whole(f[0])); }},
    {"mode", 1, [](Pen& p, const float* f) { return vekCanvasSetBlendMode(p, Whole(f[0])); }},
    {"value", 1, [](Pen& p, const float* f) { return vekCanvasSetBlendValue(p, Whole(f[0])); }},
    {"cap", 1, [](Pen& p, const float* f) { return vekCanvasSetStrokeCap(p, Whole(f[0])); }},
    {"join", 1, [](Pen& p, const float* f) { return vekCanvasSetStrokeJoin(p, Whole(f[0])); }},
    {"dash", 1, [](Pen& p, const float* f) { return vekCanvasSetDashStyle(p, Whole(f[0])); }},
    {"clip", 4,
     [](Pen& p, const float* f) {
         const RECT rect = RectOf(f);
         return vekCanvasClipRect(p, &rect);
     }},
    {"fill", 4,  // with the colour, whatever the style
     [](Pen& p, const float* f) {
         const RECT rect = RectOf(f);
         return vekCanvasDrawColor(p, p.color, &rect);
     }},
};

const NumberCall* Find(std::span<const NumberCall> calls, const std::string& name) {
    for (const NumberCall& call : calls)
        if (name == call.name) return &call;
    return nullptr;
}

}  // namespace

std::span<const NumberCall> NumberCalls() { return numberCalls; }

int Draw(Pen& pen, const std::string& text) {
    std::istringstream words(text);
    int done = 1;
    for (std::string word; words >> word;) {
        if (word[0] == '#') {
            pen.color = std::stoul(word.substr(1), nullptr, 16);
            done &= vekCanvasSetColor(pen, pen.color);
            continue;
        }
        const NumberCall* call = Find(numberCalls, word);
        if (!call) call = Find(wholeCalls, word);
        float numbers[6] = {};
        for (std::size_t i = 0; call && i < call->count; ++i)
            if (!(words >> numbers[i])) call = nullptr;
        if (!call) {
            ADD_FAILURE() << "no call: " << word << " in " << text;
            return 0;
        }
        done &= call->call(pen, numbers);
    }
    return done;
}

}  // namespace vek_test

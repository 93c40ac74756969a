// A stand-in for vekgraphic.dll that draws nothing and writes down what it is called with. Handles are numbers, counted
// up from 1 per kind of object.
#include <cstdint>
#include <string>

#include "vek/vekgraphic.h"

namespace {

std::string log;

std::string Text(float value) {
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}
std::string Text(int value) { return std::to_string(value); }
std::string Text(const RECT* rect) {
    if (!rect) return "null";
    return '(' + std::to_string(rect->left) + ' ' + std::to_string(rect->top) + ' ' + std::to_string(rect->right) +
           ' ' + std::to_string(rect->bottom) + ')';
}
// Colours.
std::string Text(DWORD value) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (int shift = 28; shift >= 0; shift -= 4) text += digits[value >> shift & 15];
    return text;
}
template <class Record>
std::string Text(Record* handle) {
    return std::to_string(reinterpret_cast<std::uintptr_t>(handle));
}
template <class Handle>
constexpr bool isCanvas = false;
template <>
constexpr bool isCanvas<VekCanvas> = true;

// Canvases are left out of the log: there is only one in a test.
template <class First, class... Rest>
int Write(const char* name, First first, Rest... rest) {
    log += name;
    if constexpr (!isCanvas<First>) log += ' ' + Text(first);
    ((log += ' ' + Text(rest)), ...);
    log += '\n';
    return 1;
}

template <class Handle>
Handle Create(const std::string& line) {
    static std::uintptr_t last = 0;
    log += line + '\n';
    return reinterpret_cast<Handle>(++last);
}

}  // namespace

// What was called since the last time, a line each.
extern "C" __declspec(dllexport) const char* VEK_CALL vekRecordedCalls(void) {
    static std::string taken;
    taken.swap(log);
    log.clear();
    return taken.c_str();
}

// Creating canvases fails while this is not 0.
extern "C" {
__declspec(dllexport) int vekRefuseCanvases = 0;
}

VekBitmap vekBitmapCreateFromData(void* bits, int width, int height, int stride) {
    return Create<VekBitmap>(std::string(bits ? "" : "no ") + "bits " + std::to_string(width) + ' ' +
                             std::to_string(height) + ' ' + std::to_string(stride));
}
void vekBitmapDestroy(VekBitmap bitmap) { Write("destroy bitmap", bitmap); }

VekCanvas vekCanvasCreate(void) {
    const VekCanvas created = Create<VekCanvas>("create canvas");
    return vekRefuseCanvases ? nullptr : created;
}
void vekCanvasDestroy(VekCanvas canvas) { Write("destroy canvas", canvas); }
int vekCanvasSetBitmap(VekCanvas canvas, VekBitmap bitmap) { return Write("bind", canvas, bitmap); }
int vekCanvasSave(VekCanvas canvas) { return Write("save", canvas); }
int vekCanvasSaveLayer(VekCanvas canvas, const RECT* bounds, int alpha) {
    return Write("save layer", canvas, bounds, alpha);
}
int vekCanvasRestore(VekCanvas canvas) { return Write("restore", canvas); }
int vekCanvasClipRect(VekCanvas canvas, const RECT* rect) { return Write("clip", canvas, rect); }
int vekCanvasTranslate(VekCanvas canvas, float dx, float dy) { return Write("translate", canvas, dx, dy); }

int vekCanvasSetDrawStyle(VekCanvas canvas, int style) { return Write("style", canvas, style); }
int vekCanvasSetColor(VekCanvas canvas, DWORD color) { return Write("color", canvas, color); }
int vekCanvasSetSmooth(VekCanvas canvas, int smooth) { return Write("smooth", canvas, smooth); }
int vekCanvasSetBlendMode(VekCanvas canvas, int mode) { return Write("blend mode", canvas, mode); }
int vekCanvasGetBlendMode(VekCanvas canvas) { return Write("get blend mode", canvas) + 6; }
int vekCanvasSetBlendValue(VekCanvas canvas, int value) { return Write("blend value", canvas, value); }
int vekCanvasGetBlendValue(VekCanvas canvas) { return Write("get blend value", canvas) + 99; }
int vekCanvasSetStrokeCap(VekCanvas canvas, int cap) { return Write("cap", canvas, cap); }
int vekCanvasSetStrokeJoin(VekCanvas canvas, int join) { return Write("join", canvas, join); }
int vekCanvasSetStrokeWidth(VekCanvas canvas, float width) { return Write("width", canvas, width); }
float vekCanvasGetStrokeWidth(VekCanvas canvas) { return static_cast<float>(Write("get width", canvas)) + 1.5F; }
int vekCanvasSetDashStyle(VekCanvas canvas, int style) { return Write("dash", canvas, style); }
int vekCanvasSetDashPattern(VekCanvas canvas, const float* pattern, int count) {
    return Write("dashes", canvas, count, count > 0 ? pattern[count - 1] : 0);
}
int vekCanvasSetGradient(VekCanvas canvas, VekGradient gradient) { return Write("gradient", canvas, gradient); }

int vekCanvasDrawPoint(VekCanvas canvas, float x, float y) { return Write("point", canvas, x, y) + 10; }
int vekCanvasDrawLine(VekCanvas canvas, float x1, float y1, float x2, float y2) {
    return Write("line", canvas, x1, y1, x2, y2) + 11;
}
int vekCanvasDrawRectangle(VekCanvas canvas, float x, float y, float width, float height) {
    return Write("rectangle", canvas, x, y, width, height) + 12;
}
int vekCanvasDrawRoundRect(VekCanvas canvas, const RECT* rect, float rx, float ry) {
    return Write("round rect", canvas, rect, rx, ry) + 13;
}
int vekCanvasDrawCircle(VekCanvas canvas, float cx, float cy, float radius) {
    return Write("circle", canvas, cx, cy, radius) + 14;
}
int vekCanvasDrawEllipse(VekCanvas canvas, float x, float y, float width, float height) {
    return Write("ellipse", canvas, x, y, width, height) + 15;
}
int vekCanvasDrawPath(VekCanvas canvas, VekPath) { return Write("path", canvas) + 16; }
int vekCanvasDrawColor(VekCanvas canvas, DWORD color, const RECT* rect) {
    return Write("fill", canvas, color, rect) + 17;
}
int vekCanvasDrawBitmap(VekCanvas canvas, VekBitmap, float x, float y) { return Write("bitmap", canvas, x, y); }

VekPath vekPathCreate(void) { return Create<VekPath>("create path"); }
void vekPathDestroy(VekPath) { log += "destroy path\n"; }
int vekPathBegin(VekPath) { return log += "begin\n", 1; }
int vekPathClose(VekPath) { return log += "close\n", 1; }
int vekPathMoveTo(VekPath, float x, float y) { return Write("move", x, y); }
int vekPathLineTo(VekPath, float x, float y) { return Write("to", x, y); }
int vekPathArcTo(VekPath, float x1, float y1, float x2, float y2, float radius) {
    return Write("arc to", x1, y1, x2, y2, radius);
}
int vekPathBezierCurveTo(VekPath, float c1x, float c1y, float c2x, float c2y, float x, float y) {
    return Write("curve", c1x, c1y, c2x, c2y, x, y);
}
int vekPathQuadraticCurveTo(VekPath, float cx, float cy, float x, float y) { return Write("quad", cx, cy, x, y); }
int vekPathAddArc(VekPath, float cx, float cy, float radius, float start, float end, int anticlockwise) {
    return Write("arc", cx, cy, radius, start, end, anticlockwise);
}
int vekPathAddRectangle(VekPath, float x, float y, float width, float height) {
    return Write("add rectangle", x, y, width, height);
}
int vekPathAddCircle(VekPath, float cx, float cy, float radius) { return Write("add circle", cx, cy, radius); }
int vekPathAddEllipse(VekPath, float x, float y, float width, float height) {
    return Write("add ellipse", x, y, width, height);
}
int vekPathGetBounds(VekPath, VekBounds* bounds) {
    *bounds = {1, 2, 3, 4};
    return log += "bounds\n", 1;
}

VekGradient vekGradientCreateLinear(float x1, float y1, float x2, float y2) {
    return Create<VekGradient>("linear " + Text(x1) + ' ' + Text(y1) + ' ' + Text(x2) + ' ' + Text(y2));
}
VekGradient vekGradientCreateRadial(float x0, float y0, float r0, float x1, float y1, float r1) {
    return Create<VekGradient>("radial " + Text(x0) + ' ' + Text(y0) + ' ' + Text(r0) + ' ' + Text(x1) + ' ' +
                               Text(y1) + ' ' + Text(r1));
}
int vekGradientAddColorStop(VekGradient, float offset, DWORD color) { return Write("stop", offset, color); }
void vekGradientDestroy(VekGradient) { log += "destroy gradient\n"; }

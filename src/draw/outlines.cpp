// The routes of the outline shapes and the styles they set.
#include "draw/outlines.h"

#include "draw/fills.h"
#include "draw/gdi_rectangle.h"
#include "draw/raster_frame.h"
#include "draw/vector_fills.h"
#include "draw/vector_shapes.h"
#include "raster/request.h"

namespace zorvic {

namespace {

// GDI would destroy these pixels' alpha.
bool HasAlpha(const Canvas& canvas) { return OperationOf(canvas.Filter()) == Operation::sourceOver; }

// An opaque colour from GDI's, which has red in its low byte; and back.
constexpr DWORD FromColorRef(COLORREF color) {
    return 0xFF000000 | (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}
constexpr COLORREF ToColorRef(DWORD color) { return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF); }

// Zero for what is not a pen with a record, which is a black solid pen.
LOGPEN Describe(HPEN pen) {
    LOGPEN record{};
    if (pen) GetObjectW(pen, sizeof record, &record);
    return record;
}

}  // namespace

int DrawRectangleOutline(Canvas& canvas, const RECT& rect, HPEN pen, HBRUSH brush) {
    if (HasAlpha(canvas)) return DrawRasterFrame(canvas, rect, FromColorRef(Describe(pen).lopnColor), SpanStyle::solid);
    DrawGdiRectangle(canvas, rect, pen ? pen : GetStockObject(BLACK_PEN), brush ? brush : GetStockObject(NULL_BRUSH));
    return 1;
}

int StrokeRectangle(Canvas& canvas, const RECT& rect, DWORD color, int width) {
    const VectorSave style(canvas.VectorCanvas());
    if (!style) return 0;
    vekCanvasSetColor(style.Get(), color);
    vekCanvasSetSmooth(style.Get(), 0);
    vekCanvasSetDrawStyle(style.Get(), VEK_DRAW_STROKE);
    vekCanvasSetStrokeWidth(style.Get(), static_cast<float>(width));
    const VectorFrame frame(canvas);
    return DrawVectorRectangle(frame.Get(), rect, -1);
}

int StrokeRoundRect(Canvas& canvas, const RECT& rect, POINT corner, DWORD color, int width) {
    const VectorSave style(canvas.VectorCanvas());
    if (!style) return 0;
    vekCanvasSetColor(style.Get(), color);
    vekCanvasSetSmooth(style.Get(), 1);
    vekCanvasSetDrawStyle(style.Get(), VEK_DRAW_STROKE);
    vekCanvasSetStrokeWidth(style.Get(), static_cast<float>(width));
    const VectorFrame frame(canvas);
    return DrawRoundRect(frame.Get(), rect, static_cast<float>(corner.x), static_cast<float>(corner.y));
}

int DrawRoundRectWithPen(Canvas& canvas, const RECT& rect, POINT corner, HPEN pen) {
    const VectorSave style(canvas.VectorCanvas());
    if (!style) return 0;
    if (pen) {
        const LOGPEN record = Describe(pen);
        const UINT dash = record.lopnStyle <= PS_DASHDOTDOT ? record.lopnStyle : PS_SOLID;  // numbered as the backend's
        vekCanvasSetColor(style.Get(), FromColorRef(record.lopnColor));
        vekCanvasSetDrawStyle(style.Get(), VEK_DRAW_STROKE);
        vekCanvasSetStrokeWidth(style.Get(), static_cast<float>(record.lopnWidth.x));
        vekCanvasSetDashStyle(style.Get(), static_cast<int>(dash));
    }
    const VectorFrame frame(canvas);
    return DrawRoundRect(frame.Get(), rect, static_cast<float>(corner.x), static_cast<float>(corner.y));
}

int DrawFocusFrame(Canvas& canvas, const RECT& rect, DWORD color) {
    if (HasAlpha(canvas) || color >> 24 != 255)
        return DrawRasterFrame(canvas, rect, Premultiply(color), SpanStyle::dotted);
    const LOGBRUSH brush{BS_SOLID, ToColorRef(color), 0};
    const HPEN pen = ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &brush, 0, nullptr);
    DrawGdiRectangle(canvas, rect, pen ? pen : GetStockObject(BLACK_PEN), GetStockObject(NULL_BRUSH));
    if (pen) DeleteObject(pen);
    return 1;
}

}  // namespace zorvic

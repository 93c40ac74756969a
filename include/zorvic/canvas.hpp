// Zorvic for C++20: canvases and all drawing. zorvic.h says what each function does.
#pragma once

#include <span>

#include "zorvic/shapes.hpp"
#include "zorvic/surfaces.hpp"

namespace zorvic {

// What DrawNineGrid may be told besides the margins.
struct NineGridOptions {
    const RECT* slice = nullptr;       // texture pixels; nullptr, all of the texture
    Filter filter = Filter::bilinear;  // sampling
    BYTE alpha = 255;                  // opacity
    bool fillCenter = false;           // one colour instead of the stretched centre
    float destinationScale = 1;        // above 1: margins on the canvas are that much larger
    double sourceScale = 1;            // scale of the picture itself: 2 for one made for twice the pixels
};

// The vector style of a canvas as it was: Save now, Restore at the end of the scope.
class StyleScope {
public:
    // Saves the canvas's style.
    explicit StyleScope(HGCANVAS styled) : canvas(styled) { ::Save(canvas); }
    StyleScope(const StyleScope&) = delete;
    StyleScope& operator=(const StyleScope&) = delete;
    // Restores it.
    ~StyleScope() { ::Restore(canvas); }

private:
    HGCANVAS canvas;
};

// A canvas that somebody else owns, with everything that can be done to a canvas.
class CanvasRef : public HandleRef<HGCANVAS> {
public:
    using HandleRef::HandleRef;

    SIZE Size() const {
        SIZE size{};
        ::GetCanvasSize(handle, &size);
        return size;
    }
    // It stays the canvas's.
    BitmapRef Surface() const { return ::GetBitmap(handle); }
    HDC Dc() const { return ::GetCanvasHandle(handle); }
    // Shows the canvas's pixels without owning them. It must end before the canvas.
    [[nodiscard]] Texture View() const { return Texture(::GetTexture(handle)); }

    bool SetOperation(Operation operation, DWORD colorKey = 0) const {
        return ::SetCanvasFilter(handle, static_cast<DWORD>(operation) | colorKey) != 0;
    }
    DWORD OperationWord() const {
        DWORD word = 0;
        ::GetCanvasFilter(handle, &word);
        return word;
    }

    bool SetViewportOrigin(int x, int y, POINT* previous = nullptr) const {
        return ::SetViewportOrg(handle, x, y, previous) != 0;
    }
    POINT ViewportOrigin() const {
        POINT origin{};
        ::GetViewportOrg(handle, &origin);
        return origin;
    }
    bool SetWindowOrigin(int x, int y, POINT* previous = nullptr) const {
        return ::SetWindowOrg(handle, x, y, previous) != 0;
    }
    POINT WindowOrigin() const {
        POINT origin{};
        ::GetWindowOrg(handle, &origin);
        return origin;
    }
    // From logical to surface pixels and back.
    RECT ToSurface(RECT rect) const {
        ::WindowToDevice(handle, &rect);
        return rect;
    }
    RECT ToLogical(RECT rect) const {
        ::DeviceToWindow(handle, &rect);
        return rect;
    }

    bool SetClip(const RECT& rect) const { return ::SetCanvasClipRect(handle, &rect) != 0; }
    bool IntersectClip(const RECT& rect) const { return ::IntersectCanvasClipRect(handle, &rect) != 0; }
    RECT Clip() const {
        RECT rect{};
        ::GetCanvasClipRect(handle, &rect);
        return rect;
    }

    HWND SetWindow(HWND window) const { return ::SetCanvasWindow(handle, window); }
    HWND Window() const { return ::GetCanvasWindow(handle); }
    bool SetBkColor(DWORD color, DWORD* previous = nullptr) const {
        return ::SetCanvasBkColor(handle, color, previous) != 0;
    }
    DWORD BkColor() const {
        DWORD color = 0;
        ::GetCanvasBkColor(handle, &color);
        return color;
    }

    // Bitmaps and textures.

    // In its own size, at (0, 0).
    bool DrawBitmap(BitmapRef bitmap, BYTE alpha = 255) const {
        return ::DrawBitmapEx(handle, nullptr, bitmap.Get(), ZORVIC_FILTER_NEAREST, alpha) != 0;
    }
    bool DrawBitmap(const RECT& dst, BitmapRef bitmap, Filter filter = Filter::bilinear, BYTE alpha = 255) const {
        return ::DrawBitmapEx(handle, &dst, bitmap.Get(), static_cast<DWORD>(filter), alpha) != 0;
    }
    bool DrawBitmap(const RECT& dst, BitmapRef bitmap, const RECT& src, Filter filter = Filter::bilinear,
                    BYTE alpha = 255) const {
        return ::DrawBitmapEx2(handle, &dst, bitmap.Get(), &src, static_cast<DWORD>(filter), alpha) != 0;
    }
    bool DrawTexture(const RECT& dst, TextureRef texture, Filter filter = Filter::bilinear, BYTE alpha = 255,
                     float tileScale = 1, double scale = 1) const {
        return ::DrawTextureEx2(handle, &dst, texture.Get(), static_cast<DWORD>(filter), alpha, tileScale, scale) != 0;
    }
    bool DrawTexture(const RECT& dst, TextureRef texture, const TextureDrawParams& params) const {
        return ::DrawTextureEx3(handle, &dst, texture.Get(), &params, nullptr) != 0;
    }
    // A bitmap drawn in a colour.
    bool DrawModulation(int x, int y, BitmapRef bitmap, DWORD color, const RECT* src = nullptr) const {
        return ::DrawModulation(handle, x, y, bitmap.Get(), src, color) != 0;
    }

    // Texture layouts, chosen by the call.

    bool DrawCentered(const RECT& dst, TextureRef texture, const RECT* slice = nullptr,
                      Filter filter = Filter::bilinear, BYTE alpha = 255) const {
        return ::DrawTextureCenter(handle, &dst, texture.Get(), slice, static_cast<DWORD>(filter), alpha) != 0;
    }
    bool DrawUniform(const RECT& dst, TextureRef texture, const RECT& margins, bool center = true,
                     Filter filter = Filter::bilinear, BYTE alpha = 255) const {
        return ::DrawTextureUniform(handle, &dst, texture.Get(), &margins, static_cast<DWORD>(filter), alpha, center) !=
               0;
    }
    void DrawTiled(const RECT& dst, TextureRef texture, const RECT* slice = nullptr, Tiles tiles = Tiles::plain,
                   float scale = 1, Filter filter = Filter::bilinear, BYTE alpha = 255) const {
        ::DrawTextureTile(handle, &dst, texture.Get(), slice, static_cast<DWORD>(filter), alpha,
                          static_cast<DWORD>(tiles), scale);
    }
    void DrawTopTiled(const RECT& dst, TextureRef texture, const RECT& margins, const RECT* slice = nullptr,
                      Filter filter = Filter::bilinear, BYTE alpha = 255) const {
        ::DrawTextureTopTile(handle, &dst, texture.Get(), slice, &margins, static_cast<DWORD>(filter), alpha);
    }
    bool DrawNineGrid(const RECT& dst, TextureRef texture, const RECT& margins,
                      const NineGridOptions& options = {}) const {
        return ::DrawTexture9Grid(handle, &dst, texture.Get(), options.slice, &margins,
                                  static_cast<DWORD>(options.filter), options.fillCenter, options.alpha, 0,
                                  options.destinationScale, options.sourceScale) != 0;
    }

    // Canvases, and the way to a window.

    bool Mix(const RECT& dst, CanvasRef src, const RECT& srcRect, BYTE amount) const {
        return ::MixCanvas(handle, &dst, src.handle, &srcRect, amount) != 0;
    }
    bool MixColor(const RECT& rect, DWORD color, BYTE amount) const {
        return ::MixCanvasWithColor(handle, &rect, color, amount) != 0;
    }
    bool Blend(const RECT& dst, CanvasRef src, const RECT& srcRect, BYTE alpha = 255) const {
        return ::BlendCanvas(handle, &dst, src.handle, &srcRect, alpha) != 0;
    }
    bool ScrollRows(int dy) const { return ::CanvasScroll(handle, 0, dy) != 0; }
    bool TransferTo(HDC target, const RECT& dst, const RECT& src, BYTE alpha = 255) const {
        return ::GdiTransCanvas(target, &dst, handle, &src, alpha) != 0;
    }

    // Fills.

    bool FillSolidRect(DWORD color, const RECT& rect, Operation operation = Operation::sourceOver) const {
        return ::FillSolidRectEx(handle, color, &rect, static_cast<DWORD>(operation)) != 0;
    }
    bool FillPremultipliedRect(DWORD color, const RECT& rect, Operation operation = Operation::sourceOver) const {
        return ::FillPreMulColorRectEx(handle, color, &rect, static_cast<DWORD>(operation)) != 0;
    }
    bool FillGradualRect(DWORD colorFrom, DWORD colorTo, const RECT& rect, GradualDirection direction) const {
        return ::FillGradualRect(handle, colorFrom, colorTo, &rect, static_cast<DWORD>(direction)) != 0;
    }
    bool FillRectangle(const RECT& rect, DWORD color) const { return ::FillRectangleEx(handle, &rect, color) != 0; }
    bool FillRoundRect(const RECT& rect, const POINT& corner, DWORD color) const {
        return ::FillRoundRectEx(handle, &rect, &corner, color) != 0;
    }

    // Outlines, by GDI's pens or by colours.

    bool OutlineRectangle(const RECT& rect, HPEN pen, HBRUSH brush) const {
        return ::GeoRectangle(handle, &rect, pen, brush) != 0;
    }
    bool OutlineRectangle(const RECT& rect, DWORD color, int width) const {
        return ::GeoRectangleEx(handle, &rect, color, width) != 0;
    }
    bool OutlineRoundRect(const RECT& rect, const POINT& corner, HPEN pen) const {
        return ::GeoRoundRect(handle, &rect, &corner, pen) != 0;
    }
    bool OutlineRoundRect(const RECT& rect, const POINT& corner, DWORD color, int width) const {
        return ::GeoRoundRectEx(handle, &rect, &corner, color, width) != 0;
    }
    bool OutlineFocus(const RECT& rect, DWORD color) const { return ::GeoRectFocusEx(handle, &rect, color) != 0; }

    // Vector shapes, by the style below.

    bool DrawPoint(float x, float y) const { return ::DrawPoint(handle, x, y) != 0; }
    bool DrawLine(float x1, float y1, float x2, float y2) const { return ::DrawLine(handle, x1, y1, x2, y2) != 0; }
    bool DrawRectangle(float x, float y, float width, float height) const {
        return ::DrawRectangle(handle, x, y, width, height) != 0;
    }
    bool DrawRoundRect(const RECT& rect, float rx, float ry) const {
        return ::DrawRoundRect(handle, &rect, rx, ry) != 0;
    }
    bool DrawCircle(float cx, float cy, float radius) const { return ::DrawCircle(handle, cx, cy, radius) != 0; }
    bool DrawEllipse(float x, float y, float width, float height) const {
        return ::DrawEllipse(handle, x, y, width, height) != 0;
    }
    // At least one point.
    bool DrawPolygon(std::span<const POINT> points) const {
        return ::DrawPolygon(handle, static_cast<unsigned>(points.size()), points.empty() ? nullptr : points.data()) !=
               0;
    }
    bool DrawBezier(const POINT& p0, const POINT& p1, const POINT& p2, const POINT& p3) const {
        return ::DrawBezier(handle, &p0, &p1, &p2, &p3) != 0;
    }
    bool DrawColor(DWORD color, const RECT& rect) const { return ::DrawColor(handle, color, &rect) != 0; }
    bool DrawPath(PathRef path) const { return ::DrawPath(handle, path.Get()) != 0; }

    // Vector style.

    [[nodiscard]] StyleScope SaveStyle() const { return StyleScope(handle); }
    void SetDrawStyle(DrawStyle style) const { ::SetDrawStyle(handle, static_cast<int>(style)); }
    void SetColor(DWORD color) const { ::SetColor(handle, color); }
    void SetGradient(GradientRef gradient) const { ::SetGradient(handle, gradient.Get()); }
    void SetSmooth(bool smooth) const { ::SetSmooth(handle, smooth); }
    void SetBlendMode(BlendMode mode) const { ::SetBlendMode(handle, static_cast<int>(mode)); }
    BlendMode GetBlendMode() const { return static_cast<BlendMode>(::GetBlendMode(handle)); }
    void SetBlendValue(BYTE value) const { ::SetBlendValue(handle, value); }
    BYTE GetBlendValue() const { return static_cast<BYTE>(::GetBlendValue(handle)); }
    void SetStrokeWidth(float width) const { ::SetStrokeWidth(handle, width); }
    float GetStrokeWidth() const { return ::GetStrokeWidth(handle); }
    void SetStrokeCap(StrokeCap cap) const { ::SetStrokeCap(handle, static_cast<int>(cap)); }
    void SetStrokeJoin(StrokeJoin join) const { ::SetStrokeJoin(handle, static_cast<int>(join)); }
    void SetDashStyle(DashStyle style) const { ::SetDashStyle(handle, static_cast<BYTE>(style)); }
    // At most 255 lengths.
    void SetDashPattern(std::span<const float> lengths) const {
        ::SetDashPattern(handle, lengths.data(), static_cast<BYTE>(lengths.size()));
    }

protected:
    static void Delete(HGCANVAS canvas) { ::DeleteCanvas(canvas); }
};

// A canvas of one's own.
class Canvas : public Owned<CanvasRef> {
public:
    using Owned::Owned;
    static Canvas Create(int width, int height, CanvasRef reference = {}) {
        return Canvas(::CreateCanvas(width, height, reference.Get()));
    }
    static Canvas CreateSystem(int width, int height, CanvasRef reference = {}) {
        return Canvas(::CreateSystemCanvas(width, height, reference.Get()));
    }
    static Canvas FromDc(HDC dc) { return Canvas(::CreateCanvasFromDC(dc)); }
};

// The surface moves; the canvas is used up.
[[nodiscard]] inline Texture ToTexture(Canvas&& canvas) { return Texture(::CanvasToTexture(canvas.Release())); }

}  // namespace zorvic

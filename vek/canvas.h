// What a canvas handle stands for: the bitmap and layers that are drawn on, and the state with its stack.
#pragma once

#include <optional>

#include "compose.h"
#include "style.h"

namespace zorvic::vek {

class Canvas {
public:
    void SetBitmap(const Image& bitmap) { base.emplace(bitmap.Another()); }
    bool HasBitmap() const { return base.has_value(); }

    void Save();
    bool SaveLayer(const Box* bounds, int alpha);
    bool Restore();
    void ClipTo(const Box& box);
    void Translate(Point by) { state.offset = state.offset + by; }

    Style& CurrentStyle() { return state.style; }

    void DrawPoint(Point p);
    void DrawLine(Point a, Point b);
    void DrawRectangle(Point a, Point b);
    void DrawRoundRect(Point a, Point b, double rx, double ry);
    void DrawEllipse(Point a, Point b);
    void DrawPath(const Path& path);
    void DrawColor(std::uint32_t color, Point a, Point b);
    void DrawBitmap(Image& bitmap, Point position);

private:
    struct State {
        Style style;
        Rect clip = unbounded;  // pixels
        Point offset;           // from the caller's coordinates to pixels
    };
    struct Layer {
        Image image;
        int alpha;
    };
    struct Saved {
        State state;
        std::unique_ptr<Layer> layer;  // ends with this state's restore
    };

    Image& Top();
    Drawing Begin();
    Ink ShapeInk() const;
    void Draw(const Path& path, bool stroked);

    std::optional<Image> base;
    State state;
    std::vector<Saved> saved;
    Image scratch;
    Path shapePath;  // memory kept for the next shape
};

}  // namespace zorvic::vek

// The bitmap, the layers and the state of a canvas. Its draw calls are in canvas_draw.cpp.
#include "canvas.h"

namespace zorvic::vek {

Image& Canvas::Top() {
    for (auto entry = saved.rbegin(); entry != saved.rend(); ++entry)
        if (entry->layer) return entry->layer->image;
    return *base;
}

void Canvas::Save() { saved.push_back({state, nullptr}); }

bool Canvas::SaveLayer(const Box* bounds, int alpha) {
    Save();
    if (!base) return false;
    const Rect part = bounds ? PixelsOf(bounds->Moved(state.offset)) : unbounded;
    const Rect place = Intersect(Intersect(part, state.clip), Top().Place());
    auto layer = std::make_unique<Layer>();
    layer->alpha = std::clamp(alpha, 0, 255);
    layer->image.Allocate(place.Empty() ? Rect{} : place);
    saved.back().layer = std::move(layer);
    return true;
}

bool Canvas::Restore() {
    if (saved.empty()) return false;
    const Saved ended = std::move(saved.back());
    saved.pop_back();
    state = ended.state;
    if (!ended.layer || !base) return true;
    Image& top = Top();
    const Rect& place = ended.layer->image.Place();
    const Drawing drawing{
        .image = top, .clip = Intersect(place, top.Place()), .opacity = ended.layer->alpha, .scratch = scratch};
    vek::DrawBitmap(drawing, ended.layer->image, {static_cast<double>(place.left), static_cast<double>(place.top)});
    return true;
}

void Canvas::ClipTo(const Box& box) {
    const Box moved = box.Moved(state.offset);
    const Rect pixels{ToPixel(PixelEdge(moved.left)), ToPixel(PixelEdge(moved.top)), ToPixel(PixelEdge(moved.right)),
                      ToPixel(PixelEdge(moved.bottom))};
    state.clip = Intersect(state.clip, pixels);
}

}  // namespace zorvic::vek

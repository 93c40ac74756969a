// Zoom, scrolling and dragging; view_draw.cpp draws.
#include "ui/view.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int zooms[]{-64, -48, -32, -24, -16, -12, -8, -6, -4, -3, -2, 1, 2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64};
constexpr int reach = 7;  // how far from a handle it is still hit
constexpr LONG farthest = 1 << 20;

double Magnification(int zoom) { return zoom > 0 ? zoom : -1.0 / zoom; }

LONG FloorTo(LONG value, int step) { return static_cast<LONG>(std::floor(double(value) / step)) * step; }

}  // namespace

void View::Layout(const RECT& where) { place = where; }

POINT View::StageAt(POINT client) const {
    const double scale = Magnification(zoom);
    return {origin.x + static_cast<LONG>(std::floor((client.x - place.left) / scale)),
            origin.y + static_cast<LONG>(std::floor((client.y - place.top) / scale))};
}

int View::ToClientX(double x) const {
    const double at = place.left + (x - origin.x) * Magnification(zoom);
    return static_cast<int>(std::floor(std::clamp<double>(at, -farthest, farthest)));
}
int View::ToClientY(double y) const {
    const double at = place.top + (y - origin.y) * Magnification(zoom);
    return static_cast<int>(std::floor(std::clamp<double>(at, -farthest, farthest)));
}

RECT View::DestinationOnScreen() const {
    const RECT& rect = document.Now().destination;
    return {ToClientX(rect.left), ToClientY(rect.top), ToClientX(rect.right), ToClientY(rect.bottom)};
}

std::optional<DWORD> View::PixelAt(POINT client) const {
    if (!IsCurrent() || !Contains(place, client)) return std::nullopt;
    const int times = std::max(1, zoom);
    const zorvic::PixelLock pixels = frame.pixels.Lock();
    const auto row = pixels.Row((client.y - place.top) / times);
    const auto x = static_cast<std::size_t>((client.x - place.left) / times);
    return x < row.size() ? std::optional(row[x]) : std::nullopt;
}

void View::SetZoom(int to, POINT at) {
    const POINT fixed = StageAt(at);
    zoom = to;
    const double scale = Magnification(zoom);
    origin = {fixed.x - static_cast<LONG>(std::floor((at.x - place.left) / scale)),
              fixed.y - static_cast<LONG>(std::floor((at.y - place.top) / scale))};
    if (zoom < 0) origin = {FloorTo(origin.x, -zoom), FloorTo(origin.y, -zoom)};
}

void View::ZoomBy(int steps, POINT at) {
    const auto larger = std::ranges::upper_bound(zooms, zoom);
    const auto notSmaller = std::ranges::lower_bound(zooms, zoom);
    if (steps > 0 && larger != std::end(zooms)) SetZoom(*larger, at);
    if (steps < 0 && notSmaller != std::begin(zooms)) SetZoom(*(notSmaller - 1), at);
}

void View::ZoomToFit() {
    const RECT& rect = document.Now().destination;
    const int room = 24;
    const int width = std::max(1, Width(place) - 2 * room);
    const int height = std::max(1, Height(place) - 2 * room);
    const int reduction = std::max({1, (Width(rect) + width - 1) / width, (Height(rect) + height - 1) / height});
    zoom = reduction > 1 ? -reduction : 1;
    const double scale = Magnification(zoom);
    origin = {(rect.left + rect.right) / 2 - static_cast<LONG>(Width(place) / scale / 2),
              (rect.top + rect.bottom) / 2 - static_cast<LONG>(Height(place) / scale / 2)};
    if (zoom < 0) origin = {FloorTo(origin.x, -zoom), FloorTo(origin.y, -zoom)};
}

void View::ZoomToNatural() { SetZoom(1, {(place.left + place.right) / 2, (place.top + place.bottom) / 2}); }

void View::Scroll(int dx, int dy) {
    const double scale = Magnification(zoom);
    const auto steps = [&](int by) { return static_cast<LONG>(std::lround(by / scale)); };
    origin = {std::clamp(origin.x + steps(dx), -farthest, farthest),
              std::clamp(origin.y + steps(dy), -farthest, farthest)};
    if (zoom < 0) origin = {FloorTo(origin.x, -zoom), FloorTo(origin.y, -zoom)};
}

RECT View::MarginLines() const {
    const Settings& s = document.Now();
    // Below 1 the nine-grid's scale has no effect.
    const double scale = std::max(1.0, s.scalePercent / 100.0);
    return {ToClientX(s.destination.left + s.margins.left * scale),
            ToClientY(s.destination.top + s.margins.top * scale),
            ToClientX(s.destination.right - s.margins.right * scale),
            ToClientY(s.destination.bottom - s.margins.bottom * scale)};
}

std::vector<View::Handle> View::Handles() const {
    std::vector<Handle> handles;
    if (!options.handles || !document.HasPicture()) return handles;
    const RECT r = DestinationOnScreen();
    if (IsNineGrid(document.Now().layout)) {
        // Outside the rectangle, at the ends of their lines, so that they never cover its own handles.
        const RECT lines = MarginLines();
        const int out = 14;
        handles.push_back({Grip::margin | Grip::left, {lines.left, r.top - out}});
        handles.push_back({Grip::margin | Grip::right, {lines.right, r.bottom + out}});
        handles.push_back({Grip::margin | Grip::top, {r.left - out, lines.top}});
        handles.push_back({Grip::margin | Grip::bottom, {r.right + out, lines.bottom}});
    }
    const POINT middle{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    handles.push_back({Grip::left | Grip::top, {r.left, r.top}});
    handles.push_back({Grip::right | Grip::top, {r.right, r.top}});
    handles.push_back({Grip::left | Grip::bottom, {r.left, r.bottom}});
    handles.push_back({Grip::right | Grip::bottom, {r.right, r.bottom}});
    if (Width(r) > 40) {
        handles.push_back({Grip::top, {middle.x, r.top}});
        handles.push_back({Grip::bottom, {middle.x, r.bottom}});
    }
    if (Height(r) > 40) {
        handles.push_back({Grip::left, {r.left, middle.y}});
        handles.push_back({Grip::right, {r.right, middle.y}});
    }
    return handles;
}

View::Grip View::GripAt(POINT at) const {
    if (!options.handles || !document.HasPicture()) return Grip::pan;
    for (const Handle& handle : Handles())
        if (std::abs(at.x - handle.at.x) <= reach && std::abs(at.y - handle.at.y) <= reach) return handle.grip;
    return Contains(DestinationOnScreen(), at) ? Grip::move : Grip::pan;
}

bool View::Press(POINT at, bool panOnly) {
    if (!Contains(place, at)) return false;
    grip = panOnly ? Grip::pan : GripAt(at);
    pressedClient = at;
    pressedStage = StageAt(at);
    originAtPress = origin;
    atPress = document.Now();
    if (grip != Grip::pan) document.Begin();
    return true;
}

void View::Drag(POINT at) {
    if (grip == Grip::pan) {
        origin = originAtPress;
        Scroll(pressedClient.x - at.x, pressedClient.y - at.y);
    } else if (Has(grip, Grip::margin)) {
        MarginTo(StageAt(at));
    } else if (grip != Grip::none) {
        ResizeTo(StageAt(at));
    }
}

void View::ResizeTo(POINT stage) {
    const LONG dx = stage.x - pressedStage.x;
    const LONG dy = stage.y - pressedStage.y;
    Settings settings = document.Now();
    RECT& rect = settings.destination;
    rect = atPress.destination;
    if (grip == Grip::move) OffsetRect(&rect, dx, dy);
    constexpr LONG most = 32767;
    if (Has(grip, Grip::left)) rect.left = std::clamp(rect.left + dx, rect.right - most, rect.right - 1);
    if (Has(grip, Grip::top)) rect.top = std::clamp(rect.top + dy, rect.bottom - most, rect.bottom - 1);
    if (Has(grip, Grip::right)) rect.right = std::clamp(rect.right + dx, rect.left + 1, rect.left + most);
    if (Has(grip, Grip::bottom)) rect.bottom = std::clamp(rect.bottom + dy, rect.top + 1, rect.top + most);
    document.Change(settings);
}

void View::MarginTo(POINT stage) {
    const double scale = std::max(1.0, atPress.scalePercent / 100.0);
    const SIZE size = document.TurnedSize();
    const auto moved = [&](LONG from, LONG by, LONG most) {
        return std::clamp(from + static_cast<LONG>(std::lround(by / scale)), 0L, most);
    };
    const LONG dx = stage.x - pressedStage.x;
    const LONG dy = stage.y - pressedStage.y;
    Settings settings = document.Now();
    RECT& m = settings.margins;
    if (Has(grip, Grip::left)) m.left = moved(atPress.margins.left, dx, size.cx);
    if (Has(grip, Grip::top)) m.top = moved(atPress.margins.top, dy, size.cy);
    if (Has(grip, Grip::right)) m.right = moved(atPress.margins.right, -dx, size.cx);
    if (Has(grip, Grip::bottom)) m.bottom = moved(atPress.margins.bottom, -dy, size.cy);
    document.Change(settings);
}

void View::Release() {
    if (grip != Grip::none && grip != Grip::pan) document.End();
    grip = Grip::none;
}

void View::Cancel() {
    if (grip != Grip::none && grip != Grip::pan) document.Abandon();
    grip = Grip::none;
}

HCURSOR View::CursorAt(POINT at) const {
    if (options.pickingKey) return LoadCursorW(nullptr, IDC_CROSS);
    const Grip under = grip != Grip::none ? grip : GripAt(at);
    const bool x = Has(under, Grip::left) || Has(under, Grip::right);
    const bool y = Has(under, Grip::top) || Has(under, Grip::bottom);
    const bool falling = Has(under, Grip::left) == Has(under, Grip::top);
    const LPCWSTR name = x && y                ? (falling ? IDC_SIZENWSE : IDC_SIZENESW)
                         : x                   ? IDC_SIZEWE
                         : y                   ? IDC_SIZENS
                         : under == Grip::move ? IDC_SIZEALL
                                               : IDC_ARROW;
    return LoadCursorW(nullptr, name);
}

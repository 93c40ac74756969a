// GDI walks along every dash, also where nothing shows: far edges are brought near the clip, by whole periods of the
// dashes, so that those in sight stay where they are.
#include "draw/gdi_rectangle.h"

#include <cstdlib>
#include <numeric>

namespace zorvic {

namespace {

class SelectedObject {
public:
    SelectedObject(HDC targetDc, HGDIOBJ object) : dc(targetDc), previous(SelectObject(targetDc, object)) {}
    ~SelectedObject() { SelectObject(dc, previous); }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC dc;
    HGDIOBJ previous;
};

// In logical units.
struct PenMeasure {
    std::int64_t width;
    std::int64_t period;  // a multiple of the length after which the dashes repeat
};

PenMeasure Measure(HGDIOBJ pen) {
    // GDI's own dashes repeat after 2, 4, 6, 8 or 24 widths. Those of a host repeat after their sum, an odd number of them
    // after twice that; a device may take the lengths of a cosmetic pen several times.
    constexpr std::int64_t repeats = 24;
    if (GetObjectType(pen) != OBJ_EXTPEN) {
        LOGPEN record{};
        GetObjectW(pen, sizeof record, &record);
        const std::int64_t width = std::max<std::int64_t>(std::abs(std::int64_t{record.lopnWidth.x}), 1);
        return {width, repeats * width};
    }
    constexpr std::size_t maxLengths = 16;
    struct {
        EXTLOGPEN pen;
        DWORD lengths[maxLengths - 1];  // the first one is the pen's
    } record{};
    GetObjectW(pen, sizeof record, &record);
    const std::int64_t width = std::max<std::int64_t>(record.pen.elpWidth, 1);
    if ((record.pen.elpPenStyle & PS_STYLE_MASK) != PS_USERSTYLE) return {width, repeats * width};
    const DWORD* const lengths = record.pen.elpStyleEntry;
    const std::int64_t sum = std::accumulate(lengths, lengths + record.pen.elpNumEntries, std::int64_t{0});
    return {width, repeats * std::max<std::int64_t>(sum, 1)};
}

// Where a logical unit is a pixel.
bool CountsPixels(HDC dc) { return GetMapMode(dc) == MM_TEXT && GetGraphicsMode(dc) == GM_COMPATIBLE; }

// Brings an edge that is farther from low..high than reach nearer, by whole periods.
LONG BringNear(LONG edge, LONG low, LONG high, std::int64_t reach, std::int64_t period) {
    const std::int64_t before = low - reach - edge, behind = edge - reach - high;
    const std::int64_t excess = std::max(before, behind);
    if (excess <= 0) return edge;
    const std::int64_t moved = excess / period * period;
    return static_cast<LONG>(before > 0 ? edge + moved : edge - moved);
}

}  // namespace

void DrawGdiRectangle(Canvas& canvas, const RECT& rect, HGDIOBJ pen, HGDIOBJ brush) {
    const HDC dc = canvas.MakeDc();
    if (!dc) return;
    const SelectedObject selectedPen(dc, pen), selectedBrush(dc, brush);
    const auto [width, period] = Measure(pen);
    // Elsewhere a unit may be far less than a pixel, and dashes have another period.
    const std::int64_t reach = width + (CountsPixels(dc) ? 1 : maxExtent);
    const RECT clip = canvas.ClipBox();
    Rectangle(dc, BringNear(rect.left, clip.left, clip.right, reach, period),
              BringNear(rect.top, clip.top, clip.bottom, reach, period),
              BringNear(rect.right, clip.left, clip.right, reach, period),
              BringNear(rect.bottom, clip.top, clip.bottom, reach, period));
    if (canvas.Surface()) GdiFlush();  // the library touches the pixels next
}

}  // namespace zorvic

// A frame as four spans. A span is an image one pixel wide whose rows are the span's pixels, so that fills draw it.
#include "draw/raster_frame.h"

#include "raster/kernel_table.h"

namespace zorvic {

namespace {

class FramePainter {
public:
    FramePainter(const BitmapLockInfo& pixels, const RECT& visibleRect, DWORD frameColor, SpanStyle spanStyle)
        : image(pixels), visible(visibleRect), color(frameColor), dotted(spanStyle == SpanStyle::dotted) {}

    void Row(LONG y, LONG from, LONG to) const {
        Span(from, to, visible.left, visible.right, sizeof(DWORD),
             static_cast<std::ptrdiff_t>(y - visible.top) * image.bmWidthBytes);
    }

    void Column(LONG x, LONG from, LONG to) const {
        Span(from, to, visible.top, visible.bottom, image.bmWidthBytes,
             static_cast<std::ptrdiff_t>(x - visible.left) * static_cast<std::ptrdiff_t>(sizeof(DWORD)));
    }

private:
    // The pixels from..to of a side of which low..high are visible; lineBytes leads to its line in the image.
    void Span(std::int64_t from, std::int64_t to, LONG low, LONG high, LONG pixelBytes,
              std::ptrdiff_t lineBytes) const {
        const int step = dotted ? 2 : 1;
        std::int64_t first = dotted ? from + 1 : from;
        if (first < low) first += (low - first + step - 1) / step * step;  // the phase is that of the whole side
        const std::int64_t end = to < high ? to : high;
        if (first >= end) return;
        BitmapLockInfo span = image;
        span.bmBits =
            static_cast<std::byte*>(image.bmBits) + lineBytes + static_cast<std::ptrdiff_t>(first - low) * pixelBytes;
        span.bmWidth = 1;
        span.bmHeight = static_cast<LONG>((end - first + step - 1) / step);
        span.bmWidthBytes = pixelBytes * step;
        KernelTable.At(color >> 24 == 255 ? slots::fillCopy : slots::fillOver)(span, color);
    }

    const BitmapLockInfo& image;
    const RECT& visible;
    DWORD color;
    bool dotted;
};

}  // namespace

int DrawRasterFrame(Canvas& canvas, const RECT& rect, DWORD color, SpanStyle style) {
    const RECT visible = canvas.VisiblePart(rect);
    if (IsEmpty(visible)) return 1;
    const bool top = visible.top == rect.top, bottom = visible.bottom == rect.bottom;
    const bool left = visible.left == rect.left, right = visible.right == rect.right;
    if (!top && !bottom && !left && !right) return 1;

    const CanvasLock target(canvas, visible);
    if (!target) return 0;
    const FramePainter painter(*target, visible, color, style);
    if (top) painter.Row(rect.top, rect.left, rect.right);
    if (bottom) painter.Row(rect.bottom - 1, rect.left, rect.right);
    if (left) painter.Column(rect.left, rect.top, rect.bottom);
    if (right) painter.Column(rect.right - 1, rect.top, rect.bottom);
    return 1;
}

}  // namespace zorvic

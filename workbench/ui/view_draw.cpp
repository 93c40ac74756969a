// How the view is drawn: checkerboard, frame, pixel grid, handles.

#include "ui/view.h"

namespace {

constexpr int field = 8;  // of the checkerboard

// Two by two fields, as often as they fit into 128 pixels.
zorvic::Texture MakeCheckerboard() {
    zorvic::Texture board = zorvic::Texture::Create(128, 128);
    zorvic::PixelLock pixels = board.Lock();
    for (int y = 0; y < pixels.Height(); ++y) {
        const auto row = pixels.Row(y);
        for (int x = 0; x < pixels.Width(); ++x)
            row[static_cast<std::size_t>(x)] = (x / field + y / field) % 2 ? 0xFFD3D6DA : 0xFFF4F5F6;
    }
    board.SetOperation(zorvic::Operation::copy);
    return board;
}

}  // namespace

void View::Draw(const Painter& painter) const {
    static const zorvic::Texture board = MakeCheckerboard();
    const zorvic::CanvasRef canvas = painter.Canvas();
    const RECT clip = canvas.Clip();
    canvas.IntersectClip(place);
    // Whole tiles, so that the rows below the first are as wide as it is.
    const int columns = (Width(place) + 127) / 128;
    const int rows = (Height(place) + 127) / 128;
    canvas.DrawTiled({place.left, place.top, place.left + columns * 128, place.top + rows * 128}, board);
    if (frame.pixels) DrawFrame(painter);
    if (options.grid && zoom >= 8 && document.HasPicture()) DrawGrid(painter);
    if (options.handles && document.HasPicture()) DrawHandles(painter);
    canvas.SetClip(clip);
}

void View::DrawFrame(const Painter& painter) const {
    // A frame of another place or zoom stands in until the new one is there.
    const ViewPart& part = frame.part;
    const double stored = part.zoom < 0 ? -part.zoom : 1;  // stage pixels on a side of a stored one
    const zorvic::BitmapRef shown = frame.shown ? zorvic::BitmapRef(frame.shown) : zorvic::BitmapRef(frame.pixels);
    const SIZE size = shown.Size();
    const RECT where{ToClientX(part.origin.x), ToClientY(part.origin.y), ToClientX(part.origin.x + size.cx * stored),
                     ToClientY(part.origin.y + size.cy * stored)};
    if (Width(where) > 0 && Height(where) > 0) painter.Canvas().DrawBitmap(where, shown, zorvic::Filter::nearest);
}

void View::DrawGrid(const Painter& painter) const {
    constexpr DWORD color = 0x38000000;
    for (int x = place.left; x < place.right; x += zoom) painter.Fill({x, place.top, x + 1, place.bottom}, color);
    for (int y = place.top; y < place.bottom; y += zoom) painter.Fill({place.left, y, place.right, y + 1}, color);
}

void View::DrawHandles(const Painter& painter) const {
    const RECT r = DestinationOnScreen();
    painter.Frame({r.left - 1, r.top - 1, r.right + 1, r.bottom + 1}, theme::accent);
    if (IsNineGrid(document.Now().layout)) {
        const RECT lines = MarginLines();
        const int out = 14;
        painter.Fill({lines.left, r.top - out, lines.left + 1, r.bottom}, theme::grid);
        painter.Fill({lines.right, r.top, lines.right + 1, r.bottom + out}, theme::grid);
        painter.Fill({r.left - out, lines.top, r.right, lines.top + 1}, theme::grid);
        painter.Fill({r.left, lines.bottom, r.right + out, lines.bottom + 1}, theme::grid);
    }
    for (const Handle& handle : Handles()) {
        const RECT box{handle.at.x - 4, handle.at.y - 4, handle.at.x + 5, handle.at.y + 5};
        const bool margin = Has(handle.grip, Grip::margin);
        painter.Fill(box, margin ? theme::grid : theme::accent);
        painter.Fill(Inset(box, 2), 0xFFFFFFFF);
    }
}

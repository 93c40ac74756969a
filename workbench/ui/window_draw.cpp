// How the window is drawn: everything on one canvas, which then goes to the screen.
#include <cstdio>
#include <cwchar>

#include "ui/window.h"

namespace {

template <class... Values>
std::wstring Format(const wchar_t* format, Values... values) {
    wchar_t text[160];
    std::swprintf(text, std::size(text), format, values...);
    return text;
}

}  // namespace

void Window::Paint() {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(handle, &paint);
    if (canvas) {
        const std::shared_lock lock(Worker::drawing);
        const RECT& part = paint.rcPaint;
        {
            const Painter painter(canvas);
            RECT common{};
            if (IntersectRect(&common, &part, &view.Place())) {
                view.Draw(painter);
                DrawMessage(painter);
            }
            if (part.left < Panel::width && part.top < status.top) panel->Draw(painter);
            DrawStatus(painter);
            if (part.top < status.top) panel->DrawAbove(painter, {0, 0, client.right, status.top});
        }
        BitBlt(dc, part.left, part.top, Width(part), Height(part), canvas.Dc(), part.left, part.top, SRCCOPY);
    }
    EndPaint(handle, &paint);
}

// In the middle of the view: what went wrong, or how to begin.
void Window::DrawMessage(const Painter& painter) const {
    const bool empty = !document.HasPicture();
    if (failure.empty() && (!empty || worker->IsBusy())) return;
    const std::wstring title = failure.empty() ? L"Open a picture" : L"That did not work";
    const std::wstring text = failure.empty()
                                  ? L"Press Ctrl+O, drop a file on this window, or paste a picture with Ctrl+V."
                                  : failure + L"\n\nEsc or a click closes this message.";
    constexpr int width = 420;
    const SIZE size = painter.TextSize(text, width - 48);
    const RECT& area = view.Place();
    const int height = 66 + size.cy + 20;
    const int left = (area.left + area.right - width) / 2;
    const int top = (area.top + area.bottom - height) / 2;
    painter.Round({left - 1, top - 1, left + width + 1, top + height + 1}, 9, theme::line);
    painter.Round({left, top, left + width, top + height}, 8, theme::card);
    painter.Text(title, {left + 24, top + 18, left + width - 24, top + 44},
                 failure.empty() ? theme::accent : theme::warning, DT_LEFT, Face::strong);
    painter.Text(text, {left + 24, top + 54, left + width - 24, top + height - 12}, theme::text,
                 DT_LEFT | DT_WORDBREAK);
}

std::wstring Window::CostText() const {
    const DrawCost& cost = view.Cost();
    if (!document.HasPicture() || !view.IsCurrent() || cost.pixels <= 0 || cost.seconds <= 0) return {};
    const double milliseconds = cost.seconds * 1e3;
    const int digits = milliseconds < 1 ? 3 : milliseconds < 100 ? 2 : 0;
    return Format(L"%.*f ms per draw   %.0f MP/s", digits, milliseconds, cost.pixels / cost.seconds / 1e6);
}

std::wstring Window::StatusText() const {
    if (!said.empty() && GetTickCount() - saidAt < saidFor) return said;
    if (!document.HasPicture()) return L"No picture";
    const SIZE size = document.PictureSize();
    std::wstring text = document.Name() + Format(L"   %ld x %ld", size.cx, size.cy);
    if (Contains(view.Place(), pointer)) {
        const POINT at = view.StageAt(pointer);
        text += Format(L"   at %ld, %ld", at.x, at.y);
        if (const auto pixel = view.PixelAt(pointer))
            text += Format(L"   A %lu  R %lu  G %lu  B %lu", *pixel >> 24, *pixel >> 16 & 255, *pixel >> 8 & 255,
                           *pixel & 255);
    }
    return text;
}

void Window::DrawStatus(const Painter& painter) const {
    painter.Fill(status, theme::card);
    painter.Fill({status.left, status.top, status.right, status.top + 1}, theme::line);
    const RECT zoom{status.right - 70, status.top, status.right - 12, status.bottom};
    const RECT cost{zoom.left - 240, status.top, zoom.left - 8, status.bottom};
    const int percent = view.Zoom() > 0 ? view.Zoom() * 100 : 0;
    painter.Text(percent ? Format(L"%d %%", percent) : Format(L"1 : %d", -view.Zoom()), zoom, theme::text, DT_RIGHT);
    const wchar_t* const activity = worker->Activity();
    if (activity && GetTickCount() - busySince > 300) {
        const RECT bar{cost.right - 120, status.top + 10, cost.right, status.bottom - 10};
        painter.Text(std::wstring(activity) + L"\u2026", {cost.left, cost.top, bar.left - 10, cost.bottom}, theme::text,
                     DT_RIGHT);
        painter.Fill(bar, theme::field);
        const int done = static_cast<int>(Width(bar) * worker->Progress());
        painter.Fill({bar.left, bar.top, bar.left + done, bar.bottom}, theme::accent);
    } else {
        painter.Text(CostText(), cost, theme::quiet, DT_RIGHT);
    }
    painter.Text(StatusText(), {status.left + 14, status.top, cost.left - 8, status.bottom}, theme::text);
}

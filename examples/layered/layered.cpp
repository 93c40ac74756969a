// layered: a clock with a soft shadow, as a window in which every pixel has an alpha of its own. It is drawn on a system
// canvas, whose device context goes to UpdateLayeredWindow as it is: no WM_PAINT, and what is transparent lets clicks
// through. Drag it anywhere; Escape or Alt+F4 closes it.
#include <windows.h>

#include <cmath>
#include <numbers>

#include "zorvic/zorvic.hpp"

namespace {

zorvic::Canvas dial;  // everything but the hands, drawn once for a size

constexpr int sizeAt96Dpi = 300;
constexpr DWORD ink = 0xFF22324A;
constexpr DWORD accent = 0xFFE0503C;

// A line from the middle towards an angle, of which a whole turn is 1 and 0 is up. Lengths are in hundredths of the size.
void DrawRay(zorvic::CanvasRef canvas, double turn, float from, float to, float width, DWORD color) {
    const float unit = static_cast<float>(canvas.Size().cx) / 100;
    const auto x = static_cast<float>(std::sin(turn * 2 * std::numbers::pi));
    const auto y = static_cast<float>(-std::cos(turn * 2 * std::numbers::pi));
    canvas.SetColor(color);
    canvas.SetStrokeWidth(width * unit);
    canvas.DrawLine((50 + from * x) * unit, (50 + from * y) * unit, (50 + to * x) * unit, (50 + to * y) * unit);
}

void DrawDial(int size) {
    const float unit = static_cast<float>(size) / 100;
    dial = zorvic::Canvas::Create(size, size);

    // The shadow: a black disc, a little low, and then blurred.
    dial.SetColor(0xC0000000);
    dial.DrawCircle(50 * unit, 52.5f * unit, 39 * unit);
    {
        const zorvic::PixelLock pixels = dial.Surface().Lock();
        const BitmapLockInfo& image = pixels.Info();
        BlurBitmapData(image.bmWidth, image.bmHeight, image.bmWidthBytes, image.bmBits, 32, static_cast<int>(6 * unit));
    }

    // BlendMode::source replaces the shadow, so that what shines through the glass is the desktop alone.
    zorvic::Gradient glass = zorvic::Gradient::CreateLinear(0, 10 * unit, 0, 90 * unit);
    glass.AddColorStop(0, 0xF4FFFFFF);
    glass.AddColorStop(1, 0xB0C4D8F0);
    dial.SetGradient(glass);
    dial.SetDrawStyle(zorvic::DrawStyle::gradient);
    dial.SetBlendMode(zorvic::BlendMode::source);
    dial.DrawCircle(50 * unit, 50 * unit, 40 * unit);
    dial.SetBlendMode(zorvic::BlendMode::sourceOver);
    dial.SetDrawStyle(zorvic::DrawStyle::stroke);
    dial.SetColor(ink);
    dial.SetStrokeWidth(2 * unit);
    dial.DrawCircle(50 * unit, 50 * unit, 40 * unit);

    dial.SetStrokeCap(zorvic::StrokeCap::round);
    for (int minute = 0; minute < 60; ++minute) {
        const bool hour = minute % 5 == 0;
        DrawRay(dial, minute / 60.0, hour ? 32.5f : 35, 36, hour ? 1.4f : 0.6f, ink);
    }
}

// Draws the clock for a resolution and the present time, and gives it to the window.
void Show(HWND window, UINT dpi) {
    const int size = MulDiv(sizeAt96Dpi, static_cast<int>(dpi), 96);
    if (dial.Size().cx != size) DrawDial(size);
    zorvic::Canvas canvas = zorvic::Canvas::CreateSystem(size, size);
    canvas.Surface().CopyFrom(dial.Surface());

    SYSTEMTIME now{};
    GetLocalTime(&now);
    const double minutes = now.wMinute + now.wSecond / 60.0;
    canvas.SetStrokeCap(zorvic::StrokeCap::round);
    DrawRay(canvas, (now.wHour + minutes / 60) / 12, -4, 20, 2.4f, ink);
    DrawRay(canvas, minutes / 60, -4, 30, 1.6f, ink);
    DrawRay(canvas, now.wSecond / 60.0, -7, 33, 0.7f, accent);
    canvas.SetColor(accent);
    canvas.DrawCircle(static_cast<float>(size) / 2, static_cast<float>(size) / 2, static_cast<float>(size) * 0.02f);

    SIZE extent{size, size};
    POINT origin{};
    BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    UpdateLayeredWindow(window, nullptr, nullptr, &extent, canvas.Dc(), &origin, 0, &blend, ULW_ALPHA);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_TIMER:
            Show(window, GetDpiForWindow(window));
            return 0;
        case WM_DPICHANGED: {
            const RECT& place = *reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(window, nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
            Show(window, HIWORD(wParam));
            return 0;
        }
        case WM_NCHITTEST:
            return HTCAPTION;
        case WM_KEYDOWN:
            if (wParam == VK_ESCAPE) DestroyWindow(window);
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"layered";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowExW(WS_EX_LAYERED, L"layered", L"Clock", WS_POPUP | WS_SYSMENU, 120, 120, 0, 0, nullptr,
                                  nullptr, instance, nullptr);
    Show(window, GetDpiForWindow(window));
    ShowWindow(window, show);
    SetTimer(window, 1, 1000, nullptr);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return static_cast<int>(message.wParam);
}

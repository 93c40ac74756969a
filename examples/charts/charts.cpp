// charts: a line chart of smooth shapes. Gradients fill the areas below the lines, the grid and the limit are dashed, and
// markers sit on the readings. Everything is laid out anew for each size and resolution of the window; Escape closes it.
#include <windows.h>

#include <algorithm>
#include <span>
#include <string>

#include "zorvic/zorvic.hpp"

namespace {

struct Series {
    const wchar_t* name;
    DWORD color;       // 0xRRGGBB
    float values[13];  // degrees, every two hours
};
constexpr Series allSeries[] = {
    {L"Server room",
     0xE4572E,
     {21.8f, 21.5f, 21.2f, 21.6f, 23.9f, 26.4f, 27.8f, 28.6f, 27.9f, 26.1f, 24.4f, 23.0f, 22.2f}},
    {L"Outside", 0x2E86DE, {11.2f, 10.1f, 9.4f, 10.8f, 13.9f, 17.2f, 19.6f, 20.4f, 19.8f, 17.5f, 15.1f, 13.4f, 12.0f}}};
constexpr float lowest = 5;
constexpr float highest = 35;
constexpr float limit = 30;
constexpr int hoursBetween = 2;
constexpr DWORD limitColor = 0xC0392B;
constexpr DWORD opaque = 0xFF000000;

int dpi = 96;

int Scaled(int at96Dpi) { return MulDiv(at96Dpi, dpi, 96); }

void DrawLabel(HDC dc, const wchar_t* text, RECT place, int height, DWORD color, UINT format) {
    HFONT font = CreateFontW(-Scaled(height), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY,
                             VARIABLE_PITCH | FF_SWISS, L"Segoe UI");
    const HGDIOBJ before = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(color >> 16 & 255, color >> 8 & 255, color & 255));
    DrawTextW(dc, text, -1, &place, format | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, before);
    DeleteObject(font);
}

// Where the readings are drawn, and from reading to pixel.
struct Plot {
    RECT area;
    float X(int i) const {
        return static_cast<float>(area.left) + static_cast<float>((area.right - area.left) * i) / 12;
    }
    float Y(float value) const {
        return static_cast<float>(area.bottom) -
               static_cast<float>(area.bottom - area.top) * (value - lowest) / (highest - lowest);
    }
};

void DrawGrid(zorvic::CanvasRef canvas, const Plot& plot) {
    const zorvic::StyleScope style = canvas.SaveStyle();
    const auto unit = static_cast<float>(dpi) / 96;
    const auto left = static_cast<float>(plot.area.left);
    const auto right = static_cast<float>(plot.area.right);
    const float dashes[] = {4 * unit, 4 * unit};
    canvas.SetStrokeWidth(unit);
    canvas.SetColor(0xFFC9D1DB);
    for (float value = lowest; value <= highest; value += 5) {
        // The middle of a pixel, so that a line of one pixel covers that one.
        const float y = static_cast<float>(static_cast<int>(plot.Y(value))) + 0.5f;
        if (value > lowest) canvas.SetDashPattern(dashes);
        canvas.DrawLine(left, y, right, y);
    }
    canvas.SetColor(opaque | limitColor);
    canvas.SetStrokeWidth(2 * unit);
    canvas.SetDashStyle(zorvic::DashStyle::dashDot);
    canvas.DrawLine(left, plot.Y(limit), right, plot.Y(limit));
}

// A smooth line through the readings: each piece leaves and arrives in the direction of its neighbours.
zorvic::Path MakeLine(const Plot& plot, std::span<const float> values) {
    const auto count = static_cast<int>(values.size());
    const auto at = [&](int i) { return plot.Y(values[static_cast<std::size_t>(std::clamp(i, 0, count - 1))]); };
    const float step = plot.X(1) - plot.X(0);
    zorvic::Path line = zorvic::Path::Create();
    line.MoveTo(plot.X(0), at(0));
    for (int i = 0; i + 1 < count; ++i)
        line.BezierCurveTo(plot.X(i) + step / 3, at(i) + (at(i + 1) - at(i - 1)) / 6, plot.X(i + 1) - step / 3,
                           at(i + 1) - (at(i + 2) - at(i)) / 6, plot.X(i + 1), at(i + 1));
    return line;
}

void DrawSeries(zorvic::CanvasRef canvas, const Plot& plot, const Series& series) {
    const zorvic::StyleScope style = canvas.SaveStyle();
    const auto unit = static_cast<float>(dpi) / 96;
    const auto bottom = static_cast<float>(plot.area.bottom);

    zorvic::Path below = MakeLine(plot, series.values);
    const float top = below.Bounds().top;
    below.LineTo(plot.X(12), bottom);
    below.LineTo(plot.X(0), bottom);
    below.Close();
    zorvic::Gradient fade = zorvic::Gradient::CreateLinear(0, top, 0, bottom);
    fade.AddColorStop(0, 0x90000000 | series.color);
    fade.AddColorStop(1, 0x08000000 | series.color);
    canvas.SetGradient(fade);
    canvas.SetDrawStyle(zorvic::DrawStyle::gradient);
    canvas.DrawPath(below);

    canvas.SetDrawStyle(zorvic::DrawStyle::stroke);
    canvas.SetColor(opaque | series.color);
    canvas.SetStrokeWidth(2.5f * unit);
    canvas.DrawPath(MakeLine(plot, series.values));
    for (int i = 0; i <= 12; ++i) {
        const float y = plot.Y(series.values[i]);
        canvas.SetDrawStyle(zorvic::DrawStyle::fill);
        canvas.SetColor(0xFFFFFFFF);
        canvas.DrawCircle(plot.X(i), y, 4 * unit);
        canvas.SetDrawStyle(zorvic::DrawStyle::stroke);
        canvas.SetColor(opaque | series.color);
        canvas.SetStrokeWidth(2 * unit);
        canvas.DrawCircle(plot.X(i), y, 4 * unit);
    }
}

void DrawLabels(HDC dc, const Plot& plot, int width) {
    constexpr DWORD ink = 0x2B3544;
    constexpr DWORD faint = 0x66707F;
    const auto left = static_cast<int>(plot.area.left);
    const auto bottom = static_cast<int>(plot.area.bottom);
    DrawLabel(dc, L"Temperature over a day", {left, Scaled(16), width, Scaled(48)}, 22, ink, DT_LEFT);
    int x = left;
    for (const Series& series : allSeries) {
        DrawLabel(dc, series.name, {x + Scaled(26), Scaled(52), x + Scaled(146), Scaled(76)}, 14, ink, DT_LEFT);
        x += Scaled(150);
    }
    const auto limitY = static_cast<int>(plot.Y(limit));
    DrawLabel(dc, L"limit",
              {left, limitY - Scaled(22), static_cast<int>(plot.area.right) - Scaled(4), limitY - Scaled(3)}, 13,
              limitColor, DT_RIGHT);
    for (float value = lowest; value <= highest; value += 5) {
        const auto y = static_cast<int>(plot.Y(value));
        const std::wstring label = std::to_wstring(static_cast<int>(value)) +
                                   L" \x00B0"
                                   L"C";
        DrawLabel(dc, label.c_str(), {0, y - Scaled(10), left - Scaled(10), y + Scaled(10)}, 13, faint, DT_RIGHT);
    }
    for (int i = 0; i <= 12; i += 2) {
        const auto middle = static_cast<int>(plot.X(i));
        const std::wstring label = (i < 5 ? L"0" : L"") + std::to_wstring(i * hoursBetween) + L":00";
        DrawLabel(dc, label.c_str(),
                  {middle - Scaled(30), bottom + Scaled(8), middle + Scaled(30), bottom + Scaled(28)}, 13, faint,
                  DT_CENTER);
    }
}

void Draw(zorvic::CanvasRef canvas) {
    const SIZE size = canvas.Size();
    const auto width = static_cast<int>(size.cx);
    const auto height = static_cast<int>(size.cy);
    canvas.FillGradualRect(0xFFFFFFFF, 0xFFEEF2F7, {0, 0, width, height}, zorvic::GradualDirection::topToBottom);
    const Plot plot{{Scaled(68), Scaled(90), width - Scaled(36), height - Scaled(44)}};
    if (plot.area.right <= plot.area.left || plot.area.bottom <= plot.area.top) return;

    DrawGrid(canvas, plot);
    for (const Series& series : allSeries) DrawSeries(canvas, plot, series);

    // The legend's lines, in front of their names.
    auto x = static_cast<float>(plot.area.left);
    canvas.SetStrokeWidth(static_cast<float>(Scaled(4)));
    canvas.SetStrokeCap(zorvic::StrokeCap::round);
    for (const Series& series : allSeries) {
        canvas.SetColor(opaque | series.color);
        const auto y = static_cast<float>(Scaled(64));
        canvas.DrawLine(x + static_cast<float>(Scaled(2)), y, x + static_cast<float>(Scaled(18)), y);
        x += static_cast<float>(Scaled(150));
    }
    DrawLabels(canvas.Dc(), plot, width);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {Scaled(480), Scaled(320)};
            return 0;
        case WM_SIZE:
            InvalidateRect(window, nullptr, FALSE);
            return 0;
        case WM_DPICHANGED: {
            dpi = HIWORD(wParam);
            const RECT& place = *reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            return 0;
        }
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT covers everything, so that nothing flickers
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            HDC dc = BeginPaint(window, &paint);
            RECT client{};
            GetClientRect(window, &client);
            if (zorvic::Canvas canvas = zorvic::Canvas::CreateSystem(client.right, client.bottom)) {
                Draw(canvas);
                canvas.TransferTo(dc, client, client);
            }
            EndPaint(window, &paint);
            return 0;
        }
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
    dpi = static_cast<int>(GetDpiForSystem());
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"charts";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(L"charts", L"Charts", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, Scaled(760),
                                Scaled(480), nullptr, nullptr, instance, nullptr);
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return static_cast<int>(message.wParam);
}

// skin: controls drawn from one skin picture. Its slices are nine-grids: a panel, a button in three states, a slider. The
// picture is made for 96 DPI; at other resolutions the nine-grids' destination scale enlarges frames and corners along
// with the layout. Mouse and keyboard (Tab, Space, arrows) work; + and - change the resolution by hand.
#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>

#include "zorvic/zorvic.hpp"

namespace {

enum Slice { panel, button, buttonHot, buttonPressed, track, trackFilled, knob, knobHot, sliceCount };
constexpr RECT slices[sliceCount] = {{0, 0, 64, 64},   {64, 0, 96, 32},   {96, 0, 128, 32}, {128, 0, 160, 32},
                                     {64, 40, 88, 48}, {96, 40, 120, 48}, {64, 56, 86, 78}, {96, 56, 118, 78}};
constexpr RECT margins[sliceCount] = {{26, 26, 26, 26}, {8, 8, 8, 8}, {8, 8, 8, 8}, {8, 8, 8, 8},
                                      {4, 3, 4, 3},     {4, 3, 4, 3}, {},           {}};

enum Control { none = -1, slider, mute, reset, closing, controlCount };
constexpr RECT places[controlCount] = {
    {52, 84, 388, 112}, {52, 140, 156, 176}, {168, 140, 272, 176}, {284, 140, 388, 176}};
constexpr const wchar_t* labels[controlCount] = {L"", L"Mute", L"Reset", L"Close"};
constexpr SIZE clientAt96Dpi{440, 252};
constexpr int knobSize = 22;

zorvic::Texture skin;
int dpi = 96;
int volume = 60;  // percent
Control hot = none;
Control pressed = none;
Control focus = slider;

int Scaled(int at96Dpi) { return MulDiv(at96Dpi, dpi, 96); }
RECT Scaled(const RECT& rect) {
    return {Scaled(static_cast<int>(rect.left)), Scaled(static_cast<int>(rect.top)),
            Scaled(static_cast<int>(rect.right)), Scaled(static_cast<int>(rect.bottom))};
}

// A round rectangle from one colour at the top to another, with a border.
void PaintShape(zorvic::CanvasRef canvas, const RECT& rect, float radius, DWORD top, DWORD bottom, DWORD border) {
    zorvic::Gradient gradient =
        zorvic::Gradient::CreateLinear(0, static_cast<float>(rect.top), 0, static_cast<float>(rect.bottom));
    gradient.AddColorStop(0, top);
    gradient.AddColorStop(1, bottom);
    canvas.SetColor(border);
    canvas.SetDrawStyle(zorvic::DrawStyle::fill);
    canvas.DrawRoundRect(rect, radius, radius);
    canvas.SetGradient(gradient);
    canvas.SetDrawStyle(zorvic::DrawStyle::gradient);
    canvas.DrawRoundRect({rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1}, radius - 1, radius - 1);
}

// A skin author would draw this picture in a painting program and ship it as a file.
zorvic::Texture MakeSkin() {
    zorvic::Canvas canvas = zorvic::Canvas::Create(160, 80);
    canvas.SetOperation(zorvic::Operation::sourceOver);
    // The panel stands on its own shadow.
    canvas.FillRoundRect({12, 14, 52, 54}, {10, 10}, 0x90000000);
    {
        const zorvic::PixelLock pixels = canvas.Surface().Lock(&slices[panel]);
        const BitmapLockInfo& image = pixels.Info();
        BlurBitmapData(image.bmWidth, image.bmHeight, image.bmWidthBytes, image.bmBits, 32, 9);
    }
    PaintShape(canvas, {12, 10, 52, 50}, 10, 0xFFFDFDFE, 0xFFE9EDF3, 0xFFC9D1DC);
    PaintShape(canvas, slices[button], 7, 0xFFFFFFFF, 0xFFE1E6EE, 0xFFB4BECC);
    PaintShape(canvas, slices[buttonHot], 7, 0xFFF2F9FF, 0xFFC3E0FB, 0xFF4C9BE0);
    PaintShape(canvas, slices[buttonPressed], 7, 0xFF2F74B8, 0xFF4690D8, 0xFF245C94);
    PaintShape(canvas, slices[track], 4, 0xFFC3CBD8, 0xFFD9DFE8, 0xFFAEB8C6);
    PaintShape(canvas, slices[trackFilled], 4, 0xFF5AA9EE, 0xFF3C86D0, 0xFF2F6FB0);
    PaintShape(canvas, slices[knob], 11, 0xFFFFFFFF, 0xFFDDE3EC, 0xFF9AA6B6);
    PaintShape(canvas, slices[knobHot], 11, 0xFFF2F9FF, 0xFFB5D8F9, 0xFF2F7FCC);
    zorvic::Texture texture = ToTexture(std::move(canvas));
    texture.SetSlices(slices);
    return texture;
}

void DrawSlice(zorvic::CanvasRef canvas, const RECT& place, Slice slice) {
    skin.SelectSlice(slice);
    skin.SetLayout(zorvic::Layout::nineGrid, margins[slice]);
    canvas.DrawTexture(place, skin, zorvic::Filter::bilinear, 255, static_cast<float>(dpi) / 96);
}

void DrawLabel(HDC dc, const wchar_t* text, RECT place, int height, COLORREF color, UINT format) {
    HFONT font = CreateFontW(-Scaled(height), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY,
                             VARIABLE_PITCH | FF_SWISS, L"Segoe UI");
    const HGDIOBJ before = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, color);
    DrawTextW(dc, text, -1, &place, format | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, before);
    DeleteObject(font);
}

void Draw(zorvic::CanvasRef canvas) {
    const SIZE size = canvas.Size();
    canvas.FillGradualRect(0xFF4A6288, 0xFF25304A, {0, 0, size.cx, size.cy}, zorvic::GradualDirection::topToBottom);
    DrawSlice(canvas, Scaled({16, 12, 424, 242}), panel);

    // The knob's middle runs from one end of the slider to the other.
    const RECT& area = places[slider];
    const LONG x = area.left + knobSize / 2 + (area.right - area.left - knobSize) * volume / 100;
    const LONG y = (area.top + area.bottom) / 2;
    DrawSlice(canvas, Scaled({area.left, y - 4, area.right, y + 4}), track);
    DrawSlice(canvas, Scaled({area.left, y - 4, x, y + 4}), trackFilled);
    DrawSlice(canvas, Scaled({x - knobSize / 2, y - knobSize / 2, x + knobSize / 2, y + knobSize / 2}),
              hot == slider || pressed == slider ? knobHot : knob);
    for (int i = mute; i < controlCount; ++i) {
        const bool down = pressed == i && hot == i;
        DrawSlice(canvas, Scaled(places[i]), down ? buttonPressed : hot == i ? buttonHot : button);
    }
    RECT frame = Scaled(places[focus]);
    InflateRect(&frame, Scaled(4), Scaled(4));
    canvas.OutlineFocus(frame, 0xFF3C6EA8);

    HDC dc = canvas.Dc();
    constexpr COLORREF ink = RGB(0x24, 0x30, 0x44);
    const std::wstring percent = std::to_wstring(volume) + L" %";
    DrawLabel(dc, L"Volume", Scaled({52, 38, 220, 72}), 22, ink, DT_LEFT);
    DrawLabel(dc, percent.c_str(), Scaled({220, 38, 388, 72}), 22, ink, DT_RIGHT);
    for (int i = mute; i < controlCount; ++i)
        DrawLabel(dc, labels[i], Scaled(places[i]), 15, pressed == i && hot == i ? RGB(255, 255, 255) : ink, DT_CENTER);
    DrawLabel(dc, L"Keys: Tab, Space, arrows; + and \x2212 for the scale", Scaled({40, 190, 400, 214}), 12,
              RGB(0x5A, 0x67, 0x7A), DT_CENTER);
}

Control HitTest(POINT point) {
    for (int i = slider; i < controlCount; ++i) {
        const RECT place = Scaled(places[i]);
        if (PtInRect(&place, point)) return static_cast<Control>(i);
    }
    return none;
}

void Activate(HWND window, Control control) {
    static int before = volume;
    if (control == mute && volume > 0)
        before = std::exchange(volume, 0);
    else if (control == mute)
        volume = before;
    else if (control == reset)
        volume = 60;
    else if (control == closing)
        DestroyWindow(window);
}

void SlideTo(int x) {
    const RECT area = Scaled(places[slider]);
    const int half = Scaled(knobSize) / 2;
    volume = std::clamp(MulDiv(x - area.left - half, 100, area.right - area.left - 2 * half), 0, 100);
}

void OnKey(HWND window, WPARAM key) {
    if (key == VK_TAB)
        focus = static_cast<Control>((focus + (GetKeyState(VK_SHIFT) < 0 ? controlCount - 1 : 1)) % controlCount);
    if (key == VK_SPACE) Activate(window, focus);
    if (focus == slider && (key == VK_LEFT || key == VK_DOWN)) volume = std::max(volume - 5, 0);
    if (focus == slider && (key == VK_RIGHT || key == VK_UP)) volume = std::min(volume + 5, 100);
    if (key == VK_ESCAPE) DestroyWindow(window);
}

// The whole window for the client area at the present resolution.
SIZE WindowSize(HWND window) {
    RECT rect{0, 0, Scaled(static_cast<int>(clientAt96Dpi.cx)), Scaled(static_cast<int>(clientAt96Dpi.cy))};
    AdjustWindowRectExForDpi(&rect, static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)), FALSE, 0,
                             GetDpiForWindow(window));
    return {rect.right - rect.left, rect.bottom - rect.top};
}

void ChangeDpi(HWND window, int newDpi, const RECT* place) {
    dpi = newDpi;
    const SIZE size = WindowSize(window);
    SetWindowPos(window, nullptr, place ? place->left : 0, place ? place->top : 0, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE | (place ? 0 : SWP_NOMOVE));
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_MOUSEMOVE: {
            TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, window, 0};
            TrackMouseEvent(&leave);
            hot = HitTest(point);
            if (pressed == slider) SlideTo(point.x);
            break;
        }
        case WM_MOUSELEAVE:
            hot = none;
            break;
        case WM_LBUTTONDOWN:
            hot = pressed = HitTest(point);
            if (pressed == none) break;
            focus = pressed;
            SetCapture(window);
            if (pressed == slider) SlideTo(point.x);
            break;
        case WM_LBUTTONUP: {
            const Control clicked = pressed;
            ReleaseCapture();
            if (clicked == HitTest(point)) Activate(window, clicked);
            break;
        }
        case WM_CAPTURECHANGED:
            pressed = none;
            break;
        case WM_KEYDOWN:
            if (wParam == VK_OEM_PLUS || wParam == VK_ADD) ChangeDpi(window, std::min(dpi + 24, 240), nullptr);
            if (wParam == VK_OEM_MINUS || wParam == VK_SUBTRACT) ChangeDpi(window, std::max(dpi - 24, 96), nullptr);
            OnKey(window, wParam);
            break;
        case WM_DPICHANGED:
            ChangeDpi(window, HIWORD(wParam), reinterpret_cast<const RECT*>(lParam));
            break;
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
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
    InvalidateRect(window, nullptr, FALSE);
    return 0;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2);
    skin = MakeSkin();
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"skin";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(L"skin", L"Skin", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                                CW_USEDEFAULT, CW_USEDEFAULT, 100, 100, nullptr, nullptr, instance, nullptr);
    ChangeDpi(window, static_cast<int>(GetDpiForWindow(window)), nullptr);
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return static_cast<int>(message.wParam);
}

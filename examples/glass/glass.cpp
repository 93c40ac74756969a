// glass: a panel of frosted glass over a busy picture. What lies behind the panel is copied, blurred, drawn with rounded
// corners, and tinted with a translucent white. Drag the panel; the mouse wheel changes the blur; Escape closes.
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "zorvic/zorvic.hpp"

namespace {

zorvic::Canvas scene;  // the picture behind the panel, as large as the client area
UINT dpi = 96;
POINT panelAt{150, 90};  // in pixels at 96 DPI, like the panel's size
constexpr SIZE panelSize{340, 180};
int box = 16;  // pixels whose mean the blur takes, across
bool dragging;
POINT grip;  // where the panel is held, in pixels from its corner

int Scaled(LONG at96Dpi) { return MulDiv(at96Dpi, static_cast<int>(dpi), 96); }

RECT PanelRect() {
    const int x = Scaled(panelAt.x);
    const int y = Scaled(panelAt.y);
    return {x, y, x + Scaled(panelSize.cx), y + Scaled(panelSize.cy)};
}

// Stripes and discs, sharp enough to show what the glass does to them.
void DrawScene(int width, int height) {
    scene = zorvic::Canvas::Create(width, height);
    const auto unit = static_cast<float>(dpi) / 96;
    zorvic::Gradient sky = zorvic::Gradient::CreateLinear(0, 0, static_cast<float>(width), static_cast<float>(height));
    sky.AddColorStop(0, 0xFF1F1147);
    sky.AddColorStop(0.5f, 0xFF7A2A78);
    sky.AddColorStop(1, 0xFFF08A5D);
    scene.SetGradient(sky);
    scene.SetDrawStyle(zorvic::DrawStyle::gradient);
    scene.DrawRectangle(0, 0, static_cast<float>(width), static_cast<float>(height));

    scene.SetColor(0x40FFFFFF);
    scene.SetStrokeWidth(6 * unit);
    for (float x = -static_cast<float>(height); x < static_cast<float>(width); x += 28 * unit)
        scene.DrawLine(x, 0, x + static_cast<float>(height), static_cast<float>(height));
    scene.SetDrawStyle(zorvic::DrawStyle::fill);
    constexpr DWORD colors[] = {0xE6FFD166, 0xE606D6A0, 0xE6EF476F, 0xE6118AB2, 0xE6F8F9FA};
    for (int i = 0; i < 26; ++i) {
        // Places from a spiral of golden angles: even, without a pattern.
        const double angle = i * 2.39996;
        const double radius = 0.1 * std::sqrt(i + 0.5);
        scene.SetColor(colors[i % 5]);
        scene.DrawCircle(static_cast<float>(width * (0.5 + radius * std::cos(angle))),
                         static_cast<float>(height * (0.5 + radius * std::sin(angle))),
                         static_cast<float>(14 + i * 7 % 23) * unit);
    }
}

void DrawLabel(HDC dc, const wchar_t* text, RECT place, int height, int weight) {
    HFONT font = CreateFontW(-Scaled(height), 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY,
                             VARIABLE_PITCH | FF_SWISS, L"Segoe UI");
    const HGDIOBJ before = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(0x20, 0x18, 0x38));
    DrawTextW(dc, text, -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, before);
    DeleteObject(font);
}

void DrawPanel(zorvic::CanvasRef canvas) {
    const RECT panel = PanelRect();
    const int radius = Scaled(16);

    // The pixels behind the panel, blurred in a bitmap of their own.
    zorvic::Texture behind = zorvic::Texture::Create(panel.right - panel.left, panel.bottom - panel.top);
    behind.CopyFrom(scene.Surface(), nullptr, &panel);
    {
        const zorvic::PixelLock pixels = behind.Lock();
        const BitmapLockInfo& image = pixels.Info();
        BlurBitmapData(image.bmWidth, image.bmHeight, image.bmWidthBytes, image.bmBits, 32, Scaled(box));
    }
    TextureDrawParams glass{};
    glass.alpha = 255;
    glass.tileScale = 1;
    glass.scale = 1;
    glass.cornerRadii[0] = glass.cornerRadii[1] = static_cast<float>(radius);
    glass.rounded = 1;
    canvas.DrawTexture(panel, behind, glass);

    canvas.FillRoundRect(panel, {radius, radius}, 0x80FFFFFF);
    canvas.OutlineRoundRect(panel, {radius, radius}, 0xC0FFFFFF, Scaled(1));

    HDC dc = canvas.Dc();
    const int middle = (panel.top + panel.bottom) / 2;
    const std::wstring detail = L"blurred by a box of " + std::to_wstring(box) + L" pixels, twice";
    DrawLabel(dc, L"Frosted glass", {panel.left, middle - Scaled(54), panel.right, middle - Scaled(10)}, 30,
              FW_SEMIBOLD);
    DrawLabel(dc, detail.c_str(), {panel.left, middle - Scaled(6), panel.right, middle + Scaled(18)}, 15, FW_NORMAL);
    DrawLabel(dc, L"Drag the panel; turn the wheel.",
              {panel.left, middle + Scaled(22), panel.right, middle + Scaled(46)}, 15, FW_NORMAL);
}

// Keeps the panel inside the client area.
void MovePanel(int x, int y) {
    const SIZE size = scene.Size();
    const int right = std::max(static_cast<int>(size.cx) - Scaled(panelSize.cx), 0);
    const int bottom = std::max(static_cast<int>(size.cy) - Scaled(panelSize.cy), 0);
    panelAt.x = MulDiv(std::clamp(x, 0, right), 96, static_cast<int>(dpi));
    panelAt.y = MulDiv(std::clamp(y, 0, bottom), 96, static_cast<int>(dpi));
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_LBUTTONDOWN: {
            const RECT panel = PanelRect();
            if (!PtInRect(&panel, point)) return 0;
            grip = {point.x - panel.left, point.y - panel.top};
            dragging = true;
            SetCapture(window);
            return 0;
        }
        case WM_MOUSEMOVE:
            if (!dragging) return 0;
            MovePanel(point.x - grip.x, point.y - grip.y);
            break;
        case WM_LBUTTONUP:
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            dragging = false;
            return 0;
        case WM_MOUSEWHEEL:
            box = std::clamp(box + (GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? 4 : -4), 4, 48);
            break;
        case WM_KEYDOWN:
            if (wParam == VK_ESCAPE) DestroyWindow(window);
            return 0;
        case WM_SIZE:
            if (wParam == SIZE_MINIMIZED || lParam == 0) return 0;
            DrawScene(LOWORD(lParam), HIWORD(lParam));
            MovePanel(Scaled(panelAt.x), Scaled(panelAt.y));
            break;
        case WM_DPICHANGED: {
            dpi = HIWORD(wParam);
            const RECT& place = *reinterpret_cast<const RECT*>(lParam);
            SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            break;
        }
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT covers everything, so that nothing flickers
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            HDC dc = BeginPaint(window, &paint);
            const SIZE size = scene.Size();
            const RECT all{0, 0, size.cx, size.cy};
            if (zorvic::Canvas canvas = zorvic::Canvas::CreateSystem(size.cx, size.cy)) {
                canvas.Surface().CopyFrom(scene.Surface());
                DrawPanel(canvas);
                canvas.TransferTo(dc, all, all);
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
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"glass";
    RegisterClassW(&windowClass);
    dpi = GetDpiForSystem();
    HWND window = CreateWindowW(L"glass", L"Glass", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, Scaled(656),
                                Scaled(420), nullptr, nullptr, instance, nullptr);
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return static_cast<int>(message.wParam);
}

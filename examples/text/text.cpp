// text: GDI text on canvases with an alpha channel. GDI knows no alpha: where it writes, it leaves an alpha of 0, and the
// text shines through as soon as the canvas is drawn over something. Three cards, drawn over stripes, show text as GDI
// leaves it and two ways to repair the alpha. Escape closes the window.
#include <windows.h>

#include <utility>

#include "zorvic/zorvic.hpp"

namespace {

constexpr SIZE clientAt96Dpi{640, 434};
constexpr SIZE cardSize{576, 110};
constexpr int cardStep = 134;
constexpr RECT captionPlace{20, 10, 556, 34};
constexpr RECT textPlace{20, 36, 556, 100};
constexpr wchar_t sampleText[] = L"Sphinx of black quartz";
constexpr DWORD ink = 0xFF7A1F5C;
int dpi = 96;

int Scaled(LONG at96Dpi) { return MulDiv(at96Dpi, dpi, 96); }
RECT Scaled(const RECT& rect) { return {Scaled(rect.left), Scaled(rect.top), Scaled(rect.right), Scaled(rect.bottom)}; }

// ClearType would want an alpha for each channel, and a pixel has one: hence ANTIALIASED_QUALITY.
void WriteByGdi(zorvic::CanvasRef canvas, const wchar_t* text, RECT place, int height, DWORD color) {
    HDC dc = canvas.Dc();
    HFONT font = CreateFontW(-Scaled(height), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, ANTIALIASED_QUALITY,
                             VARIABLE_PITCH | FF_SWISS, L"Segoe UI");
    const HGDIOBJ before = SelectObject(dc, font);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(color >> 16 & 255, color >> 8 & 255, color & 255));
    DrawTextW(dc, text, -1, &place, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    SelectObject(dc, before);
    DeleteObject(font);
    GdiFlush();  // the text may still be in GDI's queue, and the library is next to touch the pixels
}

// The repair for opaque grounds, in place: OR sets the alpha of a rectangle to 255 and leaves the colours alone.
void WriteOnOpaque(zorvic::CanvasRef canvas, const wchar_t* text, const RECT& place, int height) {
    WriteByGdi(canvas, text, place, height, ink);
    canvas.FillPremultipliedRect(0xFF000000, place, zorvic::Operation::bitwiseOr);
}

// The repair for any ground: white text on transparent black has its coverage in its colours. With the coverage as alpha
// it is a picture of the text in premultiplied white; a multiplying fill gives it any colour, translucent ones too.
zorvic::Texture MakeText(const wchar_t* text, const RECT& place, int height, DWORD premultipliedColor) {
    const RECT all{0, 0, place.right - place.left, place.bottom - place.top};
    zorvic::Canvas canvas = zorvic::Canvas::CreateSystem(all.right, all.bottom);
    canvas.SetOperation(zorvic::Operation::sourceOver);
    WriteByGdi(canvas, text, all, height, 0xFFFFFF);
    canvas.Surface().ShuffleChannels(zorvic::Shuffle::colorToAlpha);
    canvas.FillPremultipliedRect(premultipliedColor, all, zorvic::Operation::multiply);
    return ToTexture(std::move(canvas));
}

// One of the three cards, on a canvas of its own.
zorvic::Canvas MakeCard(int index) {
    const RECT all{0, 0, Scaled(cardSize.cx), Scaled(cardSize.cy)};
    const RECT caption = Scaled(captionPlace);
    const RECT place = Scaled(textPlace);
    constexpr int height = 38;
    zorvic::Canvas card = zorvic::Canvas::CreateSystem(all.right, all.bottom);
    card.SetOperation(zorvic::Operation::sourceOver);
    card.FillRoundRect(all, {Scaled(14), Scaled(14)}, index == 1 ? 0xFFFFF4DE : 0xC8FFF4DE);

    constexpr const wchar_t* captions[] = {L"As GDI leaves it: alpha 0 where it wrote",
                                           L"Alpha set to 255 afterwards: for opaque grounds",
                                           L"Coverage turned into alpha: for any ground, here with a shadow"};
    card.DrawBitmap(caption, MakeText(captions[index], caption, 14, 0xFF3C3C46));
    if (index == 0) WriteByGdi(card, sampleText, place, height, ink);
    if (index == 1) WriteOnOpaque(card, sampleText, place, height);
    if (index == 2) {
        zorvic::Texture shadow = MakeText(sampleText, place, height, 0x70000000);
        shadow.Dark();
        RECT below = place;
        OffsetRect(&below, Scaled(3), Scaled(3));
        card.DrawBitmap(below, shadow);
        card.DrawBitmap(place, MakeText(sampleText, place, height, ink));
    }
    return card;
}

void Draw(zorvic::CanvasRef canvas) {
    const SIZE size = canvas.Size();
    const RECT all{0, 0, size.cx, size.cy};
    canvas.FillGradualRect(0xFF2C6E8F, 0xFF1B3A5C, all, zorvic::GradualDirection::topToBottom);
    canvas.SetColor(0xFF9BD0C4);
    canvas.SetStrokeWidth(static_cast<float>(Scaled(16)));
    for (int x = -size.cy; x < size.cx; x += Scaled(48))
        canvas.DrawLine(static_cast<float>(x), static_cast<float>(size.cy), static_cast<float>(x + size.cy), 0);
    for (int i = 0; i < 3; ++i) {
        const RECT place{32, 28 + i * cardStep, 32 + cardSize.cx, 28 + i * cardStep + cardSize.cy};
        canvas.DrawBitmap(Scaled(place), MakeCard(i).Surface());
    }
}

// Fits the window to the client area at the present resolution.
void FitWindow(HWND window, const RECT* place) {
    RECT rect = Scaled({0, 0, clientAt96Dpi.cx, clientAt96Dpi.cy});
    AdjustWindowRectExForDpi(&rect, static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE)), FALSE, 0,
                             static_cast<UINT>(dpi));
    SetWindowPos(window, nullptr, place ? place->left : 0, place ? place->top : 0, rect.right - rect.left,
                 rect.bottom - rect.top, SWP_NOZORDER | SWP_NOACTIVATE | (place ? 0 : SWP_NOMOVE));
    InvalidateRect(window, nullptr, FALSE);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DPICHANGED:
            dpi = HIWORD(wParam);
            FitWindow(window, reinterpret_cast<const RECT*>(lParam));
            return 0;
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
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"text";
    RegisterClassW(&windowClass);
    HWND window = CreateWindowW(L"text", L"Text", WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                                CW_USEDEFAULT, CW_USEDEFAULT, 100, 100, nullptr, nullptr, instance, nullptr);
    dpi = static_cast<int>(GetDpiForWindow(window));
    FitWindow(window, nullptr);
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return static_cast<int>(message.wParam);
}

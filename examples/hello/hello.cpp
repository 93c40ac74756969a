// hello [--shaped] [PICTURE]: the smallest host with a window, the program to copy from. A picture (or soft discs, when
// there is none) is kept in a bitmap, drawn on a canvas over a checkerboard by its alpha, and brought to the window in
// WM_PAINT. With --shaped the window has the shape of the picture and is dragged by it; Alt+F4 closes it.
#include <windows.h>

#include <shellapi.h>
#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>

#include "zorvic/zorvic.h"

namespace {

HGBITMAP picture;  // 32-bit premultiplied pixels, made once
HGCANVAS canvas;   // what the window shows, as large as its client area
bool shaped;       // the window is as large as the picture and ends with its pixels

// Reads a picture file through WIC; NULL when that fails.
HGBITMAP ReadPicture(const wchar_t* file) {
    using Microsoft::WRL::ComPtr;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmapDecoder> decoder;
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICBitmapSource> pixels;
    UINT width = 0;
    UINT height = 0;
    if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) ||
        FAILED(factory->CreateDecoderFromFilename(file, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                  &decoder)) ||
        FAILED(decoder->GetFrame(0, &frame)) ||
        FAILED(WICConvertBitmapSource(GUID_WICPixelFormat32bppPBGRA, frame.Get(), &pixels)) ||
        FAILED(pixels->GetSize(&width, &height)))
        return nullptr;

    HGBITMAP bitmap = CreateMemBitmap(static_cast<int>(width), static_cast<int>(height));
    BITMAP locked{};
    if (!LockBitmapBits(bitmap, &locked, nullptr)) return nullptr;
    const auto stride = static_cast<UINT>(locked.bmWidthBytes);
    const HRESULT copied = pixels->CopyPixels(nullptr, stride, stride * height, static_cast<BYTE*>(locked.bmBits));
    UnlockBitmapBits(bitmap, 0, 1);
    if (SUCCEEDED(copied)) return bitmap;
    DeleteBitmap(bitmap);
    return nullptr;
}

// Three soft discs, drawn on a canvas of their own that becomes a texture. Textures are bitmaps.
HGBITMAP MakePicture() {
    HGBITMAP disc = CreateMemBitmap(240, 240);
    BITMAP locked{};
    LockBitmapBits(disc, &locked, nullptr);
    auto* pixel = static_cast<DWORD*>(locked.bmBits);
    for (int y = -120; y < 120; ++y)
        for (int x = -120; x < 120; ++x) {
            // White, opaque in the middle and transparent at the rim; premultiplied, so that all four bytes are alike.
            const int alpha = std::clamp((120 * 120 - x * x - y * y) / 20, 0, 255);
            *pixel++ = static_cast<DWORD>(alpha) * 0x01010101u;
        }
    UnlockBitmapBits(disc, 0, 1);

    HGCANVAS drawing = CreateCanvas(400, 360, nullptr);
    DrawModulation(drawing, 80, 0, disc, nullptr, 0xD0D04020);  // the disc times a colour, drawn over
    DrawModulation(drawing, 0, 120, disc, nullptr, 0xD020A040);
    DrawModulation(drawing, 160, 120, disc, nullptr, 0xD02050D0);
    DeleteBitmap(disc);
    SetCanvasFilter(drawing, ZORVIC_OP_SOURCE_OVER);  // or the texture would become opaque
    return reinterpret_cast<HGBITMAP>(CanvasToTexture(drawing));
}

// Draws the whole canvas anew for a client area of this size.
void Draw(int width, int height) {
    DeleteCanvas(canvas);
    canvas = CreateCanvas(width, height, nullptr);
    constexpr int field = 16;
    for (int y = 0; y < height; y += field)
        for (int x = 0; x < width; x += field) {
            const RECT rect{x, y, x + field, y + field};
            FillSolidRect(canvas, (x + y) / field % 2 ? 0xFFD8DEE6 : 0xFFFFFFFF, &rect);
        }

    // In the middle, reduced when it is larger than the window.
    SIZE size{};
    GetBitmapSize(picture, &size);
    const double scale = std::min({1.0, double(width) / size.cx, double(height) / size.cy});
    const RECT middle{static_cast<int>(width - size.cx * scale) / 2, static_cast<int>(height - size.cy * scale) / 2,
                      static_cast<int>(width + size.cx * scale) / 2, static_cast<int>(height + size.cy * scale) / 2};
    DrawBitmap(canvas, &middle, picture, ZORVIC_FILTER_NEAREST);
    if (shaped) return;

    // A translucent band, and text by GDI. GDI may spoil the alpha: a canvas that is not SOURCE_OVER does without it.
    RECT band{0, height - 36, width, height};
    FillSolidRect(canvas, 0xA0102040, &band);
    wchar_t text[40];
    wsprintfW(text, L"%ld x %ld pixels", size.cx, size.cy);
    HDC dc = GetCanvasHandle(canvas);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(255, 255, 255));
    DrawTextW(dc, text, -1, &band, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) Draw(LOWORD(lParam), HIWORD(lParam));
            InvalidateRect(window, nullptr, FALSE);
            return 0;
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT covers everything, so that nothing flickers
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            HDC dc = BeginPaint(window, &paint);
            GdiTransCanvas(dc, &paint.rcPaint, canvas, &paint.rcPaint, 255);
            EndPaint(window, &paint);
            return 0;
        }
        case WM_NCHITTEST:
            return shaped ? HTCAPTION : DefWindowProcW(window, message, wParam, lParam);
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int show) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    shaped = count > 1 && lstrcmpW(arguments[1], L"--shaped") == 0;
    const int file = shaped ? 2 : 1;
    picture = count > file ? ReadPicture(arguments[file]) : MakePicture();
    LocalFree(arguments);
    if (!picture) return MessageBoxW(nullptr, L"The picture cannot be read.", L"hello", MB_ICONERROR), 1;
    SetBitmapFilter(picture, ZORVIC_OP_SOURCE_OVER);  // drawn by its alpha

    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"hello";
    RegisterClassW(&windowClass);
    SIZE size{640, 480};
    if (shaped) GetBitmapSize(picture, &size);
    HWND window = CreateWindowW(L"hello", L"Hello, Zorvic", shaped ? WS_POPUP : WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                CW_USEDEFAULT, size.cx, size.cy, nullptr, nullptr, instance, nullptr);
    // The region becomes the window's.
    if (shaped) SetWindowRgn(window, CreateTextureRgn(reinterpret_cast<HGTEXTURE>(picture), nullptr), FALSE);
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    DeleteCanvas(canvas);
    DeleteBitmap(picture);
    CoUninitialize();
    return static_cast<int>(message.wParam);
}

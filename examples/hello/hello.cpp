// hello [--shaped] [PICTURE]: the smallest host with a window, the program to copy from. A picture (or soft discs, when
// there is none) is kept in a texture, drawn on a canvas over a checkerboard by its alpha, and brought to the window in
// WM_PAINT. With --shaped the window has the shape of the picture and is dragged by it; Alt+F4 closes it.
#include <windows.h>

#include <shellapi.h>
#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <utility>

#include "zorvic/zorvic.hpp"

namespace {

zorvic::Texture picture;  // 32-bit premultiplied pixels, made once
zorvic::Canvas canvas;    // what the window shows, as large as its client area
bool shaped;              // the window is as large as the picture and ends with its pixels

// Reads a picture file through WIC; empty when that fails.
zorvic::Texture ReadPicture(const wchar_t* file) {
    using Microsoft::WRL::ComPtr;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmapDecoder> decoder;
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICBitmapSource> source;
    UINT width = 0;
    UINT height = 0;
    if (FAILED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) ||
        FAILED(factory->CreateDecoderFromFilename(file, nullptr, GENERIC_READ, WICDecodeMetadataCacheOnDemand,
                                                  &decoder)) ||
        FAILED(decoder->GetFrame(0, &frame)) ||
        FAILED(WICConvertBitmapSource(GUID_WICPixelFormat32bppPBGRA, frame.Get(), &source)) ||
        FAILED(source->GetSize(&width, &height)))
        return {};
    zorvic::Texture texture = zorvic::Texture::Create(static_cast<int>(width), static_cast<int>(height));
    const zorvic::PixelLock pixels = texture.Lock();
    const auto stride = static_cast<UINT>(pixels.Info().bmWidthBytes);
    if (!pixels ||
        FAILED(source->CopyPixels(nullptr, stride, stride * height, static_cast<BYTE*>(pixels.Info().bmBits))))
        return {};
    return texture;
}

// Three soft discs, drawn on a canvas of their own that becomes a texture.
zorvic::Texture MakePicture() {
    zorvic::Bitmap disc = zorvic::Bitmap::Create(240, 240);
    const zorvic::PixelLock pixels = disc.Lock();
    for (int y = 0; y < 240; ++y) {
        int x = -120;
        for (DWORD& pixel : pixels.Row(y)) {
            // White, opaque in the middle and transparent at the rim; premultiplied, so that all four bytes are alike.
            const int alpha = std::clamp((120 * 120 - x * x - (y - 120) * (y - 120)) / 20, 0, 255);
            pixel = static_cast<DWORD>(alpha) * 0x01010101u;
            ++x;
        }
    }
    zorvic::Canvas drawing = zorvic::Canvas::Create(400, 360);
    drawing.DrawModulation(80, 0, disc, 0xD0D04020);  // the disc times a colour, drawn over
    drawing.DrawModulation(0, 120, disc, 0xD020A040);
    drawing.DrawModulation(160, 120, disc, 0xD02050D0);
    drawing.SetOperation(zorvic::Operation::sourceOver);  // or the texture would become opaque
    return ToTexture(std::move(drawing));
}

// Draws the whole canvas anew for a client area of this size.
void Draw(int width, int height) {
    canvas = zorvic::Canvas::Create(width, height);
    constexpr int field = 16;
    for (int y = 0; y < height; y += field)
        for (int x = 0; x < width; x += field)
            canvas.FillSolidRect((x + y) / field % 2 ? 0xFFD8DEE6 : 0xFFFFFFFF, {x, y, x + field, y + field});

    // In the middle, reduced when it is larger than the window.
    const SIZE size = picture.Size();
    const double scale = std::min({1.0, double(width) / size.cx, double(height) / size.cy});
    canvas.DrawBitmap({static_cast<int>(width - size.cx * scale) / 2, static_cast<int>(height - size.cy * scale) / 2,
                       static_cast<int>(width + size.cx * scale) / 2, static_cast<int>(height + size.cy * scale) / 2},
                      picture, zorvic::Filter::area);
    if (shaped) return;

    // A translucent band, and text by GDI. GDI may spoil the alpha: a canvas that is not sourceOver does without it.
    RECT band{0, height - 36, width, height};
    canvas.FillSolidRect(0xA0102040, band);
    wchar_t text[40];
    wsprintfW(text, L"%ld x %ld pixels", size.cx, size.cy);
    SetBkMode(canvas.Dc(), TRANSPARENT);
    SetTextColor(canvas.Dc(), RGB(255, 255, 255));
    DrawTextW(canvas.Dc(), text, -1, &band, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
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
            canvas.TransferTo(dc, paint.rcPaint, paint.rcPaint);
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
    picture.SetOperation(zorvic::Operation::sourceOver);  // drawn by its alpha

    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.lpszClassName = L"hello";
    RegisterClassW(&windowClass);
    const SIZE size = shaped ? picture.Size() : SIZE{640, 480};
    HWND window = CreateWindowW(L"hello", L"Hello, Zorvic", shaped ? WS_POPUP : WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                CW_USEDEFAULT, size.cx, size.cy, nullptr, nullptr, instance, nullptr);
    if (shaped) SetWindowRgn(window, picture.CreateRgn(), FALSE);  // the region becomes the window's
    ShowWindow(window, show);

    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    CoUninitialize();
    return static_cast<int>(message.wParam);
}

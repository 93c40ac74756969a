// workbench [PICTURE]: shows what every drawing call does to a picture.
#include <windows.h>

#include <shellapi.h>

#include "ui/window.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int show) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 1;
    {
        Window window;
        if (window.Create(instance, show)) {
            int count = 0;
            wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
            if (count > 1) window.Open({words[1], {}});
            LocalFree(words);
            MSG message{};
            while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
            status = static_cast<int>(message.wParam);
        }
    }
    CoUninitialize();
    return status;
}

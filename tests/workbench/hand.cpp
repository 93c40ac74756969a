// What the stories need from the Windows side: the clipboard, and the pixels of a file.
//   hand pixel FILE X Y          prints a premultiplied pixel and the size as "AARRGGBB of W x H"
//   hand copy-file FILE          puts a file into the clipboard
//   hand copy-picture FILE       puts the pixels of a file into the clipboard
//   hand clipboard               prints the text in the clipboard
#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <cstring>
#include <vector>

#include "support/picture_files.h"

namespace {

bool ToClipboard(UINT format, const void* bytes, std::size_t count) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, count);
    std::memcpy(GlobalLock(memory), bytes, count);
    GlobalUnlock(memory);
    // A window of its own, because what the clipboard holds must have an owner that empties it.
    const HWND owner = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (!OpenClipboard(owner)) return false;
    EmptyClipboard();
    const bool done = SetClipboardData(format, memory) != nullptr;
    CloseClipboard();
    return done;
}

bool PutFile(const std::wstring& file) {
    struct {
        DROPFILES head;
        wchar_t names[MAX_PATH + 1];  // ends with an empty one
    } files{};
    files.head.pFiles = sizeof files.head;
    files.head.fWide = TRUE;
    file.copy(files.names, MAX_PATH - 1);
    return ToClipboard(CF_HDROP, &files, sizeof files);
}

// Upside down and in 24 bits, as many programs do it.
bool PutPicture(const std::wstring& file) {
    const zorvic::Bitmap picture = ReadPicture(file);
    const zorvic::PixelLock pixels = picture.Lock();
    BITMAPINFOHEADER head{};
    head.biSize = sizeof head;
    head.biWidth = pixels.Width();
    head.biHeight = pixels.Height();
    head.biPlanes = 1;
    head.biBitCount = 24;
    const auto* const first = reinterpret_cast<const BYTE*>(&head);
    std::vector<BYTE> bytes(first, first + sizeof head);
    for (int y = pixels.Height() - 1; y >= 0; --y) {
        for (const DWORD pixel : pixels.Row(y))
            for (const int shift : {0, 8, 16}) bytes.push_back(static_cast<BYTE>(pixel >> shift));
        while (bytes.size() % 4 != 0) bytes.push_back(0);
    }
    return ToClipboard(CF_DIB, bytes.data(), bytes.size());
}

bool PrintClipboard() {
    if (!OpenClipboard(nullptr)) return false;
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (memory) std::fputs(Utf8(static_cast<const wchar_t*>(GlobalLock(memory))).c_str(), stdout);
    CloseClipboard();
    return memory != nullptr;
}

}  // namespace

int wmain(int count, wchar_t** words) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const std::wstring command = count > 1 ? words[1] : L"";
    const std::wstring file = count > 2 ? words[2] : L"";
    try {
        if (command == L"clipboard") return PrintClipboard() ? 0 : 1;
        if (command == L"copy-file") return PutFile(file) ? 0 : 1;
        if (command == L"copy-picture") return PutPicture(file) ? 0 : 1;
        const zorvic::Bitmap picture = ReadPicture(file);
        if (command == L"pixel" && count > 4)
            std::printf("%08lX of %ld x %ld\n",
                        picture.Lock().Row(_wtoi(words[4]))[static_cast<std::size_t>(_wtoi(words[3]))],
                        picture.Size().cx, picture.Size().cy);
        return 0;
    } catch (const PictureError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

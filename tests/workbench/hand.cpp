// What the stories need from the Windows side: a test picture, the clipboard, and the pixels of a file.
//   hand picture FILE            writes the test picture
//   hand pixel FILE X Y          prints a premultiplied pixel as AARRGGBB
//   hand size FILE               prints width and height
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

// 64 x 48: yellow corners and green edges of 8 pixels, a centre that is red on the left and half transparent blue on the
// right.
DWORD PixelAt(int x, int y) {
    const bool xEdge = x < 8 || x >= 56;
    const bool yEdge = y < 8 || y >= 40;
    if (xEdge && yEdge) return 0xFFF0DC28;
    if (xEdge || yEdge) return 0xFF28A03C;
    return x < 32 ? 0xFFC82828 : 0x80000080;
}

void WriteTestPicture(const std::wstring& file) {
    const zorvic::Bitmap picture = zorvic::Bitmap::Create(64, 48);
    {
        const zorvic::PixelLock pixels = picture.Lock();
        for (int y = 0; y < pixels.Height(); ++y) {
            int x = 0;
            for (DWORD& pixel : pixels.Row(y)) pixel = PixelAt(x++, y);
        }
    }
    PngWriter png(file, 64, 48, PngWriter::Alpha::straight);
    png.WriteRows(picture);
    png.Finish();
}

bool ToClipboard(UINT format, const std::vector<BYTE>& bytes) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    std::memcpy(GlobalLock(memory), bytes.data(), bytes.size());
    GlobalUnlock(memory);
    // A window of its own, because what the clipboard holds must have an owner that empties it.
    const HWND owner = CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (!OpenClipboard(owner)) return false;
    EmptyClipboard();
    const bool done = SetClipboardData(format, memory) != nullptr;
    CloseClipboard();
    return done;
}

template <class Record>
void Append(std::vector<BYTE>& bytes, const Record* records, std::size_t count) {
    const auto* const first = reinterpret_cast<const BYTE*>(records);
    bytes.insert(bytes.end(), first, first + count * sizeof(Record));
}

bool PutFile(const std::wstring& file) {
    DROPFILES head{};
    head.pFiles = sizeof head;
    head.fWide = TRUE;
    std::vector<BYTE> bytes;
    Append(bytes, &head, 1);
    Append(bytes, file.c_str(), file.size() + 1);
    Append(bytes, L"", 1);
    return ToClipboard(CF_HDROP, bytes);
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
    std::vector<BYTE> bytes;
    Append(bytes, &head, 1);
    for (int y = pixels.Height() - 1; y >= 0; --y) {
        for (const DWORD& pixel : pixels.Row(y)) Append(bytes, reinterpret_cast<const BYTE*>(&pixel), 3);
        while (bytes.size() % 4 != sizeof head % 4) bytes.push_back(0);
    }
    return ToClipboard(CF_DIB, bytes);
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
        if (command == L"picture") return WriteTestPicture(file), 0;
        const zorvic::Bitmap picture = ReadPicture(file);
        if (command == L"size") std::printf("%ld %ld\n", picture.Size().cx, picture.Size().cy);
        if (command == L"pixel" && count > 4)
            std::printf("%08lX\n", picture.Lock().Row(_wtoi(words[4]))[static_cast<std::size_t>(_wtoi(words[3]))]);
        return 0;
    } catch (const PictureError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

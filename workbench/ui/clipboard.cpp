#include "ui/clipboard.h"

#include <shellapi.h>

#include <cstring>

namespace {

class ClipboardScope {
public:
    explicit ClipboardScope(HWND window) : open(OpenClipboard(window) != FALSE) {}
    ~ClipboardScope() {
        if (open) CloseClipboard();
    }
    ClipboardScope(const ClipboardScope&) = delete;
    ClipboardScope& operator=(const ClipboardScope&) = delete;
    explicit operator bool() const { return open; }

private:
    bool open;
};

std::vector<BYTE> BytesOf(HANDLE memory) {
    const auto* const first = static_cast<const BYTE*>(GlobalLock(memory));
    if (!first) return {};
    std::vector<BYTE> bytes(first, first + GlobalSize(memory));
    GlobalUnlock(memory);
    return bytes;
}

// A BMP file is a header before what the clipboard has.
std::vector<BYTE> BmpFile(const std::vector<BYTE>& dib) {
    BITMAPINFOHEADER info{};
    if (dib.size() < sizeof info) return {};
    std::memcpy(&info, dib.data(), sizeof info);
    DWORD colors = info.biClrUsed;
    if (colors == 0 && info.biBitCount <= 8) colors = 1u << info.biBitCount;
    const DWORD masks = info.biSize == sizeof info && info.biCompression == BI_BITFIELDS ? 12 : 0;

    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = static_cast<DWORD>(sizeof file) + info.biSize + masks + colors * 4;
    file.bfSize = static_cast<DWORD>(sizeof file + dib.size());
    std::vector<BYTE> bytes(sizeof file + dib.size());
    std::memcpy(bytes.data(), &file, sizeof file);
    std::memcpy(bytes.data() + sizeof file, dib.data(), dib.size());
    return bytes;
}

}  // namespace

std::wstring DroppedFile(HDROP drop) {
    std::wstring file(DragQueryFileW(drop, 0, nullptr, 0), L'\0');
    DragQueryFileW(drop, 0, file.data(), static_cast<UINT>(file.size()) + 1);
    return file;
}

std::optional<OpenJob> PictureFromClipboard(HWND window) {
    const ClipboardScope clipboard(window);
    if (!clipboard) return std::nullopt;
    if (const HANDLE files = GetClipboardData(CF_HDROP)) return OpenJob{DroppedFile(static_cast<HDROP>(files)), {}};
    if (const HANDLE png = GetClipboardData(RegisterClipboardFormatW(L"PNG")))
        return OpenJob{L"Clipboard", BytesOf(png)};
    if (const HANDLE dib = GetClipboardData(CF_DIB)) return OpenJob{L"Clipboard", BmpFile(BytesOf(dib))};
    return std::nullopt;
}

bool TextToClipboard(HWND window, const std::wstring& text) {
    const ClipboardScope clipboard(window);
    if (!clipboard || !EmptyClipboard()) return false;
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (!memory) return false;
    std::memcpy(GlobalLock(memory), text.c_str(), size);
    GlobalUnlock(memory);
    if (SetClipboardData(CF_UNICODETEXT, memory)) return true;
    GlobalFree(memory);
    return false;
}

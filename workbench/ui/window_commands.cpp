// What the window's commands do, and what becomes of the worker's results.
#include "ui/window.h"

#include <commdlg.h>

#include <utility>

#include "document/call.h"
#include "support/picture_files.h"
#include "ui/clipboard.h"

namespace {

std::wstring FileName(const std::wstring& path) { return path.substr(path.find_last_of(L"/\\") + 1); }

// The file that the user chooses in one of the system's dialogs; empty for none.
std::wstring AskForFile(BOOL(WINAPI* ask)(OPENFILENAMEW*), HWND owner, const wchar_t* filter, DWORD flags,
                        const wchar_t* extension) {
    wchar_t file[MAX_PATH]{};
    OPENFILENAMEW record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = owner;
    record.lpstrFilter = filter;
    record.lpstrFile = file;
    record.nMaxFile = MAX_PATH;
    record.lpstrDefExt = extension;
    record.Flags = flags | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_DONTADDTORECENT;
    return ask(&record) ? file : L"";
}

}  // namespace

void Window::Open(OpenJob job) {
    failure.clear();
    worker->Open(std::move(job));
    Redraw();
}

void Window::AskOpen() {
    constexpr wchar_t pictures[] = L"Pictures\0*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.tif;*.tiff;*.ico\0All files\0*.*\0";
    const std::wstring file = AskForFile(GetOpenFileNameW, handle, pictures, OFN_FILEMUSTEXIST, nullptr);
    if (!file.empty()) Open({file, {}});
}

void Window::AskSave() {
    if (!document.HasPicture()) return;
    const std::wstring file = AskForFile(GetSaveFileNameW, handle, L"PNG\0*.png\0", OFN_OVERWRITEPROMPT, L"png");
    if (!file.empty()) worker->Save({file, document.Now()});
}

void Window::Paste() {
    if (auto job = PictureFromClipboard(handle))
        Open(std::move(*job));
    else
        Say(L"There is no picture in the clipboard.");
}

void Window::CopyCall() {
    if (!document.HasPicture()) return;
    Say(TextToClipboard(handle, Utf16(CallFor(document.Now()))) ? L"The call is in the clipboard."
                                                                : L"The clipboard is in use by another program.");
}

void Window::OwnSize() {
    Settings settings = document.Now();
    settings.destination = {0, 0, document.TurnedSize().cx, document.TurnedSize().cy};
    document.Change(settings);
}

void Window::PickKey(POINT at) {
    const auto pixel = view.PixelAt(at);
    if (!pixel) return;
    options.pickingKey = false;
    Settings settings = document.Now();
    settings.colorKey = *pixel & 0xFFFFFF;
    document.Change(settings);
}

void Window::Show() {
    if (document.HasPicture()) worker->Show({view.Part(), options.channels, document.Now()});
    Redraw();
}

void Window::TakeResults() {
    while (auto result = worker->TakeResult()) std::visit([this](auto& what) { Take(what); }, *result);
    Redraw();
}

void Window::Take(Opened& opened) {
    const std::wstring name = FileName(opened.name);
    SetWindowTextW(handle, (name + L" \u2013 Zorvic Workbench").c_str());
    view.ForgetFrame();
    document.Open(name, opened.size);
    view.ZoomToFit();
    Show();
}

void Window::Take(Saved& saved) { Say(L"Saved " + FileName(saved.file) + L"."); }

void Window::Take(Failure& what) {
    failure = std::move(what.message);
    // Messages of the picture files are made for the middle of a line.
    CharUpperBuffW(failure.data(), failure.empty() ? 0 : 1);
    if (!failure.ends_with(L'.')) failure += L'.';
}

void Window::Take(Frame& made) { view.SetFrame(std::move(made)); }

void Window::Say(std::wstring text) {
    said = std::move(text);
    saidAt = GetTickCount();
    Redraw();
}

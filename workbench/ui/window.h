// The main window: commands, messages, and how panel, view and status bar share the client area.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "document/document.h"
#include "engine/worker.h"
#include "ui/panel.h"
#include "ui/view.h"

class Window {
public:
    // Shows itself. False when the system refuses.
    bool Create(HINSTANCE instance, int show);
    void Open(OpenJob job);

private:
    static constexpr int statusHeight = 26;
    static constexpr SIZE least{1000, 700};  // of the client area
    static constexpr DWORD saidFor = 4000;   // milliseconds that the status bar shows what was done

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    void Resize(SIZE size);
    void Paint();
    void DrawStatus(const Painter& painter) const;
    void DrawMessage(const Painter& painter) const;
    std::wstring StatusText() const;
    std::wstring CostText() const;

    void MouseDown(POINT at, bool panOnly);
    void MouseMove(POINT at);
    void MouseUp(POINT at);
    void MouseWheel(POINT at, int steps, bool shift, bool control);
    bool KeyDown(WPARAM key);
    bool CommandKey(WPARAM key);
    void Tick();

    void AskOpen();
    void Paste();
    void AskSave();
    void CopyCall();
    void OwnSize();
    void PickKey(POINT at);

    void Show();
    void TakeResults();
    void Take(Opened& opened);
    void Take(Saved& saved);
    void Take(Failure& failure);
    void Take(Frame& made);
    void Say(std::wstring text);
    void Redraw() const { InvalidateRect(handle, nullptr, FALSE); }

    HWND handle = nullptr;
    zorvic::Canvas canvas;  // what the window shows, as large as its client area
    RECT client{};
    RECT status{};
    Document document;
    ViewOptions options;
    std::optional<Panel> panel;
    View view{document, options};
    std::optional<Worker> worker;

    POINT pointer{-1, -1};
    DWORD pointerMoved = 0;
    std::wstring failure;  // stays until the next command
    std::wstring said;     // stays for a moment
    DWORD saidAt = 0;
    DWORD busySince = 0;
    bool wasBusy = false;  // at the last tick
};

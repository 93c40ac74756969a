// Messages of the window, mouse and keys.
#include "ui/window.h"

#include <windowsx.h>

#include <shellapi.h>

#include <algorithm>
#include <utility>

#include "ui/clipboard.h"

namespace {

constexpr UINT workMessage = WM_APP + 1;
constexpr UINT_PTR timer = 1;
constexpr UINT tick = 100;       // milliseconds
constexpr DWORD tipDelay = 600;  // of resting, before a tooltip

bool IsDown(int key) { return GetKeyState(key) < 0; }

POINT PointOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

}  // namespace

bool Window::Create(HINSTANCE instance, int show) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"ZorvicWorkbench";
    RegisterClassW(&windowClass);

    // As large as is pleasant and as there is room for.
    RECT desk{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &desk, 0);
    RECT frame{0, 0, 1280, 820};
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    const int width = std::min(Width(frame), Width(desk));
    const int height = std::min(Height(frame), Height(desk));
    CreateWindowW(L"ZorvicWorkbench", L"Zorvic Workbench", WS_OVERLAPPEDWINDOW, desk.left + (Width(desk) - width) / 2,
                  desk.top + (Height(desk) - height) / 2, width, height, nullptr, nullptr, instance, this);
    if (!handle) return false;
    DragAcceptFiles(handle, TRUE);
    SetTimer(handle, timer, tick, nullptr);
    ShowWindow(handle, show);
    return true;
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* const self = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        self->handle = window;
    }
    auto* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam) : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT Window::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            worker.emplace(handle, workMessage);
            panel.emplace(document, options,
                          Commands{[this] { AskOpen(); }, [this] { Paste(); }, [this] { AskSave(); },
                                   [this] { CopyCall(); }, [this] { OwnSize(); }, [this] { Show(); }});
            document.onChange = [this] { Show(); };
            return 0;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) Resize({LOWORD(lParam), HIWORD(lParam)});
            return 0;
        case WM_GETMINMAXINFO: {
            RECT frame{0, 0, least.cx, least.cy};
            AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {Width(frame), Height(frame)};
            return 0;
        }
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT covers everything
        case WM_PAINT:
            Paint();
            return 0;
        case WM_TIMER:
            Tick();
            return 0;
        case workMessage:
            TakeResults();
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            MouseDown(PointOf(lParam), IsDown(VK_SPACE));
            return 0;
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            MouseDown(PointOf(lParam), true);
            return 0;
        case WM_MOUSEMOVE:
            MouseMove(PointOf(lParam));
            return 0;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            MouseUp(PointOf(lParam));
            return 0;
        case WM_MOUSEWHEEL: {
            POINT at = PointOf(lParam);
            ScreenToClient(handle, &at);
            MouseWheel(at, GET_WHEEL_DELTA_WPARAM(wParam) > 0 ? 1 : -1, (wParam & MK_SHIFT) != 0,
                       (wParam & MK_CONTROL) != 0);
            return 0;
        }
        case WM_MOUSELEAVE:
            pointer = {-1, -1};
            panel->Leave();
            Redraw();
            return 0;
        case WM_CAPTURECHANGED:
            view.Cancel();
            panel->LoseMouse();
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) != HTCLIENT) break;
            SetCursor(Contains(view.Place(), pointer) && !panel->ListIsOpen() ? view.CursorAt(pointer)
                                                                              : LoadCursorW(nullptr, IDC_ARROW));
            return TRUE;
        case WM_KEYDOWN:
            if (KeyDown(wParam)) return 0;
            break;
        case WM_DROPFILES: {
            const auto drop = reinterpret_cast<HDROP>(wParam);
            Open({DroppedFile(drop), {}});
            DragFinish(drop);
            return 0;
        }
        case WM_DESTROY:
            document.onChange = nullptr;
            worker.reset();
            PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return DefWindowProcW(handle, message, wParam, lParam);
}

void Window::Resize(SIZE size) {
    client = {0, 0, size.cx, size.cy};
    status = {0, client.bottom - statusHeight, client.right, client.bottom};
    panel->Layout({0, 0, Panel::width, status.top});
    view.Layout({Panel::width, 0, std::max<LONG>(client.right, Panel::width + 1), std::max<LONG>(status.top, 1)});
    canvas = zorvic::Canvas::CreateSystem(std::max(1L, size.cx), std::max(1L, size.cy));
    Show();
}

void Window::MouseDown(POINT at, bool panOnly) {
    pointer = at;
    SetCapture(handle);
    if (panel->ListIsOpen() || Contains({0, 0, Panel::width, status.top}, at)) {
        panel->Press(at);
    } else {
        panel->DropFocus();
        failure.clear();
        if (options.pickingKey && !panOnly)
            PickKey(at);
        else
            view.Press(at, panOnly);
    }
    Redraw();
}

void Window::MouseMove(POINT at) {
    if (at.x == pointer.x && at.y == pointer.y) return;
    if (pointer.x < 0) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, handle, 0};
        TrackMouseEvent(&track);
    }
    pointer = at;
    pointerMoved = GetTickCount();
    if (view.IsDragging()) {
        view.Drag(at);
        Show();
    } else if (!panel->Move(at)) {
        InvalidateRect(handle, &status, FALSE);
        return;
    }
    Redraw();
}

void Window::MouseUp(POINT at) {
    view.Release();
    panel->Release(at);
    ReleaseCapture();
    Redraw();
}

void Window::MouseWheel(POINT at, int steps, bool shift, bool control) {
    if (!panel->Wheel(at, steps, shift)) {
        if (shift)
            view.Scroll(-steps * 60, 0);
        else if (control)
            view.Scroll(0, -steps * 60);
        else
            view.ZoomBy(steps, at);
        Show();
    }
    Redraw();
}

bool Window::KeyDown(WPARAM key) {
    const bool control = IsDown(VK_CONTROL);
    const bool done = control ? CommandKey(key) : panel->Key(key, IsDown(VK_SHIFT));
    if (done || control) {
        Redraw();
        return done;
    }
    const POINT middle{(view.Place().left + view.Place().right) / 2, (view.Place().top + view.Place().bottom) / 2};
    const POINT fixed = Contains(view.Place(), pointer) ? pointer : middle;
    constexpr int arrowStep = 80;
    switch (key) {
        case VK_ADD:
        case VK_OEM_PLUS:
            view.ZoomBy(1, fixed);
            break;
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            view.ZoomBy(-1, fixed);
            break;
        case '0':
        case VK_NUMPAD0:
            view.ZoomToFit();
            break;
        case '1':
        case VK_NUMPAD1:
            view.ZoomToNatural();
            break;
        case VK_LEFT:
        case VK_RIGHT:
            view.Scroll(key == VK_LEFT ? -arrowStep : arrowStep, 0);
            break;
        case VK_UP:
        case VK_DOWN:
            view.Scroll(0, key == VK_UP ? -arrowStep : arrowStep);
            break;
        case 'H':
            options.handles = !options.handles;
            break;
        case 'G':
            options.grid = !options.grid;
            break;
        case VK_ESCAPE:
            worker->Cancel();
            view.Cancel();
            options.pickingKey = false;
            failure.clear();
            break;
        default:
            return false;
    }
    Show();
    return true;
}

bool Window::CommandKey(WPARAM key) {
    switch (key) {
        case 'O':
            AskOpen();
            return true;
        case 'V':
            Paste();
            return true;
        case 'S':
            AskSave();
            return true;
        case 'C':
            CopyCall();
            return true;
        case 'Z':
            IsDown(VK_SHIFT) ? document.Redo() : document.Undo();
            return true;
        case 'Y':
            document.Redo();
            return true;
        default:
            return false;
    }
}

void Window::Tick() {
    const DWORD now = GetTickCount();
    const bool busy = worker->IsBusy();
    if (!busy) busySince = now;
    const bool stopped = std::exchange(wasBusy, busy) && !busy;
    if (busy || stopped || (!said.empty() && now - saidAt < saidFor + 2 * tick)) InvalidateRect(handle, &status, FALSE);
    if (pointer.x >= 0 && now - pointerMoved > tipDelay && panel->ShowTip()) Redraw();
}

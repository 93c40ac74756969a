// The panel of controls on the left, with focus, lists and tooltips.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "document/choices.h"
#include "document/document.h"
#include "engine/frame.h"
#include "ui/controls.h"

// What is shown, apart from the picture.
struct ViewOptions {
    Channels channels = Channels::color;
    bool handles = true;
    bool grid = true;
    bool pickingKey = false;
};

struct Commands {
    std::function<void()> open, paste, save, copyCall, ownSize, changedView;
};

class Panel {
public:
    static constexpr int width = 304;
    Panel(Document& shown, ViewOptions& options, Commands does);

    void Layout(const RECT& where);
    void Draw(const Painter& painter) const;
    // Lists and tooltips, which may lie over the rest of the window.
    void DrawAbove(const Painter& painter, const RECT& window) const;

    // All in client pixels. True when the window is to be drawn again.
    bool Press(POINT at);
    bool Move(POINT at);
    bool Release(POINT at);
    bool Wheel(POINT at, int steps, bool large);
    bool Leave();
    bool Key(WPARAM key, bool shift);
    // After the pointer has rested for a while.
    bool ShowTip();

    // The mouse was taken away in the middle of a drag.
    void LoseMouse() {
        if (std::exchange(captured, nullptr)) document.End();
    }
    bool ListIsOpen() const { return list.owner != nullptr; }
    void DropFocus();

private:
    struct List {
        ChoiceBox* owner = nullptr;
        RECT place{};
        int hot = -1;
    };
    static constexpr int itemHeight = 24;

    void Build();
    template <class C>
    C& Add(std::unique_ptr<C> control, const RECT& where);
    void AddTitle(const wchar_t* text);
    void AddButtons(std::initializer_list<std::tuple<const wchar_t*, const wchar_t*, std::function<void()>>> buttons);
    RECT AddRow(const wchar_t* label);
    template <class T, std::size_t n>
    ChoiceBox& AddChoice(const wchar_t* label, const wchar_t* tip, const Choice<T> (&choices)[n], T Settings::*field);
    Slider& AddSlider(const wchar_t* label, const wchar_t* tip, int least, int most, const wchar_t* unit,
                      int Settings::*field);
    void AddEdges(const wchar_t* label, const wchar_t* tip, RECT Settings::*field, bool asSize);
    CheckBox& AddCheck(const RECT& where, std::function<std::wstring()> text, const wchar_t* tip,
                       std::function<bool()> get, std::function<void(bool)> set);
    template <class Edit>
    void Change(Edit edit);

    Control* At(POINT at) const;
    ControlState StateOf(const Control& control) const;
    void Focus(Control* control);
    void FocusNext(int direction);
    void OpenList(ChoiceBox& owner);
    void CloseList() { list = {}; }
    int ItemAt(POINT at) const;

    Document& document;
    ViewOptions& view;
    Commands commands;
    std::vector<std::unique_ptr<Control>> controls;
    RECT place{};
    int rowTop = 0;
    Control* hot = nullptr;
    Control* captured = nullptr;
    Control* focus = nullptr;
    Control* tipOf = nullptr;
    Control* used = nullptr;  // pressed since the pointer came to it: it needs no tip
    List list;
};

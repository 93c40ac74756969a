// The panel's controls: what is drawn, and what mouse and keys do to it. A control knows its value by functions only.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ui/painter.h"

struct ControlState {
    bool hot = false;
    bool pressed = false;
    bool focused = false;
    bool enabled = true;
};

class Control {
public:
    virtual ~Control() = default;
    virtual void Draw(const Painter& painter, const ControlState& state) const = 0;

    virtual bool TakesFocus() const { return true; }
    virtual void Press(POINT) {}
    virtual void Drag(POINT) {}
    virtual void Release(POINT) {}
    // Steps up are positive. A large step is ten small ones.
    virtual void Wheel(int /*steps*/, bool /*large*/) {}
    // True when the key was for this control.
    virtual bool Key(WPARAM /*key*/, bool /*large*/) { return false; }
    virtual void LoseFocus() {}

    RECT place{};
    std::wstring tip;
    std::function<bool()> enabled = [] { return true; };
    // A change that takes a while is one step of undo.
    std::function<void()> begin = [] {};
    std::function<void()> end = [] {};
};

class Label : public Control {
public:
    Label(std::wstring shown, bool isTitle) : text(std::move(shown)), title(isTitle) {}
    void Draw(const Painter& painter, const ControlState& state) const override;
    bool TakesFocus() const override { return false; }

private:
    std::wstring text;
    bool title;
};

class Button : public Control {
public:
    Button(std::wstring shown, std::function<void()> act) : text(std::move(shown)), action(std::move(act)) {}
    void Draw(const Painter& painter, const ControlState& state) const override;
    void Release(POINT at) override {
        if (Contains(place, at)) action();
    }
    bool Key(WPARAM key, bool large) override;

private:
    std::wstring text;
    std::function<void()> action;
};

class CheckBox : public Control {
public:
    CheckBox(std::function<std::wstring()> shown, std::function<bool()> read, std::function<void(bool)> write)
        : text(std::move(shown)), get(std::move(read)), set(std::move(write)) {}
    void Draw(const Painter& painter, const ControlState& state) const override;
    void Release(POINT at) override {
        if (Contains(place, at)) set(!get());
    }
    bool Key(WPARAM key, bool large) override;

private:
    std::function<std::wstring()> text;
    std::function<bool()> get;
    std::function<void(bool)> set;
};

// One of several names. A click asks for the list, the wheel and the arrow keys go through the names.
class ChoiceBox : public Control {
public:
    std::vector<std::wstring> names;
    std::function<int()> get;
    std::function<void(int)> set;
    std::function<void(ChoiceBox&)> openList;

    void Draw(const Painter& painter, const ControlState& state) const override;
    void Release(POINT at) override {
        if (Contains(place, at)) openList(*this);
    }
    void Wheel(int steps, bool) override { Step(-steps); }
    bool Key(WPARAM key, bool large) override;

private:
    void Step(int by);
};

class Slider : public Control {
public:
    int least = 0, most = 100;
    std::function<int()> get;
    std::function<void(int)> set;
    std::wstring unit;

    void Draw(const Painter& painter, const ControlState& state) const override;
    void Press(POINT at) override {
        begin();
        Drag(at);
    }
    void Drag(POINT at) override;
    void Release(POINT) override { end(); }
    void Wheel(int steps, bool large) override { Set(get() + steps * (large ? 10 : 1)); }
    bool Key(WPARAM key, bool large) override;

private:
    RECT Track() const { return {place.left + 6, place.top, place.right - 52, place.bottom}; }
    void Set(int value);
};

// A number that is dragged, turned with the wheel or typed.
class Number : public Control {
public:
    int least = 0, most = 32767;
    std::function<int()> get;
    std::function<void(int)> set;

    void Draw(const Painter& painter, const ControlState& state) const override;
    void Press(POINT at) override;
    void Drag(POINT at) override;
    void Release(POINT) override { end(); }
    void Wheel(int steps, bool large) override { Set(get() + steps * (large ? 10 : 1)); }
    bool Key(WPARAM key, bool large) override;
    void LoseFocus() override { typing = false; }

private:
    void Set(int value);
    bool Typed(WPARAM key);

    POINT pressed{};
    int atPress = 0;
    bool typing = false;
};

// A colour and its value.
class Swatch : public Control {
public:
    std::function<DWORD()> get;
    std::function<bool()> picking;
    std::function<void()> pick;

    void Draw(const Painter& painter, const ControlState& state) const override;
    void Release(POINT at) override {
        if (Contains(place, at)) pick();
    }
    bool Key(WPARAM key, bool large) override;
};

#include "ui/controls.h"

#include <algorithm>

namespace {

DWORD FieldColor(const ControlState& state) {
    if (!state.enabled) return theme::panel;
    return state.pressed ? theme::fieldPressed : state.hot ? theme::fieldHot : theme::field;
}

DWORD TextColor(const ControlState& state) { return state.enabled ? theme::text : theme::disabled; }

void DrawField(const Painter& painter, const RECT& place, const ControlState& state) {
    painter.Round(place, 4, FieldColor(state));
    if (!state.enabled) painter.Ring(place, 4, theme::line);
    if (state.focused) painter.Ring(place, 4, theme::accent);
}

bool Presses(WPARAM key) { return key == VK_RETURN || key == VK_SPACE; }

// The step that a key asks for; 0, none.
int StepOf(WPARAM key) {
    if (key == VK_LEFT || key == VK_DOWN) return -1;
    if (key == VK_RIGHT || key == VK_UP) return 1;
    if (key == VK_PRIOR) return 10;
    if (key == VK_NEXT) return -10;
    return 0;
}

}  // namespace

void Label::Draw(const Painter& painter, const ControlState& state) const {
    if (!title) return painter.Text(text, place, state.enabled ? theme::quiet : theme::disabled);
    painter.Text(text, place, theme::accent, DT_LEFT, Face::strong);
    const SIZE size = painter.TextSize(text, Width(place), Face::strong);
    const int middle = (place.top + place.bottom) / 2;
    painter.Fill({place.left + size.cx + 8, middle, place.right, middle + 1}, theme::line);
}

void Button::Draw(const Painter& painter, const ControlState& state) const {
    DrawField(painter, place, state);
    painter.Text(text, Inset(place, 3), TextColor(state), DT_CENTER);
}

bool Button::Key(WPARAM key, bool) {
    if (!Presses(key)) return false;
    action();
    return true;
}

void CheckBox::Draw(const Painter& painter, const ControlState& state) const {
    const int middle = (place.top + place.bottom) / 2;
    const RECT box{place.left, middle - 7, place.left + 14, middle + 7};
    painter.Round(box, 3, get() && state.enabled ? theme::accent : FieldColor(state));
    if (!state.enabled || state.focused) painter.Ring(box, 3, state.focused ? theme::text : theme::line);
    if (get()) {
        const zorvic::CanvasRef canvas = painter.Canvas();
        const zorvic::StyleScope style = canvas.SaveStyle();
        canvas.SetColor(state.enabled ? 0xFFFFFFFF : theme::disabled);
        canvas.SetStrokeWidth(2);
        const auto x = static_cast<float>(box.left);
        const auto y = static_cast<float>(box.top);
        canvas.DrawLine(x + 3, y + 7, x + 6, y + 10);
        canvas.DrawLine(x + 6, y + 10, x + 11, y + 4);
    }
    painter.Text(text(), {box.right + 7, place.top, place.right, place.bottom}, TextColor(state));
}

bool CheckBox::Key(WPARAM key, bool) {
    if (!Presses(key)) return false;
    set(!get());
    return true;
}

void ChoiceBox::Draw(const Painter& painter, const ControlState& state) const {
    DrawField(painter, place, state);
    const auto name = static_cast<std::size_t>(get());
    painter.Text(names[name], {place.left + 8, place.top, place.right - 20, place.bottom}, TextColor(state));
    painter.Arrow({place.right - 20, place.top, place.right - 4, place.bottom},
                  state.enabled ? theme::quiet : theme::disabled);
}

bool ChoiceBox::Key(WPARAM key, bool) {
    if (Presses(key)) {
        openList(*this);
        return true;
    }
    if (key == VK_LEFT || key == VK_UP) return Step(-1), true;
    if (key == VK_RIGHT || key == VK_DOWN) return Step(1), true;
    return false;
}

void ChoiceBox::Step(int by) { set(std::clamp(get() + by, 0, static_cast<int>(names.size()) - 1)); }

void Slider::Draw(const Painter& painter, const ControlState& state) const {
    const RECT track = Track();
    const int middle = (track.top + track.bottom) / 2;
    const auto place_of = [&](int value) { return track.left + Width(track) * (value - least) / (most - least); };
    const int at = place_of(get());
    painter.Round({track.left, middle - 2, track.right, middle + 2}, 2, theme::field);
    if (state.enabled) {
        // From zero, where the range has one inside.
        const int zero = place_of(std::clamp(0, least, most));
        painter.Fill({std::min(zero, at), middle - 1, std::max(zero, at), middle + 1}, theme::accent);
        const zorvic::CanvasRef canvas = painter.Canvas();
        const zorvic::StyleScope style = canvas.SaveStyle();
        canvas.SetColor(state.hot || state.pressed ? 0xFFFFFFFF : theme::text);
        canvas.DrawCircle(static_cast<float>(at), static_cast<float>(middle), 6);
    }
    painter.Text(std::to_wstring(get()) + unit, {track.right + 8, place.top, place.right, place.bottom},
                 TextColor(state), DT_RIGHT);
    if (state.focused) painter.Ring({place.left - 2, place.top, place.right + 2, place.bottom}, 4, theme::accent);
}

void Slider::Drag(POINT at) {
    const RECT track = Track();
    Set(least + MulDiv(at.x - track.left, most - least, Width(track)));
}

bool Slider::Key(WPARAM key, bool large) {
    if (key == VK_HOME) return Set(least), true;
    if (key == VK_END) return Set(most), true;
    const int step = StepOf(key);
    if (step != 0) Set(get() + step * (large ? 10 : 1));
    return step != 0;
}

void Slider::Set(int value) { set(std::clamp(value, least, most)); }

void Number::Draw(const Painter& painter, const ControlState& state) const {
    DrawField(painter, place, state);
    painter.Text(std::to_wstring(get()), Inset(place, 2), TextColor(state), DT_CENTER);
}

void Number::Press(POINT at) {
    begin();
    typing = false;
    pressed = at;
    atPress = get();
}

void Number::Drag(POINT at) {
    const int moved = at.x - pressed.x - (at.y - pressed.y);
    if (std::abs(moved) > 2) Set(atPress + moved);
}

bool Number::Key(WPARAM key, bool large) {
    if (Typed(key)) return true;
    const int step = StepOf(key);
    if (step != 0) Set(get() + step * (large ? 10 : 1));
    return step != 0;
}

bool Number::Typed(WPARAM key) {
    if (key == VK_BACK) {
        Set(get() / 10);
        return typing = true;
    }
    const int digit = key >= '0' && key <= '9'                 ? static_cast<int>(key - '0')
                      : key >= VK_NUMPAD0 && key <= VK_NUMPAD9 ? static_cast<int>(key - VK_NUMPAD0)
                                                               : -1;
    if (digit < 0) return false;
    Set(typing ? get() * 10 + digit : digit);
    return typing = true;
}

void Number::Set(int value) { set(std::clamp(value, least, most)); }

void Swatch::Draw(const Painter& painter, const ControlState& state) const {
    DrawField(painter, place, state);
    const RECT box{place.left + 6, place.top + 5, place.left + 26, place.bottom - 5};
    if (state.enabled) painter.Fill(box, 0xFF000000 | get());
    painter.Frame(box, state.enabled ? theme::text : theme::line);
    wchar_t value[24];
    wsprintfW(value, L"#%06lX", get());
    painter.Text(picking() ? L"click a pixel\u2026" : value, {box.right + 8, place.top, place.right - 4, place.bottom},
                 TextColor(state));
}

bool Swatch::Key(WPARAM key, bool) {
    if (!Presses(key)) return false;
    pick();
    return true;
}

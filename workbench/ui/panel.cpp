// What mouse and keys do to the panel, and how it is drawn.
#include "ui/panel.h"

#include <algorithm>

namespace {

// The number of a list's item is drawn inside this.
RECT ItemPlace(const RECT& list, int i, int height) {
    return {list.left + 4, list.top + 4 + i * height, list.right - 4, list.top + 4 + (i + 1) * height};
}

}  // namespace

void Panel::Layout(const RECT& where) { place = where; }

ControlState Panel::StateOf(const Control& control) const {
    const bool enabled = control.enabled();
    return {enabled && (&control == hot || &control == captured), &control == captured, &control == focus, enabled};
}

void Panel::Draw(const Painter& painter) const {
    painter.Fill(place, theme::panel);
    painter.Fill({place.right - 1, place.top, place.right, place.bottom}, theme::line);
    for (const auto& control : controls) control->Draw(painter, StateOf(*control));

    // Where the window is high enough, how to get about.
    static constexpr const wchar_t* hints[][2]{
        {L"Wheel, + and -", L"zoom"},
        {L"0 and 1", L"all of it, natural size"},
        {L"Drag, arrows", L"move the view"},
        {L"Right button", L"move the view, anywhere"},
        {L"Tab, arrows", L"go through the controls"},
        {L"Ctrl+Z, Ctrl+Y", L"undo, redo"},
        {L"Esc", L"stop slow work"},
    };
    constexpr int lineHeight = 20;
    int y = place.bottom - 12 - lineHeight * static_cast<int>(std::size(hints));
    if (y < rowTop + 8) return;
    for (const auto& [keys, meaning] : hints) {
        painter.Text(keys, {14, y, 118, y + lineHeight}, theme::text, DT_LEFT, Face::small);
        painter.Text(meaning, {122, y, width - 12, y + lineHeight}, theme::quiet, DT_LEFT, Face::small);
        y += lineHeight;
    }
}

void Panel::DrawAbove(const Painter& painter, const RECT& window) const {
    if (list.owner) {
        painter.Round({list.place.left - 1, list.place.top - 1, list.place.right + 1, list.place.bottom + 1}, 6,
                      theme::line);
        painter.Round(list.place, 5, theme::card);
        const int count = static_cast<int>(list.owner->names.size());
        for (int i = 0; i < count; ++i) {
            const RECT item = ItemPlace(list.place, i, itemHeight);
            if (i == list.hot) painter.Round(item, 3, theme::fieldHot);
            const bool current = i == list.owner->get();
            painter.Text(list.owner->names[static_cast<std::size_t>(i)],
                         {item.left + 8, item.top, item.right - 4, item.bottom}, current ? theme::accent : theme::text);
        }
    } else if (tipOf) {
        const SIZE size = painter.TextSize(tipOf->tip, 280, Face::small);
        RECT card{tipOf->place.left, tipOf->place.bottom + 6, tipOf->place.left + size.cx + 20,
                  tipOf->place.bottom + 6 + size.cy + 12};
        if (card.bottom > window.bottom - 4) OffsetRect(&card, 0, tipOf->place.top - 6 - card.bottom);
        painter.Round({card.left - 1, card.top - 1, card.right + 1, card.bottom + 1}, 5, theme::line);
        painter.Round(card, 4, theme::card);
        painter.Text(tipOf->tip, {card.left + 10, card.top + 6, card.right - 8, card.bottom}, theme::text,
                     DT_LEFT | DT_WORDBREAK, Face::small);
    }
}

Control* Panel::At(POINT at) const {
    for (const auto& control : controls)
        if (Contains(control->place, at) && control->enabled() && control->TakesFocus()) return control.get();
    return nullptr;
}

int Panel::ItemAt(POINT at) const {
    const int count = static_cast<int>(list.owner->names.size());
    for (int i = 0; i < count; ++i)
        if (Contains(ItemPlace(list.place, i, itemHeight), at)) return i;
    return -1;
}

void Panel::OpenList(ChoiceBox& owner) {
    const int height = static_cast<int>(owner.names.size()) * itemHeight + 8;
    list = {&owner,
            {owner.place.left, owner.place.bottom + 2, owner.place.right, owner.place.bottom + 2 + height},
            owner.get()};
    if (list.place.bottom > place.bottom) OffsetRect(&list.place, 0, owner.place.top - 2 - list.place.bottom);
    tipOf = nullptr;
}

void Panel::Focus(Control* control) {
    if (focus && focus != control) focus->LoseFocus();
    focus = control;
}

void Panel::DropFocus() { Focus(nullptr); }

bool Panel::Press(POINT at) {
    tipOf = nullptr;
    if (list.owner) {
        const int item = ItemAt(at);
        if (item >= 0) list.owner->set(item);
        const bool outside = !Contains(list.place, at);
        if (item >= 0 || outside) CloseList();
        return true;
    }
    if (!Contains(place, at)) return false;
    used = captured = At(at);
    Focus(captured);
    if (captured) captured->Press(at);
    return true;
}

bool Panel::Move(POINT at) {
    if (list.owner) {
        const int item = ItemAt(at);
        const bool moved = item != list.hot && item >= 0;
        if (moved) list.hot = item;
        return moved;
    }
    if (captured) {
        captured->Drag(at);
        return true;
    }
    // Labels have no tip of their own.
    Control* const under = Contains(place, at) ? At(at) : nullptr;
    const bool changed = under != hot || tipOf;
    if (under != tipOf) tipOf = nullptr;
    if (under != used) used = nullptr;
    hot = under;
    return changed;
}

bool Panel::Release(POINT at) {
    if (!captured) return false;
    Control* const released = std::exchange(captured, nullptr);
    released->Release(at);
    return true;
}

bool Panel::Wheel(POINT at, int steps, bool large) {
    if (list.owner || !Contains(place, at)) return list.owner != nullptr;
    if (Control* const under = At(at)) under->Wheel(steps, large);
    return true;
}

bool Panel::Leave() {
    const bool changed = hot || tipOf;
    hot = tipOf = nullptr;
    return changed;
}

bool Panel::ShowTip() {
    if (!hot || captured || list.owner || tipOf == hot || used == hot || hot->tip.empty()) return false;
    tipOf = hot;
    return true;
}

void Panel::FocusNext(int direction) {
    const int count = static_cast<int>(controls.size());
    const auto found = std::ranges::find(controls, focus, &std::unique_ptr<Control>::get);
    int i = found == controls.end() ? (direction > 0 ? -1 : count) : static_cast<int>(found - controls.begin());
    for (int tried = 0; tried < count; ++tried) {
        i = (i + direction + count) % count;
        Control* const next = controls[static_cast<std::size_t>(i)].get();
        if (next->TakesFocus() && next->enabled()) return Focus(next);
    }
}

bool Panel::Key(WPARAM key, bool shift) {
    if (list.owner) {
        const int last = static_cast<int>(list.owner->names.size()) - 1;
        if (key == VK_UP) list.hot = std::max(0, list.hot - 1);
        if (key == VK_DOWN) list.hot = std::min(last, list.hot + 1);
        if ((key == VK_RETURN || key == VK_SPACE) && list.hot >= 0) list.owner->set(list.hot);
        if (key == VK_RETURN || key == VK_SPACE || key == VK_ESCAPE || key == VK_TAB) CloseList();
        return true;
    }
    if (key == VK_TAB) return FocusNext(shift ? -1 : 1), true;
    if (!focus) return false;
    if (key == VK_ESCAPE) return DropFocus(), true;
    return focus->enabled() && focus->Key(key, shift);
}

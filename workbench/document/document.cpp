#include "document/document.h"

#include <algorithm>
#include <utility>

SIZE Document::TurnedSize() const {
    switch (now.transform) {
        case ZORVIC_TRANSFORM_ROTATE_90:
        case ZORVIC_TRANSFORM_ROTATE_270:
        case ZORVIC_TRANSFORM_TRANSPOSE:
        case ZORVIC_TRANSFORM_ANTI_TRANSPOSE:
            return {size.cy, size.cx};
        default:
            return size;
    }
}

void Document::Open(std::wstring pictureName, SIZE pictureSize) {
    name = std::move(pictureName);
    size = pictureSize;
    undo.clear();
    redo.clear();
    depth = 0;
    now.destination = {0, 0, TurnedSize().cx, TurnedSize().cy};
    const LONG margin = std::min(size.cx, size.cy) / 4;
    now.margins = {margin, margin, margin, margin};
    Tell();
}

void Document::Change(const Settings& settings) {
    if (settings == now) return;
    const SIZE turned = TurnedSize();
    const Settings old = std::exchange(now, settings);
    // A rectangle of the picture's own size stays one when the picture is turned.
    const RECT& rect = now.destination;
    if (old.transform != now.transform && rect.right - rect.left == turned.cx && rect.bottom - rect.top == turned.cy)
        now.destination = {rect.left, rect.top, rect.left + TurnedSize().cx, rect.top + TurnedSize().cy};
    if (depth == 0) Keep(old);
    Tell();
}

void Document::End() {
    if (depth == 0 || --depth > 0 || before == now) return;
    Keep(before);
    Tell();
}

void Document::Abandon() {
    if (depth == 0) return;
    depth = 0;
    now = before;
    Tell();
}

void Document::Keep(const Settings& old) {
    undo.push_back(old);
    redo.clear();
}

void Document::Step(std::vector<Settings>& from, std::vector<Settings>& to) {
    if (from.empty() || depth > 0) return;
    to.push_back(std::exchange(now, from.back()));
    from.pop_back();
    Tell();
}

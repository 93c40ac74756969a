// The settings of the open picture, with undo. A change between Begin and End is one step, as is one outside.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "document/settings.h"

class Document {
public:
    std::function<void()> onChange;

    bool HasPicture() const { return size.cx > 0; }
    const std::wstring& Name() const { return name; }
    // Of the picture as it was read.
    SIZE PictureSize() const { return size; }
    // Of the picture as it is drawn.
    SIZE TurnedSize() const;
    const Settings& Now() const { return now; }

    // A new picture is shown in its own size; the history starts with it.
    void Open(std::wstring pictureName, SIZE pictureSize);
    void Change(const Settings& settings);
    void Begin() {
        if (depth++ == 0) before = now;
    }
    void End();
    // Takes back what was changed since Begin.
    void Abandon();

    bool CanUndo() const { return !undo.empty(); }
    bool CanRedo() const { return !redo.empty(); }
    void Undo() { Step(undo, redo); }
    void Redo() { Step(redo, undo); }

private:
    void Keep(const Settings& old);
    void Step(std::vector<Settings>& from, std::vector<Settings>& to);
    void Tell() const {
        if (onChange) onChange();
    }

    std::wstring name;
    SIZE size{};
    Settings now;
    Settings before;
    int depth = 0;
    std::vector<Settings> undo;
    std::vector<Settings> redo;
};

// Calls as text: "width 10  cap 1  line 40 60 120 90" makes three calls. Tests write their drawings in it, and those of
// bad numbers find every call that takes some.
#pragma once

#include <span>
#include <string>

#include "drawing.h"

namespace vek_test {

// What calls work on, and converts to. Path and gradient are made by the calls.
struct Pen {
    explicit Pen(VekCanvas c) : canvas(c) {}
    operator VekCanvas() const { return canvas; }
    operator VekPath() const { return path.get(); }
    operator VekGradient() const { return gradient.get(); }

    VekCanvas canvas;
    OwnedPath path = MakePath();
    OwnedGradient gradient;
    DWORD color = 0xFF000000;  // set by a word #AARRGGBB
};

// A call that takes floats.
struct NumberCall {
    const char* name;
    std::size_t count;
    int (*call)(Pen&, const float*);
};
std::span<const NumberCall> NumberCalls();

// Makes the calls; 1 when all of them returned 1.
int Draw(Pen& pen, const std::string& text);

inline int Draw(VekCanvas canvas, const std::string& text) {
    Pen pen(canvas);
    return Draw(pen, text);
}

}  // namespace vek_test

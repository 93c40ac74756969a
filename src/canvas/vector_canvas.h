// Vector drawing on a canvas: scopes around the calls of the backend, whose canvas is bound to the surface's pixels.
#pragma once

#include "canvas/canvas.h"
#include "vek/vekgraphic.h"

namespace zorvic {

// One saved state of a backend canvas. Empty without one, or when its state cannot be saved.
class VectorSave {
public:
    explicit VectorSave(VekCanvas savedCanvas)
        : canvas(savedCanvas && vekCanvasSave(savedCanvas) ? savedCanvas : nullptr) {}
    ~VectorSave() {
        if (canvas) vekCanvasRestore(canvas);
    }
    VectorSave(const VectorSave&) = delete;
    VectorSave& operator=(const VectorSave&) = delete;

    explicit operator bool() const { return canvas != nullptr; }
    VekCanvas Get() const { return canvas; }

private:
    VekCanvas canvas;
};

// What surrounds every shape: the state is saved, the clip is the canvas's, and coordinates are logical. Empty for a
// canvas without a surface.
class VectorFrame {
public:
    explicit VectorFrame(Canvas& canvas);

    explicit operator bool() const { return static_cast<bool>(saved); }
    VekCanvas Get() const { return saved.Get(); }

private:
    VectorSave saved;
};

}  // namespace zorvic

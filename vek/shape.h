// A path made ready for Cairo: moved to the pixels of its target, with the numbers of the stroke, and cut to what can be
// seen where its own numbers would be too large for Cairo's rasteriser. Where its edges cross too many rows for Cairo it
// becomes a mask.
#pragma once

#include <optional>

#include "dense_mask.h"
#include "path.h"
#include "style.h"

namespace zorvic::vek {

class Shape {
public:
    // offset moves the path to the coordinates of clip. The path must outlive the shape.
    static Shape Filled(const Path& path, Point offset, bool smooth, const Rect& clip);
    static Shape Stroked(const Path& path, Point offset, const Style& style, const Rect& clip);

    // The pixels of the clip that the shape may touch.
    const Rect& Extent() const { return extent; }
    // 0..1: dashes too fine to be seen one by one are drawn as a solid stroke of this opacity.
    double Opacity() const { return opacity; }

    const Mask* CoverageMask() const { return mask ? &*mask : nullptr; }  // drawn instead of the outline
    const Path& Outline() const { return path ? *path : own; }
    Point Offset() const { return offset; }
    bool Smooth() const { return smooth; }
    const StrokeForm& Stroke() const { return stroke; }
    const Dashes& DashLengths() const { return dashes; }

private:
    Shape(const Path& original, Point by, bool antialias) : path(&original), offset(by), smooth(antialias) {}
    void Replace(Path&& other);
    void MakeMaskIfDense();
    void SetDashes(Dashes&& lengths, const Path& original, const Box& seen);

    const Path* path;  // none: the shape has a path of its own, which needs no offset
    Path own;
    Point offset;
    bool smooth;
    StrokeForm stroke;
    Dashes dashes;
    Rect extent;
    double opacity = 1;
    std::optional<Mask> mask;
    bool isFar = false;
};

}  // namespace zorvic::vek

// New bitmaps and textures made from others: resized, turned or mirrored. Pixels are the work of the resize kernels and
// of MovePixels.
#pragma once

#include <utility>

#include "pixel/move_pixels.h"
#include "surface/texture.h"

namespace zorvic {

// Both take the operation word over. Where pixels cannot be locked, dst keeps what it has.
void ResizeInto(Bitmap& dst, const Bitmap& src, DWORD filterMode);
void TransformInto(Bitmap& dst, const Bitmap& src, Transform transform);

// Textures are made in heap memory, whatever they are made from.
inline StoreKind KindOfNew(const Bitmap& like) { return like.Kind(); }
inline StoreKind KindOfNew(const Texture&) { return StoreKind::memory; }

// Always 32 bits. Null for a bad size, or when memory is short.
template <class Surface>
std::unique_ptr<Surface> MakeResized(const Surface& source, int width, int height, DWORD filterMode) {
    auto resized = MakeSurface<Surface>(width, height, 32, 0, KindOfNew(source));
    if (resized) ResizeInto(*resized, source, filterMode);
    return resized;
}

// With the depth and palette of the source. Null for a source without pixels, or when memory is short.
template <class Surface>
std::unique_ptr<Surface> MakeTransformed(const Surface& source, Transform transform) {
    SIZE size = source.Size();
    if (MovesOf(transform).transposes) std::swap(size.cx, size.cy);
    auto transformed =
        MakeSurface<Surface>(size.cx, size.cy, source.BitsPixel(), source.ColorCount(), KindOfNew(source));
    if (transformed) TransformInto(*transformed, source, transform);
    return transformed;
}

}  // namespace zorvic

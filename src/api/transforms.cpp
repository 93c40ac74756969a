// Exports that make a bitmap or texture from another one.
#include "pixel/transforms.h"

#include "zorvic/zorvic.h"

using zorvic::FromHandle;
using zorvic::ToHandle;
using zorvic::Transform;

namespace {

template <class Handle>
Handle Resized(Handle source, int width, int height, int mode) {
    if (!source) return nullptr;
    return ToHandle(zorvic::MakeResized(*FromHandle(source), width, height, static_cast<DWORD>(mode)).release());
}

// Null for an op outside first..last.
template <class Handle>
Handle Transformed(Handle source, int op, Transform first, Transform last) {
    if (!source || op < static_cast<int>(first) || op > static_cast<int>(last)) return nullptr;
    return ToHandle(zorvic::MakeTransformed(*FromHandle(source), static_cast<Transform>(op)).release());
}

}  // namespace

HGBITMAP ResizeBitmap(HGBITMAP source, int width, int height, int mode) { return Resized(source, width, height, mode); }

HGTEXTURE ResizeTexture(HGTEXTURE source, int width, int height, int mode) {
    return Resized(source, width, height, mode);
}

HGBITMAP TransformBitmap(HGBITMAP source, int op) {
    return Transformed(source, op, Transform::rotate90, Transform::antiTranspose);
}

HGTEXTURE TransformTexture(HGTEXTURE source, int op) {
    return Transformed(source, op, Transform::rotate90, Transform::antiTranspose);
}

HGBITMAP RotateBitmap(HGBITMAP source, int op) {
    return Transformed(source, op, Transform::rotate90, Transform::rotate270);
}

HGTEXTURE RotateTexture(HGTEXTURE source, int op) {
    return Transformed(source, op, Transform::rotate90, Transform::rotate270);
}

HGBITMAP FlipBitmap(HGBITMAP source, int op) {
    return Transformed(source, op, Transform::flipVertical, Transform::flipHorizontal);
}

HGTEXTURE FlipTexture(HGTEXTURE source, int op) {
    return Transformed(source, op, Transform::flipVertical, Transform::flipHorizontal);
}

// Quarter turns and mirrors of locked images: where each pixel goes.
#pragma once

#include "zorvic/types.h"

namespace zorvic {

// The numbers are the public interface's.
enum class Transform {
    rotate90 = 1,  // clockwise
    rotate180,
    rotate270,
    flipVertical,    // top to bottom
    flipHorizontal,  // left to right
    transpose,       // about the diagonal through the top left corner
    antiTranspose    // about the other one
};

// A transform in parts: columns and rows change places or not, then either axis of the result is mirrored or not.
struct Moves {
    bool transposes, mirrorsX, mirrorsY;
};

constexpr Moves MovesOf(Transform transform) {
    switch (transform) {
        case Transform::rotate90:
            return {true, true, false};
        case Transform::rotate180:
            return {false, true, true};
        case Transform::rotate270:
            return {true, false, true};
        case Transform::flipVertical:
            return {false, false, true};
        case Transform::flipHorizontal:
            return {false, true, false};
        case Transform::transpose:
            return {true, false, false};
        case Transform::antiTranspose:
            return {true, true, true};
    }
    return {};
}

// Moves every pixel of src to its place in dst. Both have one depth; dst has the size of src, with width and height
// exchanged if the transform transposes. Depths other than 8, 24 and 32 bits are left alone.
void MovePixels(const BitmapLockInfo& dst, const BitmapLockInfo& src, Transform transform);

}  // namespace zorvic

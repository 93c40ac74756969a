// 32-bit premultiplied pixels and what Cairo knows about them. Cairo's objects are made when they are first needed and
// kept; when one has failed it is dropped, and the next use makes a new one, so that no error outlives its call.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "cairo_handles.h"
#include "geometry.h"

namespace zorvic::vek {

class Image {
public:
    Image() = default;
    // Somebody else's pixels; place is where they are in the coordinates of the canvas.
    Image(std::uint32_t* bits, const Rect& place, int strideBytes);

    // The same pixels once more, for another user.
    Image Another() const { return {bits, place, static_cast<int>(strideWords * 4)}; }
    bool SharesPixels(const Image& other) const;

    // Own pixels: transparent the first time; later the memory is used again as it is.
    void Allocate(const Rect& place);

    const Rect& Place() const { return place; }
    std::uint32_t* At(int x, int y) const {
        return bits + static_cast<std::ptrdiff_t>(y - place.top) * strideWords + (x - place.left);
    }

    // A context to draw with, cut to a rectangle inside the place. Ready for a new path.
    cairo_t* Begin(const Rect& clip);
    // Ends what Begin began; throws when Cairo reports a failure.
    void End();
    // Sources of the context; a colour is set only when it is not the current one.
    void SetSolid(std::uint32_t premultiplied);
    void SetPattern(cairo_pattern_t* pattern);

    // These pixels as a source, with their first pixel at a position.
    cairo_pattern_t* Pattern(Point position);

private:
    cairo_surface_t* Surface();
    void Drop();

    std::uint32_t* bits = nullptr;
    std::ptrdiff_t strideWords = 0;
    Rect place;
    std::vector<std::uint32_t> own;

    CairoSurface surface;
    CairoContext context;
    CairoPattern pattern;
    Rect currentClip;
    std::uint32_t currentSolid = 0;
    bool solidIsSet = false;
};

}  // namespace zorvic::vek

// Textures: slices, and taking over a bitmap's pixels.
#include "surface/texture.h"

#include <new>
#include <utility>

namespace zorvic {

namespace {

// Slices are the host's numbers: the difference may need 33 bits and wraps like theirs.
LONG Extent(LONG from, LONG to) { return static_cast<LONG>(static_cast<DWORD>(to) - static_cast<DWORD>(from)); }

}  // namespace

bool Texture::SetSlices(const RECT* rects, std::size_t count) {
    if (count > slices.max_size()) return false;
    try {
        slices.assign(rects, rects + count);
    } catch (const std::bad_alloc&) {
        return false;
    }
    // -1 for none: an index into the former slices must not come back with the next ones.
    curSlice = static_cast<int>(count) - 1;
    return true;
}

int Texture::SelectSlice(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= slices.size()) return -1;
    return std::exchange(curSlice, index);
}

const RECT* Texture::CurrentSlice() const {
    return slices.empty() ? nullptr : &slices[static_cast<std::size_t>(curSlice)];
}

RECT Texture::SliceOrAll() const {
    if (const RECT* slice = CurrentSlice()) return *slice;
    const SIZE surface = Size();
    return {0, 0, surface.cx, surface.cy};
}

SIZE Texture::ImageSize() const {
    const RECT image = SliceOrAll();
    return {Extent(image.left, image.right), Extent(image.top, image.bottom)};
}

std::unique_ptr<Texture> IntoTexture(std::unique_ptr<Bitmap> bitmap) {
    std::unique_ptr<Texture> texture(new (std::nothrow) Texture);
    if (!texture) return nullptr;
    texture->Attach(bitmap.get(), false);  // a bitmap without pixels makes a texture without pixels
    bitmap->Forget();                      // the pixels live on: the resource manager hears nothing
    return texture;
}

}  // namespace zorvic

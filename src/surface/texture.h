// The object behind HGTEXTURE: a bitmap with a layout mode and slices.
#pragma once

#include <memory>
#include <vector>

#include "surface/bitmap.h"

namespace zorvic {

class Texture final : public Bitmap {
public:
    // Detaches here, so that the resource manager still meets a whole texture.
    ~Texture() override { Detach(); }

    // Replaces the slices and makes the last one current; false when memory is short.
    bool SetSlices(const RECT* rects, std::size_t count);
    // Returns the previous index; -1 without a change for an index outside the slices.
    int SelectSlice(int index);
    // The current slice's rectangle; null when there are no slices. Of several, one is always current.
    const RECT* CurrentSlice() const;
    // The current slice, or the whole surface when there is none.
    RECT SliceOrAll() const;
    SIZE ImageSize() const;  // the size of that

    std::size_t SliceCount() const { return slices.size(); }

    TextureMode mode{};

private:
    std::vector<RECT> slices;
    int curSlice = -1;
};

// A texture with the bitmap's pixels and operation word; what is left of the bitmap dies here.
std::unique_ptr<Texture> IntoTexture(std::unique_ptr<Bitmap> bitmap);

inline Texture* FromHandle(HGTEXTURE handle) { return reinterpret_cast<Texture*>(handle); }
inline HGTEXTURE ToHandle(const Texture* texture) { return reinterpret_cast<HGTEXTURE>(const_cast<Texture*>(texture)); }

}  // namespace zorvic

// The object behind HGTEXTURE: a bitmap with a layout mode and slices.
#pragma once

#include <vector>

#include "surface/bitmap.h"

namespace zorvic {

class Texture final : public Bitmap {
public:
    ~Texture() override = default;

    // The current slice's rectangle; null when there is none (no slices, or no valid index).
    const RECT* CurrentSlice() const;

    TextureMode mode{};
    std::vector<RECT> slices;
    int curSlice = -1;
};

inline Texture* FromHandle(HGTEXTURE handle) { return reinterpret_cast<Texture*>(handle); }
inline HGTEXTURE ToHandle(const Texture* texture) { return reinterpret_cast<HGTEXTURE>(const_cast<Texture*>(texture)); }

}  // namespace zorvic

// Pixel formulas the slow way: one pixel, one byte at a time, as they are documented. For the DLL and for the engine.
#pragma once

#include "zorvic/types.h"

namespace host {

inline int Channel(DWORD pixel, int i) { return static_cast<int>(pixel >> 8 * i & 0xFF); }
inline int AlphaOf(DWORD pixel) { return Channel(pixel, 3); }

// The pixel whose channel i (blue, green, red, alpha) is the low byte of formula(i).
template <class Formula>
DWORD FromChannels(Formula formula) {
    DWORD pixel = 0;
    for (int i = 0; i < 4; ++i) pixel |= static_cast<DWORD>(formula(i) & 0xFF) << 8 * i;
    return pixel;
}

inline DWORD SlowOver(DWORD s, DWORD d) {
    return FromChannels([=](int i) { return Channel(s, i) + (Channel(d, i) * (256 - AlphaOf(s)) / 256); });
}

// By 255ths, rounded to nearest, at most 255.
inline DWORD SlowBlend(DWORD s, DWORD d) {
    return FromChannels([=](int i) {
        const int sum = Channel(s, i) + (2 * Channel(d, i) * (255 - AlphaOf(s)) + 255) / 510;
        return sum < 255 ? sum : 255;
    });
}

// Of a sample that counts as opaque.
inline DWORD SlowOpaqueAlpha(DWORD s, DWORD d, int alpha) {
    const DWORD opaque = s | 0xFF000000;
    return SlowOver(FromChannels([=](int i) { return Channel(opaque, i) * (alpha + 1) / 256; }), d);
}

inline DWORD SlowCrossFade(DWORD s, DWORD d, int amount) {
    if (amount == 0) return d;
    return FromChannels([=](int i) { return (Channel(s, i) * (amount + 1) + Channel(d, i) * (255 - amount)) / 256; });
}

inline DWORD SlowMixColor(DWORD color, DWORD d, int amount) {
    if (amount == 0) return d;
    return FromChannels(
        [=](int i) { return Channel(d, i) * (255 - amount) / 256 + Channel(color, i) * (amount + 1) / 256; });
}

inline int SlowLuma(DWORD s) { return (Channel(s, 2) + 2 * Channel(s, 1) + Channel(s, 0)) / 4; }

// Drawn in a color: by the luma, or by the alpha where the color has one.
inline DWORD SlowInColor(DWORD s, DWORD d, DWORD color) {
    if (AlphaOf(color) < 255)
        return SlowOver(FromChannels([=](int i) { return (Channel(s, i) + 1) * Channel(color, i) / 256; }), d);
    const int light = (SlowLuma(s) + 1) * 255 / 256;
    return FromChannels([=](int i) {
        if (i == 3) return (256 - light) * AlphaOf(d) / 256 + light;
        return (255 - Channel(s, i)) * Channel(d, i) / 256 + Channel(color, i) * Channel(s, i) / 256;
    });
}

}  // namespace host

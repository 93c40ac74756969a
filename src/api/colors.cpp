// Exports that convert and colorize single colours. Triples are words without alpha.
#include "effects/pixels/color_model.h"
#include "effects/pixels/colorize.h"
#include "platform/own_floats.h"
#include "zorvic/zorvic.h"

namespace {

DWORD Word(RGBTriple color) { return static_cast<DWORD>(color.red << 16 | color.green << 8 | color.blue); }
DWORD Word(HSLTriple color) { return static_cast<DWORD>(color.hue << 16 | color.saturation << 8 | color.lightness); }

// The low byte comes first in both.
template <class Triple>
Triple ToTriple(DWORD word) {
    return {static_cast<BYTE>(word), static_cast<BYTE>(word >> 8), static_cast<BYTE>(word >> 16)};
}

}  // namespace

DWORD ZORVIC_CALL ARGBtoAHSL(DWORD argb) { return zorvic::ToAhsl(argb); }

DWORD ZORVIC_CALL AHSLtoARGB(DWORD ahsl) {
    const zorvic::OwnFloats floats;
    return zorvic::ToArgb(ahsl);
}

HSLTriple ZORVIC_CALL RGBtoHSL(RGBTriple rgb) { return ToTriple<HSLTriple>(zorvic::ToAhsl(Word(rgb))); }

RGBTriple ZORVIC_CALL HSLtoRGB(HSLTriple hsl) {
    const zorvic::OwnFloats floats;
    return ToTriple<RGBTriple>(zorvic::ToArgb(Word(hsl)));
}

DWORD ZORVIC_CALL ARGBColorize(DWORD argb, float hue, float saturation, float lightness) {
    const zorvic::OwnFloats floats;
    return zorvic::ColorizeArgb(argb, {hue, saturation, lightness});
}

RGBTriple ZORVIC_CALL RGBColorize(RGBTriple rgb, float hue, float saturation, float lightness) {
    const zorvic::OwnFloats floats;
    return ToTriple<RGBTriple>(zorvic::ColorizeArgb(Word(rgb), {hue, saturation, lightness}));
}

DWORD ZORVIC_CALL AHSLColorize(DWORD ahsl, float hue, float saturation, float lightness) {
    const zorvic::OwnFloats floats;
    return zorvic::ColorizeAhsl(ahsl, {hue, saturation, lightness});
}

HSLTriple ZORVIC_CALL HSLColorize(HSLTriple hsl, float hue, float saturation, float lightness) {
    const zorvic::OwnFloats floats;
    return ToTriple<HSLTriple>(zorvic::ColorizeAhsl(Word(hsl), {hue, saturation, lightness}));
}

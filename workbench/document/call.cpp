#include "document/call.h"

#include <cstdarg>
#include <cstdio>

#include "document/choices.h"

namespace {

class Lines {
public:
    [[gnu::format(__MINGW_PRINTF_FORMAT, 2, 3)]] void Add(const char* format, ...) {
        char line[256];
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(line, sizeof line, format, arguments);
        va_end(arguments);
        text += line;
        text += "\r\n";
    }
    std::string text;
};

void AddEffect(Lines& lines, const Settings& s) {
    switch (s.effect) {
        case Effect::none:
            break;
        case Effect::gray:
            lines.Add("picture.Gray();");
            break;
        case Effect::invert:
            lines.Add("picture.Invert();");
            break;
        case Effect::blur:
            lines.Add("picture.BlurFrom(picture);");
            break;
        case Effect::boxBlur:
            lines.Add("{");
            lines.Add("    zorvic::PixelLock pixels = picture.Lock();");
            lines.Add("    BlurBitmapData(pixels.Width(), pixels.Height(), pixels.Info().bmWidthBytes,");
            lines.Add("                   pixels.Info().bmBits, 32, %d);", s.box);
            lines.Add("}");
            break;
        case Effect::colorize:
            lines.Add("picture.Colorize(%.2ff, %.2ff, %.2ff);", s.hue / 100.0, s.saturation / 100.0,
                      s.lightness / 100.0);
            break;
        case Effect::light:
            lines.Add("picture.Light();");
            break;
        case Effect::dark:
            lines.Add("picture.Dark();");
            break;
        case Effect::alphaToGray:
            lines.Add("picture.ShuffleChannels(zorvic::Shuffle::alphaToGray);");
            break;
        case Effect::colorToAlpha:
            lines.Add("picture.ShuffleChannels(zorvic::Shuffle::colorToAlpha);");
            break;
    }
}

void AddLayout(Lines& lines, const Settings& s) {
    const char* layout = ChoiceOf(layouts, s.layout).code;
    const RECT& m = s.margins;
    const char* flag = "";
    if (s.layout == zorvic::Layout::tile && s.layoutFlag) flag = ", ZORVIC_TILE_SCALED";
    if (s.layout == zorvic::Layout::uniform && s.layoutFlag) flag = ", ZORVIC_UNIFORM_CENTERED";
    if (UsesMargins(s.layout))
        lines.Add("picture.SetLayout(zorvic::Layout::%s, {%ld, %ld, %ld, %ld}%s);", layout, m.left, m.top, m.right,
                  m.bottom, flag);
    else if (*flag)
        lines.Add("picture.SetLayout(zorvic::Layout::%s, {}%s);", layout, flag);
    else
        lines.Add("picture.SetLayout(zorvic::Layout::%s);", layout);
}

}  // namespace

std::string CallFor(const Settings& s) {
    Lines lines;
    if (s.transform != 0)
        lines.Add("picture = picture.Transformed(zorvic::Transform::%s);", ChoiceOf(transforms, s.transform).code);
    AddEffect(lines, s);
    if (s.operation == zorvic::Operation::colorKey)
        lines.Add("picture.SetOperation(zorvic::Operation::colorKey, 0x%06lX);", s.colorKey);
    else
        lines.Add("picture.SetOperation(zorvic::Operation::%s);", ChoiceOf(operations, s.operation).code);
    const bool stretches = s.layout == zorvic::Layout::stretch;
    if (!stretches) AddLayout(lines, s);
    if (s.filter == zorvic::Filter::bicubic || s.filter == zorvic::Filter::area)
        lines.Add("zorvic::SetStretchKernel(zorvic::StretchKernel::%s);", ChoiceOf(kernels, s.kernel).code);
    const RECT& d = s.destination;
    const char* filter = ChoiceOf(filters, s.filter).code;
    char scale[16] = "";
    if (!stretches && s.scalePercent != 100)
        std::snprintf(scale, sizeof scale, ", %.2ff", static_cast<double>(Scale(s)));
    lines.Add("canvas.%s({%ld, %ld, %ld, %ld}, picture, zorvic::Filter::%s, %d%s);",
              stretches ? "DrawBitmap" : "DrawTexture", d.left, d.top, d.right, d.bottom, filter, s.opacity, scale);
    return lines.text;
}

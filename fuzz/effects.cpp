// Every effect on pixels at every level that this processor has, on images of any depth and size, with any number: the
// level gives what the generic one gives.
#include <cstdio>

#include "effects/pixels/box_blur.h"
#include "effects/pixels/color_model.h"
#include "effects/pixels/colorize.h"
#include "effects/pixels/tone.h"
#include "pixel/box_filter.h"
#include "pixel/move_pixels.h"
#include "pixel/primitive_set.h"
#include "raster/modulation.h"
#include "support/fenced_image.h"

namespace zorvic {

namespace {

enum class Effect {
    gray,
    invert,
    premultiply,
    shuffle,
    replaceColor,
    whiten,
    colorize,
    boxBlur,
    blurInPlace,
    boxFilter,
    move,
    modulate
};
constexpr int effectCount = 12;

// What an effect asks for beside images.
struct Numbers {
    int mode, box;
    std::uint32_t from, to;
    HslAmounts amounts;
};

void RunBoxFilter(const BitmapLockInfo& dst, const BitmapLockInfo& src, int box) {
    const int channels = src.bmBitsPixel / 8;
    const SIZE size{src.bmWidth, src.bmHeight};
    std::size_t bytes = 0;
    const Status asked = BoxFilterBufferSize(size, box, channels, &bytes);
    if ((asked == Status::success) != (box > 0)) Fail("a buffer for a box of %d: %d", box, static_cast<int>(asked));
    if (asked != Status::success || bytes > fencedBytes) return;
    void* const buffer = TakeFenced(Fence::buffer, bytes).data();
    const Status done =
        BoxFilter({src.bmBits, src.bmWidthBytes}, {dst.bmBits, dst.bmWidthBytes}, size, box, channels, buffer);
    if ((done == Status::success) != (channels >= 3)) Fail("a box of %d: %d", box, static_cast<int>(done));
}

void Run(Effect effect, const Numbers& numbers, const BitmapLockInfo& dst, const BitmapLockInfo& src) {
    switch (effect) {
        case Effect::gray:
            return GrayImage(dst);
        case Effect::invert:
            return InvertImage(dst);
        case Effect::premultiply:
            return PremultiplyImage(dst);
        case Effect::shuffle:
            return ShuffleImage(dst, static_cast<Shuffle>(numbers.mode));
        case Effect::replaceColor:
            return ReplaceColor(dst, numbers.from, numbers.to);
        case Effect::whiten:
            return WhitenImage(dst);
        case Effect::colorize:
            return ColorizeImage(dst, numbers.amounts);
        case Effect::boxBlur:
            BoxBlur(dst, src);
            return;
        case Effect::blurInPlace:
            BoxBlur(dst, dst);
            return;
        case Effect::boxFilter:
            return RunBoxFilter(dst, src, numbers.box);
        case Effect::move:
            return MovePixels(dst, src, static_cast<Transform>(numbers.mode));
        case Effect::modulate:
            return ModulateImage(dst, src, numbers.to);
    }
}

int Box(Input& input) {
    constexpr int boxes[] = {1, 2,  3,        4, 9, 64, 255, 2895, 2896, 2897, 32767, 1 << 28, INT32_MAX, INT32_MAX - 1,
                             0, -1, INT32_MIN};
    return input.Flag() ? input.Pick(boxes) : input.Byte();
}

constexpr std::uint32_t Pure(const BitmapLockInfo& image) { return *static_cast<const std::uint8_t*>(image.bmBits); }

// One colour there and back: alpha stays, and so does the colour when the amounts are nothing.
void CheckColors(std::uint32_t color, const HslAmounts& amounts) {
    const std::uint32_t ahsl = ToAhsl(color), argb = ToArgb(ahsl);
    if ((ahsl ^ color) >> 24 != 0 || (argb ^ color) >> 24 != 0) Fail("%08x loses its alpha", color);
    if ((ColorizeArgb(color, amounts) ^ color) >> 24 != 0) Fail("colorize of %08x changes alpha", color);
    if (amounts.IsNothing() && (ColorizeArgb(color, amounts) != color || ColorizeAhsl(color, amounts) != color))
        Fail("colorize of %08x by nothing", color);
}

}  // namespace

void RunInput(Input& input) {
    const auto effect = static_cast<Effect>(input.Below(effectCount));
    const Level level = static_cast<Level>(input.Byte() & 3);
    constexpr int depths[] = {32, 32, 32, 24, 8, 16};
    const bool needsPixels = effect >= Effect::boxFilter;
    const int depth = input.Pick(depths), bitsPixel = needsPixels && depth == 16 ? 32 : depth;
    Random random = input.Seed();
    const SIZE size = ReadSize(input);
    const FencedImage source(Fence::source, size.cx, size.cy, bitsPixel, Lie::From(input), random);

    Numbers numbers{
        input.Byte() % 8, Box(input), random.Pixel(), random.Pixel(), {input.Factor(), input.Factor(), input.Factor()}};
    if (input.Flag()) numbers.from = Pure(source.Info()) * 0x010101;

    SIZE targetSize = size;
    int targetBits = effect == Effect::modulate ? 32 : bitsPixel;
    if (effect == Effect::move && MovesOf(static_cast<Transform>(numbers.mode)).transposes)
        targetSize = {size.cy, size.cx};
    if (effect == Effect::boxBlur && input.Flag()) targetSize = ReadSize(input);
    if (!FitsFence(targetSize.cx, targetSize.cy)) return;
    if (effect == Effect::boxBlur && input.Flag()) targetBits = input.Pick(depths);
    const FencedImage target(Fence::target, targetSize.cx, targetSize.cy, targetBits, Lie::From(input), random);
    const FencedImage wanted(Fence::wanted, target);

    LimitLevel(Level::generic);
    Run(effect, numbers, wanted.Info(), source.Info());
    CheckColors(numbers.from, numbers.amounts);
    LimitLevel(level);
    Run(effect, numbers, target.Info(), source.Info());

    char where[40];
    std::snprintf(where, sizeof where, "effect %d, level %d", static_cast<int>(effect), static_cast<int>(level));
    CheckSame(target, wanted, where);
    target.CheckGaps(where);
}

}  // namespace zorvic

// The rows. Targets are for canvases of 512 x 512 on processors with AVX2.
#include "rows.h"

namespace bench {

namespace {

constexpr Target OfPixman(double most) { return {Target::Of::pixman, most}; }
constexpr Target OfLimit(double most) { return {Target::Of::limit, most}; }
constexpr Target Nanoseconds(double most) { return {Target::Of::nanoseconds, most}; }
constexpr Target OfRow(const char* row, double most) { return {Target::Of::row, most, row}; }

constexpr DWORD opaque = 0xFF3366CC, translucent = 0x80204060;
constexpr DWORD over = ZORVIC_OP_SOURCE_OVER, multiply = ZORVIC_OP_MULTIPLY, behind = ZORVIC_OP_DESTINATION_OVER;
constexpr DWORD bilinear = ZORVIC_FILTER_BILINEAR, bicubic = ZORVIC_FILTER_BICUBIC, area = ZORVIC_FILTER_AREA;
constexpr auto random = Content::random, ui = Content::userInterface;
constexpr const char* box15 = "15 x 15 box";

// clang-format off
constexpr Row rows[]{
    {.name = "opaque fill", .work = Work::fill, .color = opaque, .limit = Limit::store,
     .targets = {OfPixman(0.80), OfLimit(1.15)}},
    {.name = "translucent fill", .work = Work::fill, .operation = over, .color = translucent, .limit = Limit::modify,
     .targets = {OfPixman(0.20)}, .narrowOfPixman = 0.55},

    {.name = "copy", .work = Work::draw, .limit = Limit::copy, .targets = {OfPixman(0.90), OfLimit(1.10)}},
    {.name = "source-over", .work = Work::draw, .content = random, .operation = over, .limit = Limit::combine,
     .targets = {OfPixman(0.16)}, .narrowOfPixman = 0.55},
    {.name = "source-over", .work = Work::draw, .content = ui, .operation = over, .limit = Limit::combine,
     .targets = {OfPixman(0.38)}},
    {.name = "source-over", .work = Work::draw, .content = Content::opaque, .operation = over, .limit = Limit::combine,
     .targets = {OfPixman(0.55)}},
    {.name = "constant alpha", .work = Work::draw, .content = random, .operation = over, .alpha = 100,
     .limit = Limit::combine, .targets = {OfPixman(0.18)}},
    {.name = "constant alpha", .work = Work::draw, .content = ui, .operation = over, .alpha = 100,
     .limit = Limit::combine, .targets = {OfPixman(0.28)}},
    {.name = "multiply", .work = Work::draw, .operation = multiply, .limit = Limit::combine,
     .targets = {OfLimit(1.3)}},
    {.name = "cross-fade", .work = Work::crossFade, .argument = 100, .limit = Limit::combine,
     .targets = {OfLimit(1.4)}},
    {.name = "destination-over", .work = Work::draw, .operation = behind, .limit = Limit::combine, .wears = true,
     .targets = {OfPixman(0.09)}},

    {.name = "nearest 2 up", .work = Work::draw, .scale = 2, .limit = Limit::copy, .targets = {OfPixman(0.24)}},
    {.name = "nearest 1.7 up", .work = Work::draw, .scale = 1.7, .limit = Limit::copy, .targets = {OfPixman(0.27)}},
    {.name = "nearest 0.6 down", .work = Work::draw, .scale = 0.6, .limit = Limit::copy, .targets = {OfPixman(0.40)}},
    {.name = "bilinear copy 1.7 up", .work = Work::draw, .scale = 1.7, .filter = bilinear, .limit = Limit::copy,
     .targets = {OfPixman(0.36)}},
    {.name = "bilinear copy 0.7 down", .work = Work::draw, .scale = 0.7, .filter = bilinear, .limit = Limit::copy,
     .targets = {OfPixman(0.45)}},
    {.name = "bilinear over 1.7 up", .work = Work::draw, .content = random, .scale = 1.7, .operation = over,
     .filter = bilinear, .limit = Limit::combine, .targets = {OfPixman(0.32)}},
    {.name = "bilinear over 0.7 down", .work = Work::draw, .content = random, .scale = 0.7, .operation = over,
     .filter = bilinear, .limit = Limit::combine, .targets = {OfPixman(0.38)}},
    {.name = "bilinear over 1.7 up", .work = Work::draw, .content = ui, .scale = 1.7, .operation = over,
     .filter = bilinear, .limit = Limit::combine, .targets = {OfPixman(0.41)}},
    {.name = "bicubic 2 up", .work = Work::draw, .scale = 2, .filter = bicubic, .limit = Limit::copy,
     .targets = {Nanoseconds(0.65)}},
    {.name = "bicubic 0.6 down", .work = Work::draw, .scale = 0.6, .filter = bicubic, .limit = Limit::copy,
     .targets = {Nanoseconds(1.33)}},
    {.name = "area 0.25 down", .work = Work::draw, .scale = 0.25, .filter = area, .limit = Limit::copy,
     .per = Per::sourcePixel, .targets = {Nanoseconds(0.060)}},
    {.name = "area 0.37 down", .work = Work::draw, .scale = 0.37, .filter = area, .limit = Limit::copy,
     .per = Per::sourcePixel, .targets = {Nanoseconds(0.30)}},

    {.name = "gray", .work = Work::gray, .limit = Limit::modify, .targets = {OfLimit(2.4)}},
    {.name = "premultiply", .work = Work::premultiply, .limit = Limit::modify, .targets = {OfLimit(2.6)}},
    {.name = "invert", .work = Work::invert, .limit = Limit::modify, .targets = {OfLimit(2.6)}},
    {.name = "alpha to gray", .work = Work::shuffle, .argument = ZORVIC_SHUFFLE_ALPHA_TO_GRAY, .limit = Limit::modify,
     .targets = {OfLimit(2.6)}},
    {.name = "color to alpha", .work = Work::shuffle, .argument = ZORVIC_SHUFFLE_COLOR_TO_ALPHA,
     .limit = Limit::modify, .targets = {OfLimit(2.6)}},
    {.name = "translate", .work = Work::translate, .content = ui, .limit = Limit::modify, .targets = {OfLimit(2.6)}},
    {.name = "colorize", .work = Work::colorize, .limit = Limit::modify, .wears = true, .targets = {Nanoseconds(6)}},

    {.name = "3 x 3 blur", .work = Work::box3, .limit = Limit::copy, .targets = {Nanoseconds(0.24)}},
    {.name = box15, .work = Work::boxTwice, .argument = 15, .limit = Limit::copy, .per = Per::pixelAndPass,
     .targets = {Nanoseconds(0.56)}},
    {.name = "3 x 3 box", .work = Work::boxTwice, .argument = 3, .limit = Limit::copy, .per = Per::pixelAndPass,
     .targets = {OfRow(box15, 1.2)}},
    {.name = "65 x 65 box", .work = Work::boxTwice, .argument = 65, .limit = Limit::copy, .per = Per::pixelAndPass,
     .targets = {OfRow(box15, 1.2)}},

    {.name = "rotate 90", .work = Work::move, .argument = ZORVIC_TRANSFORM_ROTATE_90, .limit = Limit::copy,
     .targets = {OfPixman(0.85)}},
    {.name = "transpose", .work = Work::move, .argument = ZORVIC_TRANSFORM_TRANSPOSE, .limit = Limit::copy,
     .targets = {OfPixman(0.85)}},
    {.name = "rotate 90, new bitmap", .work = Work::newTransform, .argument = ZORVIC_TRANSFORM_ROTATE_90,
     .limit = Limit::copy},
    {.name = "flip", .work = Work::mirror, .argument = 0, .limit = Limit::copy, .targets = {OfLimit(1.15)}},
    {.name = "mirror", .work = Work::mirror, .argument = 1, .limit = Limit::copy, .targets = {OfLimit(1.15)}},
    {.name = "half turn", .work = Work::mirror, .argument = 2, .limit = Limit::copy, .targets = {OfLimit(1.15)}},

    {.name = "opaque fill 8 x 8", .work = Work::fill, .color = opaque, .per = Per::call, .drawnSize = 8,
     .targets = {OfPixman(2)}},
    {.name = "translucent fill 8 x 8", .work = Work::fill, .operation = over, .color = translucent, .per = Per::call,
     .drawnSize = 8, .targets = {OfPixman(1)}},
    {.name = "copy 16 x 16", .work = Work::draw, .per = Per::call, .drawnSize = 16, .targets = {OfPixman(1)}},
    {.name = "source-over 16 x 16", .work = Work::draw, .content = ui, .operation = over, .per = Per::call,
     .drawnSize = 16, .targets = {OfPixman(1)}},
    {.name = "bilinear over 16 to 20", .work = Work::draw, .content = ui, .scale = 1.25, .operation = over,
     .filter = bilinear, .per = Per::call, .drawnSize = 20, .targets = {OfPixman(0.6)}},
    {.name = "nine-grid 24 to 40", .work = Work::nineGrid, .content = ui, .scale = 40.0 / 24, .operation = over,
     .filter = bilinear, .argument = 8, .per = Per::call, .drawnSize = 40, .targets = {Nanoseconds(2000)}},
};
// clang-format on

}  // namespace

std::span<const Row> AllRows() { return rows; }

}  // namespace bench

// The pixel engine without the DLL around it: no clip, no locks.
#include <algorithm>
#include <optional>

#include "contenders.h"
#include "effects/pixels/box_blur.h"
#include "effects/pixels/colorize.h"
#include "effects/pixels/tone.h"
#include "pixel/described_images.h"
#include "pixel/move_pixels.h"
#include "pixel/primitive_set.h"
#include "raster/kernel_table.h"
#include "raster/selectors.h"

namespace bench {

namespace {

BITMAP Described(const BitmapLockInfo& image) {
    return {0, image.bmWidth, image.bmHeight, image.bmWidthBytes, 1, 32, image.bmBits};
}

// What the processor would have if it ended with the form. The narrow ones are used without the pixel primitives, whose
// own forms they are not.
struct Form {
    std::string_view name;
    zorvic::CpuFeatures features;
    std::optional<zorvic::Level> primitives;
};
constexpr zorvic::CpuFeatures all{true, true, true, true};
constexpr Form forms[]{
    {"generic", {true, false, false, false}, {}}, {"mmx", {true, true, false, false}, {}},
    {"sse", {true, true, true, false}, {}},       {"sse2", all, zorvic::Level::sse2},
    {"avx2", all, zorvic::Level::avx2},           {"avx512", all, zorvic::Level::avx512},
};

}  // namespace

bool UseForm(std::string_view name) {
    const auto* form = std::ranges::find(forms, name, &Form::name);
    if (form == std::end(forms)) return false;
    const auto level = form->primitives.value_or(zorvic::Level::generic);
    if (zorvic::LimitLevel(level) != level) return false;
    zorvic::FillTables(form->features, form->primitives);
    return true;
}

Job EngineJob(const Row& row, const Surfaces& images) {
    using namespace zorvic;
    const BitmapLockInfo source = images.source, target = images.target;
    const DWORD operation = row.operation;
    switch (row.work) {
        case Work::fill:
            return [=, color = row.color] { SelectFillKernel(target, color, operation); };
        case Work::draw:
            return [=, filter = row.filter, alpha = row.alpha] {
                SelectStretchKernel(target, source, operation, filter, alpha);
            };
        case Work::crossFade:
            return [=, value = static_cast<std::uint32_t>(row.argument)] {
                KernelTable.At(slots::crossFadeSameSize)(target, source, value);
            };
        case Work::gray:
            return [=] { GrayImage(source); };
        case Work::premultiply:
            return [=] { PremultiplyImage(source); };
        case Work::invert:
            return [=] { InvertImage(source); };
        case Work::shuffle:
            return [=, mode = static_cast<Shuffle>(row.argument)] { ShuffleImage(source, mode); };
        case Work::translate:
            return [=] { ReplaceColor(source, 0, 0xFF00FF00); };
        case Work::colorize:
            return [=] { ColorizeImage(source, {0.25F, 0.2F, 0}); };
        case Work::box3:
            return [=] { BoxBlur(target, source); };
        case Work::boxTwice:
            return [=, image = Described(source), box = row.argument] { BlurImage(image, box); };
        case Work::mirror:
            return [=, from = Described(source), to = Described(target), axis = row.argument] {
                MirrorImage(from, to, axis);
            };
        case Work::move:
            return [=, transform = static_cast<Transform>(row.argument)] { MovePixels(target, source, transform); };
        case Work::newTransform:
        case Work::nineGrid:
            break;  // made of bitmaps and textures
    }
    return {};
}

}  // namespace bench

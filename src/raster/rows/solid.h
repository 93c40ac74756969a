// One colour for every pixel.
#pragma once

#include "raster/forms/form.h"

namespace zorvic {
namespace {

// Samples that need no memory.
struct SolidColor {
    std::uint32_t color;
};

class SolidRows {
public:
    static constexpr bool preparesColumns = false;

    explicit SolidRows(std::uint32_t solidColor) : sample{solidColor} {}

    SolidColor Fetch(int, int, int, std::uint32_t*) const { return sample; }

private:
    SolidColor sample;
};

}  // namespace
}  // namespace zorvic

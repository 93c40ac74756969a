// One colour for every pixel.
#pragma once

#include "pixel/spans_inl.h"

namespace zorvic {
namespace {

class SolidRows {
public:
    static constexpr bool preparesColumns = false, needsScratch = false;

    explicit SolidRows(std::uint32_t solidColor) : sample{solidColor} {}

    bool IsOneRun(int) const { return true; }
    SolidColor Fetch(int, int, int, std::uint32_t*) const { return sample; }

private:
    SolidColor sample;
};

}  // namespace
}  // namespace zorvic

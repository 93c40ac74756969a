// The numbered cases of a slot. A case is a function of slot and number alone, on every system: sizes, strides, offsets,
// placement, pixels, palette, colour, argument and filter weights. A change here changes tests/kernels/checksums.txt.
#pragma once

#include <string>

#include "fenced_image.h"
#include "kernels/slot_calls.h"

namespace zorvic {

inline constexpr int longestEvery = 5000;  // the last of so many cases has one of the longest images

// The images that all cases share, and what is in them before a kernel runs.
struct CaseImages {
    FencedImage dst, src;
    ImageBytes dstBytes, srcBytes;
};

// Sets the images to those of a case, the source filled in; and the mode of the filter weights.
Job MakeCase(const SlotCall& slot, int number, CaseImages& images);

// What of a case a person wants to know.
std::string DescriptionOf(const Job& job);

}  // namespace zorvic

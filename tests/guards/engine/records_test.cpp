// Images as callers describe them: whatever a record says, nothing outside the memory that it tells of is touched.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "effects/pixels/tone.h"
#include "pixel/described_images.h"
#include "support/fenced_memory.h"
#include "support/random.h"

namespace zorvic {
namespace {

// What operations differ in: whether they know 24 bits, whether rows may be parts of longer ones, and whether results say
// that nothing could be done.
constexpr int usesBoth = 1, knows24 = 2, usesSteps = 4, tells = 8;

// An area of an image, both of random size; often the last pixels of both are the same, and behind them lies the fence.
class Described {
public:
    Described(Random& random, int traits)
        : imageWidth(1 + random.Below(9)),
          imageHeight(1 + random.Below(5)),
          bytesPerPixel((traits & knows24) && random.Below(2) ? 3 : 4),
          step(imageWidth * bytesPerPixel + random.Below(2) * random.Below(9)),
          memory(static_cast<std::size_t>((imageHeight - 1) * step + imageWidth * bytesPerPixel)) {
        for (std::byte& byte : memory.Bytes()) byte = static_cast<std::byte>(random.Word());
        before.assign(memory.Bytes().begin(), memory.Bytes().end());
        const int left = random.Below(imageWidth), top = random.Below(imageHeight);
        const int width = random.Below(2) ? imageWidth - left : 1 + random.Below(imageWidth - left);
        const int height = random.Below(2) ? imageHeight - top : 1 + random.Below(imageHeight - top);
        const int sign = (traits & usesSteps) && random.Below(4) == 0 ? -1 : 1;
        first = top * step + left * bytesPerPixel;
        end = first + (height - 1) * step + width * bytesPerPixel;
        std::byte* const bits = memory.Bytes().data() + first + (sign < 0 ? (height - 1) * step : 0);
        record = {0, width, height, sign * step, 1, static_cast<WORD>(8 * bytesPerPixel), bits};
    }

    // Makes one member wrong in a way that shows, if steps tell how long rows can be.
    void Spoil(Random& random, int traits) {
        const LONG rowBytes = record.bmWidth * bytesPerPixel;
        const LONG widths[] = {0, -3, INT32_MIN, INT32_MAX, step / bytesPerPixel + 1};
        // Counted in 32 bits, their pixels or bytes are few, or positive. 64-bit programs may have the last one.
        constexpr LONG heights[] = {0, -0x3FFFFFFF, INT32_MIN + 1, 0x40000001};
        const int member = random.Below(4);
        if (member == 0) record.bmBits = nullptr;
        if (member == 1) record.bmWidth = widths[random.Below(traits & usesSteps ? 5 : 3)];
        if (member == 2) record.bmHeight = heights[random.Below(sizeof(void*) == 4 ? 4 : 3)];
        if (member == 3)
            record.bmWidthBytes = (random.Below(2) ? 1 : rowBytes - 1) * (record.bmWidthBytes < 0 ? -1 : 1);
    }

    // Outside the area, or everywhere.
    bool IsSame(bool inside) const {
        const auto bytes = memory.Bytes();
        return std::equal(bytes.begin(), bytes.begin() + (inside ? end : first), before.begin()) &&
               std::equal(bytes.begin() + end, bytes.end(), before.begin() + end);
    }

    BITMAP record;

private:
    int imageWidth, imageHeight, bytesPerPixel, step;
    FencedMemory memory;
    std::ptrdiff_t first, end;
    std::vector<std::byte> before;
};

struct AreaOperation {
    const char* name;
    int traits;
    bool (*run)(const BITMAP& src, const BITMAP& dst, Random& random);
};

RECT AnyArea(Random& random) {
    constexpr LONG extremes[] = {INT32_MIN, -1, INT32_MAX};
    const LONG left = random.Below(3), top = random.Below(3);
    RECT area{left, top, left + random.Below(4), top + random.Below(3)};
    for (LONG* const edge : {&area.left, &area.top, &area.right, &area.bottom})
        if (random.Below(4) == 0) *edge = extremes[random.Below(3)];
    return area;
}

const AreaOperation operations[] = {
    {"copy", usesBoth | knows24 | usesSteps | tells,
     [](const BITMAP& src, const BITMAP& dst, Random& random) {
         const RECT area = AnyArea(random);
         return CopyImage(src, dst, random.Below(2) ? &area : nullptr);
     }},
    {"mirror", usesBoth | usesSteps | tells,
     [](const BITMAP& src, const BITMAP& dst, Random& random) { return MirrorImage(src, dst, random.Below(3)); }},
    {"blend", usesBoth | usesSteps | tells,
     [](const BITMAP& src, const BITMAP& dst, Random&) { return BlendImage(src, dst); }},
    {"set", usesSteps | tells,
     [](const BITMAP&, const BITMAP& dst, Random& random) { return SetImageColor(dst, 0, random.Below(2)); }},
    {"or, and", usesBoth,
     [](const BITMAP& src, const BITMAP& dst, Random& random) {
         return (random.Below(2) ? OrImage : AndImage)(src, dst, 0x12345678);
     }},
    {"premultiply", usesSteps,
     [](const BITMAP&, const BITMAP& dst, Random& random) {
         const WORD bits = random.Below(4) ? dst.bmBitsPixel : WORD{8};
         PremultiplyImage({0, dst.bmWidth, dst.bmHeight, dst.bmWidthBytes, 1, bits, dst.bmBits, 256, 0, nullptr});
         return true;
     }},
    {"blur", knows24 | usesSteps,
     [](const BITMAP&, const BITMAP& dst, Random& random) {
         constexpr int boxes[] = {INT32_MIN, -1, 0, 1, 2, 3, 64, 4097, INT32_MAX};
         return BlurImage(dst, boxes[random.Below(9)]);
     }},
};

TEST(Records, OfAreasKeepEveryOperationInside) {
    Random random(1);
    for (const auto& [name, traits, run] : operations)
        for (int round = 0; round < 4000; ++round) {
            Described src(random, traits), dst(random, traits);
            // Operations on two images of one size would seldom do anything.
            if (random.Below(2)) src.record.bmWidth = std::min(src.record.bmWidth, dst.record.bmWidth);
            if (random.Below(2)) src.record.bmHeight = std::min(src.record.bmHeight, dst.record.bmHeight);
            const bool inPlace = !(traits & usesBoth) || random.Below(4) == 0, spoils = random.Below(2) == 0;
            if (spoils) (inPlace || random.Below(2) ? dst : src).Spoil(random, traits);
            const bool result = run(inPlace ? dst.record : src.record, dst.record, random);
            ASSERT_FALSE(spoils && (traits & tells) && result) << name << ", round " << round;
            ASSERT_TRUE(src.IsSame(false) && dst.IsSame(spoils && (traits & usesSteps))) << name << ", round " << round;
        }
}

TEST(Records, WithoutEndAreRefused) {
    DWORD pixels[4]{};
    const BITMAP stepless{0, 2, 2, 0, 1, 32, pixels}, large{0, 1 << 27, 1, 3 << 27, 1, 24, pixels};
    const RECT above{0, -1, 1, 1};
    EXPECT_FALSE(CopyImage(stepless, stepless, &above));
    EXPECT_TRUE(sizeof(void*) > 4 || !BlurImage(large, 3)) << "more sums than memory holds";
}

}  // namespace
}  // namespace zorvic

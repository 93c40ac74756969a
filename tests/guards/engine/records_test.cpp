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

// An area of an image, both of random size; often the last pixels of both are the same, and behind them lies the fence.
class Described {
public:
    Described(Random& random, int bitsPixel, bool upwards)
        : imageWidth(1 + random.Below(9)),
          imageHeight(1 + random.Below(5)),
          bytesPerPixel(bitsPixel / 8),
          step(imageWidth * bytesPerPixel + random.Below(2) * random.Below(9)),
          memory(static_cast<std::size_t>((imageHeight - 1) * step + imageWidth * bytesPerPixel)) {
        for (std::byte& byte : memory.Bytes()) byte = static_cast<std::byte>(random.Word());
        const int left = random.Below(imageWidth), top = random.Below(imageHeight);
        const int width = random.Below(2) ? imageWidth - left : 1 + random.Below(imageWidth - left);
        const int height = random.Below(2) ? imageHeight - top : 1 + random.Below(imageHeight - top);
        first = top * step + left * bytesPerPixel;
        end = first + (height - 1) * step + width * bytesPerPixel;
        std::byte* const bits = memory.Bytes().data() + first + (upwards ? (height - 1) * step : 0);
        record = {0, width, height, upwards ? -step : step, 1, static_cast<WORD>(bitsPixel), bits};
        before.assign(memory.Bytes().begin(), memory.Bytes().end());
    }

    // Makes one member wrong in a way that shows, if steps tell how long rows can be.
    void Spoil(Random& random, bool usesSteps) {
        const int none[] = {0, -3, INT32_MIN}, tooWide[] = {INT32_MAX, step / bytesPerPixel + 1};
        // More than 32-bit programs have room for.
        constexpr int noHeight[] = {0, -3, INT32_MIN, sizeof(void*) == 4 ? INT32_MAX : 0};
        const int rowBytes = record.bmWidth * bytesPerPixel, narrow[] = {1, rowBytes - 1};
        switch (random.Below(5)) {
            case 0:
                record.bmBits = nullptr;
                break;
            case 1:
                record.bmWidth = none[random.Below(3)];
                break;
            case 2:
                record.bmHeight = noHeight[random.Below(4)];
                break;
            case 3:
                if (usesSteps) record.bmWidth = tooWide[random.Below(2)];
                break;
            default:
                record.bmWidthBytes = narrow[random.Below(2)] * (record.bmWidthBytes < 0 ? -1 : 1);
        }
    }

    bool IsSameOutside() const {
        const auto bytes = memory.Bytes();
        return std::equal(bytes.begin(), bytes.begin() + first, before.begin()) &&
               std::equal(bytes.begin() + end, bytes.end(), before.begin() + end);
    }

    BITMAP record;

private:
    int imageWidth, imageHeight, bytesPerPixel, step;
    FencedMemory memory;
    std::ptrdiff_t first, end;
    std::vector<std::byte> before;
};

struct Operation {
    const char* name;
    bool (*run)(const BITMAP& src, const BITMAP& dst, Random& random);
    bool usesBoth = false;
    bool tells = true;      // whether the result says that nothing could be done
    bool knows24 = false;   // others take any pixel as four bytes
    bool usesSteps = true;  // others take rows as packed, however many bytes that makes
};

RECT AnyArea(const BITMAP& image, Random& random) {
    const auto edge = [&](LONG extent) {
        const LONG edges[] = {INT32_MIN, -1, 0, 0, 1, extent / 2, extent, extent, extent ^ 1, INT32_MAX};
        return edges[random.Below(10)];
    };
    return {edge(image.bmWidth), edge(image.bmHeight), edge(image.bmWidth), edge(image.bmHeight)};
}

// clang-format off
const Operation operations[] = {
    {.name = "copy", .run = [](const BITMAP& src, const BITMAP& dst, Random&) { return CopyImage(src, dst, nullptr); }, .usesBoth = true, .knows24 = true},
    {.name = "copy an area", .run = [](const BITMAP& src, const BITMAP& dst, Random& random) {
         const RECT area = AnyArea(src, random);
         return CopyImage(src, dst, &area);
     }, .usesBoth = true, .knows24 = true},
    {.name = "mirror", .run = [](const BITMAP&, const BITMAP& dst, Random& random) { return MirrorImage(dst, random.Below(3)); }},
    {.name = "mirror into", .run = [](const BITMAP& src, const BITMAP& dst, Random& random) { return MirrorImage(src, dst, random.Below(3)); }, .usesBoth = true},
    {.name = "blend", .run = [](const BITMAP& src, const BITMAP& dst, Random&) { return BlendImage(src, dst); }, .usesBoth = true},
    {.name = "set", .run = [](const BITMAP&, const BITMAP& dst, Random& random) { return SetImageColor(dst, random.Pixel(), random.Below(2)); }},
    {.name = "or", .run = [](const BITMAP& src, const BITMAP& dst, Random&) { return OrImage(src, dst, 0x12345678); }, .usesBoth = true, .tells = false, .usesSteps = false},
    {.name = "and", .run = [](const BITMAP& src, const BITMAP& dst, Random&) { return AndImage(src, dst, 0x12345678); }, .usesBoth = true, .tells = false, .usesSteps = false},
    {.name = "premultiply", .run = [](const BITMAP&, const BITMAP& dst, Random&) {
         PremultiplyImage({0, dst.bmWidth, dst.bmHeight, dst.bmWidthBytes, 1, dst.bmBitsPixel, dst.bmBits, 0, 0, nullptr});
         return true;
     }, .tells = false},
    {.name = "blur", .run = [](const BITMAP&, const BITMAP& dst, Random& random) {
         constexpr int boxes[] = {INT32_MIN, -1, 0, 1, 2, 3, 64, 4097, INT32_MAX};
         return BlurImage(dst, boxes[random.Below(9)]);
     }, .tells = false, .knows24 = true},
};
// clang-format on

TEST(Records, OfAreasKeepEveryOperationInside) {
    Random random(1);
    for (const Operation& operation : operations)
        for (int round = 0; round < 2000; ++round) {
            const auto make = [&] {
                const bool upwards = operation.usesSteps && random.Below(4) == 0;
                return Described(random, operation.knows24 && random.Below(2) ? 24 : 32, upwards);
            };
            Described src = make(), dst = make();
            // Operations on two images of one size would seldom do anything.
            if (random.Below(2)) src.record.bmWidth = std::min(src.record.bmWidth, dst.record.bmWidth);
            if (random.Below(2)) src.record.bmHeight = std::min(src.record.bmHeight, dst.record.bmHeight);
            const bool spoils = random.Below(2) == 0;
            if (spoils) (random.Below(2) && operation.usesBoth ? src : dst).Spoil(random, operation.usesSteps);
            const bool result = operation.run(src.record, dst.record, random);
            ASSERT_FALSE(spoils && operation.tells && result) << operation.name << ", round " << round;
            ASSERT_TRUE(src.IsSameOutside() && dst.IsSameOutside()) << operation.name << ", round " << round;
        }
}

}  // namespace
}  // namespace zorvic

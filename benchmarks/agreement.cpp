// Comparing pictures channel by channel.
#include "agreement.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace bench {

namespace {

std::vector<BYTE> PictureOf(Surfaces& images, const Job& job) {
    images.Restore();
    job();
    const auto* first = static_cast<const BYTE*>(images.canvasPixels.bmBits);
    return {first, first + sizeof(DWORD) * PixelCount(images.canvasPixels)};
}

}  // namespace

double MeanDifference(Surfaces& images, const Job& job, const Job& other) {
    const std::vector<BYTE> picture = PictureOf(images, job), otherPicture = PictureOf(images, other);
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < picture.size(); ++i) sum += std::abs(picture[i] - otherPicture[i]);
    return static_cast<double>(sum) / static_cast<double>(4 * PixelCount(images.target));
}

double AllowedDifference(const Row& row) {
    if (row.filter == ZORVIC_FILTER_NEAREST && row.scale != std::floor(row.scale)) return 255;  // other pixels are near
    if (row.filter == ZORVIC_FILTER_BICUBIC) return 20;                                         // of another kernel
    return row.filter == ZORVIC_FILTER_AREA ? 8 : 2;  // pixman knows sixteen positions between two pixels
}

}  // namespace bench

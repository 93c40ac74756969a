#include "support/image.h"

#include <algorithm>
#include <iomanip>

namespace zorvic {

namespace {

constexpr int guard = 32;  // bytes before the first row

std::size_t SizeOf(const BitmapLockInfo& info, int behind) {
    const int lastRow = info.bmWidth * (info.bmBitsPixel / 8);
    return static_cast<std::size_t>(guard + std::max<int>(info.bmHeight - 1, 0) * info.bmWidthBytes + lastRow + behind);
}

}  // namespace

Image::Image(int width, int height, int bitsPixel, Margins margins)
    : info{0,  width, height, width * (bitsPixel / 8) + margins.betweenRows, 1, static_cast<WORD>(bitsPixel), {},
           {}, {},    {}},
      memory(SizeOf(info, margins.behind)),
      palette(bitsPixel == 8 ? 256 : 0) {
    for (std::size_t i = 0; i < memory.Bytes().size(); ++i) memory.Bytes()[i] = static_cast<std::byte>(0xA5 + 7 * i);
    info.bmBits = memory.Bytes().data() + guard;
    info.colorCount = static_cast<WORD>(palette.size());
    info.palette = palette.empty() ? nullptr : palette.data();
}

Image::Image(Random& random, int width, int height, int bitsPixel, Margins margins)
    : Image(width, height, bitsPixel, margins) {
    for (DWORD& entry : palette) entry = random.Pixel();
    Fill([&](int, int) { return bitsPixel == 8 ? random.Word() : random.Pixel(); });
}

Image::Image(const Image& other) : info(other.info), memory(other.memory.Bytes().size()), palette(other.palette) {
    std::ranges::copy(other.memory.Bytes(), memory.Bytes().begin());
    info.bmBits = memory.Bytes().data() + guard;
    if (!palette.empty()) info.palette = palette.data();
}

void Image::Fill(const std::function<std::uint32_t(int x, int y)>& pixel) {
    for (int y = 0; y < info.bmHeight; ++y)
        for (int x = 0; x < info.bmWidth; ++x) Set(x, y, pixel(x, y));
}

std::vector<std::uint32_t> Image::Pixels() const {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < info.bmHeight; ++y)
        for (int x = 0; x < info.bmWidth; ++x) pixels.push_back(At(x, y));
    return pixels;
}

Image RowOf(const std::vector<std::uint32_t>& pixels) {
    Image image(static_cast<int>(pixels.size()), 1);
    image.Fill([&](int x, int) { return pixels[static_cast<std::size_t>(x)]; });
    return image;
}

testing::AssertionResult SameBytes(const Image& got, const Image& wanted) {
    const auto gotBytes = got.memory.Bytes(), wantedBytes = wanted.memory.Bytes();
    if (gotBytes.size() != wantedBytes.size()) return testing::AssertionFailure() << "sizes differ";
    const auto different = std::ranges::mismatch(gotBytes, wantedBytes);
    if (different.in1 == gotBytes.end()) return testing::AssertionSuccess();

    const BitmapLockInfo& info = got.info;
    const auto offset = different.in1 - gotBytes.begin() - guard;
    if (offset < 0) return testing::AssertionFailure() << "wrote " << -offset << " bytes before the first row";
    const int stride = std::max<int>(info.bmWidthBytes, 1);
    const auto y = static_cast<int>(offset / stride);
    const auto x = static_cast<int>(offset % stride / (info.bmBitsPixel / 8));
    if (x >= info.bmWidth || y >= info.bmHeight)
        return testing::AssertionFailure() << "wrote behind row " << y << " of " << info.bmHeight;
    // One message: manipulators end with it.
    return testing::AssertionFailure() << (testing::Message()
                                           << "at (" << x << ", " << y << ") of " << info.bmWidth << " x "
                                           << info.bmHeight << " got " << std::hex << std::setfill('0') << std::setw(8)
                                           << got.At(x, y) << ", wanted " << std::setw(8) << wanted.At(x, y));
}

}  // namespace zorvic

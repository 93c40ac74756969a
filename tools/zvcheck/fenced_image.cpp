#include "fenced_image.h"

#include <algorithm>
#include <cstring>
#include <sstream>

namespace zorvic {

void FencedImage::Take(const ImageShape& newShape, DWORD* palette) {
    shape = newShape;
    const auto rows = static_cast<std::size_t>(shape.height), distance = static_cast<std::size_t>(shape.distance);
    std::size_t rowBytes = static_cast<std::size_t>(shape.RowBytes());
    if (rows > rowLimit || rowBytes + 2 * margin > pageSize)
        shape.fence = shape.fence == Fence::everyRowStarts ? Fence::imageStarts : Fence::imageEnds;
    const bool eachRow = shape.fence == Fence::everyRowStarts || shape.fence == Fence::everyRowEnds;
    const bool atStart = shape.fence == Fence::everyRowStarts || shape.fence == Fence::imageStarts;

    const FencedBlocks& blocks = eachRow ? rowBlocks : imageBlock;
    const std::size_t stride = eachRow ? blocks.Step() : rowBytes + static_cast<std::size_t>(shape.gap);
    before = atStart ? distance : margin;
    windowCount = eachRow ? rows : 1;
    windowStep = blocks.Step();
    windowSize = before + (eachRow ? 0 : (rows - 1) * stride) + rowBytes + (atStart ? margin : distance);
    firstWindow = blocks.Block(0) + (atStart ? 0 : blocks.BlockSize() - windowSize);

    info = {0,
            shape.width,
            shape.height,
            static_cast<LONG>(stride),
            1,
            static_cast<WORD>(shape.bitsPixel),
            firstWindow + before,
            static_cast<WORD>(palette == nullptr ? 0 : 256),
            0,
            palette};
}

std::size_t FencedImage::RowStart(int y) const {
    const std::size_t step = windowCount > 1 ? windowSize : static_cast<std::size_t>(info.bmWidthBytes);
    return before + static_cast<std::size_t>(y) * step;
}

void FencedImage::Put(const ImageBytes& bytes) {
    for (std::size_t i = 0; i < windowCount; ++i)
        std::memcpy(firstWindow + i * windowStep, bytes.data() + i * windowSize, windowSize);
}

void FencedImage::Get(ImageBytes& bytes) const {
    bytes.resize(ByteCount());
    for (std::size_t i = 0; i < windowCount; ++i)
        std::memcpy(bytes.data() + i * windowSize, firstWindow + i * windowStep, windowSize);
}

bool FencedImage::Holds(const ImageBytes& bytes) const {
    for (std::size_t i = 0; i < windowCount; ++i)
        if (std::memcmp(firstWindow + i * windowStep, bytes.data() + i * windowSize, windowSize) != 0) return false;
    return true;
}

std::string FencedImage::DifferenceOf(const ImageBytes& got) const {
    ImageBytes held;
    Get(held);
    return DifferenceBetween(got, held);
}

std::string FencedImage::DifferenceBetween(const ImageBytes& got, const ImageBytes& wanted) const {
    const auto [gotByte, wantedByte] = std::ranges::mismatch(got, wanted);
    if (gotByte == got.end()) return {};
    const auto at = static_cast<std::size_t>(gotByte - got.begin());
    int y = shape.height - 1;
    while (y > 0 && RowStart(y) > at) --y;
    const int column = static_cast<int>(at) - static_cast<int>(RowStart(y));
    std::ostringstream text;
    if (column < 0)
        text << -column << " bytes before row " << y;
    else if (column >= shape.RowBytes())
        text << column - shape.RowBytes() + 1 << " bytes behind row " << y;
    else
        text << "row " << y << ", pixel " << column * 8 / shape.bitsPixel << ", byte "
             << column % (shape.bitsPixel / 8);
    text << ": got " << std::hex << std::to_integer<int>(*gotByte) << ", wanted " << std::to_integer<int>(*wantedByte);
    return text.str();
}

}  // namespace zorvic

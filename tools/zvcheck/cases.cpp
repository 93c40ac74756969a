#include "cases.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>

#include "raster/lookup_tables.h"
#include "support/random.h"

namespace zorvic {

namespace {

constexpr int casesOfMode = 100;  // since a change of the filter weights takes longer than many cases

// Consecutive cases have all widths from 0 to 70 and one around the blocks in which kernels work.
constexpr int widthCount = 72;
constexpr int wideWidths[] = {255, 256, 257, 511, 512, 513, 1023, 1024, 1025, 1040};

// Every so many cases of a slot that scales, one has the longest rows or columns, or the longest reductions.
constexpr int longest = 32767;
struct Extents {
    int sourceWidth, sourceHeight, width, height;
};
constexpr Extents longestExtents[] = {
    {longest, 1, 1, 1},       {1, 1, longest, 1},       {1, longest, 1, 1},   {1, 1, 1, longest},
    {longest, 1, 70, 1},      {70, 1, longest, 1},      {1, longest, 1, 70},  {1, 70, 1, longest},
    {longest, 1, 1, longest}, {1, longest, longest, 1}, {3, 2, longest, 1},   {longest, 2, 16383, 1},
    {longest, 3, 32766, 2},   {2, longest, 1, 16383},   {3, longest, 2, 100}, {4113, 3, 300, 2},
    {4800, 33, 300, 2},       {2048, 4, 512, 2},        {2111, 16, 1025, 1},  {1100, 4, 1030, 2},
};

// Pixels to cut rows from: half of them stand in runs of one pixel, as in pictures and as vectors with short cuts want it.
constexpr std::size_t poolSize = 65536;
std::vector<DWORD> MakePool() {
    Random random(1);
    std::vector<DWORD> pool;
    while (pool.size() < poolSize) {
        const std::uint32_t pixel = random.Pixel();
        pool.insert(pool.end(), random.Below(8) == 0 ? static_cast<std::size_t>(random.Below(40)) : 1, pixel);
    }
    return pool;
}
std::vector<DWORD> pool = MakePool();

// 0 in half of the cases.
int SometimesBelow(int n, Random& random) { return random.Below(2) == 0 ? 0 : random.Below(n); }

DWORD* PoolPixels(Random& random) { return pool.data() + random.Below(poolSize / 2); }

enum class Content { rows, sameRows, almostFlat };

void FillIn(FencedImage& image, ImageBytes& bytes, Content content, Random& random) {
    bytes.assign(image.ByteCount(), std::byte{0xA5});
    const auto rowBytes = static_cast<std::size_t>(image.Shape().RowBytes());
    const DWORD* row = PoolPixels(random);
    for (int y = 0; y < image.Shape().height; ++y) {
        std::byte* const to = bytes.data() + image.RowStart(y);
        if (content == Content::almostFlat) {
            // Means only just miss a whole number where a byte or two are less than the others.
            std::memset(to, static_cast<int>(*row & 0xFF), rowBytes);
            if (rowBytes > 0) to[random.Below(image.Shape().RowBytes())] &= std::byte{0xFE};
        } else {
            std::memcpy(to, row, rowBytes);
        }
        if (content == Content::rows) row = PoolPixels(random);
    }
    image.Put(bytes);
}

// A source's extent for an extent that is drawn.
int ScaledExtent(int extent, int kind, int most, Random& random) {
    const auto scaled = [&] {
        switch (kind) {
            case 0:
                return extent + random.Below(20 * extent);
            case 1:
                return extent * (1 + random.Below(17));  // whole steps
            case 2:
                return 16 * extent - 1 + random.Below(3);  // area reduction changes its arithmetic there
            case 3:
                return extent;
            case 4:
                return extent + random.Below(2 * extent);
            case 5:
                return 1 + random.Below(3);
            default:
                return 1 + random.Below(extent + extent / 2);
        }
    };
    return std::min(scaled(), most);
}

int DrawnWidth(const SlotCall& slot, int number) {
    const int width = number % widthCount;
    // Kernels that divide by the width are not called without one.
    const bool divides = slot.IsScaled() && !slot.takesPlacement;
    if (width == widthCount - 1 || (width == 0 && divides))
        return wideWidths[static_cast<std::size_t>(number / widthCount) % std::size(wideWidths)];
    return width;
}

}  // namespace

Job MakeCase(const SlotCall& slot, int number, CaseImages& images) {
    Random random(slot.slot * 10'000'000 + number);
    SetStretchKernelMode(static_cast<std::uint32_t>(number / casesOfMode % 3));

    // Fences in turn: all of them at all distances for every width.
    const int turn = number / widthCount;
    const auto shape = [&](int width, int height, int bitsPixel, int fence, int distance) {
        return ImageShape{
            width, height, bitsPixel, static_cast<Fence>(fence % 4), distance % 16, SometimesBelow(9, random)};
    };
    ImageShape dst = shape(DrawnWidth(slot, number), 1 + random.Below(3), 32, turn, turn / 16);
    ImageShape src = shape(dst.width, dst.height, slot.bitsPixel, turn / 4, random.Below(16));
    Placement placement{0, 0, dst.width, dst.height};
    if (slot.IsScaled() && number % longestEvery == longestEvery - 1) {
        const auto& e = longestExtents[static_cast<std::size_t>(number / longestEvery) % std::size(longestExtents)];
        dst.width = e.width;
        dst.height = e.height;
        src.width = e.sourceWidth;
        src.height = e.sourceHeight;
        placement = {0, 0, e.width, e.height};
    } else {
        if (slot.takesPlacement) {
            placement.left = SometimesBelow(50, random);
            placement.top = SometimesBelow(10, random);
            placement.width += placement.left + (dst.width == 0 ? 1 : 0) + random.Below(50);
            placement.height += placement.top + random.Below(5);
        }
        if (slot.IsScaled()) {
            // Long reductions mostly for the slots that have them: their sources take longer to make than others to draw.
            const bool reduces = slot.rows == Rows::area || random.Below(64) == 0;
            const int kind = reduces ? random.Below(7) : 3 + random.Below(5);
            const int otherKind = random.Below(2) == 0 ? kind : 3 + random.Below(5);
            src.width = ScaledExtent(static_cast<int>(placement.width), kind, 1100, random);
            src.height = ScaledExtent(static_cast<int>(placement.height), otherKind, 60, random);
        }
    }

    images.dst.Take(dst, nullptr);
    images.src.Take(src, slot.bitsPixel == 8 ? PoolPixels(random) : nullptr);
    FillIn(images.dst, images.dstBytes, Content::rows, random);
    const int content = random.Below(8);
    FillIn(images.src, images.srcBytes,
           content == 0   ? Content::sameRows
           : content == 1 ? Content::almostFlat
                          : Content::rows,
           random);
    const std::uint32_t pixel = static_cast<std::uint32_t>(*PoolPixels(random));
    // Both ends of opacities and amounts, and keys that sources have.
    const std::uint32_t arguments[] = {0, 0xFF, 0x5A5A5A00, 0xFFFFFFFF, 0xFF000000, 0xFE, random.Word(), pixel};
    return {images.dst.Info(), placement, images.src.Info(), pixel, arguments[random.Below(8)]};
}

std::string DescriptionOf(const Job& job) {
    std::ostringstream text;
    const auto image = [&](const BitmapLockInfo& info) {
        text << info.bmWidth << " x " << info.bmHeight << " (rows " << info.bmWidthBytes << " bytes apart)";
    };
    image(job.src);
    text << " to ";
    image(job.dst);
    text << ", placed at " << job.placement.left << ", " << job.placement.top << " of " << job.placement.width << " x "
         << job.placement.height << std::hex << ", color " << job.color << ", argument " << job.argument
         << ", filter mode " << StretchKernelMode;
    return text.str();
}

}  // namespace zorvic

// The fixed list of jobs: seeded images of several sizes, at odd row steps and addresses, drawn in every mode that the
// slot knows. A change here changes tests/kernels/checksums.txt.
#include "checksums.h"

#include <vector>

#include "raster/lookup_tables.h"
#include "support/random.h"

namespace zorvic {
namespace {

struct Shape {
    int width, height;              // of the destination
    int sourceWidth, sourceHeight;  // of slots that scale
};
constexpr Shape shapes[] = {{1, 1, 1, 1},     {3, 2, 7, 5},      {8, 8, 8, 8},     {17, 5, 5, 17},  {64, 3, 31, 2},
                            {67, 9, 200, 40}, {129, 16, 64, 48}, {255, 4, 256, 8}, {257, 3, 40, 3}, {300, 7, 900, 21}};

class SeededImage {
public:
    SeededImage(Random& random, int width, int height, int bitsPixel) {
        const int step = width * bitsPixel / 8 + random.Below(9);
        const int offset = random.Below(4);
        bytes.resize(static_cast<std::size_t>(offset + step * height + 16));
        for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4) PutWord(bytes.data() + i, random.Pixel());
        if (bitsPixel == 8)
            for (int i = 0; i < 256; ++i) palette.push_back(random.Pixel());
        info = {0,
                width,
                height,
                step,
                1,
                static_cast<WORD>(bitsPixel),
                bytes.data() + offset,
                static_cast<WORD>(palette.size()),
                0,
                palette.data()};
    }

    const BitmapLockInfo& Info() const { return info; }
    const std::vector<std::uint8_t>& Bytes() const { return bytes; }

private:
    static void PutWord(std::uint8_t* to, std::uint32_t word) {
        for (int i = 0; i < 4; ++i) to[i] = static_cast<std::uint8_t>(word >> 8 * i);
    }

    std::vector<std::uint8_t> bytes;
    std::vector<DWORD> palette;
    BitmapLockInfo info;
};

class Fnv1a {
public:
    void Add(const std::vector<std::uint8_t>& bytes) {
        for (const std::uint8_t byte : bytes) value = (value ^ byte) * 0x100000001B3;
    }
    std::uint64_t Value() const { return value; }

private:
    std::uint64_t value = 0xCBF29CE484222325;
};

// Both ends of opacities and amounts, and words between them.
constexpr std::uint32_t arguments[] = {0, 1, 0x80, 0xFE, 0xFF, 0x5A3C77, 0xC0A17F33};

void AddJobs(Fnv1a& sum, Random& random, const SlotCall& slot, const KernelSet& kernels) {
    for (const Shape& shape : shapes)
        for (const std::uint32_t argument : arguments) {
            const SeededImage dst(random, shape.width, shape.height, 32);
            const bool scaled = slot.IsScaled();
            const SeededImage src(random, scaled ? shape.sourceWidth : shape.width,
                                  scaled ? shape.sourceHeight : shape.height, slot.bitsPixel);
            Placement placement = WholeOf(dst.Info());
            if (slot.takesPlacement) {
                placement.left = random.Below(40);
                placement.top = random.Below(40);
                placement.width += placement.left + random.Below(40);
                placement.height += placement.top + random.Below(40);
            }
            slot.run(kernels, {dst.Info(), placement, src.Info(), random.Pixel(), argument});
            sum.Add(dst.Bytes());
        }
}

}  // namespace

std::uint64_t ChecksumOf(const SlotCall& slot, const KernelSet& kernels) {
    Fnv1a sum;
    Random random(slot.slot);
    const std::uint32_t modeBefore = StretchKernelMode;
    // The three cubic filters.
    for (std::uint32_t mode = 0; mode < (slot.rows == Rows::bicubic ? 3U : 1U); ++mode) {
        SetStretchKernelMode(mode);
        AddJobs(sum, random, slot, kernels);
    }
    SetStretchKernelMode(modeBefore);
    return sum.Value();
}

}  // namespace zorvic

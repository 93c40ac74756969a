// Images as callers describe them, against a model that takes one pixel after another: whatever a record says, nothing
// outside the memory that it tells of is touched, and what lies inside is done.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "effects/pixels/tone.h"
#include "pixel/described_images.h"
#include "support/fenced_memory.h"
#include "support/random.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

// A record, and exactly its memory: bytes that are known before it, and a fence behind. For calls that take rows as
// packed, steps shorter than a row say nothing.
class Described {
public:
    explicit Described(std::byte* memoryEnd) : end(memoryEnd) {}

    void Make(Random& random, bool isPacked = false) {
        constexpr WORD depths[] = {32, 32, 32, 24, 24, 8, 16, 64, 0};
        constexpr LONG wrong[] = {0, -3, INT32_MIN};
        record = {0, 1 + random.Below(9), 1 + random.Below(5), 0, 1, depths[random.Below(9)], nullptr};
        const auto row = static_cast<LONG>(RowBytes());
        const LONG steps[] = {row, row + random.Below(9), 4 * record.bmWidth, random.Below(40), 0};
        record.bmWidthBytes = steps[random.Below(5)] * (random.Below(4) ? 1 : -1);
        if (random.Below(16) == 0) (random.Below(2) ? record.bmWidth : record.bmHeight) = wrong[random.Below(3)];
        Place(random, isPacked);
    }
    void MakeLike(const BITMAP& other, Random& random, bool isPacked) {
        record = other;
        Place(random, isPacked);
    }

    std::int64_t RowBytes() const {
        return std::int64_t{record.bmWidth} * (record.bmBitsPixel ? record.bmBitsPixel : 32) / 8;
    }
    bool Holds(std::int64_t offset, int bytes) const { return first + offset >= 0 && first + offset + bytes <= size; }
    // A byte as it should be.
    std::byte* Wanted(std::int64_t offset) { return wanted.data() + margin + first + offset; }
    bool IsAsWanted() const { return std::ranges::equal(wanted, Bytes()); }
    bool HasItsMargin() const { return std::ranges::equal(Bytes().first(margin), std::span(wanted).first(margin)); }

    BITMAP record{};

private:
    static constexpr std::ptrdiff_t margin = 64;

    std::span<std::byte> Bytes() const { return {end - margin - size, end}; }
    void Place(Random& random, bool isPacked) {
        const bool isShort = isPacked && record.bmWidthBytes >= 0 && record.bmWidthBytes < RowBytes();
        const std::int64_t toLast = (record.bmHeight - std::int64_t{1}) * (isShort ? RowBytes() : record.bmWidthBytes);
        const bool hasPixels = record.bmWidth > 0 && record.bmHeight > 0;
        size = hasPixels ? static_cast<std::ptrdiff_t>(std::abs(toLast) + RowBytes()) : 0;
        first = hasPixels && toLast < 0 ? static_cast<std::ptrdiff_t>(-toLast) : 0;
        for (std::byte& byte : Bytes()) byte = static_cast<std::byte>(random.Word());
        wanted.assign(Bytes().begin(), Bytes().end());
        record.bmBits = end - size + first;
    }

    std::byte* end;
    std::ptrdiff_t size = 0, first = 0;
    std::vector<std::byte> wanted;
};

enum class Work { copy, mirror, blend, set, setColors, bitOr, bitAnd };
constexpr const char* names[] = {"copy", "mirror", "blend", "set", "set colors", "or", "and"};

struct RecordJob {
    Work work;
    bool hasArea;
    RECT area;
    int axis;
    DWORD value;

    bool IsPacked() const { return work == Work::bitOr || work == Work::bitAnd; }
};

bool RunJob(const RecordJob& job, const BITMAP& src, const BITMAP& dst) {
    switch (job.work) {
        case Work::copy:
            return CopyImage(src, dst, job.hasArea ? &job.area : nullptr);
        case Work::mirror:
            return &src == &dst ? MirrorImage(dst, job.axis) : MirrorImage(src, dst, job.axis);
        case Work::blend:
            return BlendImage(src, dst);
        case Work::bitOr:
            return OrImage(src, dst, job.value);
        case Work::bitAnd:
            return AndImage(src, dst, job.value);
        default:
            return SetImageColor(dst, job.value, job.work == Work::setColors);
    }
}

DWORD Changed(const RecordJob& job, DWORD d, DWORD s) {
    switch (job.work) {
        case Work::blend:
            return host::SlowBlend(s, d);
        case Work::set:
            return job.value;
        case Work::setColors:
            return (d & 0xFF000000) | (job.value & 0xFFFFFF);
        case Work::bitOr:
            return s | job.value;
        case Work::bitAnd:
            return s & job.value;
        default:
            return s;
    }
}

// Where a job's pixel (x, y) lies. Copies start twice the bytes of the left columns into a row.
std::int64_t PlaceOf(std::int64_t x, std::int64_t y, const BITMAP& image, const RecordJob& job, const BITMAP& src) {
    if (job.IsPacked()) return 4 * (y * image.bmWidth + x);
    if (job.work != Work::copy || !job.hasArea)
        return y * image.bmWidthBytes + x * (job.work == Work::copy ? src.bmBitsPixel / 8 : 4);
    return y * image.bmWidthBytes + std::int64_t{image.bmBitsPixel} * job.area.left / 4 +
           (x - job.area.left) * (src.bmBitsPixel / 8);
}

// Does a job to the bytes as they should be, and returns what the job should.
bool RunModel(const RecordJob& job, Described& src, Described& dst) {
    const BITMAP &from = src.record, &to = dst.record;
    const bool isCopy = job.work == Work::copy, isMirror = job.work == Work::mirror;
    const RECT area = isCopy && job.hasArea ? job.area : RECT{0, 0, from.bmWidth, from.bmHeight};
    if (isCopy && from.bmBitsPixel != 24 && from.bmBitsPixel != 32) return false;
    if (area.right > from.bmWidth || area.bottom > from.bmHeight) return false;
    if ((isMirror || job.IsPacked()) && (from.bmWidth != to.bmWidth || from.bmHeight != to.bmHeight)) return false;
    if (area.right <= area.left || area.bottom <= area.top || !from.bmBits || !to.bmBits) return job.IsPacked();
    if (isMirror && (job.axis < 0 || job.axis > 2)) return false;

    const int bytes = isCopy ? from.bmBitsPixel / 8 : 4;
    Described unchanged = src;
    for (std::int64_t y = std::max<LONG>(area.top, -99); y < area.bottom;
         ++y)  // what is further outside does not count
        for (std::int64_t x = std::max<LONG>(area.left, -99); x < area.right; ++x) {
            const std::int64_t fromX = isMirror && job.axis != 0 ? area.right - 1 - x : x;
            const std::int64_t fromY = isMirror && job.axis != 1 ? area.bottom - 1 - y : y;
            const std::int64_t s = PlaceOf(fromX, fromY, from, job, from), d = PlaceOf(x, y, to, job, from);
            if (fromY < 0 && from.bmWidthBytes == 0) continue;  // the source has no such row
            if (!src.Holds(s, bytes) || !dst.Holds(d, bytes)) continue;
            DWORD ofSrc = 0, ofDst = 0;
            std::memcpy(&ofSrc, (isMirror ? unchanged : src).Wanted(s), static_cast<std::size_t>(bytes));
            std::memcpy(&ofDst, dst.Wanted(d), static_cast<std::size_t>(bytes));
            ofDst = Changed(job, ofDst, ofSrc);
            std::memcpy(dst.Wanted(d), &ofDst, static_cast<std::size_t>(bytes));
        }
    return true;
}

RECT AnyArea(Random& random) {
    constexpr LONG extremes[] = {INT32_MIN, -1, INT32_MAX};
    if (random.Below(24) == 0) return {INT32_MIN, INT32_MIN, 1, 1};  // 2^31 long rows that might all end inside
    const LONG left = random.Below(4) - 1, top = random.Below(4) - 1;
    RECT area{left, top, left + random.Below(9), top + random.Below(5)};
    for (LONG* const edge : {&area.left, &area.top, &area.right, &area.bottom})
        if (random.Below(12) == 0) *edge = extremes[random.Below(3)];
    return area;
}

// Rows that overlap, mirrored in place, give undefined pixels.
bool IsUndefined(const RecordJob& job, const BITMAP& image) {
    return job.work == Work::mirror && std::abs(image.bmWidthBytes) < std::int64_t{4} * image.bmWidth;
}

TEST(Records, KeepEveryOperationInside) {
    const FencedBlocks blocks(2, 4096);
    const auto endOf = [&](std::size_t i) { return blocks.Block(i) + blocks.BlockSize(); };
    Described first(endOf(0)), dst(endOf(1));
    Random random(1);
    for (int round = 0; round < 40'000; ++round) {
        const RecordJob job{static_cast<Work>(round % 7), random.Below(3) != 0, AnyArea(random), random.Below(3),
                            random.Word()};
        const bool inPlace = random.Below(4) == 0 || job.work == Work::set || job.work == Work::setColors;
        Described& src = inPlace ? dst : first;
        src.Make(random, job.IsPacked());
        const int kind = random.Below(4);
        if (!inPlace && kind == 0) dst.Make(random, job.IsPacked());
        if (!inPlace && kind != 0) dst.MakeLike(src.record, random, job.IsPacked());
        if (!inPlace && kind == 1) dst.record.bmWidth = dst.record.bmHeight = 0;  // tells of bits and step only
        if (random.Below(16) == 0) dst.record.bmBits = nullptr;
        const bool wanted = RunModel(job, src, dst);
        ASSERT_EQ(RunJob(job, src.record, dst.record), wanted) << names[round % 7] << ", round " << round;
        if (inPlace && IsUndefined(job, dst.record)) continue;
        ASSERT_TRUE(src.IsAsWanted() && dst.IsAsWanted()) << names[round % 7] << ", round " << round;
    }
}

// They are larger than any memory, though their bytes may be few when they are counted in 32 bits.
TEST(Records, WithoutMemoryAreLeftAlone) {
    DWORD pixels[4] = {1, 2, 3, 4};
    const BITMAP records[] = {{0, 1, 0x40000001, 4, 1, 32, pixels},
                              {0, INT32_MAX, 1, 4, 1, 65535, pixels},
                              {0, INT32_MAX, INT32_MAX, INT32_MAX, 1, 65535, pixels}};
    for (const BITMAP& record : records)
        for (int work = 0; work < 7 && (sizeof(void*) == 4 || record.bmHeight == INT32_MAX); ++work)
            EXPECT_TRUE(RunJob({static_cast<Work>(work), true, {0, 0, 1, 1}, 0, 0}, record, record) || work == 0)
                << names[work];
    EXPECT_TRUE(sizeof(void*) > 4 || BlurImage(records[0], 3)) << "no second image";
    EXPECT_TRUE(std::ranges::equal(pixels, std::vector<DWORD>{1, 2, 3, 4}));
    const BITMAP large{0, 1 << 27, 1, 3 << 27, 1, 24, pixels};
    EXPECT_TRUE(sizeof(void*) > 4 || !BlurImage(large, 3)) << "more sums than memory holds";
}

TEST(Records, KeepEffectsInside) {
    const FencedBlocks blocks(1, 4096);
    Described image(blocks.Block(0) + blocks.BlockSize());
    Random random(2);
    for (int round = 0; round < 8000; ++round) {
        constexpr int boxes[] = {INT32_MIN, -1, 0, 1, 2, 3, 64, 4097, INT32_MAX};
        image.Make(random);
        if (random.Below(16) == 0) image.record.bmBits = nullptr;
        const auto [type, width, height, step, planes, bits, first] = image.record;
        const bool blurs = random.Below(2);
        if (blurs)
            BlurImage(image.record, boxes[random.Below(9)]);
        else
            PremultiplyImage({type, width, height, step, planes, bits, first, 256, 0, nullptr});
        const bool rowsOverlap = height > 1 && (blurs ? step : std::abs(step)) < image.RowBytes();
        ASSERT_TRUE(image.HasItsMargin() && (!rowsOverlap || image.IsAsWanted())) << "round " << round;
    }
}

}  // namespace
}  // namespace zorvic

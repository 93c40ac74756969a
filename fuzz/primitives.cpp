// The primitives on images that a caller describes, with any number in the record: exactly the memory that the record
// describes is there. Every level gives what the generic one gives, and a job that fails changes nothing.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "pixel/described_images.h"
#include "pixel/primitive_set.h"
#include "support/fenced_image.h"

namespace zorvic {

namespace {

enum class Primitive { copy, copyArea, mirror, mirrorInPlace, blend, setColor, setColorKeepAlpha, bitOr, bitAnd, blur };
constexpr int primitiveCount = 10;

struct Job {
    Primitive primitive;
    int number;  // axis or box
    DWORD color;
    RECT area;
};

bool Run(const Job& job, const BITMAP& src, const BITMAP& dst) {
    switch (job.primitive) {
        case Primitive::copy:
            return CopyImage(src, dst, nullptr);
        case Primitive::copyArea:
            return CopyImage(src, dst, &job.area);
        case Primitive::mirror:
            return MirrorImage(src, dst, job.number);
        case Primitive::mirrorInPlace:
            return MirrorImage(dst, job.number);
        case Primitive::blend:
            return BlendImage(src, dst);
        case Primitive::setColor:
            return SetImageColor(dst, job.color, false);
        case Primitive::setColorKeepAlpha:
            return SetImageColor(dst, job.color, true);
        case Primitive::bitOr:
            return OrImage(src, dst, job.color);
        case Primitive::bitAnd:
            return AndImage(src, dst, job.color);
        case Primitive::blur:
            return BlurImage(dst, job.number);
    }
    return false;
}

BITMAP ReadRecord(Input& input) {
    constexpr WORD depths[] = {32, 32, 32, 24, 24, 0, 8, 1, 16, 64, 65535};
    const int kind = input.Byte();
    BITMAP record{};
    const int odd = (kind & 3) == 3 ? input.Byte() : 0;
    record.bmWidth = (odd & 3) == 3 ? input.Number() : input.Extent();
    record.bmHeight = (odd & 12) == 12 ? input.Number() : 1 + input.Below(24);
    record.bmBitsPixel = (kind & 12) == 12 ? input.Pick(depths) : WORD{32};
    const std::int64_t packed = std::int64_t{record.bmWidth} * (record.bmBitsPixel == 24 ? 3 : 4);
    const auto step = static_cast<LONG>(std::clamp<std::int64_t>(packed, -0x40000000, 0x40000000));
    switch (kind >> 5) {
        case 0:
        case 1:
            record.bmWidthBytes = step;
            break;
        case 2:
        case 3:
            record.bmWidthBytes = step + input.Below(20);
            break;
        case 4:
            record.bmWidthBytes = -step;
            break;
        case 5:
            record.bmWidthBytes = 0;
            break;
        default:
            record.bmWidthBytes = input.Number();
    }
    return record;
}

// Mostly edges of the image or between them.
RECT ReadArea(Input& input, const BITMAP& image) {
    const auto edge = [&](LONG extent) -> LONG {
        const int kind = input.Byte() % 8;
        if (kind < 2) return 0;
        if (kind < 4) return extent;
        return kind < 7 ? input.Byte() % (std::clamp<LONG>(extent, 0, 255) + 1) : input.Number();
    };
    const LONG left = edge(image.bmWidth), top = edge(image.bmHeight);
    const LONG right = edge(image.bmWidth), bottom = edge(image.bmHeight);
    return {left, top, right, bottom};
}

constexpr auto most = static_cast<std::int64_t>(fencedBytes);

// rows x bytes, or too many.
std::int64_t Product(std::int64_t rows, std::int64_t bytes) {
    return bytes > 0 && rows > most / bytes ? most + 1 : rows * bytes;
}

// The memory that a record describes; first: where the image's bits lie in it. It ends with the last row's pixels. Rows
// without gaps lie as far apart as they are long, or as the step says.
struct Described {
    std::int64_t bytes, first;
};

Described Describe(const BITMAP& record, Primitive primitive) {
    if (record.bmHeight < 1 || record.bmWidth < 1) return {0, 0};
    const std::int64_t row = record.bmWidth * std::int64_t{record.bmBitsPixel == 0 ? 32 : record.bmBitsPixel} / 8;
    const bool isPacked = primitive == Primitive::bitOr || primitive == Primitive::bitAnd;
    const std::int64_t step = record.bmWidthBytes,
                       distance = isPacked && step >= 0 ? std::max(step, row) : std::abs(step);
    const std::int64_t toLastRow = Product(record.bmHeight - std::int64_t{1}, distance);
    return {toLastRow + row, step < 0 ? toLastRow : 0};
}

// Mirrors of rows that overlap give undefined pixels.
bool IsUndefined(const Job& job, const BITMAP& image) {
    return job.primitive == Primitive::mirrorInPlace &&
           std::abs(std::int64_t{image.bmWidthBytes}) < std::int64_t{4} * image.bmWidth;
}

}  // namespace

void RunInput(Input& input) {
    Job job{static_cast<Primitive>(input.Below(primitiveCount)), input.Byte() % 4, input.Word(), {}};
    const Level level = static_cast<Level>(input.Byte() & 3);
    const int flags = input.Byte();
    if ((flags & 3) == 3) job.number = input.Number();
    BITMAP src = ReadRecord(input), dst = (flags & 4) != 0 ? src : ReadRecord(input);
    if (job.primitive == Primitive::copyArea) job.area = ReadArea(input, src);
    if ((flags & 8) != 0) {
        dst.bmWidth = src.bmWidth;
        dst.bmHeight = src.bmHeight;
    }

    const bool isTrusted = dst.bmWidth == 0 && dst.bmHeight == 0;
    if (isTrusted) dst = src;
    const Described from = Describe(src, job.primitive), to = Describe(dst, job.primitive);
    if (isTrusted) dst.bmWidth = dst.bmHeight = 0;
    if (from.bytes > most || to.bytes > most || IsUndefined(job, dst)) return;
    // Rows that overlap take time, and blurs memory for as many bytes as a row of any length says.
    const auto takesLong = [&](const BITMAP& record) {
        return std::int64_t{record.bmWidth} * record.bmHeight > 1 << 22 ||
               (job.primitive == Primitive::blur && record.bmWidthBytes > most);
    };
    if (takesLong(src) || takesLong(dst)) return;
    // Mirrors between images that overlap give undefined pixels, too.
    const bool overlaps = (flags & 48) == 48 && job.primitive != Primitive::mirror;
    const bool fenceBehind = (flags & 64) == 0;
    const int noBits = (flags & 128) != 0 ? input.Below(16) : -1;
    const std::int64_t bytes = overlaps ? std::max(from.bytes, to.bytes) : to.bytes;
    const auto slack = [&](std::int64_t needed) { return overlaps ? input.Below(65536) % (bytes - needed + 1) : 0; };
    const std::int64_t srcAt = slack(from.bytes) + from.first, dstAt = slack(to.bytes) + to.first;

    Random random = input.Seed();
    const auto fill = [&](std::span<std::byte> memory) {
        for (std::size_t i = 0; i < memory.size(); ++i) memory[i] = static_cast<std::byte>(random.Word());
        return memory;
    };
    const auto source =
        fill(TakeFenced(Fence::source, overlaps ? 0 : static_cast<std::size_t>(from.bytes), fenceBehind));
    const auto target = fill(TakeFenced(Fence::target, static_cast<std::size_t>(bytes), fenceBehind));
    const auto wanted = TakeFenced(Fence::wanted, target.size(), fenceBehind);
    std::ranges::copy(target, wanted.begin());
    const std::vector<std::byte> before(target.begin(), target.end());

    const auto runOn = [&](std::span<std::byte> memory, Level onLevel) {
        LimitLevel(onLevel);
        src.bmBits = noBits == 0 ? nullptr : (overlaps ? memory : source).data() + srcAt;
        dst.bmBits = noBits == 1 ? nullptr : memory.data() + dstAt;
        return Run(job, src, dst);
    };
    const bool done = runOn(wanted, Level::generic);
    if (runOn(target, level) != done) Fail("primitive %d: results differ", static_cast<int>(job.primitive));
    const auto differs = std::ranges::mismatch(target, wanted).in1 - target.begin();
    if (differs != std::ssize(target))
        Fail("primitive %d, level %d: byte %td differs", static_cast<int>(job.primitive), static_cast<int>(level),
             differs);
    if (!done && !std::ranges::equal(target, before))
        Fail("primitive %d fails and changes pixels", static_cast<int>(job.primitive));
}

}  // namespace zorvic

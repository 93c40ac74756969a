// Every primitive in every form against one pixel and one byte at a time: all widths to 70 and some large ones, rows at
// odd distances and addresses, guard bytes, an inaccessible page behind the last row, and images that overlap.
#include "pixel/primitive_set.h"

#include <algorithm>
#include <cstring>

#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

TargetPixels TargetOf(const Image& image, bool upwards = false) {
    const BitmapLockInfo& info = image.Info();
    const std::ptrdiff_t step = info.bmWidthBytes;
    if (!upwards) return {info.bmBits, step};
    return {static_cast<std::byte*>(info.bmBits) + (info.bmHeight - 1) * step, -step};
}
SourcePixels SourceOf(const Image& image, bool upwards = false) { return TargetOf(image, upwards); }
SIZE SizeOf(const Image& image) { return {image.Info().bmWidth, image.Info().bmHeight}; }

template <class Function>
std::uint32_t EachByte(Function f) {
    std::uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8) pixel |= f(shift) << shift;
    return pixel;
}
std::uint32_t Byte(std::uint32_t pixel, int shift) { return pixel >> shift & 255; }

std::uint32_t Truncated(std::uint32_t d, std::uint32_t s) {
    return s + EachByte([&](int shift) { return Byte(d, shift) * (256 - (s >> 24)) / 256; });
}

// What a primitive does to a pixel d, given the source's pixel and a value: a color or an opacity.
struct Case {
    const char* name;
    Status (*run)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);
    std::uint32_t (*model)(std::uint32_t d, std::uint32_t s, std::uint32_t value);
};
const Case cases[] = {
    {"copy", [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return CopyPixels(src, dst, size, 4); },
     [](std::uint32_t, std::uint32_t s, std::uint32_t) { return s; }},
    {"set", [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return SetPixels(dst, size, value); },
     [](std::uint32_t, std::uint32_t, std::uint32_t value) { return value; }},
    {"set colors",
     [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return SetPixelColors(dst, size, value); },
     [](std::uint32_t d, std::uint32_t, std::uint32_t value) { return d >> 24 << 24 | (value & 0xFFFFFF); }},
    {"blend", [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return BlendPixels(src, dst, size); },
     [](std::uint32_t d, std::uint32_t s, std::uint32_t) {
         return EachByte([&](int shift) {
             const std::uint32_t rest = (2 * Byte(d, shift) * (255 - (s >> 24)) + 255) / 510;  // half rounds up
             return std::min(Byte(s, shift) + rest, 255U);
         });
     }},
    {"compose",
     [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return ComposePixels(src, dst, size); },
     [](std::uint32_t d, std::uint32_t s, std::uint32_t) { return Truncated(d, s); }},
    {"compose at an opacity",
     [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value) {
         return ComposePixels(src, dst, size, static_cast<std::uint8_t>(value));
     },
     [](std::uint32_t d, std::uint32_t s, std::uint32_t value) {
         return Truncated(d, EachByte([&](int shift) { return Byte(s, shift) * ((value & 255) + 1) / 256; }));
     }},
    {"compose a color",
     [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return ComposeColor(value, dst, size); },
     [](std::uint32_t d, std::uint32_t, std::uint32_t value) { return Truncated(d, value); }},
    {"or", OrPixels, [](std::uint32_t, std::uint32_t s, std::uint32_t value) { return s | value; }},
    {"and", AndPixels, [](std::uint32_t, std::uint32_t s, std::uint32_t value) { return s & value; }},
};

class Primitives : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, Primitives, testing::ValuesIn(Levels()), LevelName);

Margins RandomMargins(Random& random) {
    return {random.Below(2) * random.Below(9), random.Below(2) * random.Below(40)};
}

std::vector<int> Widths() {
    std::vector<int> widths{127, 255, 256, 257, 1000};
    for (int width = 1; width <= 70; ++width) widths.push_back(width);
    return widths;
}

TEST_P(Primitives, DoWhatTheModelDoes) {
    Random random(1);
    for (const Case& c : cases)
        for (const int width : Widths()) {
            Image dst(random, width, 1 + random.Below(4), 32, RandomMargins(random));
            const Image src(random, width, dst.Info().bmHeight, 32, RandomMargins(random));
            const std::uint32_t value = random.Pixel();
            Image wanted = dst;
            wanted.Fill([&](int x, int y) { return c.model(dst.At(x, y), src.At(x, y), value); });
            const bool upwards = random.Below(4) == 0;
            ASSERT_EQ(c.run(SourceOf(src, upwards), TargetOf(dst, upwards), SizeOf(dst), value), Status::success);
            ASSERT_TRUE(SameBytes(dst, wanted)) << c.name << ", value " << std::hex << value;
        }
}

// Column x has the byte x in each channel of the target, row y in the source, turned from channel to channel.
TEST_P(Primitives, ComposeEveryPairOfBytes) {
    for (const Case& c : cases) {
        Image dst(256, 256), src(256, 256);
        dst.Fill([](int x, int) { return static_cast<std::uint32_t>(x) * 0x01010101U ^ 0x80330F00U; });
        src.Fill([](int, int y) { return static_cast<std::uint32_t>(y) * 0x01010101U ^ 0x00C0FF11U; });
        Image wanted = dst;
        wanted.Fill([&](int x, int y) { return c.model(dst.At(x, y), src.At(x, y), 0x80402010); });
        c.run(SourceOf(src), TargetOf(dst), SizeOf(dst), 0x80402010);
        ASSERT_TRUE(SameBytes(dst, wanted)) << c.name;
    }
}

// Copies move; everything else goes pixel by pixel.
TEST_P(Primitives, TakeImagesThatOverlap) {
    constexpr int width = 21, height = 3, step = 4 * width + 3, room = 2 * step;
    Random random(2);
    for (const Case& c : cases)
        for (int distance = -room; distance <= room; ++distance) {
            std::vector<std::byte> got(height * step + 2 * room);
            for (std::byte& byte : got) byte = static_cast<std::byte>(random.Word());
            std::vector<std::byte> wanted = got;
            const std::vector<std::byte> before = got, &source = &c == cases ? before : wanted;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const int from = room + y * step + 4 * x, to = from + distance;
                    std::uint32_t d, s;
                    std::memcpy(&d, wanted.data() + to, 4);
                    std::memcpy(&s, source.data() + from, 4);
                    d = c.model(d, s, 0x11335577);
                    std::memcpy(wanted.data() + to, &d, 4);
                }
            std::byte* const first = got.data() + room;
            c.run({first, step}, {first + distance, step}, {width, height}, 0x11335577);
            ASSERT_TRUE(got == wanted) << c.name << ", target " << distance << " bytes behind the source";
        }
}

TEST_P(Primitives, Mirror) {
    Random random(3);
    for (const int width : Widths())
        for (int axis = 0; axis < 3; ++axis) {
            const Image src(random, width, 1 + random.Below(5), 32, RandomMargins(random));
            Image dst(random, width, src.Info().bmHeight, 32, RandomMargins(random));
            const int right = width - 1, bottom = src.Info().bmHeight - 1;
            const auto mirrored = [&](int x, int y) {
                return src.At(axis == 0 ? x : right - x, axis == 1 ? y : bottom - y);
            };
            Image wanted = dst, inPlace = src, wantedInPlace = src;
            wanted.Fill(mirrored);
            wantedInPlace.Fill(mirrored);
            ASSERT_EQ(MirrorPixels(SourceOf(src), TargetOf(dst), SizeOf(src), axis), Status::success);
            ASSERT_TRUE(SameBytes(dst, wanted)) << "axis " << axis;
            ASSERT_EQ(MirrorPixels(SourceOf(inPlace), TargetOf(inPlace), SizeOf(src), axis), Status::success);
            ASSERT_TRUE(SameBytes(inPlace, wantedInPlace)) << "in place, axis " << axis;
        }
}

TEST(PrimitiveCalls, RefuseNullPointersSizesAndAxes) {
    Random random(5);
    const Image image(random, 5, 4), before = image;
    const TargetPixels pixels = TargetOf(image), nothing{nullptr, 20};
    for (const SIZE size : {SIZE{0, 4}, SIZE{5, 0}, SIZE{-5, -4}, SIZE{5, INT32_MIN}}) {
        for (const Case& c : cases) EXPECT_EQ(c.run(pixels, pixels, size, 77), Status::badSize) << c.name;
        EXPECT_EQ(MirrorPixels(pixels, pixels, size, 9), Status::badSize);
    }
    for (const Case& c : cases) EXPECT_EQ(c.run(pixels, nothing, {5, 4}, 77), Status::nullPointer) << c.name;
    EXPECT_EQ(BlendPixels(nothing, pixels, {5, 4}), Status::nullPointer);
    EXPECT_EQ(MirrorPixels(nothing, pixels, {5, 4}, 9), Status::nullPointer);
    for (const int axis : {-1, 3, INT32_MAX}) EXPECT_EQ(MirrorPixels(pixels, pixels, {5, 4}, axis), Status::badAxis);
    EXPECT_TRUE(SameBytes(image, before));
}

// A processor that does not exist.
struct Processor {
    int largestLeaf;
    unsigned leaf1Ecx, leaf1Edx, leaf7Ebx;
    std::uint64_t enabledState;
} processor;
bool xgetbvRan;

Level LevelOf(const Processor& made) {
    processor = made;
    xgetbvRan = false;
    const LevelProbe probe{[](int registers[4], int leaf) {
                               const Processor& p = processor;
                               registers[0] = leaf == 0 ? p.largestLeaf : 0;
                               registers[1] = leaf == 7 ? static_cast<int>(p.leaf7Ebx) : 0;
                               registers[2] = leaf == 1 ? static_cast<int>(p.leaf1Ecx) : 0;
                               registers[3] = leaf == 1 ? static_cast<int>(p.leaf1Edx) : 0;
                           },
                           [] { return xgetbvRan = true, processor.enabledState; }};
    return BestLevel(probe);
}

TEST(PrimitiveLevel, NeedsProcessorAndOperatingSystem) {
    constexpr unsigned sse2 = 1U << 26, system = 1U << 27 | 1U << 28, avx2 = 1U << 5;
    constexpr unsigned avx512 = avx2 | 1U << 16 | 1U << 17 | 1U << 30 | 1U << 31;
    EXPECT_EQ(LevelOf({7, system, sse2, avx2, 7}), Level::avx2);
    EXPECT_EQ(LevelOf({7, system, 0, avx2, 7}), Level::generic);
    EXPECT_EQ(LevelOf({7, system, sse2, ~avx2, 7}), Level::sse2);
    EXPECT_EQ(LevelOf({6, system, sse2, avx2, 7}), Level::sse2) << "there is no leaf 7";
    EXPECT_EQ(LevelOf({7, system, sse2, avx512, 0xE7}), Level::avx512);
    // Registers that the system does not save.
    for (const std::uint64_t state : {0U, 1U, 2U, 3U, 4U, 5U})
        EXPECT_EQ(LevelOf({7, system, sse2, avx2, state}), Level::sse2);
    for (const std::uint64_t state : {0x07U, 0x27U, 0x67U, 0xC7U})
        EXPECT_EQ(LevelOf({7, system, sse2, avx512, state}), Level::avx2);
    for (const unsigned bit : {16U, 17U, 30U, 31U})
        EXPECT_EQ(LevelOf({7, system, sse2, avx512 & ~(1U << bit), 0xE7}), Level::avx2) << bit;
    for (const unsigned bit : {27U, 28U}) EXPECT_EQ(LevelOf({7, system & ~(1U << bit), sse2, avx2, 7}), Level::sse2);
    EXPECT_EQ(LevelOf({7, 1U << 28, sse2, avx2, 7}), Level::sse2);
    EXPECT_FALSE(xgetbvRan) << "XGETBV faults where the system has not switched it on";
}

TEST(PrimitiveLevel, IsThatOfThisProcessorUnlessLimited) {
    EXPECT_EQ(InitPrimitives(), Status::success);
    EXPECT_EQ(CurrentLevel(), BestLevel());
    EXPECT_EQ(LimitLevel(Level::generic), Level::generic);
    EXPECT_EQ(CurrentLevel(), Level::generic);
    EXPECT_EQ(LimitLevel(widestLevel), BestLevel());
}

}  // namespace
}  // namespace zorvic

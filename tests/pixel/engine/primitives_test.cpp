// The primitives in every form against one pixel and one byte at a time: all widths to 70 and some large ones, rows at odd
// distances and addresses, guard bytes, an inaccessible page behind the last row, and images that overlap.
#include "pixel/primitive_set.h"

#include <algorithm>
#include <cstring>

#include "support/image.h"
#include "support/levels.h"
#include "support/slow_pixels.h"

namespace zorvic {
namespace {

TargetPixels TargetOf(const Image& image, bool upwards = false) {
    const BitmapLockInfo& info = image.Info();
    const std::ptrdiff_t step = info.bmWidthBytes;
    if (!upwards) return {info.bmBits, step};
    return {static_cast<std::byte*>(info.bmBits) + (info.bmHeight - 1) * step, -step};
}
SIZE SizeOf(const Image& image) { return {image.Info().bmWidth, image.Info().bmHeight}; }

// The words are added.
DWORD Composed(DWORD d, DWORD s, int opacity = 255) {
    const auto scaled = [](DWORD pixel, int k) {
        return host::FromChannels([=](int i) { return host::Channel(pixel, i) * k / 256; });
    };
    s = scaled(s, opacity + 1);
    return s + scaled(d, 256 - host::AlphaOf(s));
}

// What a primitive does to a pixel d, given the source's pixel and a value: a color, or an opacity in its first byte.
const struct {
    const char* name;
    Status (*run)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);
    DWORD (*model)(DWORD d, DWORD s, DWORD value);
} cases[] = {
    {"copy", [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return CopyPixels(src, dst, size, 4); },
     [](DWORD, DWORD s, DWORD) { return s; }},
    {"set", [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return SetPixels(dst, size, value); },
     [](DWORD, DWORD, DWORD value) { return value; }},
    {"set colors",
     [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return SetPixelColors(dst, size, value); },
     [](DWORD d, DWORD, DWORD value) -> DWORD { return d >> 24 << 24 | (value & 0xFFFFFF); }},
    {"blend", [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return BlendPixels(src, dst, size); },
     [](DWORD d, DWORD s, DWORD) { return host::SlowBlend(s, d); }},
    {"compose",
     [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t) { return ComposePixels(src, dst, size); },
     [](DWORD d, DWORD s, DWORD) { return Composed(d, s); }},
    {"compose at an opacity",
     [](SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value) {
         return ComposePixels(src, dst, size, static_cast<std::uint8_t>(value));
     },
     [](DWORD d, DWORD s, DWORD value) { return Composed(d, s, static_cast<int>(value & 0xFF)); }},
    {"compose a color",
     [](SourcePixels, TargetPixels dst, SIZE size, std::uint32_t value) { return ComposeColor(value, dst, size); },
     [](DWORD d, DWORD, DWORD value) { return Composed(d, value); }},
    {"or", OrPixels, [](DWORD, DWORD s, DWORD value) { return s | value; }},
    {"and", AndPixels, [](DWORD, DWORD s, DWORD value) { return s & value; }},
};

class Primitives : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, Primitives, testing::ValuesIn(Levels()), LevelName);

Image RandomImage(Random& random, int width, int height) {
    return {random, width, height, 32, {random.Below(2) * random.Below(9), random.Below(2) * random.Below(40)}};
}

std::vector<int> Widths() {
    std::vector<int> widths{127, 255, 256, 257, 9000};
    for (int width = 1; width <= 70; ++width) widths.push_back(width);
    return widths;
}

TEST_P(Primitives, DoWhatTheModelDoes) {
    Random random(1);
    for (const auto& c : cases)
        for (const int width : Widths()) {
            const Image dst = RandomImage(random, width, 1 + random.Below(4));
            const Image src = RandomImage(random, width, dst.Info().bmHeight);
            const std::uint32_t value = random.Pixel();
            Image wanted = dst;
            wanted.Fill([&](int x, int y) { return c.model(dst.At(x, y), src.At(x, y), value); });
            const bool upwards = random.Below(4) == 0;
            ASSERT_EQ(c.run(TargetOf(src, upwards), TargetOf(dst, upwards), SizeOf(dst), value), Status::success);
            ASSERT_TRUE(SameBytes(dst, wanted)) << c.name << ", value " << std::hex << value;
        }
}

// Copies move; everything else goes pixel by pixel.
TEST_P(Primitives, TakeImagesThatOverlap) {
    constexpr int width = 21, height = 3, room = 2 * (4 * width + 3);
    Random random(2);
    for (const auto& c : cases)
        for (int distance = -room; distance <= room; ++distance) {
            const int step = random.Below(2) ? room / 2 : -room / 2, first = step > 0 ? room : 2 * room;
            std::vector<std::byte> got(4 * room);
            for (std::byte& byte : got) byte = static_cast<std::byte>(random.Word());
            std::vector<std::byte> wanted = got;
            const std::vector<std::byte> before = got, &source = &c == cases ? before : wanted;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const int from = first + y * step + 4 * x, to = from + distance;
                    DWORD d, s;
                    std::memcpy(&d, wanted.data() + to, 4);
                    std::memcpy(&s, source.data() + from, 4);
                    d = c.model(d, s, 0x11335577);
                    std::memcpy(wanted.data() + to, &d, 4);
                }
            std::byte* const src = got.data() + first;
            c.run({src, step}, {src + distance, step}, {width, height}, 0x11335577);
            ASSERT_TRUE(got == wanted) << c.name << ", step " << step << ", target " << distance << " bytes behind";
        }
}

TEST_P(Primitives, ReverseAndExchange) {
    Random random(3);
    for (const int width : Widths())
        for (const bool reverses : {false, true})
            for (const bool upwards : {false, true}) {
                const Image a = RandomImage(random, width, 1 + random.Below(5));
                const Image b = RandomImage(random, width, a.Info().bmHeight), beforeA = a, beforeB = b;
                const auto run = reverses ? ExchangeReversedPixels : ExchangePixels;
                EXPECT_EQ(run(TargetOf(a, upwards), TargetOf(b), SizeOf(a)), Status::success);
                Image wantedA = a, wantedB = b;
                const auto from = [=](const Image& image) {
                    return [=, &image](int x, int y) {
                        return image.At(reverses ? width - 1 - x : x, upwards ? image.Info().bmHeight - 1 - y : y);
                    };
                };
                wantedA.Fill(from(beforeB));
                wantedB.Fill(from(beforeA));
                ASSERT_TRUE(SameBytes(a, wantedA) && SameBytes(b, wantedB)) << reverses;

                ReversePixels(TargetOf(reverses ? a : b), TargetOf(b), SizeOf(b));
                const Image source = reverses ? a : wantedB;
                wantedB.Fill([&](int x, int y) { return source.At(width - 1 - x, y); });
                ASSERT_TRUE(SameBytes(b, wantedB)) << (reverses ? "" : "in place");
            }
}

TEST(PrimitiveCalls, RefuseNullPointersSizesAndAxes) {
    const Image image(5, 4), before = image;
    const TargetPixels pixels = TargetOf(image), nothing{nullptr, 20};
    for (const auto& c : cases) {
        for (const SIZE size : {SIZE{0, 4}, SIZE{5, 0}, SIZE{5, -4}})
            EXPECT_EQ(c.run(pixels, pixels, size, 77), Status::badSize) << c.name;
        EXPECT_EQ(c.run(pixels, nothing, {5, 4}, 77), Status::nullPointer) << c.name;
    }
    for (const auto run : {ExchangePixels, ExchangeReversedPixels})
        EXPECT_EQ(run(pixels, pixels, {5, 0}), Status::badSize);
    EXPECT_EQ(ReversePixels(pixels, nothing, {5, 4}), Status::nullPointer);
    EXPECT_TRUE(SameBytes(image, before));
}

// What a processor that does not exist answers: four registers for each leaf.
int answers[8][4];
std::uint64_t enabledState;
bool xgetbvRan;

Level LevelOf(int largestLeaf, unsigned leaf1Ecx, unsigned leaf1Edx, unsigned leaf7Ebx, std::uint64_t state) {
    answers[0][0] = largestLeaf;
    answers[1][2] = static_cast<int>(leaf1Ecx);
    answers[1][3] = static_cast<int>(leaf1Edx);
    answers[7][1] = static_cast<int>(leaf7Ebx);
    enabledState = state;
    return BestLevel({[](int registers[4], int leaf) { std::ranges::copy(answers[leaf], registers); },
                      [] { return xgetbvRan = true, enabledState; }});
}

TEST(PrimitiveLevel, NeedsProcessorAndOperatingSystem) {
    constexpr unsigned sse2 = 1U << 26, system = 1U << 27 | 1U << 28, avx2 = 1U << 5;
    constexpr unsigned avx512 = avx2 | 1U << 16 | 1U << 17 | 1U << 30 | 1U << 31;
    EXPECT_EQ(LevelOf(7, 1U << 28, sse2, avx2, 7), Level::sse2);
    EXPECT_FALSE(xgetbvRan) << "XGETBV faults where the system has not switched it on";
    EXPECT_EQ(LevelOf(7, 1U << 27, sse2, avx2, 7), Level::sse2);
    EXPECT_EQ(LevelOf(7, system, sse2, avx2, 7), Level::avx2);
    EXPECT_EQ(LevelOf(7, system, 0, avx2, 7), Level::generic);
    EXPECT_EQ(LevelOf(7, system, sse2, ~avx2, 7), Level::sse2);
    EXPECT_EQ(LevelOf(6, system, sse2, avx2, 7), Level::sse2) << "there is no leaf 7";
    EXPECT_EQ(LevelOf(7, system, sse2, avx512, 0xE7), Level::avx512);
    for (const unsigned bit : {16U, 17U, 30U, 31U})
        EXPECT_EQ(LevelOf(7, system, sse2, avx512 & ~(1U << bit), 0xE7), Level::avx2) << bit;
    // Registers that the system does not save.
    for (const std::uint64_t state : {0U, 3U, 5U}) EXPECT_EQ(LevelOf(7, system, sse2, avx2, state), Level::sse2);
    for (const std::uint64_t state : {0x07U, 0x67U, 0xC7U, 0xA7U})
        EXPECT_EQ(LevelOf(7, system, sse2, avx512, state), Level::avx2);
}

TEST(PrimitiveLevel, IsThatOfThisProcessorUnlessLimited) {
    EXPECT_EQ(CurrentLevel(), BestLevel());
    EXPECT_EQ(LimitLevel(Level::generic), Level::generic);
    EXPECT_EQ(CurrentLevel(), Level::generic);
    EXPECT_EQ(LimitLevel(widestLevel), BestLevel());
}

}  // namespace
}  // namespace zorvic

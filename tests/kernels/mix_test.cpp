// Canvas against canvas and color: cross-fades, blending of sources that count as opaque, and drawing in a color.
#include "kernels/model.h"
#include "raster/kernels.h"
#include "raster/modulation.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {
namespace {

TEST(Mix, LiteralPixels) {
    const auto fade = [](std::uint32_t d, std::uint32_t s, std::uint32_t value) {
        Image dst = RowOf({d});
        const Image src = RowOf({s});
        EXPECT_EQ(baselineKernels.At(slots::crossFadeSameSize)(dst.Info(), src.Info(), value), 1);
        Image scaled(2, 2);
        scaled.Fill([&](int, int) { return d; });
        baselineKernels.At(slots::crossFadeNearest)(scaled.Info(), src.Info(), value);
        EXPECT_EQ(scaled.Pixels(), std::vector(4, dst.At(0, 0))) << "scaled";
        return dst.At(0, 0);
    };
    const auto mix = [](std::uint32_t d, std::uint32_t color, std::uint32_t value) {
        Image dst = RowOf({d});
        EXPECT_EQ(baselineKernels.At(slots::fillMix)(dst.Info(), color, value), 1);
        return dst.At(0, 0);
    };
    constexpr std::uint32_t d = 0xFF01FE80, s = 0xFFFF0180;
    // k = 128: 255 and 255; (255 + 1) / 2; (1 + 254) / 2 = 127.5; 128. Two truncated halves can lose one more.
    EXPECT_EQ(fade(d, s, 127), 0xFF807F80);
    EXPECT_EQ(mix(d, s, 127), 0xFE7F7F80);
    for (const std::uint32_t high : {0U, 0xABCDEF00U}) {  // only the low byte counts
        EXPECT_EQ(fade(d, s, high), d);
        EXPECT_EQ(mix(d, s, high), d);
        EXPECT_EQ(fade(d, s, high | 255), s);
        EXPECT_EQ(mix(d, s, high | 255), s);
    }
}

TEST(Mix, SourcesWithoutAlphaCountAsOpaque) {
    Image dst = RowOf({0xFF000000});
    const Image src = RowOf({0x00FFFFFF});
    EXPECT_EQ(baselineKernels.At(slots::opaqueAlphaSameSize)(dst.Info(), src.Info(), 128), 1);
    EXPECT_EQ(dst.At(0, 0), 0xFF808080);
    EXPECT_EQ(baselineKernels.At(slots::opaqueAlphaNearest)(dst.Info(), src.Info(), 255), 1);
    EXPECT_EQ(dst.At(0, 0), 0xFFFFFFFF);
    Image made = RowOf({0x12345678});
    EXPECT_EQ(baselineKernels.At(slots::makeOpaque)(made.Info()), 1);
    EXPECT_EQ(made.At(0, 0), 0xFF345678);
}

// One channel at a time, 0 blue to 3 alpha.
std::uint32_t ModulatedChannel(std::uint32_t d, std::uint32_t s, std::uint32_t c, int channel) {
    const auto byte = [](std::uint32_t word, int i) { return static_cast<int>(word >> 8 * i) & 255; };
    const int dx = byte(d, channel), sx = byte(s, channel), cx = byte(c, channel), cAlpha = byte(c, 3);
    int result;
    if (cAlpha == 255) {
        const int light = ((byte(s, 2) + 2 * byte(s, 1) + byte(s, 0)) / 4 + 1) * cAlpha / 256;
        result = channel == 3 ? (256 - light) * dx / 256 + light : (255 - sx) * dx / 256 + cx * sx / 256;
    } else {
        const int mAlpha = (byte(s, 3) + 1) * cAlpha / 256;
        result = s == 0 ? dx : dx * (256 - mAlpha) / 256 + (sx + 1) * cx / 256;
    }
    return static_cast<std::uint32_t>(result & 255) << 8 * channel;
}

class Modulation : public AtLevel {};
INSTANTIATE_TEST_SUITE_P(, Modulation, testing::ValuesIn(Levels()), LevelName);

TEST_P(Modulation, MatchesTheFormulasOfEachChannel) {
    Random random(7);
    for (const int bitsPixel : {8, 24, 32})
        for (int round = 0; round < 300; ++round) {
            const int width = round < 71 ? round : 200 + random.Below(120);
            Image dst(random, width, 1 + random.Below(3), 32, {random.Below(9), random.Below(2)});
            const Image src(random, width, dst.Info().bmHeight, bitsPixel, {random.Below(9), random.Below(2)});
            const std::uint32_t color = round % 2 ? random.Word() | 0xFF000000 : random.Pixel();
            Image wanted = dst;
            wanted.Fill([&](int x, int y) {
                const std::uint32_t s = SourceColor(src.Info(), x, y);
                std::uint32_t result = 0;
                for (int i = 0; i < 4; ++i) result |= ModulatedChannel(dst.At(x, y), s, color, i);
                return result;
            });
            ModulateImage(dst.Info(), src.Info(), color);
            ASSERT_TRUE(SameBytes(dst, wanted)) << bitsPixel << " bits, color " << std::hex << color;
        }
}

TEST_P(Modulation, LiteralPixels) {
    struct {
        const char* name;
        std::uint32_t color, source, before, after;
    } constexpr cases[] = {
        // A black light dims what is bright in the source: 255 - 128 of each channel is left.
        {"black light", 0xFF000000, 0xFF808080, 0xFFFFFFFF, 0xFF7E7E7E},
        {"dark source", 0xFFFF8040, 0xFF000000, 0x80604020, 0x805F3F1F},
        {"bright source", 0xFFFF8040, 0xFFFFFFFF, 0x00604020, 0xFFFE7F3F},
        {"nothing", 0x80FFFFFF, 0x00000000, 0x12345678, 0x12345678},
        {"half", 0x80808080, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
        {"almost opaque is no light", 0xFEFFFFFF, 0xFF808080, 0xFFFFFFFF, 0xFF818181},
        // Above their alpha: 129 * 255 >> 8 = 128; 255 + 128 keeps its low byte, without a carry into alpha.
        {"wraps", 0x01FF0000, 0x00800000, 0x00FF0000, 0x007F0000},
    };
    for (const auto& c : cases) {
        Image dst = RowOf({c.before});
        ModulateImage(dst.Info(), RowOf({c.source}).Info(), c.color);
        EXPECT_EQ(dst.At(0, 0), c.after) << c.name << std::hex << ", got " << dst.At(0, 0);
    }
}

}  // namespace
}  // namespace zorvic

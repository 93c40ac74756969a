// Single pixels worked by hand: x scaled by k is x * k >> 8, never rounded.
#include "raster/selectors.h"
#include "support/image.h"

namespace zorvic {
namespace {

struct PixelCase {
    const char* name;
    std::uint32_t operationWord;
    std::uint32_t color;  // or source pixel
    std::uint32_t before;
    std::uint32_t after;
    std::uint8_t alpha = 255;
};

TEST(LiteralPixels, Fills) {
    constexpr PixelCase cases[] = {
        {"plain", 0x00000000, 0x80402010, 0x12345678, 0x80402010},
        {"plain with alpha 0", 0x00000000, 0x00ABCDEF, 0x12345678, 0x00ABCDEF},
        {"over", 0x01000000, 0x80404040, 0xFFFFFFFF, 0xFFBFBFBF},  // 255 * 128 >> 8 = 127
        {"over, opaque", 0x01000000, 0xFF123456, 0x87654321, 0xFF123456},
        {"over, transparent", 0x01000000, 0x00123456, 0x87654321, 0x87654321},
        {"an unknown operation is over", 0x07000000, 0x80404040, 0xFFFFFFFF, 0xFFBFBFBF},
        {"multiply", 0x03000000, 0x80808080, 0xFFFFFFFF, 0x80808080},  // 129 * 255 >> 8 = 128
        {"multiply by 255 and 0", 0x03000000, 0xFFFF0000, 0x81828384, 0x81820000},
        {"multiply by 0", 0x03000000, 0x00000000, 0xFFFFFFFF, 0x00000000},
        {"multiply by white", 0x03000000, 0xFFFFFFFF, 0x12345678, 0x12345678},
        {"or", 0x04000000, 0x0F010000, 0xA0FE00C0, 0xAFFF00C0},
        {"or with 0 clears", 0x04000000, 0x00000000, 0x12345678, 0x00000000},
        {"or with white keeps", 0x04000000, 0xFFFFFFFF, 0x12345678, 0x12345678},
        // (16 + 64 + 64) >> 2 = 36 by 128 is 18, plus half of each color.
        {"gray wash", 0x05000000, 0x80FFFFFF, 0x80402010, 0x8032221A},
        {"gray wash ignores the color's channels", 0x05000000, 0x80000000, 0x80402010, 0x8032221A},
        {"gray wash with alpha 0", 0x05000000, 0x00FFFFFF, 0x80402010, 0x80402010},
        // 255 >> 2 = 63 by 255 is 62; 255 + 62 keeps its low byte.
        {"gray wash of a color above its alpha", 0x05000000, 0xFF000000, 0x00FF0000, 0x003D3E3E},
        {"destination-over", 0x06000000, 0xFF102030, 0x80404040, 0xFF485058},
        {"destination-over an opaque pixel", 0x06000000, 0xFF102030, 0xFF404040, 0xFF404040},
        {"destination-over nothing", 0x06000000, 0x80102030, 0x00000000, 0x80102030},
    };
    for (const PixelCase& c : cases) {
        Image image = RowOf({c.before});
        EXPECT_EQ(SelectFillKernel(image.Info(), c.color, c.operationWord), 1) << c.name;
        EXPECT_EQ(image.At(0, 0), c.after) << c.name;
    }
}

TEST(LiteralPixels, Draws) {
    constexpr PixelCase cases[] = {
        {"copy", 0x00000000, 0x00ABCDEF, 0x12345678, 0x00ABCDEF},
        {"over, transparent", 0x01000000, 0x00000000, 0x12345678, 0x12345678},
        {"over, opaque", 0x01000000, 0xFF123456, 0x87654321, 0xFF123456},
        {"over", 0x01000000, 0x80402010, 0xFF808080, 0xFF806050},  // alpha 128 + 127
        {"over, not premultiplied: the words are added", 0x01000000, 0x80FFFFFF, 0x80808080, 0xC140403F},
        {"opacity", 0x00000000, 0xFFFFFFFF, 0xFF000000, 0xFF808080, 128},
        {"opacity 1", 0x01000000, 0xFFFFFFFF, 0x00000000, 0x01010101, 1},
        {"opacity 254 of opaque leaves a trace", 0x01000000, 0xFFFFFFFF, 0xFF000000, 0xFFFEFEFE, 254},
        {"opacity 0", 0x01000000, 0xFFFFFFFF, 0x12345678, 0x12345678, 0},
        {"multiply", 0x03000000, 0x80808080, 0xFFFFFFFF, 0x80808080},
        {"multiply knows no opacity", 0x03000000, 0x80808080, 0xFFFFFFFF, 0x80808080, 0},
        {"destination-over", 0x06000000, 0xFF102030, 0x80404040, 0xFF485058},
        {"destination-over knows no opacity", 0x06000000, 0xFF102030, 0x80404040, 0xFF485058, 128},
        {"key, transparent source pixel", 0x02123456, 0x00123456, 0x87654321, 0x87654321},
        {"key, opaque source pixel of that color", 0x02123456, 0xFF123456, 0x87654321, 0xFF123456},
    };
    for (const PixelCase& c : cases) {
        Image image = RowOf({c.before});
        const Image source = RowOf({c.color});
        EXPECT_EQ(SelectStretchKernel(image.Info(), source.Info(), c.operationWord, 0, c.alpha), 1) << c.name;
        EXPECT_EQ(image.At(0, 0), c.after) << c.name;
    }
}

TEST(LiteralPixels, NarrowSources) {
    Image bytes(3, 1, 8), triples(3, 1, 24);
    bytes.Palette()[7] = 0x00445566;
    bytes.Palette()[9] = 0x80402010;
    bytes.Palette()[255] = 0xFF010203;
    bytes.Fill([](int x, int) { return x == 0 ? 7U : x == 1 ? 9U : 255U; });
    triples.Fill([](int x, int) { return x == 0 ? 0x445566U : x == 1 ? 0x445567U : 0U; });
    struct {
        const char* name;
        const Image& source;
        std::uint32_t operationWord;
        std::uint8_t alpha;
        std::vector<std::uint32_t> after;
    } const cases[] = {
        {"palette entries are taken whole", bytes, 0, 255, {0x00445566, 0x80402010, 0xFF010203}},
        {"24 bits are opaque", triples, 0, 255, {0xFF445566, 0xFF445567, 0xFF000000}},
        {"24 bits over", triples, 0x01000000, 255, {0xFF445566, 0xFF445567, 0xFF000000}},
        {"24 bits at an opacity", triples, 0, 127, {0xFF625A53, 0xFF625A53, 0xFF403020}},
        {"keyed palette", bytes, 0x02445566, 255, {0xFF806040, 0x80402010, 0xFF010203}},
        {"an opaque palette entry is not keyed", bytes, 0x02010203, 255, {0x00445566, 0x80402010, 0xFF010203}},
        {"keyed 24 bits", triples, 0x02445566, 255, {0xFF806040, 0xFF445567, 0xFF000000}},
    };
    for (const auto& c : cases) {
        Image image = RowOf({0xFF806040, 0xFF806040, 0xFF806040});
        EXPECT_EQ(SelectStretchKernel(image.Info(), c.source.Info(), c.operationWord, 0, c.alpha), 1);
        EXPECT_EQ(image.Pixels(), c.after) << c.name;
    }
}

}  // namespace
}  // namespace zorvic

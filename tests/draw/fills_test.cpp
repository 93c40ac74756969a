// Solid fills: what each mode does to a pixel, and when nothing is done.
#include "support/host.h"

using namespace host;

namespace {

constexpr RECT whole{0, 0, 8, 6};

struct FillCase {
    const char* name;
    DWORD mode, color, before, after;
};

// Worked by hand. Colours are straight; a channel is premultiplied as (channel x (alpha + 1)) >> 8.
constexpr FillCase fillCases[] = {
    {"copy writes a transparent colour", 0x00000000, 0x00FFFFFF, 0xFF123456, 0x00000000},
    {"copy premultiplies", 0x00000000, 0x80FF8040, 0x12345678, 0x80804020},
    {"source-over", 0x01000000, 0x80808080, 0xFFFFFFFF, 0xFFBFBFBF},
    {"source-over, opaque", 0x01000000, 0xFF102030, 0x12345678, 0xFF102030},
    {"source-over, transparent", 0x01000000, 0x00FFFFFF, 0x12345678, 0x12345678},
    {"colour key is source-over", 0x02000000, 0x80808080, 0xFFFFFFFF, 0xFFBFBFBF},
    {"unknown is source-over", 0x07000000, 0x80808080, 0xFFFFFFFF, 0xFFBFBFBF},
    {"unknown, transparent", 0xFF000000, 0x00FFFFFF, 0x12345678, 0x12345678},
    {"low bits of the mode are ignored", 0x01FFFFFF, 0x80808080, 0xFFFFFFFF, 0xFFBFBFBF},
    {"multiply", 0x03000000, 0x80FFFFFF, 0xFFFFFFFF, 0x80808080},
    {"multiply by transparent black clears", 0x03000000, 0x00FFFFFF, 0xFF123456, 0x00000000},
    {"multiply by white", 0x03000000, 0xFFFFFFFF, 0x12345678, 0x12345678},
    {"or", 0x04000000, 0xFF0F00F0, 0x12300405, 0xFF3F04F5},
    {"or of nothing clears", 0x04000000, 0x00000000, 0x12345678, 0x00000000},
    {"or of white changes nothing", 0x04000000, 0xFFFFFFFF, 0x12345678, 0x12345678},
    // Grey of (0xF0, 0x80, 0x10) is (0x10 + 2 x 0x80 + 0xF0) >> 2 = 0x80; x 255 >> 8 = 0x7F; opaque: colour >> 8 = 0.
    {"grey wash", 0x05000000, 0xFF000000, 0xFFF08010, 0xFF7F7F7F},
    {"grey wash ignores the colour", 0x05000000, 0xFFABCDEF, 0xFFF08010, 0xFF7F7F7F},
    {"grey wash, transparent", 0x05000000, 0x00ABCDEF, 0xFFF08010, 0xFFF08010},
    // 0x80 x (256 - 0x80) >> 8 = 0x40.
    {"destination-over", 0x06000000, 0xFF808080, 0x80000000, 0xFF404040},
    {"destination-over, opaque below", 0x06000000, 0xFF808080, 0xFF123456, 0xFF123456},
};

}  // namespace

TEST(Fills, EveryModeDoesToEveryPixelWhatItsFormulaSays) {
    const OwnedCanvas canvas(CreateCanvas(whole.right, whole.bottom, nullptr));
    for (const FillCase& c : fillCases) {
        Fill(canvas.get(), Plain{c.before});
        EXPECT_EQ(FillSolidRectEx(canvas.get(), c.color, &whole, c.mode), 1) << c.name;
        EXPECT_TRUE(Shows(canvas.get(), Plain{c.after})) << c.name;
    }
}

TEST(Fills, PremultipliedAndPlainFormsDifferOnlyInTheColour) {
    const OwnedCanvas canvas = MakeCanvas(8, 6, Plain{});
    FillPreMulColorRectEx(canvas.get(), 0x80FF8040, &whole, ZORVIC_OP_COPY);
    EXPECT_TRUE(Shows(canvas.get(), Plain{0x80FF8040})) << "not premultiplied again";
    FillSolidRect(canvas.get(), 0x80808080, &whole);
    EXPECT_TRUE(Shows(canvas.get(), Plain{0xC0BF8060})) << "source-over";
}

TEST(Fills, ColorsThatChangeNothingNeedNoCanvas) {
    using Fill = std::pair<DWORD, DWORD>;
    for (const auto& [color, mode] :
         {Fill{0x00FFFFFF, 0x01000000}, {0x00FFFFFF, 0x02000000}, {0xFFFFFFFF, 0x03000000}, {0xFFFFFFFF, 0x04000000}})
        EXPECT_EQ(FillSolidRectEx(nullptr, color, &whole, mode), 1) << color << ' ' << mode;
    for (const auto& [color, mode] :
         {Fill{0x00FFFFFF, 0x05000000}, {0x00FFFFFF, 0x07000000}, {0x00000000, 0x00000000}, {0xFFFFFFFF, 0x01000000}})
        EXPECT_EQ(FillSolidRectEx(nullptr, color, &whole, mode), 0) << color << ' ' << mode;
    EXPECT_EQ(FillSolidRect(nullptr, 0, &whole), 1);
    // A gradient of two colours does, whatever its direction.
    for (const DWORD direction : {0UL, 1UL, 2UL, 3UL})
        EXPECT_EQ(FillGradualRect(nullptr, 0x00FFFFFF, 0xFFFFFFFF, &whole, direction), 0) << direction;
    EXPECT_EQ(FillGradualRect(nullptr, 0x00FFFFFF, 0, &whole, 0), 1) << "both premultiplied alike";
}

// Single colours through the DLL: packing, and how the records of three bytes travel.
#include <xmmintrin.h>

#include "support/host.h"

namespace {

// How all compilers that hosts are made with pass three bytes. They come back through the address that a host passes
// before all arguments. 32-bit hosts pass them in the low bytes of a stack word whose last byte means nothing, 64-bit
// hosts by address.
using Passed = std::conditional_t<sizeof(void*) == 8, const DWORD*, DWORD>;
using Convert = void*(__cdecl*)(BYTE* result, Passed color);
using Adjust = void*(__cdecl*)(BYTE* result, Passed color, float hue, float saturation, float lightness);

template <class How>
How Pass(const DWORD& word) {
    if constexpr (std::is_pointer_v<How>)
        return &word;
    else
        return word;
}

template <class Function>
Function Find(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(host::LoadedDll(), name)));
}

// The result as a word; the byte behind it must survive.
template <class Function, class... Args>
DWORD Call(const char* name, DWORD color, Args... args) {
    BYTE result[4] = {0, 0, 0, 0x5A};
    const DWORD word = 0xEE000000 | color;
    EXPECT_EQ(Find<Function>(name)(result, Pass<Passed>(word), args...), result) << name;
    EXPECT_EQ(result[3], 0x5A) << name;
    return static_cast<DWORD>(result[2] << 16 | result[1] << 8 | result[0]);
}

TEST(Colors, TriplesAreTheLowBytesOfWords) {
    for (int i = 0; i < 1000; ++i) {
        const DWORD color = host::Pattern{}(i, 0) & 0xFFFFFF;
        EXPECT_EQ(Call<Convert>("RGBtoHSL", color), ARGBtoAHSL(color));
        EXPECT_EQ(Call<Convert>("HSLtoRGB", color), AHSLtoARGB(color));
        EXPECT_EQ(Call<Adjust>("RGBColorize", color, 0.3F, -0.2F, 0.1F), ARGBColorize(color, 0.3F, -0.2F, 0.1F));
        EXPECT_EQ(Call<Adjust>("HSLColorize", color, 0.3F, -0.2F, 0.1F), AHSLColorize(color, 0.3F, -0.2F, 0.1F));
    }
    const HSLTriple hsl = RGBtoHSL(RGBTriple{10, 0, 255});  // blue, green, red
    EXPECT_EQ(hsl.hue, 254);
    EXPECT_EQ(hsl.saturation, 255);
    EXPECT_EQ(hsl.lightness, 128);
}

// Down, up and toward zero.
TEST(Colors, DoNotDependOnTheHostsRounding) {
    for (DWORD i = 0; i < 20'000; ++i) {
        const DWORD ahsl = host::Pattern{}(static_cast<int>(i), 1);
        const DWORD nearest = AHSLtoARGB(ahsl), colorized = ARGBColorize(ahsl, 0.3F, -0.2F, 0.1F);
        for (const unsigned rounding : {0x2000U, 0x4000U, 0x6000U}) {
            _mm_setcsr(0x1F80 | rounding);
            const DWORD word = AHSLtoARGB(ahsl), again = ARGBColorize(ahsl, 0.3F, -0.2F, 0.1F);
            const DWORD triple = Call<Convert>("HSLtoRGB", ahsl & 0xFFFFFF);
            _mm_setcsr(0x1F80);
            ASSERT_TRUE(word == nearest && again == colorized) << std::hex << ahsl;
            ASSERT_EQ(triple, nearest & 0xFFFFFF) << std::hex << ahsl;
        }
    }
}

}  // namespace

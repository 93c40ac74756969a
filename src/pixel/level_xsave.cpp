// What processor and operating system offer to the primitives: CPUID, and XGETBV, which needs the compiler's consent.
#include <intrin.h>

#include "pixel/primitive_set.h"

namespace zorvic {

namespace {

constexpr bool Bit(int word, int bit) { return (static_cast<unsigned>(word) >> bit & 1) != 0; }

}  // namespace

const LevelProbe thisProcessorsLevel{
    [](int registers[4], int leaf) { __cpuidex(registers, leaf, 0); },
    [] { return static_cast<std::uint64_t>(_xgetbv(0)); },
};

Level BestLevel(const LevelProbe& probe) {
    enum { eax, ebx, ecx, edx };
    int largest[4], leaf1[4], leaf7[4];
    probe.cpuid(largest, 0);
    probe.cpuid(leaf1, 1);
    if (!Bit(leaf1[edx], 26)) return Level::generic;

    // XGETBV exists only where the operating system has switched it on. Bits 1 and 2: it saves 128 and 256 bits; 5 to 7:
    // the mask registers and 512 bits.
    constexpr std::uint64_t wideState = 0x06, widestState = 0xE6;
    const bool hasXgetbv = Bit(leaf1[ecx], 27), hasAvx = Bit(leaf1[ecx], 28);
    if (largest[eax] < 7 || !hasXgetbv || !hasAvx || (probe.enabledState() & wideState) != wideState)
        return Level::sse2;
    probe.cpuid(leaf7, 7);
    if (!Bit(leaf7[ebx], 5)) return Level::sse2;
    constexpr int foundation = 16, doubleAndQuadWords = 17, bytesAndWords = 30, vectorLengths = 31;
    const bool hasAvx512 = Bit(leaf7[ebx], foundation) && Bit(leaf7[ebx], doubleAndQuadWords) &&
                           Bit(leaf7[ebx], bytesAndWords) && Bit(leaf7[ebx], vectorLengths);
    return hasAvx512 && (probe.enabledState() & widestState) == widestState ? Level::avx512 : Level::avx2;
}

}  // namespace zorvic

// The primitives in one form, and the choice of the form that this process uses.
#pragma once

#include "pixel/forms/sums.h"
#include "pixel/primitives.h"

namespace zorvic {

// Pointers and sizes are valid.
struct PrimitiveSet {
    void (*set)(TargetPixels dst, SIZE size, std::uint32_t color);
    void (*setColors)(TargetPixels dst, SIZE size, std::uint32_t color);
    void (*blend)(SourcePixels src, TargetPixels dst, SIZE size);
    void (*compose)(SourcePixels src, TargetPixels dst, SIZE size);
    void (*composeAlpha)(SourcePixels src, TargetPixels dst, SIZE size, std::uint8_t opacity);
    void (*composeColor)(TargetPixels dst, SIZE size, std::uint32_t color);
    void (*bitOr)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);
    void (*bitAnd)(SourcePixels src, TargetPixels dst, SIZE size, std::uint32_t value);
    void (*copy)(const void* src, void* dst, std::size_t bytes);  // they may overlap
    // Columns of the source become rows of the target; size is the source's.
    void (*transpose)(SourcePixels src, TargetPixels dst, SIZE size);
    // The box filter, row by row: see box_rows.h.
    void (*slideColumns)(std::uint32_t* columns, const std::uint32_t* entering, const std::uint32_t* leaving, int n);
    void (*boxMeans)(const std::uint32_t* columns, int box, const std::uint32_t* start, SumDivider divider,
                     std::uint32_t* out, int n);
    void (*copyReversed)(const void* src, void* dst, int n);  // n pixels
    void (*exchange)(void* a, void* b, int n);
    void (*exchangeReversed)(void* a, void* b, int n);  // a[i] with b[n - 1 - i]
};

const PrimitiveSet& Primitives();  // of the level in use

extern const PrimitiveSet genericPrimitives, sse2Primitives, avx2Primitives, avx512Primitives;

enum class Level : int { unresolved = -1, generic, sse2, avx2, avx512 };
inline constexpr Level widestLevel = Level::avx512;

// The processor as detection sees it; tests put another one in its place.
struct LevelProbe {
    void (*cpuid)(int registers[4], int leaf);  // eax, ebx, ecx, edx; subleaf 0
    std::uint64_t (*enabledState)();            // XCR0: the registers that the operating system saves
};
extern const LevelProbe thisProcessorsLevel;

// The widest form that processor and operating system have.
Level BestLevel(const LevelProbe& probe = thisProcessorsLevel);

// The level in use, resolved on the first call.
Level CurrentLevel();

// The set of the level in use.
template <class Set>
const Set& AtCurrentLevel(const Set& generic, const Set& sse2, const Set& avx2, const Set& avx512) {
    switch (CurrentLevel()) {
        case Level::avx512:
            return avx512;
        case Level::avx2:
            return avx2;
        case Level::sse2:
            return sse2;
        default:
            return generic;
    }
}

// For tests: uses no form wider than this one. Returns the level in use from now on.
Level LimitLevel(Level widest);

}  // namespace zorvic

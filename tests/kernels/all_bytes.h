// All combinations of the three bytes that decide on a pixel in every form against a plain formula: in the soak run 2^24 of
// them, else every fifth value of the third byte.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/amount.h"
#include "support/image.h"
#include "support/levels.h"

namespace zorvic {

// The first byte is the column and stands in the destination, the second is the row and stands in the source, each in
// all channels. What the third one is; red stands with the other two as blue and green.
enum class Third { unused, sourceAlpha, sourceRed, destinationAlpha, destinationRed, argument };

using Draw = std::function<void(const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t third)>;
using Formula = std::function<std::uint32_t(std::uint32_t dst, std::uint32_t src, std::uint32_t third)>;

struct Drawing {
    std::string form;
    Draw draw;
};

// Different in every channel, so that none can stand in for another.
inline std::uint32_t InAllChannels(std::uint32_t byte) { return byte * 0x01010101 ^ 0x80330F00; }
inline std::uint32_t WithAlpha(std::uint32_t pixel, std::uint32_t alpha) { return (pixel & 0xFFFFFF) | alpha << 24; }

inline void CheckAllBytes(Third third, const std::vector<Drawing>& forms, const Formula& formula) {
#if defined(__SANITIZE_ADDRESS__)
    const std::uint32_t step = 51;  // watched builds are slow, and look for other faults
#else
    const auto step = static_cast<std::uint32_t>(Amount(5, 1));  // divides 255
#endif
    Image before(256, 256), src(256, 256), wanted(256, 256);
    const auto words = [](const Image& image) { return static_cast<std::uint32_t*>(image.Info().bmBits); };
    std::uint32_t *const d = words(before), *const s = words(src), *const w = words(wanted);
    for (std::uint32_t z = 0; z < 256; z += third == Third::unused ? 256 : step) {
        for (std::uint32_t i = 0; i < 65536; ++i) {
            const std::uint32_t x = i % 256, y = i / 256, color = (x ^ y) << 24 | z << 16 | y << 8 | x;
            d[i] = third == Third::destinationRed ? color : InAllChannels(x);
            s[i] = third == Third::sourceRed ? color : InAllChannels(y);
            if (third == Third::destinationAlpha) d[i] = WithAlpha(d[i], z);
            if (third == Third::sourceAlpha) s[i] = WithAlpha(s[i], z);
            w[i] = formula(d[i], s[i], z);
        }
        for (const Drawing& form : forms) {
            const Image dst = before;
            form.draw(dst.Info(), src.Info(), z);
            ASSERT_TRUE(SameBytes(dst, wanted)) << form.form << ", third byte " << z;
        }
    }
}

// At every level that this processor has.
inline void CheckAllBytes(Third third, const Draw& draw, const Formula& formula) {
    std::vector<Drawing> forms;
    for (const Level level : Levels())
        forms.push_back({"level " + std::to_string(static_cast<int>(level)),
                         [=](const BitmapLockInfo& dst, const BitmapLockInfo& src, std::uint32_t z) {
                             LimitLevel(level);
                             draw(dst, src, z);
                         }});
    CheckAllBytes(third, forms, formula);
    LimitLevel(widestLevel);
}

}  // namespace zorvic

// What a fuzz target makes of a string of bytes: numbers that are mostly small and sometimes absurd, and a seed for
// pixels, so that short inputs describe whole images. An input that is too short goes on with zeros.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>

#include "support/random.h"
#include "zorvic/types.h"

namespace zorvic {

class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : at(data), end(data + size) {}

    std::uint8_t Byte() { return at < end ? *at++ : std::uint8_t{0}; }
    bool Flag() { return (Byte() & 1) != 0; }

    std::uint32_t Word() {
        std::uint32_t word = 0;
        for (int shift = 0; shift < 32; shift += 8) word |= std::uint32_t{Byte()} << shift;
        return word;
    }

    // 0 to n - 1, for n up to 65536.
    int Below(int n) { return (n <= 256 ? Byte() : Byte() | Byte() << 8) % n; }

    template <class List>
    auto Pick(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

    // A width or height that an image can have: mostly one where vectors and blocks begin and end.
    int Extent() {
        constexpr int large[] = {127,  128,  129,  255,  256,  257,  511,  512,  513,  900,   1023,  1024,
                                 1025, 2047, 2048, 2049, 4097, 8191, 8192, 8193, 8200, 16384, 30000, 32767};
        const int byte = Byte();
        return byte < 224 ? 1 + byte % 72 : Pick(large);
    }

    // Any number that fits a LONG.
    LONG Number() {
        using Limits = std::numeric_limits<LONG>;
        constexpr LONG edges[] = {Limits::min(), Limits::min() + 1, -65536,       -32768, 32767, 32768, 65535, 65536,
                                  1 << 30,       Limits::max() - 1, Limits::max()};
        const int kind = Byte() % 16;
        if (kind < 9) return static_cast<std::int8_t>(Byte());
        if (kind < 13) return static_cast<std::int16_t>(Below(65536));
        return kind < 15 ? Pick(edges) : static_cast<LONG>(Word());
    }

    RECT Rect() {
        const LONG left = Number(), top = Number(), right = Number(), bottom = Number();
        return {left, top, right, bottom};
    }

    // Any factor: 1, fractions, negative and huge ones, no number.
    float Factor() {
        using Limits = std::numeric_limits<float>;
        constexpr float special[] = {0,
                                     -0.0F,
                                     1e-6F,
                                     Limits::denorm_min(),
                                     Limits::max(),
                                     Limits::infinity(),
                                     -Limits::infinity(),
                                     Limits::quiet_NaN()};
        const int kind = Byte() % 8;
        if (kind < 2) return 1;
        return kind < 6 ? static_cast<float>(static_cast<std::int16_t>(Below(65536))) / 256 : Pick(special);
    }

    // Pixels, the same ones for the same input.
    Random Seed() { return Random(static_cast<int>(Word())); }

private:
    const std::uint8_t* at;
    const std::uint8_t* end;
};

// What each target does with an input.
void RunInput(Input& input);

// Ends the run, which is what the fuzzer takes for a fault, with a message as of printf.
[[noreturn, gnu::format(printf, 1, 2)]] void Fail(const char* format, ...);

}  // namespace zorvic

// Sums of bytes in 32-bit numbers, one for each channel of a pixel, and their division. V::Sums holds those of one or
// more neighbouring pixels; forms that filters run in have it.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

namespace zorvic {

// Divides sums below 256 x divisor by a multiplication: the quotient is sum x multiplier >> (32 + shift). For divisors
// from 2 to 2^23.
//
// With 2^(p - 1) < divisor <= 2^p the multiplier is 2^(31 + p) / divisor, rounded up, which fits 32 bits. It is too
// large by less than 1, and the product by less than the sum: that is less than 2^(31 + p) / divisor, by which a product
// lies below the next quotient's at least.
struct SumDivider {
    explicit SumDivider(std::uint32_t divisor) : shift(-1) {
        while (std::uint64_t{1} << (shift + 1) < divisor) ++shift;
        const std::uint64_t one = std::uint64_t{1} << (32 + shift);
        multiplier = static_cast<std::uint32_t>((one + divisor - 1) / divisor);
    }

    std::uint32_t multiplier;
    int shift;
};

namespace {

template <class S>
concept ChannelSums = requires(S s, const std::uint32_t* pixels, std::uint32_t* out, const typename S::Number* in,
                               typename S::Number* sums, typename S::Divider divider) {
    { S::pixels } -> std::convertible_to<int>;
    { S::FromPixels(pixels) } -> std::same_as<S>;
    { S::Load(in) } -> std::same_as<S>;    // channel by channel
    { S::Repeat(in) } -> std::same_as<S>;  // of each pixel the same four
    { s + s } -> std::same_as<S>;
    { s - s } -> std::same_as<S>;
    { Quotients(s, divider) } -> std::same_as<S>;
    s.Store(sums);
    s.StorePixels(out);  // of numbers below 256
};

inline std::uint32_t operator/(std::uint32_t sum, SumDivider divider) {
    return static_cast<std::uint32_t>(std::uint64_t{sum} * divider.multiplier >> 32) >> divider.shift;
}

// One pixel, in plain integers.
template <class SumNumber, class SumsDivider>
struct PlainSums {
    using Number = SumNumber;
    using Divider = SumsDivider;
    static constexpr int pixels = 1;

    Number channels[4];

    static PlainSums FromPixels(const std::uint32_t* in) {
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(in);
        return {{bytes[0], bytes[1], bytes[2], bytes[3]}};
    }
    static PlainSums Load(const Number* in) { return {{in[0], in[1], in[2], in[3]}}; }
    static PlainSums Repeat(const Number* in) { return Load(in); }

    void Store(Number* out) const {
        for (int c = 0; c < 4; ++c) out[c] = channels[c];
    }
    void StorePixels(std::uint32_t* out) const {
        auto* const bytes = reinterpret_cast<std::uint8_t*>(out);
        for (int c = 0; c < 4; ++c) bytes[c] = static_cast<std::uint8_t>(channels[c]);
    }

    friend PlainSums operator+(PlainSums a, PlainSums b) {
        for (int c = 0; c < 4; ++c) a.channels[c] += b.channels[c];
        return a;
    }
    friend PlainSums operator-(PlainSums a, PlainSums b) {
        for (int c = 0; c < 4; ++c) a.channels[c] -= b.channels[c];
        return a;
    }
    friend PlainSums Quotients(PlainSums s, Divider divider) {
        for (Number& channel : s.channels) channel = channel / divider;
        return s;
    }
};

}  // namespace
}  // namespace zorvic

// Running sums: one for each column of channels, over the rows of the box, and from these one along the row.
#include "pixel/box_filter.h"

#include <algorithm>

namespace zorvic {

namespace {

// Up to here sums fit 32 bits: 255.5 x 4096^2 < 2^32.
constexpr int largestSmallBox = 4096;
// Up to here they fit 64. Larger boxes count as this one, beside which any image is a speck.
constexpr int largestBox = 1 << 28;

struct SmallBox {
    using Sum = std::uint32_t;

    explicit SmallBox(int box)
        : area(static_cast<Sum>(box) * static_cast<Sum>(box)), reciprocal((one + area - 1) / area) {}

    // Exact: the reciprocal is too large by less than area / 2^56, which makes less than 2^32 x 2^24 / 2^56 = 1.
    std::uint8_t Mean(Sum sum) const { return static_cast<std::uint8_t>((sum + area / 2) * reciprocal >> 56); }

    static constexpr std::uint64_t one = std::uint64_t{1} << 56;
    Sum area;
    std::uint64_t reciprocal;
};

struct LargeBox {
    using Sum = std::uint64_t;

    explicit LargeBox(int box) : area(static_cast<Sum>(box) * static_cast<Sum>(box)) {}
    std::uint8_t Mean(Sum sum) const { return static_cast<std::uint8_t>((sum + area / 2) / area); }

    Sum area;
};

// The pixels around a place in a row or column of n: before of them, the place itself and after.
struct Window {
    Window(int box, int extent) : before(box / 2), after(box - 1 - box / 2), n(extent) {}

    int Clamped(std::int64_t i) const { return static_cast<int>(std::clamp<std::int64_t>(i, 0, n - 1)); }

    // What leaves and what enters when the window moves from place i to the next.
    int Leaving(int i) const { return Clamped(std::int64_t{i} - before); }
    int Entering(int i) const { return Clamped(std::int64_t{i} + after + 1); }

    // Calls add(index, times) for all that the window around place 0 holds.
    template <class Add>
    void ForFirst(const Add& add) const {
        add(0, before + 1);
        for (int i = 1; i < std::min(after + 1, n); ++i) add(i, 1);
        if (after >= n) add(n - 1, after - n + 1);
    }

    int before, after, n;
};

const std::uint8_t* RowOf(SourcePixels image, int y) {
    return static_cast<const std::uint8_t*>(image.first) + y * image.step;
}

template <int channels, class Box>
void FilterRow(const typename Box::Sum* columns, std::uint8_t* out, const Window& across, const Box& box) {
    using Sum = typename Box::Sum;
    Sum sums[std::size_t{channels}] = {};
    const auto add = [&](int x, Sum times) {
        for (int c = 0; c < channels; ++c) sums[c] += columns[std::ptrdiff_t{x} * channels + c] * times;
    };
    across.ForFirst([&](int x, int times) { add(x, static_cast<Sum>(times)); });
    for (int x = 0; x < across.n; ++x) {
        for (int c = 0; c < channels; ++c) out[std::ptrdiff_t{x} * channels + c] = box.Mean(sums[c]);
        add(across.Entering(x), 1);
        add(across.Leaving(x), ~Sum{0});  // modulo 2^n: minus one
    }
}

template <int channels, class Box>
void Filter(SourcePixels src, TargetPixels dst, SIZE size, int boxSize, void* buffer) {
    using Sum = typename Box::Sum;
    const Box box(boxSize);
    const Window across(boxSize, size.cx), down(boxSize, size.cy);
    auto* const columns = static_cast<Sum*>(buffer);
    const std::ptrdiff_t length = static_cast<std::ptrdiff_t>(size.cx) * channels;

    std::fill_n(columns, length, Sum{0});
    down.ForFirst([&](int y, int times) {
        const std::uint8_t* const row = RowOf(src, y);
        for (std::ptrdiff_t i = 0; i < length; ++i) columns[i] += static_cast<Sum>(times) * row[i];
    });
    auto* out = static_cast<std::uint8_t*>(dst.first);
    for (int y = 0; y < size.cy; ++y, out += dst.step) {
        FilterRow<channels>(columns, out, across, box);
        const std::uint8_t *const entering = RowOf(src, down.Entering(y)), *const leaving = RowOf(src, down.Leaving(y));
        for (std::ptrdiff_t i = 0; i < length; ++i) columns[i] += Sum{entering[i]} - leaving[i];
    }
}

template <class Box>
void FilterChannels(SourcePixels src, TargetPixels dst, SIZE size, int box, int channels, void* buffer) {
    if (channels == 3) {
        Filter<3, Box>(src, dst, size, box, buffer);
    } else {
        Filter<4, Box>(src, dst, size, box, buffer);
    }
}

}  // namespace

Status BoxFilterBufferSize(SIZE size, int box, int channels, std::size_t* bytes) {
    if (bytes == nullptr) return Status::nullPointer;
    if (size.cx < 1 || size.cy < 1 || box < 1 || channels < 1) return Status::badSize;
    const std::uint64_t sumBytes = box <= largestSmallBox ? sizeof(SmallBox::Sum) : sizeof(LargeBox::Sum);
    const std::uint64_t wanted = static_cast<std::uint64_t>(size.cx) * static_cast<unsigned>(channels) * sumBytes;
    if (wanted > PTRDIFF_MAX) return Status::badSize;
    *bytes = static_cast<std::size_t>(wanted);
    return Status::success;
}

Status BoxFilter(SourcePixels src, TargetPixels dst, SIZE size, int box, int channels, void* buffer) {
    if (src.first == nullptr || dst.first == nullptr || buffer == nullptr) return Status::nullPointer;
    if (size.cx < 1 || size.cy < 1 || box < 1 || channels < 3 || channels > 4) return Status::badSize;
    if (box <= largestSmallBox) {
        FilterChannels<SmallBox>(src, dst, size, box, channels, buffer);
    } else {
        FilterChannels<LargeBox>(src, dst, size, std::min(box, largestBox), channels, buffer);
    }
    return Status::success;
}

}  // namespace zorvic

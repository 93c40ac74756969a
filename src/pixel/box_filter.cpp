// Running sums: one for each channel of each column, over the rows of the box, and from these one along the row.
#include "pixel/box_filter.h"

#include <algorithm>
#include <cstring>

#include "pixel/box_window.h"
#include "pixel/forms/wide_sums.h"
#include "pixel/large_box.h"
#include "pixel/primitive_set.h"

namespace zorvic {

namespace {

// Up to here the form in use sums in 32 bits and divides by multiplication: 2896^2 < 2^23.
constexpr int largestSmallBox = 2896;
// Up to here sums fit 64 bits. Larger boxes count as this one: no image is as large.
constexpr int largestBox = 1 << 28;

constexpr std::int64_t slackColumns = 8;  // vectors read on behind the last box
constexpr std::uintptr_t alignment = 64;  // bytes

// What the sums of a row need with their repetitions, four for each column.
std::int64_t PaddedColumns(const Window& across) {
    return across.repeatedBefore + std::int64_t{across.n} + across.repeatedAfter + slackColumns;
}

// columns, in both: the sums of a row's columns, with room for their repetitions before and behind.
struct SmallBox {
    using Sum = std::uint32_t;

    static void Slide(Sum* columns, const std::uint32_t* entering, const std::uint32_t* leaving, int n) {
        Primitives().slideColumns(columns, entering, leaving, n);
    }
    static void Means(Sum* columns, const Window& across, Sum area, std::uint32_t* out) {
        Sum* const padded = columns - std::ptrdiff_t{4} * across.repeatedBefore;
        Sum* const last = columns + std::ptrdiff_t{4} * (across.n - 1);
        for (Sum* column = padded; column < columns; column += 4) std::copy_n(columns, 4, column);
        for (int i = 1; i <= across.repeatedAfter; ++i) std::copy_n(last, 4, last + std::ptrdiff_t{4} * i);
        Sum start[4];
        for (int c = 0; c < 4; ++c)
            start[c] = area / 2 + static_cast<Sum>(across.before - across.repeatedBefore) * columns[c] +
                       static_cast<Sum>(across.after - across.repeatedAfter) * last[c];
        const int box = across.repeatedBefore + 1 + across.repeatedAfter;
        Primitives().boxMeans(padded, box, start, SumDivider(area), out, across.n);
    }
};

struct LargeBox {
    using Sum = std::uint64_t;

    static void Slide(Sum* columns, const std::uint32_t* entering, const std::uint32_t* leaving, int n) {
        for (int x = 0; x < n; ++x, columns += 4) {
            const WideSums change = WideSums::FromPixel(entering + x) - WideSums::FromPixel(leaving + x);
            (WideSums::Load(columns) + change).Store(columns);
        }
    }
    static void Means(Sum* columns, const Window& across, Sum area, std::uint32_t* out) {
        MeansOfLargeBoxes<WideSums>(columns, across, area, out);
    }
};

// Rows as 32-bit pixels: those of four bytes are there, others are widened and narrowed.
struct Rows {
    const std::uint32_t* Read(int y, std::uint32_t* scratch) const {
        const std::byte* const row = static_cast<const std::byte*>(src.first) + y * src.step;
        if (channels == 4) return reinterpret_cast<const std::uint32_t*>(row);
        for (std::ptrdiff_t x = 0; x < width; ++x) std::memcpy(scratch + x, row + 3 * x, 3);
        return scratch;
    }
    std::uint32_t* Target(int y, std::uint32_t* scratch) const {
        return channels == 4 ? reinterpret_cast<std::uint32_t*>(TargetRow(y)) : scratch;
    }
    void Write(int y, const std::uint32_t* scratch) const {
        if (channels == 4) return;
        for (std::ptrdiff_t x = 0; x < width; ++x) std::memcpy(TargetRow(y) + 3 * x, scratch + x, 3);
    }
    std::byte* TargetRow(int y) const { return static_cast<std::byte*>(dst.first) + y * dst.step; }

    SourcePixels src;
    TargetPixels dst;
    int width, channels;
};

template <class Box>
void Filter(const Rows& rows, int height, int box, void* buffer) {
    using Sum = typename Box::Sum;
    const Window across(box, rows.width), down(box, height);
    const int n = across.n;
    const Sum area = static_cast<Sum>(box) * static_cast<Sum>(box);

    const auto address = (reinterpret_cast<std::uintptr_t>(buffer) + alignment - 1) / alignment * alignment;
    auto* const padded = reinterpret_cast<Sum*>(address);
    const auto sums = static_cast<std::ptrdiff_t>(4 * PaddedColumns(across));
    Sum* const columns = padded + std::ptrdiff_t{4} * across.repeatedBefore;
    auto* const zeros = reinterpret_cast<std::uint32_t*>(padded + sums);
    std::uint32_t* const scratch[] = {zeros + n, zeros + std::ptrdiff_t{2} * n, zeros + std::ptrdiff_t{3} * n};
    std::fill_n(padded, sums, Sum{0});
    std::fill_n(zeros, std::ptrdiff_t{4} * n, 0U);

    down.ForFirst([&](int y, int times) {
        const std::uint32_t* const row = rows.Read(y, scratch[0]);
        if (times == 1) return Box::Slide(columns, row, zeros, n);
        const auto* const bytes = reinterpret_cast<const std::uint8_t*>(row);
        for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{4} * n; ++i) columns[i] += static_cast<Sum>(times) * bytes[i];
    });
    for (int y = 0; y < height; ++y) {
        std::uint32_t* const out = rows.Target(y, scratch[2]);
        Box::Means(columns, across, area, out);
        rows.Write(y, out);
        Box::Slide(columns, rows.Read(down.Entering(y), scratch[0]), rows.Read(down.Leaving(y), scratch[1]), n);
    }
}

}  // namespace

Status BoxFilterBufferSize(SIZE size, int box, int channels, std::size_t* bytes) {
    if (bytes == nullptr) return Status::nullPointer;
    if (size.cx < 1 || size.cy < 1 || box < 1 || channels < 1) return Status::badSize;
    const std::int64_t sumBytes = box <= largestSmallBox ? sizeof(SmallBox::Sum) : sizeof(LargeBox::Sum);
    const std::int64_t rowBytes = std::int64_t{4} * size.cx;
    const std::int64_t columns = PaddedColumns(Window(box, size.cx));
    const std::int64_t wanted = 4 * sumBytes * columns + 4 * rowBytes + static_cast<std::int64_t>(alignment);
    if (wanted > PTRDIFF_MAX) return Status::badSize;
    *bytes = static_cast<std::size_t>(wanted);
    return Status::success;
}

Status BoxFilter(SourcePixels src, TargetPixels dst, SIZE size, int box, int channels, void* buffer) {
    if (src.first == nullptr || dst.first == nullptr || buffer == nullptr) return Status::nullPointer;
    if (size.cx < 1 || size.cy < 1 || box < 1 || channels < 3 || channels > 4) return Status::badSize;
    if (box == 1) return CopyPixels(src, dst, size, channels);
    const Rows rows{src, dst, size.cx, channels};
    if (box <= largestSmallBox) {
        Filter<SmallBox>(rows, size.cy, box, buffer);
    } else {
        Filter<LargeBox>(rows, size.cy, std::min(box, largestBox), buffer);
    }
    return Status::success;
}

}  // namespace zorvic

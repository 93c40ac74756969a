// Means of boxes of pixels by coverage, truncated: first the sums of a box's rows for every column, then the sums of its
// columns. What the Boxes of a form do with them is exact, so all forms give the same bytes.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

namespace zorvic {
namespace {

// Neighbouring rows of 32-bit pixels. The weights of the outer two are in 1/65536, at most 65536; rows between them
// count whole, and so do all of them for whole sums.
struct BoxRows {
    const std::byte* first;
    std::ptrdiff_t stride;
    int count;
    std::uint32_t firstWeight, lastWeight;

    const std::byte* Row(int i) const { return first + i * stride; }
    const std::byte* Last() const { return Row(count - 1); }

    // The two weights as signed numbers of 16 bits: from 32768 on they are 65536 less, and the row counts once more.
    std::int32_t WeightPair() const { return static_cast<std::int32_t>((firstWeight & 0xFFFF) | lastWeight << 16); }
    bool FirstCountsOnceMore() const { return firstWeight >= 32768; }
    bool LastCountsOnceMore() const { return lastWeight >= 32768; }
};

// Where a box starts and the one before it ends.
struct BoxEdge {
    int column;
    std::uint32_t extraColumn;  // all ones where the box starts one column more than the narrowest do
    std::uint32_t fraction;     // how much of the column belongs to the box before, in 1/65536
};

// Neighbouring boxes. There is an edge for each of them and one for the end of the last.
struct BoxColumns {
    const BoxEdge* edges;
    int narrowest;      // how many columns start in every box
    double reciprocal;  // 1 / area of a box, rounded up; the area in 1/65536 both ways

    // Sums start with the first box.
    std::ptrdiff_t SumAt(int edge) const { return std::ptrdiff_t{4} * (edges[edge].column - edges[0].column); }
};

// Boxes without parts of pixels: the mean of n bytes is their sum x factor >> (16 + shift).
struct WholeMean {
    int boxColumns;
    int factor;
    int shift;
};

// Columns to sum, in vectors. The last vector may have to start early, so as to end with the row.
struct ColumnSpan {
    int count;
    int lastVector;

    // Where the vector for a column starts.
    int Vector(int column) const { return column < lastVector ? column : lastVector; }
};

// Sums of a column are four numbers, one for each channel.
template <class B>
concept Boxes = requires(const BoxRows& rows, ColumnSpan span, const BoxColumns& columns, const WholeMean& mean, int n,
                         std::uint32_t* sums, std::uint16_t* wholeSums, std::uint32_t* out) {
    { B::lanes } -> std::convertible_to<int>;
    B::SumRows(rows, span, sums);
    B::Means(sums, columns, n, out);  // of n boxes
    // The same for whole boxes, with sums of at most 257 x 255 in an order of the form's own.
    B::SumWholeRows(rows, span, mean, wholeSums);
    B::WholeMeans(wholeSums, mean, n, out);
};

// A number below 2^52 in the low bits of this one is its difference from it.
constexpr double two52 = 4503599627370496.0;

}  // namespace
}  // namespace zorvic

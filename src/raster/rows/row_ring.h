// The last few source rows that a filtering row source has prepared for one block of columns.
#pragma once

#include <cstddef>

namespace zorvic {
namespace {

// Consecutive source rows find separate places, so any `count` neighbours are kept at once.
template <class Row, std::size_t count>
class RowRing {
public:
    void Clear() {
        for (int& source : sourceRows) source = -1;
    }

    // Where the row is; make(row) prepares it if it is not there yet.
    template <class Make>
    std::size_t PlaceOf(int sourceRow, Make make) {
        const std::size_t place = static_cast<std::size_t>(sourceRow) % count;
        if (sourceRows[place] != sourceRow) {
            make(rows[place]);
            sourceRows[place] = sourceRow;
        }
        return place;
    }

    template <class Make>
    const Row& Get(int sourceRow, Make make) {
        return rows[PlaceOf(sourceRow, make)];
    }

    const Row* Rows() const { return rows; }

private:
    Row rows[count];
    int sourceRows[count];
};

}  // namespace
}  // namespace zorvic

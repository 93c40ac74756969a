// The last few source rows that a filtering row source has prepared for one block of columns.
#pragma once

namespace zorvic {
namespace {

// Consecutive source rows find separate places, so any `count` neighbours are kept at once.
template <class Row, int count>
class RowRing {
public:
    void Clear() {
        for (int& source : sourceRows) source = -1;
    }

    template <class Make>
    const Row& Get(int sourceRow, Make make) {
        const auto place = static_cast<unsigned>(sourceRow) % count;
        if (sourceRows[place] != sourceRow) {
            make(rows[place]);
            sourceRows[place] = sourceRow;
        }
        return rows[place];
    }

private:
    Row rows[count];
    int sourceRows[count];
};

}  // namespace
}  // namespace zorvic

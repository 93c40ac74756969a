// The table of checksums: a line for each subject, with a column for each number of cases in `columns`.
#pragma once

#include <string>
#include <vector>

#include "checker.h"

namespace zorvic {

inline constexpr int columns[] = {1000, 10'000, 100'000};

using Table = std::vector<std::string>;

// A line as far as it is known: slot, depth, names, and the checksums so far.
std::string LineOf(const Subject& subject, const std::vector<std::uint64_t>& checksums);

Table TableIn(const char* file);

// Tells where a table differs from the one in a file; either may have more columns.
bool Compare(const char* name, const Table& got, const Table& wanted);

}  // namespace zorvic

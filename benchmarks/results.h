// What was measured for a row at a size, and what it says about the row's targets.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "measure.h"
#include "rows.h"

namespace bench {

enum class Who { library, pixman, gdi, limit };
inline constexpr std::array<const char*, 4> names{"zorvic", "pixman", "gdi", "limit"};

struct Result {
    const Row* row;
    SIZE size;
    bool engineOnly;             // the library's time is that of the engine inside the program
    std::array<Times, 4> times;  // by Who, in nanoseconds per pixel or call; empty: nobody there

    const Times& Of(Who who) const { return times[static_cast<std::size_t>(who)]; }
    // The library's time, with the other's as unit.
    std::optional<double> RatioTo(Who who) const;
};

// A target and what was reached.
struct Verdict {
    Target target;
    double reached;
    bool IsMet() const { return reached <= target.most; }
};

// narrow: the run was limited to SSE2, for which other targets hold.
std::vector<Verdict> Judge(const Result& result, const std::vector<Result>& all, bool narrow);

std::string TitleOf(const Row& row);        // the name and, where it matters, the content
std::string ToText(const Target& target);   // "0.16 of pixman"
bool IsStandardSize(const Result& result);  // the size for which targets are stated, or one of its own

}  // namespace bench
